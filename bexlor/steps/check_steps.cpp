#include "check_steps.h"

#include "file_names.h"
#include "header_sample.h"
#include "options_for_clang.h"
#include "probe_steps.h"
#include "refusal.h"
#include "report.h"
#include "text_file.h"
#include "tools_and_files.h"
#include "type_assertions.h"

#include <QDir>
#include <QFileInfo>
#include <algorithm>

using namespace Qt::StringLiterals;

namespace {

const int headersAtMost = 100;
const int headerTimeLimit = 2000; // milliseconds

/// The sources that are to be checked, and how many more there are in another language.
struct Sources
{
    QList<CheckedSource> list;
    int passedOver = 0;
};

void addEntries(const QList<CompileCommand> &entries, const Compiler &compiler,
                const QString &folder, OptionsForClang &forClang, Sources &sources)
{
    for (const CompileCommand &entry : entries) {
        if (!isInLanguage(entry.file, compiler.isCpp)) {
            ++sources.passedOver;
            continue;
        }
        const QStringList options = forClang.of(entry);
        sources.list << sourceOfEntry(entry, compiler, options, folder, sources.list.size());
    }
}

/// The sources that \a request names; a sentence if they cannot be read.
std::variant<Sources, QString> sourcesOf(const CheckRequest &request, const Compiler &compiler,
                                         const QString &folder, OptionsForClang &forClang)
{
    Sources sources;
    for (const QString &file : request.sources) {
        if (!file.endsWith(".json"_L1)) {
            sources.list << sourceOfFile(compiler, file, folder, sources.list.size());
            continue;
        }
        const auto read = readDatabase(file);
        if (const auto *problem = std::get_if<QString>(&read))
            return *problem;
        addEntries(std::get<QList<CompileCommand>>(read), compiler, folder, forClang, sources);
    }
    return sources;
}

/// Why the check that \a request asks for, with the compiler of \a arguments, may not begin; empty
/// when it may.
QString problemWith(const CheckRequest &request, const Arguments &arguments)
{
    // The answers may be somebody else's, and name what is started.
    if (const QString reason = refusalReason(arguments); !reason.isEmpty())
        return reason;
    // Many sources take long, and their verdicts should not be lost then.
    if (!request.jsonFile.isEmpty() && !QFileInfo(request.jsonFile).absoluteDir().exists())
        return notWritten(u"verdicts"_s, request.jsonFile);
    return {};
}

struct PreparedCheck
{
    Checking checking;
    QList<CheckedSource> sources;
    QString remark; ///< on what the personality does not fit; empty if there is nothing
};

/// Finds what the check that \a request asks for needs; nothing, which is then said, when it is not
/// there.
std::optional<PreparedCheck> prepareCheck(Progress &progress, const CheckRequest &request,
                                          const Arguments &arguments, const Personality &content,
                                          const QString &folder)
{
    if (const QString problem = problemWith(request, arguments); !problem.isEmpty()) {
        progress.say(problem);
        return {};
    }
    const std::optional<Clang> clang = findClang(progress, request.clang);
    ProbeRunner runner(findCompiler(arguments), folder, false);
    if (!clang || !compileFirstProbe(progress, runner, folder))
        return {};
    const Compiler &compiler = runner.compiler();
    const std::optional<QString> empty = writeEmptySource(progress, folder, compiler.isCpp);
    if (!empty)
        return {};
    OptionsForClang forClang({content, compiler, *empty}, {*clang, request.personality, *empty});
    const auto read = sourcesOf(request, compiler, folder, forClang);
    if (const auto *problem = std::get_if<QString>(&read)) {
        progress.say(*problem);
        return {};
    }
    const auto &sources = std::get<Sources>(read);
    if (sources.passedOver > 0)
        progress.say(u"Passed over, being in another language: %1."_s.arg(sources.passedOver));
    const Checking checking {.clang = *clang,
                             .personality = request.personality,
                             .content = content,
                             .layout = compiler.layout,
                             .preprocess = request.preprocess,
                             .checksSyntaxOnly = canCheckSyntaxOnly(compiler, folder)};
    return PreparedCheck {checking, sources.list, forClang.remarkOnTypes()};
}

/// The headers of the search path, a sample of them first. Those that clang has its own of tell
/// nothing about the compiler's.
QStringList headersToTry(const Personality &content, bool isCpp)
{
    QStringList directories = content.facts.searchPath.directories;
    const QStringList ownHeaders = ownHeadersOf(content);
    directories.removeIf(
        [&ownHeaders](const QString &directory) { return ownHeaders.contains(directory); });
    return headersInTurn(directories, isCpp);
}

/// A source that includes each of the first of \a headers, in \a folder.
QList<CheckedSource> headerSources(const QStringList &headers, const Compiler &compiler,
                                   const QString &folder)
{
    QList<CheckedSource> sources;
    for (const QString &name : headers.mid(0, headersAtMost)) {
        const QString file =
            folder + u"/header_%1_"_s.arg(sources.size()) + probeName(compiler.isCpp);
        if (platform::writeScratchFile(file, "#include <" + QFile::encodeName(name) + ">\n"))
            sources << sourceOfFile(compiler, file, folder, sources.size());
    }
    return sources;
}

/// Says how many headers \a clang accepts by \a verdicts, on a sample of \a found, and the first
/// that it rejects.
void sayHowMany(Progress &progress, const Clang &clang, const QList<Verdict> &verdicts,
                qsizetype found)
{
    if (verdicts.isEmpty())
        progress.say(u"None of them was compiled within %1 seconds."_s.arg(headerTimeLimit / 1000));
    if (acceptedByCompiler(verdicts) == 0)
        return;
    progress.say(acceptanceSentence(clang.version, verdicts, u"headers"_s)
                 + u" A sample: %1 of the %2 found were tried."_s.arg(verdicts.size()).arg(found));
    const auto rejected =
        std::find_if(verdicts.begin(), verdicts.end(), [](const Verdict &verdict) {
            return verdict.result == Verdict::RejectedByClang;
        });
    if (rejected != verdicts.end())
        progress.say(u"The first that it rejects: %1"_s.arg(rejected->rejection.message));
}

/// What \a verdict, on the assertions in \a file, tells of the compiler and of \a clang.
QString typeSentence(const Verdict &verdict, const QString &file, const Clang &clang)
{
    switch (verdict.result) {
    case Verdict::RejectedByCompiler:
    case Verdict::NotStarted:
    case Verdict::Missing:
        return u"The compiler rejects %1: %2"_s.arg(file, verdict.message);
    case Verdict::RejectedByClang:
        return u"The compiler accepts %1, and %2 rejects it: %3"_s.arg(file, clang.version,
                                                                       verdict.rejection.message);
    case Verdict::Same:
    case Verdict::Different:
    case Verdict::NotCompared:
        break;
    }
    return u"The compiler and %2 accept %1."_s.arg(file, clang.version);
}

} // namespace

