#include "compiler.h"

#include "order_tokens.h"
#include "probe_options.h"
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

/// Whether the word \a index of a command may be a path. The program is one already; a define, and
/// the language behind the GNU driver's "-x", are paths by chance only. What the compiler writes
/// stays in the folder of the probe.
bool mayBePath(const QStringList &words, qsizetype index, const CommandLayout &layout)
{
    const auto isBehind = [&word = words[index]](const QString &flag) {
        return !flag.isEmpty() && word.startsWith(flag);
    };
    return index > 0 && !isBehind(layout.defineFlag) && !isBehind(layout.outputFlag)
        && words[index - 1] != "-x"_L1;
}

/// The defines that the command can name. Without a flag each would be taken for a file.
QStringList passedDefines(const Compiler &compiler)
{
    return compiler.layout.defineFlag.isEmpty() ? QStringList() : compiler.defines;
}

/// What a token of the order stands for: a word, or the start of one.
struct Piece
{
    QString text;
    bool endsWord = true;
};

QStringList wordsOf(const QList<Piece> &pieces)
{
    QStringList words {QString()};
    for (const Piece &piece : pieces) {
        words.last() += piece.text;
        if (piece.endsWord && !words.last().isEmpty())
            words << QString();
    }
    words.removeAll(QString());
    return words;
}

/// Without its flag the output's name would be taken for a source, unless the order has no flag at
/// all and so names the output in a place of its own.
bool namesOutput(const CommandLayout &layout)
{
    return !layout.outputFlag.isEmpty() || !layout.order.contains("%o"_L1);
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

QString withAbsolutePath(const QString &word, const QDir &folder)
{
    // What stands before a path in one word: an option with a sign behind it, a single letter, the
    // mark of a response file, or nothing.
    static const QRegularExpression start(
        u"^(?:(?:--?|/)[A-Za-z][-A-Za-z]*[=:,]|[-/][A-Za-z]|@)?"_s);
    if (QFileInfo(word).isAbsolute() && QFileInfo::exists(word))
        return word;
    const QString option = start.match(word).captured();
    const QString path = word.mid(option.size());
    const QFileInfo file(folder, path);
    const bool isRelative = !path.isEmpty() && QDir::isRelativePath(path) && file.exists();
    return isRelative ? option + file.absoluteFilePath() : word;
}

Compiler findCompiler(const Arguments &arguments)
{
    Compiler compiler;
    compiler.layout = arguments.layout;
    compiler.defines = arguments.defines;
    compiler.isCpp = arguments.isCpp;
    compiler.isCross = arguments.crossCompiler;
    QStringList words = commandWords(arguments.command, &isProgram);
    for (const QString &item : arguments.switches)
        words << QProcess::splitCommand(item);
    words = withoutOtherPurposes(words);
    for (qsizetype i = 0; i < words.size(); ++i) {
        const bool includes = words[i] == "-include"_L1 || words[i] == "-imacros"_L1;
        if (includes && i > 0 && i + 1 < words.size()) {
            compiler.includedFirst << words[i] << withAbsolutePath(words[i + 1]);
            ++i;
        } else {
            compiler.command << (mayBePath(words, i, arguments.layout) ? withAbsolutePath(words[i])
                                                                       : words[i]);
        }
    }
    const QString program = words.isEmpty() ? QString() : programPath(words.first());
    if (!program.isEmpty())
        compiler.command.first() = program;
    return compiler;
}

QStringList probeCommand(const Compiler &compiler, const QString &source, const QString &output,
                         CompileTo goal)
{
    const bool isNamed = goal == CompileTo::Program || compiler.namesObjects;
    QList<Piece> pieces;
    for (const OrderToken &token : parseOrderString(compiler.layout.order)) {
        switch (token.part) {
        case CommandPart::Command:
            for (const QString &word : compiler.command)
                pieces.append({word});
            break;
        case CommandPart::OutputFlag:
            pieces.append({isNamed ? compiler.layout.outputFlag : QString(), token.spaceFollows});
            break;
        case CommandPart::OutputFile:
            if (isNamed && namesOutput(compiler.layout))
                pieces.append({output});
            break;
        case CommandPart::DefineFlag:
            for (const QString &define : passedDefines(compiler))
                pieces << Piece {compiler.layout.defineFlag, token.spaceFollows} << Piece {define};
            break;
        case CommandPart::ObjectFlag:
            pieces.append({goal == CompileTo::Object ? compiler.layout.objectFlag : QString()});
            break;
        case CommandPart::Source:
            pieces.append({source});
            break;
        }
    }
    return wordsOf(pieces);
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
