// The generator: asks a compiler about itself and writes its personality.
//
// Progress goes to the standard output, one line for each step. The command attempted, and what it
// wrote, are left in the working directory as compile.bat, stdout.log and stderr.log. The exit
// status is 0 when the personality has been written, 1 when a step failed, 2 for a command line
// that usage() does not allow.

#include "arguments.h"
#include "generator_interface.h"
#include "known_names.h"
#include "learning.h"
#include "personality.h"
#include "process_tree.h"
#include "text_file.h"

#include <QCoreApplication>
#include <QFileInfo>
#include <QRegularExpression>
#include <QTemporaryDir>
#include <cstdio>

using namespace Qt::StringLiterals;

namespace {

using platform::ProgramRun;

const int questionTimeLimit = 30'000; // milliseconds

const char *const firstProbe = "int calyx_probe;\n";

// Set for tests and measurements: the compiler is not asked in the GNU driver's own way.
const char *const learnOnly = "BEXLOR_LEARN_ONLY";

void say(const QString &line)
{
    std::fprintf(stdout, "%s\n", line.toLocal8Bit().constData());
    std::fflush(stdout);
}

const QLatin1StringView logFiles[] = {generator::attemptedCommand, generator::standardOutput,
                                      generator::standardError};

void leaveLogs(const QStringList &command, const ProgramRun &run)
{
    platform::writeTextFile(logFiles[0], commandLine(command) + u'\n');
    platform::writeFile(logFiles[1], run.output);
    platform::writeFile(logFiles[2], run.errors);
}

QString howItEnded(const ProgramRun &run)
{
    switch (run.ending) {
    case ProgramRun::NotStarted:
        return u"the compiler could not be started"_s;
    case ProgramRun::Crashed:
        return u"the compiler crashed"_s;
    case ProgramRun::TimedOut:
        return u"the compiler did not end within its time"_s;
    case ProgramRun::Exited:
        break;
    }
    return u"the compiler returned %1"_s.arg(run.exitCode);
}

/// What a compiler that understands the GNU driver's options answers to them.
void askLikeGnu(const Compiler &compiler, const Prober &prober, const QString &folder, Facts &facts)
{
    if (!platform::writeFile(folder + u'/' + prober.sourceName(), "\n"))
        return;
    QStringList question = compiler.command;
    for (const QString &define : compiler.defines)
        question << u"-D"_s + define;
    const ProgramRun macros = platform::runProgram(
        question + QStringList {u"-dM"_s, u"-E"_s, prober.sourceName()}, folder, questionTimeLimit);
    const ProgramRun searchPath = platform::runProgram(
        question + QStringList {u"-v"_s, u"-E"_s, prober.sourceName()}, folder, questionTimeLimit);
    if (macros.succeeded()) {
        facts.macros = parseMacros(macros.output);
        facts.macros.removeIf(
            [](const Macro &macro) { return isBuiltIntoThePreprocessor(macro.name); });
    }
    if (searchPath.succeeded())
        parseSearchPath(searchPath.errors, facts);
}

QByteArray versionLine(const Compiler &compiler, const ProgramRun &firstRun, const QString &folder)
{
    const QByteArray banner = versionLineOf(firstRun.output + '\n' + firstRun.errors);
    if (!banner.isEmpty())
        return banner;
    const ProgramRun run = platform::runProgram(compiler.command + QStringList {u"--version"_s},
                                                folder, questionTimeLimit);
    return versionLineOf(run.output + '\n' + run.errors);
}

/// Why a directory should not be given whole, or an empty text.
QString widthRemark(const QString &directory)
{
    const QFileInfo given(directory);
    const bool isWide = given.isRoot() || given.absoluteFilePath() == "/usr"_L1;
    return isWide
             ? u"%1 is too wide for a search directory; reading it takes long."_s.arg(directory)
             : QString();
}

TreeNames readDirectories(const QStringList &directories)
{
    for (const QString &directory : directories) {
        const QString remark = widthRemark(directory);
        if (!remark.isEmpty())
            say(remark);
    }
    if (!directories.isEmpty())
        say(u"Reading the search directories ..."_s);
    const TreeNames tree = readTree(directories);
    for (const QString &remark : tree.remarks)
        say(remark);
    if (!directories.isEmpty()) {
        say(u"Found %1 names in %2 files."_s.arg(tree.names.size()).arg(tree.files));
    }
    return tree;
}

/// Whether the first probe still compiles: a compiler that has stopped working, for want of a
/// license or of room on the disk, would be taken for one that rejects everything. Says so if not.
bool worksStill(const Prober &prober)
{
    const Answer again = prober.ask(firstProbe);
    if (again.compiled())
        return true;
    leaveLogs(prober.command(), again.run);
    say(u"The first probe no longer compiles: %1."_s.arg(howItEnded(again.run)));
    return false;
}

/// Asks the compiler for all facts; says why and returns nothing when a step fails.
std::optional<Facts> learn(const Arguments &arguments, const QString &folder)
{
    const Compiler compiler = findCompiler(arguments);
    const Prober prober(compiler, folder, arguments.reduceFileSize);
    say(u"Compiling a first probe ..."_s);
    const Answer first = prober.ask(firstProbe);
    leaveLogs(prober.command(), first.run);
    if (!first.compiled()) {
        say(u"Compiling the first probe failed: %1."_s.arg(howItEnded(first.run)));
        return {};
    }

    Facts facts;
    facts.includedFirst = compiler.includedFirst;
    facts.versionLine = versionLine(compiler, first.run, folder);
    if (!qEnvironmentVariableIsSet(learnOnly))
        askLikeGnu(compiler, prober, folder, facts);
    TreeNames tree = readDirectories(arguments.headerDirectories);
    for (const QString &define : compiler.defines)
        tree.names.append(
            {define.section(QRegularExpression(u"[=(]"_s), 0, 0).toUtf8(), TestedInHeader});
    const Experiment experiment(prober, !compiler.isCross);
    if (!experiment.readsConstants() && facts.macros.isEmpty()) {
        say(u"Reading constants back failed: the compiler leaves no file that holds "
            "the bytes of a probe's constants."_s);
        return {};
    }
    if (facts.macros.isEmpty()) {
        say(u"Looking for predefined macros ..."_s);
        learnMacros(experiment, tree.names, facts);
        if (!worksStill(prober))
            return {};
    }
    say(u"Found %1 predefined macros, and %2 whose definition is not known."_s
            .arg(facts.macros.size())
            .arg(facts.undeterminedMacros.size()));
    if (experiment.readsConstants()) {
        say(u"Measuring types ..."_s);
        learnTypes(experiment, facts);
    }
    say(u"Looking for keywords ..."_s);
    learnKeywords(experiment, tree.names, facts);
    say(u"Found %1 keywords."_s.arg(facts.keywords.size()));
    if (facts.searchPath.isEmpty()) {
        say(u"Looking for the search path ..."_s);
        learnSearchPath(experiment, tree.headers, facts);
    }
    say(u"Found %1 directories on the search path."_s.arg(facts.searchPath.size()));
    if (!worksStill(prober))
        return {};
    say(u"The compiler was started %1 times."_s.arg(prober.compilersStarted()));
    return facts;
}

/// Why the files that the user names cannot be used, or an empty text.
QString problemWith(const Arguments &arguments)
{
    const QString destination = QFileInfo(arguments.personality).absolutePath();
    if (!QFileInfo(destination).isDir())
        return u"The folder of the personality does not exist: %1"_s.arg(destination);
    if (!QFileInfo(destination).isWritable())
        return u"The folder of the personality is not writable: %1"_s.arg(destination);
    if (!arguments.templateFile.isEmpty() && !platform::readTextFile(arguments.templateFile))
        return u"The template cannot be read: %1"_s.arg(arguments.templateFile);
    if (!arguments.forceIncludeFile.isEmpty() && !QFileInfo(arguments.forceIncludeFile).isFile()) {
        return u"The force-include file does not exist: %1"_s.arg(arguments.forceIncludeFile);
    }
    if (!arguments.substituteHeaders.isEmpty() && !QFileInfo(arguments.substituteHeaders).isDir()) {
        return u"The folder of substitute headers does not exist: %1"_s.arg(
            arguments.substituteHeaders);
    }
    return QString();
}

bool generate(const Arguments &arguments, const QString &folder)
{
    // What an earlier run has left would be taken for this one's.
    for (const QLatin1StringView file : logFiles)
        QFile::remove(file);
    const QString problem = problemWith(arguments);
    if (!problem.isEmpty()) {
        say(problem);
        return false;
    }
    const QByteArray templateText =
        platform::readTextFile(arguments.templateFile).value_or(QString()).toUtf8();
    const std::optional<Facts> facts = learn(arguments, folder);
    if (!facts)
        return false;
    if (!platform::writeFile(arguments.personality,
                             personalityText(arguments, *facts, templateText))) {
        say(u"The personality cannot be written: %1"_s.arg(arguments.personality));
        return false;
    }
    say(u"Wrote %1"_s.arg(arguments.personality));
    return true;
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
    QTemporaryDir workshop;
    if (!workshop.isValid()) {
        say(u"No temporary folder can be made: %1"_s.arg(workshop.errorString()));
        return 1;
    }
    const platform::ProgramGuard guard(workshop.path());
    return generate(*arguments, workshop.path()) ? 0 : 1;
}
