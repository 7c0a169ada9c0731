#include "probe_runner.h"

#include "malfunction.h"
#include "messages.h"
#include "object_file.h"
#include "text_file.h"

#include <QDir>
#include <QFile>
#include <QThreadPool>
#include <algorithm>

using namespace Qt::StringLiterals;

namespace {

const int usualTimeLimit = 60'000; // milliseconds for one compilation

// Behind that many a compiler is taken for one that does not work twice at a time.
const int mostAnswersCured = 3;

const ProbeLimits usualLimits {20'000, 500'000};
const ProbeLimits smallLimits {99, 4000};

/// The same, or what tests set.
int timeLimit()
{
    const int set = qEnvironmentVariableIntValue("BEXLOR_TIME_LIMIT");
    return set > 0 ? set : usualTimeLimit;
}

} // namespace

ProbeRunner::ProbeRunner(const Compiler &compiler, const QString &folder, bool smallProbes)
    : m_compiler(compiler), m_folder(folder), m_limits(smallProbes ? smallLimits : usualLimits)
{ }

QStringList ProbeRunner::command(CompileTo goal) const
{
    const QString output =
        goal == CompileTo::Object ? "probe"_L1 + m_compiler.layout.objectExtension : u"probe.exe"_s;
    return probeCommand(m_compiler, probeName(m_compiler.isCpp), output, goal);
}

ProbeAnswer ProbeRunner::ask(const QByteArray &source) const
{
    return confirmed(askOnce(source), source);
}

ProbeAnswer ProbeRunner::askOnce(const QByteArray &source) const
{
    const QString folder = newFolder();
    const ProbeAnswer answer = askIn(folder, source, CompileTo::Object);
    QDir(folder).removeRecursively();
    return answer;
}

/// \a first, the answer to \a source, as the controls judge it; if it is odd, what comes when the
/// source is asked again by itself.
ProbeAnswer ProbeRunner::confirmed(const ProbeAnswer &first, const QByteArray &source) const
{
    if (!m_controls)
        return first;
    ProbeAnswer answer = first;
    for (int i = 0; i < triesAfter(first) && m_controls->isOdd(answer); ++i)
        answer = askOnce(source);
    if (!answer.isWritten)
        throw Malfunction {
            u"There is no room for a probe in the temporary folder: %1"_s.arg(m_folder),
            answer.run};
    if (m_controls->isOdd(answer) && !(m_controls->mayBeRejection(answer) && worksStill()))
        throw Malfunction {{}, answer.run};
    return m_controls->judged(answer);
}

/// Whether the compiler accepts what every compiler does.
bool ProbeRunner::worksStill() const
{
    ProbeAnswer answer = askOnce(acceptedSource);
    for (int i = 0; i < triesAfter(answer) && m_controls->isOdd(answer); ++i)
        answer = askOnce(acceptedSource);
    return m_controls->judged(answer).compiled();
}

QString ProbeRunner::newFolder() const
{
    return m_folder + u"/%1"_s.arg(++m_folders);
}

ProbeAnswer ProbeRunner::askIn(const QString &folder, const QByteArray &source,
                               CompileTo goal) const
{
    ProbeAnswer answer;
    const QString name = probeName(m_compiler.isCpp);
    const CommandLayout &layout = m_compiler.layout;
    // Without an object flag a native compiler makes a program of every probe.
    const bool needsMain =
        goal == CompileTo::Object && layout.objectFlag.isEmpty() && !m_compiler.isCross;
    const QByteArray text = needsMain ? source + "int main(void) { return 0; }\n" : source;
    QDir().mkdir(folder);
    answer.isWritten = platform::writeScratchFile(folder + u'/' + name, text);
    if (!answer.isWritten)
        return answer;
    ++m_started;
    answer.run = platform::runProgram(command(goal), folder, timeLimit());
    const QByteArray messages = answer.run.errors + '\n' + answer.run.output;
    answer.allLines = namedLines(messages, name.toLatin1());
    answer.lines = namedLines(messages, name.toLatin1(), true);
    if (answer.lines.isEmpty())
        answer.lines = answer.allLines;
    answer.namesSource = !answer.allLines.isEmpty() || namesIncludedHeader(messages, source);
    const QStringList files = filesLeftIn(folder, name);
    answer.leftFiles = !files.isEmpty();
    answer.leftObject = std::any_of(files.begin(), files.end(), [&layout](const QString &file) {
        return !layout.objectExtension.isEmpty() && file.endsWith(layout.objectExtension);
    });
    if (answer.run.succeeded() && goal == CompileTo::Object)
        answer.bytes = bytesOfFiles(files, layout.objectExtension);
    return answer;
}

QList<ProbeAnswer> ProbeRunner::askAll(const QList<QByteArray> &sources) const
{
    QList<ProbeAnswer> answers(sources.size());
    ProbeAnswer *const places = answers.data(); // not detached by the threads
    QThreadPool pool;
    if (m_answersCured > mostAnswersCured)
        pool.setMaxThreadCount(1);
    for (qsizetype i = 0; i < sources.size(); ++i)
        pool.start([this, places, &sources, i] { places[i] = askOnce(sources[i]); });
    pool.waitForDone();
    for (qsizetype i = 0; i < sources.size(); ++i) {
        m_answersCured += m_controls && m_controls->isOdd(answers[i]);
        answers[i] = confirmed(answers[i], sources[i]);
    }
    return answers;
}

ProbeAnswer ProbeRunner::askByRunning(const QByteArray &source) const
{
    const QString folder = newFolder();
    ProbeAnswer answer = askIn(folder, source, CompileTo::Program);
    // A compiler that takes no name for its output leaves the one that is usual.
    for (const QString &name : {u"probe.exe"_s, u"a.out"_s}) {
        const QString program = folder + u'/' + name;
        if (answer.compiled() && QFile::exists(program))
            answer.bytes = platform::runProgram({program}, folder, timeLimit()).output;
    }
    QDir(folder).removeRecursively();
    return answer;
}

QString probeName(bool isCpp)
{
    return isCpp ? u"probe.cpp"_s : u"probe.c"_s;
}
