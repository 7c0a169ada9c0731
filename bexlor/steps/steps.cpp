#include "steps.h"

#include "beside_compiler.h"
#include "clang.h"
#include "command_line.h"
#include "generator_interface.h"
#include "personality.h"
#include "probe_options.h"
#include "refusal.h"
#include "text_file.h"
#include "tools_and_files.h"
#include "visible_text.h"

#include <QDir>
#include <QFileInfo>

using namespace Qt::StringLiterals;

namespace {

const int listingTimeLimit = 30'000; // milliseconds

// Set for tests and measurements: the compiler is asked by probes alone.
const char *const learnOnly = "BEXLOR_LEARN_ONLY";

QString howItEnded(const ProbeAnswer &answer)
{
    if (!answer.isAsked)
        return u"the probe could not be written to the temporary folder"_s;
    switch (answer.run.ending) {
    case platform::ProgramRun::NotStarted:
        return u"the compiler could not be started; it must be on the PATH or be named by its "
               "whole path"_s;
    case platform::ProgramRun::Crashed:
        return u"the compiler crashed"_s;
    case platform::ProgramRun::TimedOut:
        return u"the compiler did not end within its time"_s;
    case platform::ProgramRun::Exited:
        break;
    }
    const QString end = u"the compiler returned %1"_s.arg(answer.run.exitCode);
    if (answer.lacksSomething)
        return end + " and left out something of a probe"_L1;
    return answer.run.exitCode == 0 && answer.leftNothing ? end + " and left no object file"_L1
                                                          : end;
}

/// Leaves \a command and what it wrote in \a folder.
void leaveLogs(const QString &folder, const QStringList &command, const platform::ProgramRun &run)
{
    const QDir logs(folder);
    platform::writeTextFile(logs.filePath(generator::attemptedCommand),
                            platform::commandFileLine(command) + u'\n');
    platform::writeFile(logs.filePath(generator::standardOutput), run.output);
    platform::writeFile(logs.filePath(generator::standardError), run.errors);
}

QString templateUnreadable(const Arguments &arguments)
{
    return u"The template cannot be read: %1"_s.arg(arguments.templateFile);
}

/// Why \a arguments are refused, or the files that they name cannot be used, or an empty text.
QString problemWith(const Arguments &arguments)
{
    if (const QString reason = refusalReason(arguments); !reason.isEmpty())
        return reason;
    if (!arguments.templateFile.isEmpty() && !platform::readTextFile(arguments.templateFile))
        return templateUnreadable(arguments);
    if (!arguments.forceIncludeFile.isEmpty() && !QFileInfo(arguments.forceIncludeFile).isFile())
        return u"The force-include file does not exist: %1"_s.arg(arguments.forceIncludeFile);
    if (!arguments.substituteHeaders.isEmpty() && !QFileInfo(arguments.substituteHeaders).isDir()) {
        return u"The folder of substitute headers does not exist: %1"_s.arg(
            arguments.substituteHeaders);
    }
    return QString();
}

/// Leaves those of \a directories out that a line of a personality cannot hold.
void leaveOutOddDirectories(Progress &progress, QStringList &directories)
{
    directories.removeIf([&progress](const QString &directory) {
        const bool isOdd = !mayStandInPersonality(directory);
        if (isOdd)
            progress.say(u"Passed over, since it has a control character in its name: %1"_s.arg(
                visibleText(directory)));
        return isOdd;
    });
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

/// What clang rejects of the uses of \a keywords, since no macro can take it away: a sentence each.
QStringList whatNoOptionExpresses(const QList<Keyword> &keywords)
{
    QStringList remarks, bare;
    for (const Keyword &keyword : keywords) {
        const QString name = QString::fromUtf8(keyword.name);
        if (keyword.form == Keyword::AssemblerBlock) {
            remarks << u"No option can have clang read assembler between %1 and %2."_s.arg(
                name, QString::fromUtf8(keyword.standIn));
        } else if (keyword.form == Keyword::QualifierWithBareArgument) {
            bare << name;
        }
    }
    if (!bare.isEmpty()) {
        remarks << u"No option can have clang read an argument without parentheses behind %1."_s
                       .arg(bare.join(", "_L1));
    }
    return remarks;
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

std::optional<Arguments> checkArguments(Progress &progress, const Arguments &arguments)
{
    const QString problem = problemWith(arguments);
    if (!problem.isEmpty()) {
        progress.say(problem);
        return {};
    }
    const std::pair<QLatin1StringView, QString> unseen[] = {
        {"Template"_L1, arguments.templateFile},
        {"Force-include file"_L1, arguments.forceIncludeFile},
        {"Substitute headers"_L1, arguments.substituteHeaders},
    };
    for (const auto &[name, path] : unseen) {
        if (!path.isEmpty())
            progress.say(name + ": "_L1 + visibleText(path));
    }
    Arguments usable = arguments;
    leaveOutOddDirectories(progress, usable.headerDirectories);
    return usable;
}

bool checkDestination(Progress &progress, const QString &path)
{
    const QFileInfo personality(path);
    const QString folder = personality.absolutePath();
    if (!QFileInfo::exists(folder) || (personality.exists() && !personality.isWritable())) {
        progress.say(notWritten(u"personality"_s, path));
        return false;
    }
    if (platform::canCreateFileIn(folder))
        return true;
    progress.say(u"The folder of the personality is not writable: %1"_s.arg(folder));
    return false;
}

std::optional<ProbeAnswer> compileFirstProbe(Progress &progress, ProbeRunner &runner,
                                             const QString &logFolder)
{
    const QString against = optionAgainstObjects(runner.compiler().command);
    if (!against.isEmpty()) {
        leaveLogs(logFolder, runner.command(), {});
        progress.say(u"With the option %1 the compiler makes no object file. Take it out of the "
                     "command on the page Compiler Command."_s.arg(against));
        return {};
    }
    const ProgressStep step(progress, u"Compiling a first probe ..."_s, &nothing);
    const ProbeAnswer answer = runner.ask(acceptedProbe);
    leaveLogs(logFolder, runner.command(), answer.run);
    if (answer.compiled())
        return answer;
    if (answer.run.ending == platform::ProgramRun::Exited) {
        const ProbeAnswer unnamed = runner.tryWithoutObjectName();
        if (unnamed.compiled()) {
            leaveLogs(logFolder, runner.command(), unnamed.run);
            progress.say(u"The compiler takes no name for an object file."_s);
            return unnamed;
        }
    }
    progress.say(u"Compiling the first probe failed: %1."_s.arg(howItEnded(answer)));
    return {};
}

bool compileIncludedFiles(Progress &progress, const Compiler &compiler, const QString &folder,
                          const QString &logFolder)
{
    if (compiler.includedFirst.isEmpty())
        return true;
    const ProbeRunner runner(withIncludedFiles(compiler), folder, false);
    const ProbeAnswer answer = runner.ask(acceptedProbe);
    if (answer.compiled())
        return true;
    leaveLogs(logFolder, runner.command(), answer.run);
    progress.say(
        u"Compiling what the command includes first failed: %1."_s.arg(howItEnded(answer)));
    return false;
}

bool checkControls(Progress &progress, ProbeRunner &runner, const ProbeAnswer &first)
{
    const ProgressStep step(progress, u"Compiling control probes ..."_s, &nothing);
    if (!runner.learnControls(first)) {
        progress.say(u"The compiler answers the same probe otherwise each time."_s);
        return false;
    }
    const Controls &controls = runner.controls();
    if (!controls.rejects(ErrorKind::Syntax)) {
        progress.say(
            u"The compiler accepts %1, so nothing can be learned from what it accepts."_s.arg(
                nameOf(ErrorKind::Syntax)));
        return false;
    }
    for (const ErrorKind kind : controls.overlooked)
        progress.say(u"The compiler accepts %1; what only that would tell is left open."_s.arg(
            nameOf(kind)));
    return true;
}

std::optional<QString> writeEmptySource(Progress &progress, const QString &folder, bool isCpp)
{
    const QString source = folder + u'/' + probeName(isCpp);
    if (platform::writeScratchFile(source, "\n"))
        return source;
    progress.say(u"No source can be written to the temporary folder: %1"_s.arg(folder));
    return {};
}

std::optional<DialectAnswers> askForListings(Progress &progress, const Compiler &compiler,
                                             const ProbeAnswer &first, const QString &folder)
{
    DialectAnswers known;
    known.versionLine = versionLineIn(first.run.output + '\n' + first.run.errors);
    if (qEnvironmentVariableIsSet(learnOnly))
        return known;
    if (!writeEmptySource(progress, folder, compiler.isCpp))
        return {};
    const ProgressStep step(progress, u"Asking the compiler for what it lists ..."_s, &nothing);
    QStringList command = compiler.command;
    for (const QString &define : compiler.defines)
        command << u"-D"_s + define;
    const RunCommand run = [&folder](const QStringList &question) {
        return platform::runProgram(question, folder, listingTimeLimit);
    };
    return askInDialects(run, command, probeName(compiler.isCpp), known);
}

QStringList findDirectoriesBeside(Progress &progress, const Questions &questions)
{
    const ProgressStep step(progress, u"Looking for headers beside the compiler ..."_s,
                            probesOf(questions.runner()));
    QStringList directories = directoriesBeside(questions.runner().compiler().command.value(0));
    leaveOutOddDirectories(progress, directories);
    const QStringList searched = learnSearchPath(questions, headersNear(directories));
    if (searched.isEmpty())
        progress.say(u"No directory has been named, and none that is searched lies beside it."_s);
    else
        progress.say(u"No directory has been named; these lie beside it and are searched: %1"_s.arg(
            searched.join(u", "_s)));
    return searched;
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
    const Questions questions(runner);
    if (questions.readsNumbers() && !questions.readsTexts()) {
        progress.say(u"The compiler leaves no file that holds the bytes of a probe's texts: macros "
                     "that are neither integers nor types are left open."_s);
    }
    return questions;
}

std::optional<MacroFacts> findMacros(Progress &progress, const Questions &questions,
                                     const QList<Macro> &listed, const QList<ScannedName> &names,
                                     const QString &logFolder)
{
    MacroFacts macros {listed, {}};
    if (listed.isEmpty()) {
        if (!questions.readsNumbers()) {
            progress.say(
                u"Reading constants back failed: the compiler leaves no file that holds "
                "the bytes of a probe's constants, and overlooks errors that would tell."_s);
            return {};
        }
        const ProbeRunner &runner = questions.runner();
        const ProgressStep step(progress, u"Looking for predefined macros ..."_s, probesOf(runner));
        macros = learnMacros(questions, macroCandidates(names, runner.compiler().defines));
        if (!worksStill(progress, runner, logFolder))
            return {};
    }
    QString found =
        "Found "_L1 + counted(macros.known.size(), "predefined macro"_L1, "predefined macros"_L1);
    if (!macros.undetermined.isEmpty())
        found += u", and %1 whose definition is not known"_s.arg(macros.undetermined.size());
    progress.say(found + u'.');
    if (!questions.isCpp() && findMacro(macros, "__cplusplus")) {
        progress.say(u"The compiler takes a source of C for C++. Name its C compiler on the page "
                     "Compiler Command, or choose KOV++ on the page Product & Output."_s);
        return {};
    }
    return macros;
}

TypeFacts measureTypes(Progress &progress, const Questions &questions)
{
    if (!questions.readsNumbers())
        return {};
    const ProgressStep step(progress, u"Measuring types ..."_s, probesOf(questions.runner()));
    return learnTypes(questions);
}

QList<Keyword> findKeywords(Progress &progress, const Questions &questions, const HeaderScan &scan,
                            const Facts &known)
{
    const ProgressStep step(progress, u"Looking for keywords ..."_s, probesOf(questions.runner()));
    const QList<Keyword> keywords = learnKeywords(questions, scan.names, known.macros, known.types,
                                                  keywordsOfClang(known.macros));
    progress.say(u"Found %1."_s.arg(counted(keywords.size(), "keyword"_L1, "keywords"_L1)));
    for (const QString &remark : whatNoOptionExpresses(keywords))
        progress.say(remark);
    return keywords;
}

QList<QByteArray> findLeniencies(Progress &progress, const Questions &questions)
{
    const ProgressStep step(progress, u"Looking for what newer clang would reject ..."_s,
                            probesOf(questions.runner()));
    return learnLeniencies(questions);
}

SearchPath findSearchPath(Progress &progress, const Questions &questions,
                          const std::optional<SearchPath> &listed, const HeaderScan &scan)
{
    SearchPath path = listed.value_or(SearchPath());
    if (!listed) {
        const ProgressStep step(progress, u"Looking for the search path ..."_s,
                                probesOf(questions.runner()));
        path.directories = learnSearchPath(questions, scan.headers);
    }
    leaveOutOddDirectories(progress, path.directories);
    leaveOutOddDirectories(progress, path.forQuotedNames);
    progress.say(u"Found %1 on the search path."_s.arg(
        counted(path.directories.size(), "directory"_L1, "directories"_L1)));
    return path;
}

bool worksStill(Progress &progress, const ProbeRunner &runner, const QString &logFolder)
{
    const ProgressStep step(progress, u"Compiling the first probe again ..."_s, &nothing);
    const ProbeAnswer again = runner.ask(acceptedProbe);
    if (again.compiled())
        return true;
    leaveLogs(logFolder, runner.command(), again.run);
    progress.say(u"The compiler no longer answers as it did: %1."_s.arg(howItEnded(again)));
    return false;
}

bool checkCompleteness(Progress &progress, const Facts &facts, bool lacksSearchPath)
{
    const bool hasTypes = !facts.types.basic.isEmpty();
    if (!hasTypes) {
        progress.say(u"The sizes of the types have not been found: constants cannot be read back. "
                     "Look at the flags and the extension on the page Compiler Command."_s);
    }
    if (lacksSearchPath) {
        progress.say(u"The directories that the compiler searches have not been found, though it "
                     "finds its headers. Name them on the page Search Directories."_s);
    }
    return hasTypes && !lacksSearchPath;
}

std::optional<QByteArray> textOfPersonality(Progress &progress, const Arguments &arguments,
                                            const Compiler &compiler, const Facts &facts)
{
    const platform::FileContent templateFile = platform::readFile(arguments.templateFile);
    if (!arguments.templateFile.isEmpty() && templateFile.state != platform::FileContent::Whole) {
        progress.say(templateUnreadable(arguments));
        return {};
    }
    // Clang reads it in UTF-8.
    const QByteArray templateText = platform::decodedText(templateFile.bytes).toUtf8();
    CommandParts parts {compiler.command, includeDirectories(compiler.command), {}};
    for (const IncludedFile &included : compiler.includedFirst)
        parts.includedFirst.append({included.option.toUtf8(), included.file.toUtf8()});
    const Personality personality = composePersonality(arguments, facts, parts, templateText);
    for (const QString &option : personality.lacking)
        progress.say(u"Clang has no option like the compiler's %1."_s.arg(visibleText(option)));
    for (const QString &line : differenceSentences(facts.types, personality.typesOfClang))
        progress.say(line);
    return personalityText(personality);
}

bool writePersonality(Progress &progress, const QString &path, const QByteArray &text)
{
    const bool isThere = QFileInfo::exists(path);
    if (!platform::writeFile(path, text)) {
        progress.say(notWritten(u"personality"_s, path));
        return false;
    }
    progress.say((isThere ? u"Replaced %1"_s : u"Wrote %1"_s).arg(path));
    const QStringList option {u"--config"_s, QDir::current().absoluteFilePath(path)};
    progress.say("  "_L1 + platform::commandLine(QStringList {u"clang"_s} + option)
                 + " -fsyntax-only FILE"_L1);
    progress.say("  clang-tidy FILE -- "_L1 + platform::commandLine(option));
    return true;
}
