#include "steps.h"

#include "generator_interface.h"
#include "personality.h"
#include "probe_options.h"
#include "text_file.h"

#include <QFileInfo>

using namespace Qt::StringLiterals;

namespace {

const int listingTimeLimit = 30'000; // milliseconds

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

/// What a compiler that accepts something wrong cannot tell.
struct FaultRemark
{
    Fault fault;
    const char *text;
};

const FaultRemark faultRemarks[] = {
    {Fault::UnknownName,
     "The compiler accepts unknown types: which keywords are types stays undetermined."},
    {Fault::ConflictingDeclarations,
     "The compiler accepts conflicting declarations: which types size_t and ptrdiff_t are stays "
     "undetermined."},
    {Fault::NegativeSize,
     "The compiler accepts arrays of negative size: the sizes of types are measured once only."},
    {Fault::MissingHeader,
     "The compiler accepts includes of missing headers: what it searches is not found that way."},
};

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

/// "1 file", "2 files": \a count with the one of both that fits it.
QString counted(qint64 count, QLatin1StringView one, QLatin1StringView several)
{
    return u"%1 %2"_s.arg(QString::number(count), count == 1 ? one : several);
}

/// What a step that is one compilation says of how far it is.
QString nothing()
{
    return QString();
}

/// Tells how often the compiler has been started since now.
Progress::State probesOf(const ProbeRunner &runner)
{
    return [&runner, before = runner.compilersStarted()] {
        const int started = runner.compilersStarted() - before;
        return started == 0 ? QString() : QString::number(started);
    };
}

/// Tells how many files have been found and then, how many of them have been read.
Progress::State filesOf(const ScanProgress &scan)
{
    return [&scan] {
        const qint64 found = scan.found, read = scan.read;
        if (read > 0)
            return u"%1 of %2"_s.arg(read).arg(found);
        return found > 0 ? counted(found, "file"_L1, "files"_L1) : QString();
    };
}

} // namespace

void removeLogs()
{
    for (const QLatin1StringView file :
         {generator::attemptedCommand, generator::standardOutput, generator::standardError})
        QFile::remove(file);
}

bool checkFiles(Progress &progress, const Arguments &arguments)
{
    const QString problem = problemWith(arguments);
    if (!problem.isEmpty())
        progress.say(problem);
    return problem.isEmpty();
}

bool checkCommand(Progress &progress, const Compiler &compiler)
{
    const QString option = optionAgainstCompiling(compiler.command);
    if (!option.isEmpty()) {
        progress.say(
            u"The option %1 keeps the compiler from compiling; leave it out."_s.arg(option));
    }
    return option.isEmpty();
}

std::optional<ProbeAnswer> compileFirstProbe(Progress &progress, const ProbeRunner &runner)
{
    const ProgressStep step(progress, u"Compiling a first probe ..."_s, &nothing);
    ProbeAnswer answer = runner.ask(acceptedSource);
    for (int i = 0; i < triesAfter(answer) && !answer.compiled(); ++i)
        answer = runner.ask(acceptedSource);
    leaveLogs(runner.command(), answer.run);
    if (answer.compiled())
        return answer;
    progress.say(u"Compiling the first probe failed: %1."_s.arg(
        answer.isWritten ? howItEnded(answer.run) : u"it could not be written"_s));
    return {};
}

Controls askControls(Progress &progress, const ProbeRunner &runner, const ProbeAnswer &first)
{
    const ProgressStep step(progress, u"Compiling probes that must be rejected ..."_s,
                            probesOf(runner));
    const Controls controls(first,
                            [&runner](const QByteArray &source) { return runner.ask(source); });
    for (const FaultRemark &remark : faultRemarks) {
        if (!controls.rejects(remark.fault))
            progress.say(QString::fromLatin1(remark.text));
    }
    return controls;
}

DialectAnswers askForListings(Progress &progress, const Compiler &compiler,
                              const ProbeAnswer &first, const QString &folder)
{
    DialectAnswers known;
    known.versionLine = versionLineIn(first.run.output + '\n' + first.run.errors);
    const QString source = probeName(compiler.isCpp);
    if (qEnvironmentVariableIsSet(learnOnly)
        || !platform::writeScratchFile(folder + u'/' + source, "\n"))
        return known;
    const ProgressStep step(progress, u"Asking the compiler for what it lists ..."_s, &nothing);
    QStringList command = compiler.command;
    for (const QString &define : compiler.defines)
        command << u"-D"_s + define;
    const RunCommand run = [&folder](const QStringList &question) {
        return platform::runProgram(question, folder, listingTimeLimit);
    };
    return askInDialects(run, command, source, known);
}

HeaderScan readDirectories(Progress &progress, const QStringList &directories)
{
    for (const QString &directory : directories) {
        if (isTooWide(directory)) {
            progress.say(
                u"%1 is too wide for a search directory; reading it takes long."_s.arg(directory));
        }
    }
    if (directories.isEmpty())
        return {};
    ScanProgress scanned;
    const ProgressStep step(progress, u"Reading the search directories ..."_s, filesOf(scanned));
    const HeaderScan scan = scanHeaders(directories, scanned);
    for (const QString &remark : scan.remarks)
        progress.say(remark);
    progress.say(u"Found %1 in %2."_s.arg(counted(scan.names.size(), "name"_L1, "names"_L1),
                                          counted(scan.files, "file"_L1, "files"_L1)));
    return scan;
}

