#include "compiler.h"

#include "order_tokens.h"
#include "program_search.h"

#include <QFileInfo>
#include <QProcess>
#include <QRegularExpression>

using namespace Qt::StringLiterals;

namespace {

QString programPath(const QString &word)
{
    const QString found = platform::findCommand(word, platform::searchPathVariable());
    return found.isEmpty() ? QString() : QFileInfo(found).absoluteFilePath();
}

bool isProgram(const QString &word)
{
    return !programPath(word).isEmpty();
}

/// \a words without the options that make errors of warnings. A probe asks what the compiler knows,
/// and it would be refused for its style.
QStringList withoutWarningsAsErrors(QStringList words)
{
    static const QRegularExpression option(u"^(-Werror(=.*)?|--Werror|-pedantic-errors|[-/]WX)$"_s);
    words.removeIf([](const QString &word) { return option.match(word).hasMatch(); });
    // cc65's is made of two words.
    for (qsizetype i = words.size() - 1; i > 0; --i) {
        if (words[i] == "error"_L1 && words[i - 1] == "-W"_L1)
            words.remove(--i, 2);
    }
    return words;
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

QString withAbsolutePath(const QString &word)
{
    // What stands before a path in one word: an option with a sign behind it, a single letter, the
    // mark of a response file, or nothing.
    static const QRegularExpression start(
        u"^(?:(?:--?|/)[A-Za-z][-A-Za-z]*[=:,]|[-/][A-Za-z]|@)?"_s);
    if (QFileInfo(word).isAbsolute() && QFileInfo::exists(word))
        return word;
    const QString option = start.match(word).captured();
    const QFileInfo file(word.mid(option.size()));
    const bool isRelative = !file.filePath().isEmpty() && file.isRelative() && file.exists();
    return isRelative ? option + file.absoluteFilePath() : word;
}

Compiler findCompiler(const Arguments &arguments)
{
    Compiler compiler;
    QStringList words = commandWords(arguments.command, &isProgram);
    for (const QString &item : arguments.switches)
        words << QProcess::splitCommand(item);
    words = withoutWarningsAsErrors(words);
    for (qsizetype i = 0; i < words.size(); ++i) {
        const bool isDefine =
            !arguments.defineFlag.isEmpty() && words[i].startsWith(arguments.defineFlag);
        // The program, and what is a path by chance only: a define, the GNU driver's language.
        const bool isNoPath = i == 0 || isDefine || words[i - 1] == "-x"_L1;
        const bool includes = words[i] == "-include"_L1 || words[i] == "-imacros"_L1;
        if (includes && i > 0 && i + 1 < words.size()) {
            compiler.includedFirst << words[i] << withAbsolutePath(words[i + 1]);
            ++i;
        } else {
            compiler.command << (isNoPath ? words[i] : withAbsolutePath(words[i]));
        }
    }
    const QString program = words.isEmpty() ? QString() : programPath(words.first());
    if (!program.isEmpty())
        compiler.command.first() = program;
    compiler.outputFlag = arguments.outputFlag;
    compiler.objectFlag = arguments.objectFlag;
    compiler.defineFlag = arguments.defineFlag;
    compiler.objectExtension = arguments.objectExtension;
    compiler.order = arguments.order;
    compiler.defines = arguments.defines;
    compiler.isCpp = arguments.isCpp;
    compiler.isCross = arguments.crossCompiler;
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
    const bool outputIsNamed = !compiler.outputFlag.isEmpty() || !compiler.order.contains("%o"_L1);

    for (const OrderToken &token : parseOrderString(compiler.order)) {
        switch (token.part) {
        case CommandPart::Command:
            words << compiler.command;
            break;
        case CommandPart::OutputFlag:
            addFlag(compiler.outputFlag, token.spaceFollows);
            break;
        case CommandPart::OutputFile:
            if (outputIsNamed)
                add(output);
            break;
        case CommandPart::DefineFlag:
            for (const QString &define : compiler.defines) {
                addFlag(compiler.defineFlag, token.spaceFollows);
                add(define);
            }
            break;
        case CommandPart::ObjectFlag:
            if (product == Product::Object)
                add(compiler.objectFlag);
            break;
        case CommandPart::Source:
            add(source);
            break;
        }
    }
    return words;
}

QString commandLine(const QStringList &command)
{
    static const QRegularExpression special(u"[ &|<>^()\"]"_s);
    static const QRegularExpression beforeQuote(u"(\\\\*)\""_s);
    static const QRegularExpression atEnd(u"(\\\\+)$"_s);
    QStringList words = command;
    for (QString &word : words) {
        if (!word.isEmpty() && !word.contains(special))
            continue;
        word.replace(beforeQuote, u"\\1\\1\\\""_s);
        word.replace(atEnd, u"\\1\\1"_s);
        word = u'"' + word + u'"';
    }
    return words.join(u' ');
}
