#include "generate.h"

#include "changes.h"
#include "check_steps.h"
#include "compiler.h"
#include "compiler_names.h"
#include "learning_steps.h"
#include "personality_steps.h"
#include "probe_steps.h"

#include <optional>

using namespace Qt::StringLiterals;

namespace {

/// A personality, and the compiler as it has turned out to be called.
struct MadePersonality
{
    QByteArray text;
    Compiler compiler;
};

/// Asks the compiler of \a runner for all facts, with \a folder for temporary files. Nothing when a
/// step fails.
std::optional<Facts> learn(Progress &progress, ProbeRunner &runner, const Arguments &arguments,
                           const QString &folder, const QString &logFolder)
{
    const std::optional<ProbeAnswer> first = compileFirstProbe(progress, runner, logFolder);
    if (!first || !compileIncludedFiles(progress, runner.compiler(), folder, logFolder)
        || !checkControls(progress, runner, *first))
        return {};
    std::optional<DialectAnswers> listed =
        askForListings(progress, runner.compiler(), *first, folder);
    if (!listed)
        return {};
    const Questions questions = findHowToAsk(progress, runner);
    QStringList directories = arguments.headerDirectories;
    if (directories.isEmpty() && !listed->searchPath) {
        directories = findDirectoriesBeside(progress, questions);
        listed->searchPath = SearchPath {directories, {}};
    }
    HeaderScan scan = readDirectories(progress, directories);
    if (listed->macros.isEmpty())
        scan.names << namesOfCompiler(runner.compiler(), listed->versionLine);
    const std::optional<MacroFacts> macros =
        findMacros(progress, questions, listed->macros, scan.names, logFolder);
    if (!macros)
        return {};

    Facts facts;
    facts.versionLine = listed->versionLine;
    facts.macros = *macros;
    facts.types = measureTypes(progress, questions);
    facts.keywords = findKeywords(progress, questions, scan, facts);
    facts.attributes = findAttributes(progress, questions);
    facts.leniencies = findLeniencies(progress, questions);
    facts.searchPath = findSearchPath(progress, questions, listed->searchPath, scan);
    const bool lacksSearchPath =
        facts.searchPath.directories.isEmpty() && includesStandardHeaders(questions);
    if (!worksStill(progress, runner, logFolder)
        || !checkCompleteness(progress, facts, lacksSearchPath))
        return {};
    progress.say(u"The compiler was started %1 times."_s.arg(runner.compilersStarted()));
    return facts;
}

/// Takes the steps from the first probe to the text of the personality that \a arguments, which can
/// be used, ask for. Nothing when one fails.
std::optional<MadePersonality> makePersonality(Progress &progress, const Arguments &arguments,
                                               const QString &folder, const QString &logFolder)
{
    ProbeRunner runner(findCompiler(arguments), folder, arguments.reduceFileSize);
    const std::optional<Facts> facts = learn(progress, runner, arguments, folder, logFolder);
    if (!facts)
        return {};
    const Compiler &compiler = runner.compiler();
    const auto text = textOfPersonality(progress, arguments, compiler, *facts);
    return text ? std::optional(MadePersonality {*text, compiler}) : std::nullopt;
}

} // namespace

ExitStatus generate(Progress &progress, const Arguments &arguments, const QString &folder)
{
    removeLogs();
    const std::optional<Arguments> usable = checkArguments(progress, arguments);
    if (!usable || !checkDestination(progress, usable->personality))
        return ExitStatus::Failed;
    const std::optional<MadePersonality> made = makePersonality(progress, *usable, folder, u"."_s);
    if (!made || !writePersonality(progress, usable->personality, made->text))
        return ExitStatus::Failed;
    checkHeaders(progress, made->compiler, usable->personality, made->text, folder);
    return usable->checksTypes
             ? checkTypes(progress, made->compiler, usable->personality, made->text, folder)
             : ExitStatus::Done;
}

ExitStatus verify(Progress &progress, const Arguments &arguments, const QByteArray &earlier,
                  const QString &folder)
{
    const std::optional<Arguments> usable = checkArguments(progress, arguments);
    const std::optional<MadePersonality> made =
        usable ? makePersonality(progress, *usable, folder, folder) : std::nullopt;
    if (!made)
        return ExitStatus::Failed;
    const QStringList changes = changesBetween(earlier, made->text);
    for (const QString &change : changes)
        progress.say(change);
    if (!changes.isEmpty())
        return ExitStatus::Missing;
    progress.say(u"Nothing has changed."_s);
    return ExitStatus::Done;
}
