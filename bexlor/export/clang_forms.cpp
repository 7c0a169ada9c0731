#include "clang_forms.h"

#include "clang.h"

#include <QJsonArray>
#include <QJsonDocument>

using namespace Qt::StringLiterals;

namespace {

/// \a texts as a list of YAML, of which JSON is a part.
QByteArray yamlList(const QStringList &texts)
{
    return QJsonDocument(QJsonArray::fromStringList(texts)).toJson(QJsonDocument::Compact);
}

} // namespace

QByteArray compileCommands(const QList<CompileCommand> &commands, const QString &clang,
                           const QString &personality, OptionsForClang &forClang)
{
    QList<CompileCommand> translated = commands;
    for (CompileCommand &command : translated) {
        command.words = QStringList {clang} + personalityOption(personality) + forClang.of(command);
        command.words << command.file;
    }
    return databaseText(translated);
}

QByteArray clangdConfiguration(const QString &personality, const QStringList &refused)
{
    // Of a compiler that is called otherwise, clangd would take a target from the name.
    QByteArray text = "CompileFlags:\n  Compiler: clang\n  Add: "
                    + yamlList(personalityOption(personality)) + '\n';
    if (!refused.isEmpty())
        text += "  Remove: " + yamlList(refused) + '\n';
    return text;
}
