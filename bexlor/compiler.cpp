#include "bexlor/compiler.h"

#include "platform/paths.h"

#include <QFileInfo>
#include <QProcess>
#include <QStandardPaths>

namespace {

/// The path of the program that a command word stands for, or an empty string.
QString programPath(const QString &word)
{
    for (const char *suffix : {"", ".exe", ".com", ".bat"}) {
        const QString path = platform::hostPath(word + QLatin1String(suffix));
        const QString found = QStandardPaths::findExecutable(path);
        if (!found.isEmpty())
            return found;
        if (QFileInfo(path).isFile() && QFileInfo(path).isExecutable())
            return QFileInfo(path).absoluteFilePath();
    }
    return QString();
}

bool isProgram(const QString &word)
{
    return !programPath(word).isEmpty();
}

} // namespace

QStringList commandWords(const QString &command, bool (*isProgram)(const QString &word))
{
    const QLatin1Char quote('"');
    const QStringList words = QProcess::splitCommand(command);
    if (command.size() < 2 || !command.startsWith(quote) || !command.endsWith(quote))
        return words;
    const QString inside = command.mid(1, command.size() - 2);
    if (isProgram(inside))
        return {inside};
    return !words.isEmpty() && isProgram(words.first()) ? words : QProcess::splitCommand(inside);
}

Compiler findCompiler(const Arguments &arguments)
{
    QStringList command = commandWords(arguments.command, &isProgram);
    if (!command.isEmpty() && isProgram(command.first()))
        command.first() = programPath(command.first());
    for (const QString &item : arguments.switches)
        command << QProcess::splitCommand(item);
    Compiler compiler;
    compiler.command = command;
    compiler.outputFlag = arguments.outputFlag;
    compiler.objectFlag = arguments.objectFlag;
    compiler.defineFlag = arguments.defineFlag;
    compiler.objectExtension = arguments.objectExtension;
    compiler.order = arguments.order;
    compiler.defines = arguments.defines;
    compiler.isCpp = arguments.isCpp;
    return compiler;
}

QStringList compileCommand(const Compiler &compiler, const QString &source, const QString &output,
                           Product product)
{
    QStringList words;
    QString joined; // what the next word is joined to
    const auto add = [&](const QString &word) {
        if (!joined.isEmpty() || !word.isEmpty())
            words << joined + word;
        joined.clear();
    };
    const auto addFlag = [&](const QString &flag, bool spaceFollows) {
        if (spaceFollows)
            add(flag);
        else
            joined += flag;
    };
    const bool outputIsNamed =
        !compiler.outputFlag.isEmpty() || !compiler.order.contains(QLatin1String("%o"));

    const QStringList tokens = compiler.order.split(QLatin1Char('%'), Qt::SkipEmptyParts);
    for (const QString &token : tokens) {
        const bool spaceFollows = token.endsWith(QLatin1Char(' '));
        switch (token.front().toLatin1()) {
        case 'c':
            words << compiler.command;
            break;
        case 'o':
            addFlag(compiler.outputFlag, spaceFollows);
            break;
        case 'e':
            if (outputIsNamed)
                add(output);
            break;
        case 'd':
            for (const QString &define : compiler.defines) {
                addFlag(compiler.defineFlag, spaceFollows);
                add(define);
            }
            break;
        case 'j':
            if (product == Product::Object)
                add(compiler.objectFlag);
            break;
        case 's':
            add(source);
            break;
        }
    }
    return words;
}

QString commandLine(const QStringList &command)
{
    QStringList words = command;
    for (QString &word : words) {
        if (word.isEmpty() || word.contains(QLatin1Char(' ')))
            word = QLatin1Char('"') + word + QLatin1Char('"');
    }
    return words.join(QLatin1Char(' '));
}