ExitStatus checkWithPersonality(Progress &progress, const CheckRequest &request,
                                const Arguments &arguments, const Personality &content,
                                const QString &folder)
{
    const auto prepared = prepareCheck(progress, request, arguments, content, folder);
    if (!prepared)
        return ExitStatus::Missing;
    const auto &[checking, sources, remark] = *prepared;
    QList<Verdict> verdicts;
    checkSources(checking, sources, [&, count = sources.size()](const Verdict &verdict) {
        verdicts << verdict;
        progress.say(u"[%1/%2] "_s.arg(verdicts.size()).arg(count) + verdictLine(verdict));
    });
    for (const QString &line : summaryLines(checking.clang.version, verdicts))
        progress.say(line);
    if (!remark.isEmpty())
        progress.say(remark);
    if (!request.jsonFile.isEmpty()
        && !platform::writeFile(request.jsonFile, verdictsAsJson(checking, verdicts))) {
        progress.say(notWritten(u"verdicts"_s, request.jsonFile));
        return ExitStatus::Missing;
    }
    return exitStatus(verdicts);
}

void checkHeaders(Progress &progress, const Compiler &compiler, const QString &personality,
                  const QByteArray &text, const QString &folder)
{
    const std::optional<Clang> clang = findClang(usualClang);
    if (!clang)
        return;
    const Personality content = parsePersonality(text);
    const QStringList headers = headersToTry(content, compiler.isCpp);
    const QList<CheckedSource> sources = headerSources(headers, compiler, folder);
    if (sources.isEmpty())
        return;
    QList<Verdict> verdicts;
    {
        const ProgressStep step(progress, u"Trying the headers of the search path ..."_s);
        const QDeadlineTimer deadline(headerTimeLimit);
        const Checking checking {.clang = *clang,
                                 .personality = QDir::current().absoluteFilePath(personality),
                                 .content = content,
                                 .layout = compiler.layout,
                                 .preprocess = {},
                                 .checksSyntaxOnly = canCheckSyntaxOnly(compiler, folder, deadline),
                                 .deadline = deadline};
        checkSources(checking, sources,
                     [&verdicts](const Verdict &verdict) { verdicts << verdict; });
    }
    sayHowMany(progress, *clang, verdicts, headers.size());
}

ExitStatus checkTypes(Progress &progress, const Compiler &compiler, const QString &personality,
                      const QByteArray &text, const QString &folder)
{
    const QFileInfo written(QDir::current().absoluteFilePath(personality));
    const QString file = written.path() + u'/' + written.completeBaseName()
                       + (compiler.isCpp ? ".check.cpp"_L1 : ".check.c"_L1);
    const Personality content = parsePersonality(text);
    const QByteArray source = typeAssertions(content.facts, compiler.isCpp);
    if (!platform::writeFile(file, source)) {
        progress.say(notWritten(u"assertions"_s, file));
        return ExitStatus::Failed;
    }
    const std::optional<Clang> clang = findClang(progress, usualClang);
    if (!clang)
        return ExitStatus::Missing;
    const Checking checking {.clang = *clang,
                             .personality = written.filePath(),
                             .content = content,
                             .layout = compiler.layout,
                             .preprocess = {}};
    QList<Verdict> verdicts;
    checkSources(checking, {sourceOfFile(compiler, file, folder, 0)},
                 [&verdicts](const Verdict &verdict) { verdicts << verdict; });
    progress.say(typeSentence(verdicts.first(), file, *clang));
    return exitStatus(verdicts) == ExitStatus::Done ? ExitStatus::Done : ExitStatus::Failed;
}
