// The generator: asks a compiler about itself and writes its personality.
//
// Progress goes to the standard output, one line for each step. The command attempted, and what it
// wrote, are left in the working directory as compile.bat, stdout.log and stderr.log. The exit
// status is 0 when the personality has been written, 1 when a step failed, 2 for a command line
// that usage() does not allow.

#include "bexlor/arguments.h"
#include "bexlor/known_names.h"
#include "bexlor/learning.h"
#include "bexlor/personality.h"
#include "platform/process_tree.h"
#include "platform/text_file.h"

#include <QCoreApplication>
#include <QFileInfo>
#include <QRegularExpression>
#include <QTemporaryDir>
#include <cstdio>

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

const char *const logFiles[] = {"compile.bat", "stdout.log", "stderr.log"};

void leaveLogs(const QStringList &command, const ProgramRun &run)
{
    platform::writeTextFile(logFiles[0], commandLine(command) + QLatin1Char('\n'));
    platform::writeFile(logFiles[1], run.output);
    platform::writeFile(logFiles[2], run.errors);
}

QString howItEnded(const ProgramRun &run)
{
    switch (run.ending) {
    case ProgramRun::NotStarted:
        return QStringLiteral("the compiler could not be started");
    case ProgramRun::Crashed:
        return QStringLiteral("the compiler crashed");
    case ProgramRun::TimedOut:
        return QStringLiteral("the compiler did not end within its time");
    case ProgramRun::Exited:
        break;
    }
    return QStringLiteral("the compiler returned %1").arg(run.exitCode);
}

/// What a compiler that understands the GNU driver's options answers to them.
void askLikeGnu(const Compiler &compiler, const Prober &prober, const QString &folder, Facts &facts)
{
    if (!platform::writeFile(folder + QLatin1Char('/') + prober.sourceName(), "\n"))
        return;
    QStringList question = compiler.command;
    for (const QString &define : compiler.defines)
        question << QStringLiteral("-D") + define;
    const ProgramRun macros = platform::runProgram(
        question + QStringList {"-dM", "-E", prober.sourceName()}, folder, questionTimeLimit);
    const ProgramRun searchPath = platform::runProgram(
        question + QStringList {"-v", "-E", prober.sourceName()}, folder, questionTimeLimit);
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
    const ProgramRun run = platform::runProgram(compiler.command + QStringList {"--version"},
                                                folder, questionTimeLimit);
    return versionLineOf(run.output + '\n' + run.errors);
}

/// Why a directory should not be given whole, or an empty text.
QString widthRemark(const QString &directory)
{
    const QFileInfo given(directory);
    const bool isWide = given.isRoot() || given.absoluteFilePath() == QLatin1String("/usr");
    return isWide ? QStringLiteral("%1 is too wide for a search directory; reading it takes long.")
                        .arg(directory)
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
        say(QStringLiteral("Reading the search directories ..."));
    const TreeNames tree = readTree(directories);
    for (const QString &remark : tree.remarks)
        say(remark);
    if (!directories.isEmpty()) {
        say(QStringLiteral("Found %1 names in %2 files.").arg(tree.names.size()).arg(tree.files));
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
    say(QStringLiteral("The first probe no longer compiles: %1.").arg(howItEnded(again.run)));
    return false;
}

/// Asks the compiler for all facts; says why and returns nothing when a step fails.
std::optional<Facts> learn(const Arguments &arguments, const QString &folder)
{
    const Compiler compiler = findCompiler(arguments);
    const Prober prober(compiler, folder, arguments.reduceFileSize);
    say(QStringLiteral("Compiling a first probe ..."));
    const Answer first = prober.ask(firstProbe);
    leaveLogs(prober.command(), first.run);
    if (!first.compiled()) {
        say(QStringLiteral("Compiling the first probe failed: %1.").arg(howItEnded(first.run)));
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
            {define.section(QRegularExpression(QStringLiteral("[=(]")), 0, 0).toUtf8(),
             TestedInHeader});
    const Experiment experiment(prober, !compiler.isCross);
    if (!experiment.readsConstants() && facts.macros.isEmpty()) {
        say(QStringLiteral("Reading constants back failed: the compiler leaves no file that holds "
                           "the bytes of a probe's constants."));
        return {};
    }
    if (facts.macros.isEmpty()) {
        say(QStringLiteral("Looking for predefined macros ..."));
        learnMacros(experiment, tree.names, facts);
        if (!worksStill(prober))
            return {};
    }
    say(QStringLiteral("Found %1 predefined macros, and %2 whose definition is not known.")
            .arg(facts.macros.size())
            .arg(facts.undeterminedMacros.size()));
    if (experiment.readsConstants()) {
        say(QStringLiteral("Measuring types ..."));
        learnTypes(experiment, facts);
    }
    say(QStringLiteral("Looking for keywords ..."));
    learnKeywords(experiment, tree.names, facts);
    say(QStringLiteral("Found %1 keywords.").arg(facts.keywords.size()));
    if (facts.searchPath.isEmpty()) {
        say(QStringLiteral("Looking for the search path ..."));
        learnSearchPath(experiment, tree.headers, facts);
    }
    say(QStringLiteral("Found %1 directories on the search path.").arg(facts.searchPath.size()));
    if (!worksStill(prober))
        return {};
    say(QStringLiteral("The compiler was started %1 times.").arg(prober.compilersStarted()));
    return facts;
}

/// Why the files that the user names cannot be used, or an empty text.
QString problemWith(const Arguments &arguments)
{
    const QString destination = QFileInfo(arguments.personality).absolutePath();
    if (!QFileInfo(destination).isDir())
        return QStringLiteral("The folder of the personality does not exist: %1").arg(destination);
    if (!QFileInfo(destination).isWritable())
        return QStringLiteral("The folder of the personality is not writable: %1").arg(destination);
    if (!arguments.templateFile.isEmpty() && !platform::readTextFile(arguments.templateFile))
        return QStringLiteral("The template cannot be read: %1").arg(arguments.templateFile);
    if (!arguments.forceIncludeFile.isEmpty() && !QFileInfo(arguments.forceIncludeFile).isFile()) {
        return QStringLiteral("The force-include file does not exist: %1")
            .arg(arguments.forceIncludeFile);
    }
    if (!arguments.substituteHeaders.isEmpty() && !QFileInfo(arguments.substituteHeaders).isDir()) {
        return QStringLiteral("The folder of substitute headers does not exist: %1")
            .arg(arguments.substituteHeaders);
    }
    return QString();
}

bool generate(const Arguments &arguments, const QString &folder)
{
    // What an earlier run has left would be taken for this one's.
    for (const char *file : logFiles)
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
        say(QStringLiteral("The personality cannot be written: %1").arg(arguments.personality));
        return false;
    }
    say(QStringLiteral("Wrote %1").arg(arguments.personality));
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
        say(QStringLiteral("No temporary folder can be made: %1").arg(workshop.errorString()));
        return 1;
    }
    const platform::ProgramGuard guard(workshop.path());
    return generate(*arguments, workshop.path()) ? 0 : 1;
}