Questions findHowToAsk(Progress &progress, const ProbeRunner &runner)
{
    const ProgressStep step(progress, u"Looking for a way to read constants back ..."_s,
                            probesOf(runner));
    return Questions(runner);
}

std::optional<MacroFacts> findMacros(Progress &progress, const Questions &questions,
                                     const QList<Macro> &listed, const QList<ScannedName> &names)
{
    MacroFacts macros {listed, {}};
    if (listed.isEmpty()) {
        if (!questions.readsConstants()) {
            progress.say(u"Reading constants back failed: the compiler leaves no file that holds "
                         "the bytes of a probe's constants."_s);
            return {};
        }
        const ProbeRunner &runner = questions.runner();
        const ProgressStep step(progress, u"Looking for predefined macros ..."_s, probesOf(runner));
        macros = learnMacros(questions, macroCandidates(names, runner.compiler().defines));
        if (!worksStill(progress, runner))
            return {};
    }
    QString found =
        "Found "_L1 + counted(macros.known.size(), "predefined macro"_L1, "predefined macros"_L1);
    if (!macros.undetermined.isEmpty())
        found += u", and %1 whose definition is not known"_s.arg(macros.undetermined.size());
    progress.say(found + u'.');
    return macros;
}

TypeFacts measureTypes(Progress &progress, const Questions &questions)
{
    if (!questions.readsConstants())
        return {};
    const ProgressStep step(progress, u"Measuring types ..."_s, probesOf(questions.runner()));
    return learnTypes(questions);
}

QList<Keyword> findKeywords(Progress &progress, const Questions &questions, const HeaderScan &scan,
                            const Facts &known)
{
    const ProgressStep step(progress, u"Looking for keywords ..."_s, probesOf(questions.runner()));
    const QList<Keyword> keywords = learnKeywords(questions, scan.names, known.macros, known.types);
    progress.say(u"Found %1."_s.arg(counted(keywords.size(), "keyword"_L1, "keywords"_L1)));
    return keywords;
}

SearchPath findSearchPath(Progress &progress, const Questions &questions, const SearchPath &listed,
                          const HeaderScan &scan)
{
    SearchPath path = listed;
    if (path.directories.isEmpty()) {
        const ProgressStep step(progress, u"Looking for the search path ..."_s,
                                probesOf(questions.runner()));
        path.directories = learnSearchPath(questions, scan.headers);
    }
    progress.say(u"Found %1 on the search path."_s.arg(
        counted(path.directories.size(), "directory"_L1, "directories"_L1)));
    return path;
}

bool knowsEnough(Progress &progress, const Questions &questions, const Facts &facts)
{
    bool isEnough = true;
    if (sizeOf(facts.types, "char") == 0 || sizeOf(facts.types, "int") == 0) {
        progress.say(u"The types could not be measured: look at the output flag, the object flag "
                     "and the object file extension on the page \"Compiler Command\"."_s);
        isEnough = false;
    }
    if (facts.searchPath.directories.isEmpty() && findsStandardHeaders(questions)) {
        progress.say(u"Where the compiler looks for headers was not found: name the directories of "
                     "its headers on the page \"Search Directories\"."_s);
        isEnough = false;
    }
    if (!isEnough)
        progress.say(u"Without that there is no personality."_s);
    return isEnough;
}

bool worksStill(Progress &progress, const ProbeRunner &runner)
{
    const ProgressStep step(progress, u"Compiling the first probe again ..."_s, &nothing);
    const ProbeAnswer again = runner.ask(acceptedSource);
    if (again.compiled())
        return true;
    leaveLogs(runner.command(), again.run);
    progress.say(u"The first probe no longer compiles: %1."_s.arg(howItEnded(again.run)));
    return false;
}

void reportMalfunction(Progress &progress, const ProbeRunner &runner,
                       const Malfunction &malfunction)
{
    leaveLogs(runner.command(), malfunction.run);
    progress.say(malfunction.reason.isEmpty()
                     ? u"A probe was answered as none of the first ones, and again: %1."_s.arg(
                         howItEnded(malfunction.run))
                     : malfunction.reason);
}

bool writePersonality(Progress &progress, const Arguments &arguments, const Compiler &compiler,
                      const Facts &facts)
{
    const QByteArray templateText =
        platform::readTextFile(arguments.templateFile).value_or(QString()).toUtf8();
    const Personality personality =
        composePersonality(arguments, facts, compiler.includedFirst, templateText);
    const QString &path = arguments.personality;
    const bool isThere = QFileInfo::exists(path);
    if (!platform::writeFile(path, personalityText(personality))) {
        progress.say(u"The personality cannot be written: %1"_s.arg(path));
        return false;
    }
    progress.say((isThere ? u"Replaced %1"_s : u"Wrote %1"_s).arg(path));
    return true;
}
