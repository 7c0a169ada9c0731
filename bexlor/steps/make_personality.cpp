#include "make_personality.h"

#include "compiler_names.h"
#include "learning_steps.h"
#include "personality_steps.h"
#include "probe_steps.h"

using namespace Qt::StringLiterals;

namespace {

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

} // namespace

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
