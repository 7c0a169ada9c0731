#include "check_steps.h"

#include "refusal.h"
#include "report.h"
#include "steps.h"
#include "text_file.h"

#include <QDir>
#include <algorithm>
#include <random>

using namespace Qt::StringLiterals;

namespace {

const int headersAtMost = 100;
const int headerTimeLimit = 2000; // milliseconds

/// The sources that \a request names; a sentence if they cannot be read.
std::variant<QList<CheckedSource>, QString>
sourcesOf(const CheckRequest &request, const Compiler &compiler, const QString &folder)
{
    QList<CheckedSource> sources;
    if (!request.isDatabase()) {
        for (const QString &file : request.sources)
            sources << sourceOfFile(compiler, file, folder, sources.size());
        return sources;
    }
    const QString &path = request.sources.first();
    const platform::FileContent file = platform::readFile(path);
    if (file.state != platform::FileContent::Whole)
        return u"The compilation database cannot be read: %1"_s.arg(path);
    const auto listed = sourcesOfDatabase(file.bytes, compiler, folder);
    if (!listed)
        return u"This is no compilation database: %1"_s.arg(path);
    return *listed;
}

QList<Verdict> checkWithProgress(Progress &progress, const QString &text, const Checking &checking,
                                 const QList<CheckedSource> &sources,
                                 std::optional<int> timeLimit = {})
{
    std::atomic<int> done = 0;
    const ProgressStep step(progress, text, [&done, &sources] {
        return u"%1 of %2"_s.arg(done.load()).arg(sources.size());
    });
    return checkSources(checking, sources, done, timeLimit);
}

/// Some of the headers on the search path that can be included by their names alone. They are from
/// all over it, so that a check that is cut short has not stayed in one corner, and the same ones
/// each time. Those that clang has its own of tell nothing about the compiler's.
QStringList sampleOfHeaders(const Personality &content, bool isCpp)
{
    const QStringList ownHeaders = ownHeadersOf(content);
    QStringList names;
    for (const QString &directory : content.facts.searchPath.directories) {
        if (ownHeaders.contains(directory))
            continue;
        for (const QString &name : QDir(directory).entryList(QDir::Files)) {
            if (name.endsWith(".h"_L1) || (isCpp && !name.contains(u'.')))
                names << name;
        }
    }
    names.removeDuplicates();
    std::shuffle(names.begin(), names.end(), std::minstd_rand());
    return names.mid(0, headersAtMost);
}

} // namespace

int checkWithPersonality(Progress &progress, const CheckRequest &request,
                         const Arguments &arguments, const Personality &content,
                         const QString &folder)
{
    // The answers may be somebody else's, and name what is started.
    if (const QString reason = refusalReason(arguments); !reason.isEmpty()) {
        progress.say(reason);
        return 3;
    }
    const std::optional<Clang> clang = findClang();
    if (!clang) {
        progress.say(u"There is no clang on the PATH."_s);
        return 3;
    }
    const Compiler compiler = findCompiler(arguments);
    const auto listed = sourcesOf(request, compiler, folder);
    if (const auto *problem = std::get_if<QString>(&listed)) {
        progress.say(*problem);
        return 3;
    }
    if (!compileFirstProbe(progress, ProbeRunner(compiler, folder, false), folder))
        return 3;
    const Checking checking {compiler,
                             *clang,
                             arguments.personality,
                             content,
                             request.preprocess,
                             canCheckSyntaxOnly(compiler, folder)};
    const QList<Verdict> verdicts = checkWithProgress(
        progress, u"Checking the sources ..."_s, checking, std::get<QList<CheckedSource>>(listed));
    for (const Verdict &verdict : verdicts)
        progress.say(verdictLine(verdict));
    for (const QString &line : summaryLines(clang->version, verdicts))
        progress.say(line);
    if (!request.jsonFile.isEmpty()
        && !platform::writeFile(request.jsonFile, verdictsAsJson(checking, verdicts))) {
        progress.say(u"The verdicts cannot be written: %1"_s.arg(request.jsonFile));
        return 3;
    }
    return clangAcceptsAll(verdicts) ? 0 : 1;
}

void checkHeaders(Progress &progress, const Arguments &arguments, const QString &folder)
{
    const std::optional<Clang> clang = findClang();
    const QString path = QDir::current().absoluteFilePath(arguments.personality);
    const platform::FileContent written = platform::readFile(path);
    if (!clang || written.state != platform::FileContent::Whole)
        return;
    const Personality content = parsePersonality(written.bytes);
    const Compiler compiler = findCompiler(arguments);
    QList<CheckedSource> sources;
    for (const QString &name : sampleOfHeaders(content, arguments.isCpp)) {
        const QString file =
            folder + u"/header_%1_"_s.arg(sources.size()) + probeName(arguments.isCpp);
        if (platform::writeScratchFile(file, "#include <" + QFile::encodeName(name) + ">\n"))
            sources << sourceOfFile(compiler, file, folder, sources.size());
    }
    if (sources.isEmpty())
        return;
    const Checking checking {compiler, *clang, path,
                             content,  {},     canCheckSyntaxOnly(compiler, folder)};
    const QList<Verdict> verdicts =
        checkWithProgress(progress, u"Trying the headers of the search path ..."_s, checking,
                          sources, headerTimeLimit);
    progress.say(acceptanceSentence(clang->version, verdicts, u"headers"_s));
    const auto rejected =
        std::find_if(verdicts.begin(), verdicts.end(), [](const Verdict &verdict) {
            return verdict.result == Verdict::RejectedByClang;
        });
    if (rejected != verdicts.end())
        progress.say(u"The first that it rejects: %1"_s.arg(rejected->rejection.message));
}
