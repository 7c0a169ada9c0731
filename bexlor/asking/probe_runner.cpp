#include "probe_runner.h"

#include "messages.h"
#include "object_file.h"
#include "text_file.h"

#include <QDir>
#include <QFile>
#include <QThreadPool>

using namespace Qt::StringLiterals;

namespace {

const int usualTimeLimit = 60'000; // milliseconds for one compilation

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

ProbeAnswer ProbeRunner::ask(const QByteArray &source, CompileTo goal) const
{
    const QString folder = newFolder();
    const ProbeAnswer answer = askIn(folder, source, goal);
    QDir(folder).removeRecursively();
    return answer;
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
    if (!platform::writeScratchFile(folder + u'/' + name, text))
        return answer;
    ++m_started;
    answer.run = platform::runProgram(command(goal), folder, timeLimit());
    const QByteArray messages = answer.run.errors + '\n' + answer.run.output;
    answer.allLines = namedLines(messages, name.toLatin1());
    answer.lines = namedLines(messages, name.toLatin1(), true);
    if (answer.lines.isEmpty())
        answer.lines = answer.allLines;
    if (answer.compiled() && goal == CompileTo::Object)
        answer.bytes = bytesLeftIn(folder, name, layout.objectExtension);
    return answer;
}

QList<ProbeAnswer> ProbeRunner::askAll(const QList<QByteArray> &sources) const
{
    QList<ProbeAnswer> answers(sources.size());
    ProbeAnswer *const places = answers.data(); // not detached by the threads
    QThreadPool pool;
    for (qsizetype i = 0; i < sources.size(); ++i)
        pool.start([this, places, &sources, i] { places[i] = ask(sources[i]); });
    pool.waitForDone();
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
