#include "check.h"

#include "clang.h"
#include "probe_runner.h"
#include "text_file.h"

#include <QFileInfo>
#include <QThreadPool>
#include <algorithm>
#include <future>
#include <vector>

using namespace Qt::StringLiterals;

namespace {

const int timeLimit = 600'000; // milliseconds for one compilation
const qsizetype largestSource = 500'000'000;

const QLatin1StringView syntaxOnly("-fsyntax-only");

int timeLeft(QDeadlineTimer deadline)
{
    return int(std::min<qint64>(deadline.remainingTimeAsDuration().count() / 1'000'000, timeLimit));
}

// Operators whose answers are each compiler's own, defined to answer that it has nothing. Those on
// headers tell about the search path instead.
const char *const withoutAbilities[] = {
    "__has_attribute(...)=0",
    "__has_builtin(...)=0",
    "__has_c_attribute(...)=0",
    "__has_cpp_attribute(...)=0",
    "__has_declspec_attribute(...)=0",
    "__has_extension(...)=0",
    "__has_feature(...)=0",
    "__has_warning(...)=0",
    "__is_identifier(...)=1",
};

/// These definitions, each behind \a flag.
QStringList abilityOptions(const QString &flag)
{
    QStringList options;
    for (const char *definition : withoutAbilities)
        options << flag + QLatin1StringView(definition);
    return options;
}

/// \a command with \a options in the place of the object flag or, if there is none, behind the
/// program's name.
QStringList withOptions(const QStringList &command, const QStringList &options,
                        const QString &objectFlag)
{
    const qsizetype flag = objectFlag.isEmpty() ? -1 : command.indexOf(objectFlag, 1);
    const qsizetype place = std::max<qsizetype>(flag, 1);
    return command.first(place) + options + command.sliced(flag < 0 ? place : place + 1);
}

void removeOutput(const CheckedSource &source)
{
    if (!source.output.isEmpty())
        QFile::remove(source.output);
}

platform::ProgramRun compile(const Checking &checking, const CheckedSource &source)
{
    const QStringList command =
        checking.checksSyntaxOnly
            ? withOptions(source.command, {syntaxOnly}, checking.layout.objectFlag)
            : source.command;
    const platform::ProgramRun run =
        platform::runProgram(command, source.directory, timeLeft(checking.deadline));
    removeOutput(source);
    return run;
}

/// What the compiler makes of \a source when it preprocesses it under \a definitions, be it printed
/// or written where it writes objects to.
platform::ProgramRun preprocess(const Checking &checking, const CheckedSource &source,
                                const QStringList &definitions)
{
    platform::ProgramRun run = platform::runProgram(
        withOptions(source.command, QStringList {checking.preprocess} + definitions,
                    checking.layout.objectFlag),
        source.directory, timeLeft(checking.deadline), largestSource);
    if (run.output.isEmpty())
        run.output = platform::readFile(source.output, largestSource).bytes;
    removeOutput(source);
    return run;
}

platform::ProgramRun runClang(const Checking &checking, const CheckedSource &source,
                              const QStringList &options)
{
    const QStringList quiet {u"-w"_s, u"-ferror-limit=1"_s};
    return runClang(checking.clang, checking.personality, quiet + options + source.clangOptions,
                    source.directory, timeLeft(checking.deadline), largestSource);
}

/// Lets clang leave the keywords in the code that it would otherwise not understand, and see the
/// compiler's own definition of macros that have been made to fit clang's types. What clang's
/// headers ask for stays, since they are still read, and so does what a template defines.
QStringList undefinedKeywords(const Personality &personality)
{
    const QList<Macro> forHeaders = headerDefinitions(personality.facts.macros);
    QStringList options;
    for (const Option &option : personality.keywordDefinitions) {
        const QByteArray definition = option.first().mid(2); // which somebody may have shortened
        const QByteArray name = bareName(definition.split('=').first());
        const auto isNamed = [&name](const Macro &macro) { return macro.name == name; };
        const bool makesRoom = option.first().startsWith("-U"); // for a definition behind it
        if (makesRoom || std::any_of(forHeaders.begin(), forHeaders.end(), isNamed))
            continue;
        options << QString::fromUtf8(undefiningOption(name));
        if (const Macro *macro = findMacro(personality.facts.macros, name))
            options << QString::fromUtf8(definingOption(*macro));
    }
    return options;
}

/// What comparing the code that both see has come to.
struct Comparison
{
    bool isMade = false;
    std::optional<TokenDifference> difference;
    QString problem; ///< why it is not made: what the one that does not preprocess says
};

/// Compares \a source under definitions for both.
Comparison compare(const Checking &checking, const CheckedSource &source,
                   const QStringList &ownDefinitions, const QStringList &clangDefinitions)
{
    const platform::ProgramRun own = preprocess(checking, source, ownDefinitions);
    if (!own.succeeded())
        return {false, {}, firstError(own.errors + own.output)};
    if (own.output.isEmpty())
        return {false, {}, u"the compiler preprocesses it to nothing"_s};
    const platform::ProgramRun clang =
        runClang(checking, source,
                 QStringList {u"-E"_s} + undefinedKeywords(checking.content) + clangDefinitions);
    if (!clang.succeeded())
        return {false, {}, rejectionIn(clang.errors).message};
    const QStringList ownHeaders = ownHeadersOf(checking.content);
    // Where the compiler has such headers clang reads its own instead, and one of these may include
    // the compiler's of the same name.
    QStringList ownHeadersOfClang = ownHeaders;
    if (!ownHeaders.isEmpty())
        ownHeadersOfClang << checking.clang.headers;
    Comparison comparison {
        true, firstDifference({own.output, ownHeaders}, {clang.output, ownHeadersOfClang}), {}};
    // Where clang has headers of its own, those of the C library may come in another order. What
    // they are for shows in the code behind them.
    if (comparison.difference && !ownHeaders.isEmpty()) {
        comparison.difference = firstDifference({own.output, ownHeaders, true},
                                                {clang.output, ownHeadersOfClang, true});
    }
    return comparison;
}

/// Compares the code that both see in a source that both accept.
void compare(const Checking &checking, const CheckedSource &source, Verdict &verdict)
{
    verdict.result = Verdict::NotCompared;
    if (checking.preprocess.isEmpty())
        return;
    Comparison comparison = compare(checking, source, {}, {});
    if (!comparison.isMade) {
        verdict.message = comparison.problem;
        return;
    }
    if (comparison.difference && !checking.layout.defineFlag.isEmpty()) {
        const Comparison alike = compare(
            checking, source, abilityOptions(checking.layout.defineFlag), abilityOptions(u"-D"_s));
        comparison = alike.isMade ? alike : comparison;
    }
    verdict.result = comparison.difference ? Verdict::Different : Verdict::Same;
    verdict.difference = comparison.difference.value_or(TokenDifference());
}

/// What is not there of the files that \a source needs in any case.
QString missingPart(const CheckedSource &source)
{
    if (!QFileInfo(source.directory).isDir())
        return u"the directory %1"_s.arg(source.directory);
    for (const QString &file : {source.path, source.compiled}) {
        if (!QFileInfo::exists(file))
            return u"the file %1"_s.arg(file);
    }
    return {};
}

Verdict checkSource(const Checking &checking, const CheckedSource &source)
{
    Verdict verdict;
    verdict.file = source.file;
    verdict.message = missingPart(source);
    if (!verdict.message.isEmpty()) {
        verdict.result = Verdict::Missing;
        return verdict;
    }
    const platform::ProgramRun own = compile(checking, source);
    if (own.ending == platform::ProgramRun::NotStarted) {
        verdict.message = source.command.first();
        return verdict;
    }
    if (!own.succeeded()) {
        verdict.result = Verdict::RejectedByCompiler;
        verdict.message = firstError(own.errors + own.output);
        return verdict;
    }
    const platform::ProgramRun clang = runClang(checking, source, {syntaxOnly});
    if (clang.succeeded()) {
        compare(checking, source, verdict);
    } else {
        verdict.result = Verdict::RejectedByClang;
        verdict.rejection = rejectionIn(clang.errors);
    }
    return verdict;
}

} // namespace

