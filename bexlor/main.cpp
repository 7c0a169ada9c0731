// The generator: asks a compiler about itself and writes its personality.
//
// Progress goes to the standard output, one line for each step, which grows while the step goes on.
// The command attempted, and what it wrote, are left in the working directory as compile.bat,
// stdout.log and stderr.log. The exit status is 0 when the personality has been written, 1 when a
// step failed, 2 for a command line that usage() does not allow.

#include "process_tree.h"
#include "steps.h"

#include <QCoreApplication>
#include <QTemporaryDir>
#include <cstdio>

using namespace Qt::StringLiterals;

namespace {

/// Prints \a text at once.
void print(const QString &text)
{
    std::fputs(text.toLocal8Bit().constData(), stdout);
    std::fflush(stdout);
}

/// Asks \a compiler for all facts. Nothing when a step fails.
std::optional<Facts> learn(Progress &progress, const Compiler &compiler, const Arguments &arguments,
                           const QString &folder)
{
    ProbeRunner runner(compiler, folder, arguments.reduceFileSize);
    const std::optional<ProbeAnswer> first = compileFirstProbe(progress, runner);
    if (!first || !checkControls(progress, runner, *first))
        return {};
    const DialectAnswers listed = askForListings(progress, compiler, *first, folder);
    const HeaderScan scan = readDirectories(progress, arguments.headerDirectories);
    const Questions questions = findHowToAsk(progress, runner);
    const std::optional<MacroFacts> macros =
        findMacros(progress, questions, listed.macros, scan.names);
    if (!macros)
        return {};

    Facts facts;
    facts.versionLine = listed.versionLine;
    facts.macros = *macros;
    facts.types = measureTypes(progress, questions);
    facts.keywords = findKeywords(progress, questions, scan, facts);
    facts.searchPath = findSearchPath(progress, questions, listed.searchPath, scan);
    if (!worksStill(progress, runner) || !checkCompleteness(progress, questions, facts))
        return {};
    progress.say(u"The compiler was started %1 times."_s.arg(runner.compilersStarted()));
    return facts;
}

bool generate(Progress &progress, const Arguments &arguments, const QString &folder)
{
    removeLogs();
    const std::optional<Arguments> usable = checkArguments(progress, arguments);
    if (!usable)
        return false;
    const Compiler compiler = findCompiler(*usable);
    const std::optional<Facts> facts = learn(progress, compiler, *usable, folder);
    return facts && writePersonality(progress, *usable, compiler, *facts);
}

} // namespace

int main(int argc, char *argv[])
{
    QCoreApplication application(argc, argv);
    const std::optional<Arguments> arguments = parseArguments(application.arguments().mid(1));
    if (!arguments) {
        std::fprintf(stderr, "%s\n", usage().toLocal8Bit().constData());
        return 2;
    }
    Progress progress(&print);
    QTemporaryDir workshop;
    if (!workshop.isValid()) {
        progress.say(u"No temporary folder can be made: %1"_s.arg(workshop.errorString()));
        return 1;
    }
    const platform::ProgramGuard guard(workshop.path());
    const ProgressClock clock(progress);
    return generate(progress, *arguments, workshop.path()) ? 0 : 1;
}
