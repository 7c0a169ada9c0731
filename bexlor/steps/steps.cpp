#include "steps.h"

#include "generator_interface.h"
#include "personality.h"
#include "text_file.h"

#include <QFileInfo>
#include <cstdio>

using namespace Qt::StringLiterals;

namespace {

const int listingTimeLimit = 30'000; // milliseconds

const char *const firstProbe = "int calyx_probe;\n";

// Set for tests and measurements: the compiler is asked by probes alone.
const char *const learnOnly = "BEXLOR_LEARN_ONLY";

QString howItEnded(const platform::ProgramRun &run)
{
    switch (run.ending) {
    case platform::ProgramRun::NotStarted:
        return u"the compiler could not be started"_s;
    case platform::ProgramRun::Crashed:
        return u"the compiler crashed"_s;
    case platform::ProgramRun::TimedOut:
        return u"the compiler did not end within its time"_s;
    case platform::ProgramRun::Exited:
        break;
    }
    return u"the compiler returned %1"_s.arg(run.exitCode);
}

/// Leaves \a command and what it wrote in the working directory.
void leaveLogs(const QStringList &command, const platform::ProgramRun &run)
{
    platform::writeTextFile(generator::attemptedCommand, commandLine(command) + u'\n');
    platform::writeFile(generator::standardOutput, run.output);
    platform::writeFile(generator::standardError, run.errors);
}

/// Why the files that the user names cannot be used, or an empty text.
QString problemWith(const Arguments &arguments)
{
    const QFileInfo destination(QFileInfo(arguments.personality).absolutePath());
    if (!destination.isDir())
        return u"The folder of the personality does not exist: %1"_s.arg(destination.filePath());
    if (!destination.isWritable())
        return u"The folder of the personality is not writable: %1"_s.arg(destination.filePath());
    if (!arguments.templateFile.isEmpty() && !platform::readTextFile(arguments.templateFile))
        return u"The template cannot be read: %1"_s.arg(arguments.templateFile);
    if (!arguments.forceIncludeFile.isEmpty() && !QFileInfo(arguments.forceIncludeFile).isFile())
        return u"The force-include file does not exist: %1"_s.arg(arguments.forceIncludeFile);
    if (!arguments.substituteHeaders.isEmpty() && !QFileInfo(arguments.substituteHeaders).isDir()) {
        return u"The folder of substitute headers does not exist: %1"_s.arg(
            arguments.substituteHeaders);
    }
    return QString();
}

/// Whether \a directory should not be given whole.
bool isTooWide(const QString &directory)
{
    const QFileInfo given(directory);
    return given.isRoot() || given.absoluteFilePath() == "/usr"_L1;
}

} // namespace

void say(const QString &line)
{
    std::fprintf(stdout, "%s\n", line.toLocal8Bit().constData());
    std::fflush(stdout);
}

void removeLogs()
{
    for (const QLatin1StringView file :
         {generator::attemptedCommand, generator::standardOutput, generator::standardError})
        QFile::remove(file);
}

bool checkFiles(const Arguments &arguments)
{
    const QString problem = problemWith(arguments);
    if (!problem.isEmpty())
        say(problem);
    return problem.isEmpty();
}

std::optional<ProbeAnswer> compileFirstProbe(const ProbeRunner &runner)
{
    say(u"Compiling a first probe ..."_s);
    const ProbeAnswer answer = runner.ask(firstProbe);
    leaveLogs(runner.command(), answer.run);
    if (answer.compiled())
        return answer;
    say(u"Compiling the first probe failed: %1."_s.arg(howItEnded(answer.run)));
    return {};
}

DialectAnswers askForListings(const Compiler &compiler, const ProbeAnswer &first,
                              const QString &folder)
{
    DialectAnswers known;
    known.versionLine = versionLineIn(first.run.output + '\n' + first.run.errors);
    const QString source = probeName(compiler.isCpp);
    if (qEnvironmentVariableIsSet(learnOnly)
        || !platform::writeScratchFile(folder + u'/' + source, "\n"))
        return known;
    QStringList command = compiler.command;
    for (const QString &define : compiler.defines)
        command << u"-D"_s + define;
    const RunCommand run = [&folder](const QStringList &question) {
        return platform::runProgram(question, folder, listingTimeLimit);
    };
    return askInDialects(run, command, source, known);
}

HeaderScan readDirectories(const QStringList &directories)
{
    for (const QString &directory : directories) {
        if (isTooWide(directory)) {
            say(u"%1 is too wide for a search directory; reading it takes long."_s.arg(directory));
        }
    }
    if (directories.isEmpty())
        return {};
    say(u"Reading the search directories ..."_s);
    const HeaderScan scan = scanHeaders(directories);
    for (const QString &remark : scan.remarks)
        say(remark);
    say(u"Found %1 names in %2 files."_s.arg(scan.names.size()).arg(scan.files));
    return scan;
}

std::optional<MacroFacts> findMacros(const ProbeRunner &runner, const Questions &questions,
                                     const QList<Macro> &listed, const QList<ScannedName> &names)
{
    MacroFacts macros {listed, {}};
    if (listed.isEmpty()) {
        if (!questions.readsConstants()) {
            say(u"Reading constants back failed: the compiler leaves no file that holds "
                "the bytes of a probe's constants."_s);
            return {};
        }
        say(u"Looking for predefined macros ..."_s);
        macros = learnMacros(questions, macroCandidates(names, runner.compiler().defines));
        if (!worksStill(runner))
            return {};
    }
    say(u"Found %1 predefined macros, and %2 whose definition is not known."_s
            .arg(macros.known.size())
            .arg(macros.undetermined.size()));
    return macros;
}

TypeFacts measureTypes(const Questions &questions)
{
    if (!questions.readsConstants())
        return {};
    say(u"Measuring types ..."_s);
    return learnTypes(questions);
}

QList<Keyword> findKeywords(const Questions &questions, const HeaderScan &scan, const Facts &known)
{
    say(u"Looking for keywords ..."_s);
    const QList<Keyword> keywords = learnKeywords(questions, scan.names, known.macros, known.types);
    say(u"Found %1 keywords."_s.arg(keywords.size()));
    return keywords;
}

SearchPath findSearchPath(const Questions &questions, const SearchPath &listed,
                          const HeaderScan &scan)
{
    SearchPath path = listed;
    if (path.directories.isEmpty()) {
        say(u"Looking for the search path ..."_s);
        path.directories = learnSearchPath(questions, scan.headers);
    }
    say(u"Found %1 directories on the search path."_s.arg(path.directories.size()));
    return path;
}

bool worksStill(const ProbeRunner &runner)
{
    const ProbeAnswer again = runner.ask(firstProbe);
    if (again.compiled())
        return true;
    leaveLogs(runner.command(), again.run);
    say(u"The first probe no longer compiles: %1."_s.arg(howItEnded(again.run)));
    return false;
}

bool writePersonality(const Arguments &arguments, const Compiler &compiler, const Facts &facts)
{
    const QByteArray templateText =
        platform::readTextFile(arguments.templateFile).value_or(QString()).toUtf8();
    const Personality personality =
        composePersonality(arguments, facts, compiler.includedFirst, templateText);
    if (!platform::writeFile(arguments.personality, personalityText(personality))) {
        say(u"The personality cannot be written: %1"_s.arg(arguments.personality));
        return false;
    }
    say(u"Wrote %1"_s.arg(arguments.personality));
    return true;
}