QStringList ownHeadersOf(const Personality &personality)
{
    QStringList folders;
    for (const QString &directory : personality.facts.searchPath.directories) {
        if (personality.searchPath.contains(Option {"-idirafter", directory.toUtf8()})
            && holdsIntrinsics(directory))
            folders << directory;
    }
    return folders;
}

bool canCheckSyntaxOnly(const Compiler &compiler, const QString &folder, QDeadlineTimer deadline)
{
    const auto accepts = [&](const QString &name, const QByteArray &code) {
        const QString file = folder + u'/' + name + probeName(compiler.isCpp);
        if (!platform::writeScratchFile(file, code))
            return false;
        const QStringList command = withOptions(sourceOfFile(compiler, file, folder, 0).command,
                                                {syntaxOnly}, compiler.layout.objectFlag);
        return platform::runProgram(command, folder, timeLeft(deadline)).succeeded();
    };
    return accepts(u"right_"_s, "int right;\n") && !accepts(u"wrong_"_s, "int wrong wrong;\n");
}

void checkSources(const Checking &checking, const QList<CheckedSource> &sources,
                  const std::function<void(const Verdict &)> &report)
{
    // Nothing is left of a source that the deadline has come before, or that it has cut short.
    using Outcome = std::optional<Verdict>;
    std::vector<std::promise<Outcome>> outcomes(std::size_t(sources.size()));
    QThreadPool pool;
    for (std::size_t i = 0; i < outcomes.size(); ++i) {
        pool.start([&checking, &source = sources[qsizetype(i)], &outcome = outcomes[i]] {
            const Verdict verdict =
                checking.deadline.hasExpired() ? Verdict() : checkSource(checking, source);
            outcome.set_value(checking.deadline.hasExpired() ? Outcome() : verdict);
        });
    }
    for (std::promise<Outcome> &outcome : outcomes) {
        if (const Outcome verdict = outcome.get_future().get())
            report(*verdict);
    }
    pool.waitForDone();
}
