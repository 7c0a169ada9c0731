// The generator: asks a compiler about itself and writes its personality.
//
// Progress goes to the standard output, one line for each step, which grows while the step goes on.
// The command attempted, and what it wrote, are left in the working directory as compile.bat,
// stdout.log and stderr.log. The exit status is 0 when the personality has been written, 1 when a
// step failed, 2 for a command line that usage() does not allow, and 3 when a personality that was
// to be verified has changed.

#include "again.h"
#include "check_steps.h"
#include "process_tree.h"
#include "request.h"
#include "steps.h"

#include <QCoreApplication>
#include <QDir>
#include <QTemporaryDir>
#include <cstdio>
#include <functional>

using namespace Qt::StringLiterals;

namespace {

/// Prints \a text at once.
void print(const QString &text)
{
    std::fputs(text.toLocal8Bit().constData(), stdout);
    std::fflush(stdout);
}

/// Asks \a compiler for all facts, with \a folder for temporary files. Nothing when a step fails.
std::optional<Facts> learn(Progress &progress, const Compiler &compiler, const Arguments &arguments,
                           const QString &folder, const QString &logFolder)
{
    ProbeRunner runner(compiler, folder, arguments.reduceFileSize);
    const std::optional<ProbeAnswer> first = compileFirstProbe(progress, runner, logFolder);
    if (!first || !checkControls(progress, runner, *first))
        return {};
    const DialectAnswers listed = askForListings(progress, compiler, *first, folder);
    const HeaderScan scan = readDirectories(progress, arguments.headerDirectories);
    const Questions questions = findHowToAsk(progress, runner);
    const std::optional<MacroFacts> macros =
        findMacros(progress, questions, listed.macros, scan.names, logFolder);
    if (!macros)
        return {};

    Facts facts;
    facts.versionLine = listed.versionLine;
    facts.macros = *macros;
    facts.types = measureTypes(progress, questions);
    facts.keywords = findKeywords(progress, questions, scan, facts);
    facts.searchPath = findSearchPath(progress, questions, listed.searchPath, scan);
    const bool lacksSearchPath =
        facts.searchPath.directories.isEmpty() && includesStandardHeaders(questions);
    if (!worksStill(progress, runner, logFolder)
        || !checkCompleteness(progress, facts, lacksSearchPath))
        return {};
    progress.say(u"The compiler was started %1 times."_s.arg(runner.compilersStarted()));
    return facts;
}

/// The text of the personality that \a arguments ask for; see learn().
std::optional<QByteArray> makePersonality(Progress &progress, const Arguments &arguments,
                                          const QString &folder, const QString &logFolder)
{
    const std::optional<Arguments> usable = checkArguments(progress, arguments);
    if (!usable)
        return {};
    const Compiler compiler = findCompiler(*usable);
    const std::optional<Facts> facts = learn(progress, compiler, *usable, folder, logFolder);
    if (!facts)
        return {};
    return textOfPersonality(*usable, compiler, *facts);
}

bool generate(Progress &progress, const Arguments &arguments, const QString &folder)
{
    removeLogs();
    const std::optional<QByteArray> text = makePersonality(progress, arguments, folder, u"."_s);
    if (!text || !writePersonality(progress, arguments.personality, *text))
        return false;
    checkHeaders(progress, arguments, folder);
    return true;
}

/// Says what has changed since a personality was written, and returns the exit status.
int verify(Progress &progress, const EarlierPersonality &earlier, const QString &folder)
{
    const std::optional<QByteArray> text =
        makePersonality(progress, earlier.arguments, folder, folder);
    if (!text)
        return 1;
    const QStringList changes = changesBetween(earlier.text, *text);
    for (const QString &change : changes)
        progress.say(change);
    if (!changes.isEmpty())
        return 3;
    progress.say(u"Nothing has changed."_s);
    return 0;
}

/// Does \a work, which is given a folder for temporary files, and returns its exit status.
int inWorkshop(const std::function<int(Progress &progress, const QString &folder)> &work)
{
    Progress progress(&print);
    QTemporaryDir workshop;
    if (!workshop.isValid()) {
        progress.say(u"No temporary folder can be made: %1"_s.arg(workshop.errorString()));
        return 1;
    }
    const platform::ProgramGuard guard(workshop.path());
    const ProgressClock clock(progress);
    return work(progress, workshop.path());
}

// run() does what a command line asks for, and returns the exit status.

int run(const Arguments &arguments)
{
    return inWorkshop([&arguments](Progress &progress, const QString &folder) {
        return generate(progress, arguments, folder) ? 0 : 1;
    });
}

int run(const AgainRequest &request)
{
    const auto read = readEarlierPersonality(request.personality);
    if (const auto *problem = std::get_if<QString>(&read)) {
        print(*problem + u'\n');
        return 1;
    }
    const auto &earlier = std::get<EarlierPersonality>(read);
    return inWorkshop([&](Progress &progress, const QString &folder) {
        if (!earlier.remark.isEmpty())
            progress.say(earlier.remark);
        if (request.verifiesOnly)
            return verify(progress, earlier, folder);
        return generate(progress, earlier.arguments, folder) ? 0 : 1;
    });
}

int run(CheckRequest request)
{
    for (QString *path : {&request.personality, &request.jsonFile}) {
        if (!path->isEmpty())
            *path = QDir::current().absoluteFilePath(*path);
    }
    for (QString &path : request.sources)
        path = QDir::current().absoluteFilePath(path);
    const auto read = readEarlierPersonality(request.personality);
    if (const auto *problem = std::get_if<QString>(&read)) {
        print(*problem + u'\n');
        return 3;
    }
    const auto &earlier = std::get<EarlierPersonality>(read);
    return inWorkshop([&](Progress &progress, const QString &folder) {
        return checkWithPersonality(progress, request, earlier.arguments,
                                    parsePersonality(earlier.text), folder);
    });
}

int run(const HelpRequest &)
{
    print(help() + u'\n');
    return 0;
}

int run(const VersionRequest &)
{
    print(u"Bexlor " BEXLOR_VERSION "\n"_s);
    return 0;
}

int run(const UsageError &error)
{
    const QString lines = error.sentence + u'\n' + usage() + u'\n';
    std::fputs(lines.toLocal8Bit().constData(), stderr);
    return 2;
}

} // namespace

int main(int argc, char *argv[])
{
    QCoreApplication application(argc, argv);
    const Request request = parseRequest(application.arguments().mid(1));
    if (const auto *error = std::get_if<UsageError>(&request))
        return run(*error);
    if (const auto *arguments = std::get_if<Arguments>(&request))
        return run(*arguments);
    if (const auto *again = std::get_if<AgainRequest>(&request))
        return run(*again);
    if (const auto *check = std::get_if<CheckRequest>(&request))
        return run(*check);
    if (const auto *help = std::get_if<HelpRequest>(&request))
        return run(*help);
    return run(VersionRequest());
}
