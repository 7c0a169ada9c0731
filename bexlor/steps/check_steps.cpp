#include "check_steps.h"

#include "header_sample.h"
#include "refusal.h"
#include "report.h"
#include "steps.h"
#include "text_file.h"
#include "type_assertions.h"

#include <QDir>
#include <QFileInfo>
#include <algorithm>

using namespace Qt::StringLiterals;

namespace {

const int headersAtMost = 100;
const int headerTimeLimit = 2000; // milliseconds
const qint64 largestDatabase = 1'000'000'000;

/// The sources that \a request names, and how many more there are in another language; a sentence
/// if they cannot be read.
struct Sources
{
    QList<CheckedSource> list;
    int passedOver = 0;
};

void addEntries(const QList<CompileCommand> &entries, const Compiler &compiler,
                const QString &folder, Sources &sources)
{
    for (const CompileCommand &entry : entries) {
        if (isInLanguage(entry.file, compiler.isCpp))
            sources.list << sourceOfEntry(entry, compiler, folder, sources.list.size());
        else
            ++sources.passedOver;
    }
}

std::variant<Sources, QString> sourcesOf(const CheckRequest &request, const Compiler &compiler,
                                         const QString &folder)
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
        addEntries(std::get<QList<CompileCommand>>(read), compiler, folder, sources);
    }
    return sources;
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

std::optional<Clang> findClang(Progress &progress, const QString &word)
{
    const std::optional<Clang> clang = findClang(word);
    if (!clang)
        progress.say(u"There is no clang that can be started: %1"_s.arg(word));
    return clang;
}

QString notWritten(const QString &noun, const QString &path)
{
    const QString folder = QFileInfo(path).absolutePath();
    return QFileInfo::exists(folder)
             ? u"The %1 cannot be written: %2"_s.arg(noun, path)
             : u"The folder of the %1 does not exist: %2"_s.arg(noun, folder);
}

std::variant<QList<CompileCommand>, QString> readDatabase(const QString &path)
{
    const platform::FileContent file = platform::readFile(path, largestDatabase);
    if (file.state != platform::FileContent::Whole)
        return u"The compilation database cannot be read: %1"_s.arg(path);
    const auto commands = parseDatabase(file.bytes, QFileInfo(path).absolutePath());
    if (!commands)
        return u"This is no compilation database: %1"_s.arg(path);
    return *commands;
}

ExitStatus checkWithPersonality(Progress &progress, const CheckRequest &request,
                                const Arguments &arguments, const Personality &content,
                                const QString &folder)
{
    // The answers may be somebody else's, and name what is started.
    if (const QString reason = refusalReason(arguments); !reason.isEmpty()) {
        progress.say(reason);
        return ExitStatus::Missing;
    }
    // Many sources take long, and their verdicts should not be lost then.
    if (!request.jsonFile.isEmpty() && !QFileInfo(request.jsonFile).absoluteDir().exists()) {
        progress.say(notWritten(u"verdicts"_s, request.jsonFile));
        return ExitStatus::Missing;
    }
    const std::optional<Clang> clang = findClang(progress, request.clang);
    ProbeRunner runner(findCompiler(arguments), folder, false);
    if (!clang || !compileFirstProbe(progress, runner, folder))
        return ExitStatus::Missing;
    const Compiler &compiler = runner.compiler();
    const auto read = sourcesOf(request, compiler, folder);
    if (const auto *problem = std::get_if<QString>(&read)) {
        progress.say(*problem);
        return ExitStatus::Missing;
    }
    const auto &sources = std::get<Sources>(read);
    if (sources.passedOver > 0)
        progress.say(u"Passed over, being in another language: %1."_s.arg(sources.passedOver));
    const Checking checking {
        *clang,          request.personality, content,
        compiler.layout, request.preprocess,  canCheckSyntaxOnly(compiler, folder)};
    QList<Verdict> verdicts;
    checkSources(checking, sources.list, [&](const Verdict &verdict) {
        verdicts << verdict;
        progress.say(u"[%1/%2] "_s.arg(verdicts.size()).arg(sources.list.size())
                     + verdictLine(verdict));
    });
    for (const QString &line : summaryLines(clang->version, verdicts))
        progress.say(line);
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
    const std::optional<Clang> clang = findClang(u"clang"_s);
    if (!clang)
        return;
    const Personality content = parsePersonality(text);
    const QStringList headers = headersToTry(content, compiler.isCpp);
    QList<CheckedSource> sources;
    for (const QString &name : headers.mid(0, headersAtMost)) {
        const QString file =
            folder + u"/header_%1_"_s.arg(sources.size()) + probeName(compiler.isCpp);
        if (platform::writeScratchFile(file, "#include <" + QFile::encodeName(name) + ">\n"))
            sources << sourceOfFile(compiler, file, folder, sources.size());
    }
    if (sources.isEmpty())
        return;
    const Checking checking {*clang,
                             QDir::current().absoluteFilePath(personality),
                             content,
                             compiler.layout,
                             {},
                             canCheckSyntaxOnly(compiler, folder),
                             QDeadlineTimer(headerTimeLimit)};
    QList<Verdict> verdicts;
    {
        const ProgressStep step(progress, u"Trying the headers of the search path ..."_s,
                                [] { return QString(); });
        checkSources(checking, sources,
                     [&verdicts](const Verdict &verdict) { verdicts << verdict; });
    }
    if (verdicts.isEmpty())
        progress.say(u"None of them was compiled within %1 seconds."_s.arg(headerTimeLimit / 1000));
    if (acceptedByCompiler(verdicts) == 0)
        return;
    progress.say(
        acceptanceSentence(clang->version, verdicts, u"headers"_s)
        + u" A sample: %1 of the %2 found were tried."_s.arg(verdicts.size()).arg(headers.size()));
    const auto rejected =
        std::find_if(verdicts.begin(), verdicts.end(), [](const Verdict &verdict) {
            return verdict.result == Verdict::RejectedByClang;
        });
    if (rejected != verdicts.end())
        progress.say(u"The first that it rejects: %1"_s.arg(rejected->rejection.message));
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
        progress.say(u"The assertions cannot be written: %1"_s.arg(file));
        return ExitStatus::Failed;
    }
    const std::optional<Clang> clang = findClang(progress, u"clang"_s);
    if (!clang)
        return ExitStatus::Missing;
    const Checking checking {*clang, written.filePath(), content, compiler.layout, {}, {}};
    ExitStatus status = ExitStatus::Done;
    checkSources(checking, {sourceOfFile(compiler, file, folder, 0)}, [&](const Verdict &verdict) {
        progress.say(typeSentence(verdict, file, *clang));
        status = verdict.result == Verdict::NotCompared ? ExitStatus::Done : ExitStatus::Failed;
    });
    return status;
}
