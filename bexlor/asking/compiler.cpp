#include "compiler.h"

#include "path_options.h"
#include "probe_options.h"
#include "quoting.h"
#include "typed_command.h"

#include <QFileInfo>
#include <QRegularExpression>

using namespace Qt::StringLiterals;

namespace {

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
bool isOutputTold(const CommandLayout &layout)
{
    return !layout.outputFlag.isEmpty() || !findPart(layout.order, CommandPart::OutputFlag);
}

/// What a probe is compiled from and to.
struct Probe
{
    const QString &source;
    QString output; ///< empty where the compiler takes no name for it
    CompileTo goal;
};

/// What stands for \a token in the command that compiles \a probe.
QList<Piece> piecesFor(const OrderToken &token, const Compiler &compiler, const Probe &probe)
{
    const CommandLayout &layout = compiler.layout;
    const bool isNamed = !probe.output.isEmpty();
    QList<Piece> pieces;
    switch (token.part) {
    case CommandPart::Command:
        for (const QString &word : compiler.command)
            pieces.append({word});
        break;
    case CommandPart::OutputFlag:
        pieces.append({isNamed ? layout.outputFlag : QString(), token.spaceFollows});
        break;
    case CommandPart::OutputFile:
        if (isNamed && isOutputTold(layout))
            pieces.append({probe.output});
        break;
    case CommandPart::DefineFlag:
        for (const QString &define : compiler.defines)
            pieces << Piece {layout.defineFlag, token.spaceFollows} << Piece {define};
        break;
    case CommandPart::ObjectFlag:
        pieces.append({probe.goal == CompileTo::Object ? layout.objectFlag : QString()});
        break;
    case CommandPart::Source:
        pieces.append({probe.source});
        break;
    }
    return pieces;
}

} // namespace

std::optional<IncludedFile> includedFileAt(const QStringList &words, qsizetype index)
{
    static const QRegularExpression apart(u"^(?:--?(?:include|imacros|preinclude)|[-/]FI)$"_s);
    static const QRegularExpression joined(u"^(?:-(?:include|imacros)(?![-_=])|"
                                           "--(?:include|imacros)=|--?preinclude=|[-/]FI)(.+)$"_s);
    const QString &word = words[index];
    static const QRegularExpression macrosAlone(u"^--?imacros"_s);
    const QString option = word.contains(macrosAlone) ? u"-imacros"_s : u"-include"_s;
    if (apart.match(word).hasMatch()) {
        if (index + 1 == words.size())
            return {};
        return IncludedFile {{word, words[index + 1]}, option, words[index + 1]};
    }
    const QRegularExpressionMatch match = joined.match(word);
    if (!match.hasMatch() || QFileInfo::exists(word))
        return {};
    return IncludedFile {{word}, option, match.captured(1)};
}

QStringList unnamedDefines(const Arguments &arguments)
{
    QStringList defines = arguments.defines;
    if (!arguments.layout.defineFlag.isEmpty())
        defines.clear();
    defines.removeIf(&bringsOwnFlag);
    return defines;
}

Compiler findCompiler(const Arguments &arguments)
{
    Compiler compiler;
    compiler.layout = arguments.layout;
    compiler.defines = arguments.defines;
    if (arguments.layout.defineFlag.isEmpty())
        compiler.defines.removeIf([](const QString &define) { return !bringsOwnFlag(define); });
    compiler.isCpp = arguments.isCpp;
    compiler.isCross = arguments.crossCompiler;
    QStringList words = commandWords(arguments.command);
    for (const QString &item : arguments.switches)
        words << splitCommand(item);
    words = withoutOtherPurposes(withoutResponseFiles(words, QDir::current()));
    words = withAbsolutePaths(words, arguments.layout);
    for (qsizetype i = 0; i < words.size(); ++i) {
        const auto included = i > 0 ? includedFileAt(words, i) : std::nullopt;
        if (included) {
            compiler.includedFirst << *included;
            i += included->words.size() - 1;
        } else {
            compiler.command << words[i];
        }
    }
    const QString program = words.isEmpty() ? QString() : programPath(words.first());
    if (!program.isEmpty())
        compiler.command.first() = program;
    return compiler;
}

Compiler withIncludedFiles(Compiler compiler)
{
    for (const IncludedFile &included : compiler.includedFirst)
        compiler.command << included.words;
    return compiler;
}

QStringList commandWithDefines(const Compiler &compiler)
{
    QStringList command = compiler.command;
    for (const QString &define : compiler.defines)
        command << (bringsOwnFlag(define) ? define : u"-D"_s + define);
    return command;
}

bool namesOutput(const Compiler &compiler)
{
    return compiler.namesObjects && findPart(compiler.layout.order, CommandPart::OutputFile)
        && isOutputTold(compiler.layout);
}

QStringList probeCommand(const Compiler &compiler, const QString &source, const QString &output,
                         CompileTo goal)
{
    const bool isNamed = goal == CompileTo::Program || compiler.namesObjects;
    const Probe probe {source, isNamed ? output : QString(), goal};
    QList<Piece> pieces;
    for (const OrderToken &token : compiler.layout.order)
        pieces << piecesFor(token, compiler, probe);
    return wordsOf(pieces);
}
