#include "clang_forms.h"

#include "path_options.h"
#include "probe_options.h"

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

QList<QStringList> optionsOf(const CompileCommand &command)
{
    QList<QStringList> options;
    const QStringList words =
        withoutOtherPurposes(withoutResponseFiles(command.words, command.directory));
    for (const QString &word : words.mid(1)) {
        if (word == "--"_L1 || command.isNamedBy(word))
            continue;
        // What stands before all options belongs to one who starts the compiler.
        if (word.startsWith(u'-'))
            options.append({word});
        else if (!options.isEmpty())
            options.last() << word;
    }
    return options;
}

QByteArray compileCommands(const QList<CompileCommand> &commands, const QString &clang,
                           const QString &personality, AcceptedOptions &accepted)
{
    QList<CompileCommand> forClang = commands;
    for (CompileCommand &command : forClang) {
        const QList<QStringList> options = accepted.of(optionsOf(command), command.directory);
        command.words = {clang, u"--config"_s, personality};
        for (const QStringList &option : options)
            command.words << option;
        command.words << command.file;
    }
    return databaseText(forClang);
}

QByteArray clangdConfiguration(const QString &personality, const QStringList &refused)
{
    // Of a compiler that is called otherwise, clangd would take a target from the name.
    QByteArray text =
        "CompileFlags:\n  Compiler: clang\n  Add: " + yamlList({u"--config"_s, personality}) + '\n';
    if (!refused.isEmpty())
        text += "  Remove: " + yamlList(refused) + '\n';
    return text;
}
