#include "learning_steps.h"

#include "beside_compiler.h"
#include "clang.h"
#include "probe_steps.h"
#include "tools_and_files.h"

#include <QFileInfo>

using namespace Qt::StringLiterals;

namespace {

// Set for tests and measurements: the compiler is asked by probes alone.
const char *const learnOnly = "BEXLOR_LEARN_ONLY";

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

std::optional<DialectAnswers> askForListings(Progress &progress, const Compiler &compiler,
                                             const ProbeAnswer &first, const QString &folder)
{
    DialectAnswers known;
    known.versionLine = versionLineIn(first.run.output + '\n' + first.run.errors);
    if (qEnvironmentVariableIsSet(learnOnly))
        return known;
    if (!writeEmptySource(progress, folder, compiler.isCpp))
        return {};
    const ProgressStep step(progress, u"Asking the compiler for what it lists ..."_s);
    const RunCommand run = [&folder](const QStringList &question) {
        return platform::runProgram(question, folder, listingTimeLimit);
    };
    return askInDialects(run, commandWithDefines(compiler), probeName(compiler.isCpp), known);
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
        macros = learnMacros(questions, macroCandidates(names));
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

QList<QByteArray> findAttributes(Progress &progress, const Questions &questions)
{
    const ProgressStep step(progress, u"Looking for attributes ..."_s,
                            probesOf(questions.runner()));
    return learnAttributes(questions);
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
