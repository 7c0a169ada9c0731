#include "compile_database.h"

#include "command_line.h"
#include "file_system.h"
#include "path_options.h"
#include "probe_options.h"

#include <QDir>
#include <QFileInfo>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

using namespace Qt::StringLiterals;

namespace {

const QLatin1StringView directoryKey("directory"), fileKey("file"), argumentsKey("arguments"),
    commandKey("command");

} // namespace

QString CompileCommand::absoluteFile() const
{
    return QDir::cleanPath(QDir(directory).absoluteFilePath(file));
}

bool CompileCommand::isNamedBy(const QString &word) const
{
    const QString named = CompileCommand {directory, word, {}}.absoluteFile();
    return named.compare(absoluteFile(), platform::caseOfFileNames()) == 0;
}

QStringList CompileCommand::compilingWords() const
{
    QStringList compiling = withoutOtherPurposes(withoutResponseFiles(words, directory));
    if (compiling.isEmpty())
        compiling = words; // a response file in which there is nothing
    if (QDir::fromNativeSeparators(compiling.value(0)).contains(u'/'))
        compiling.first() = QDir(directory).absoluteFilePath(compiling.first());
    return compiling;
}

std::optional<QList<CompileCommand>> parseDatabase(const QByteArray &json, const QString &folder)
{
    const QJsonDocument document = QJsonDocument::fromJson(json);
    if (!document.isArray())
        return {};
    QList<CompileCommand> commands;
    const QJsonArray array = document.array();
    for (const QJsonValueConstRef value : array) {
        CompileCommand command {QDir(folder).absoluteFilePath(value[directoryKey].toString()),
                                value[fileKey].toString(),
                                value[argumentsKey].toVariant().toStringList()};
        if (command.words.isEmpty())
            command.words = platform::splitCommandLine(value[commandKey].toString());
        if (command.file.isEmpty() || command.words.isEmpty())
            return {};
        commands << command;
    }
    return commands;
}

QByteArray databaseText(const QList<CompileCommand> &commands)
{
    QJsonArray array;
    for (const CompileCommand &command : commands)
        array << QJsonObject {{directoryKey, command.directory},
                              {fileKey, command.file},
                              {argumentsKey, QJsonArray::fromStringList(command.words)}};
    return QJsonDocument(array).toJson();
}
