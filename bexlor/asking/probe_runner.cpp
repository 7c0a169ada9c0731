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

// Of messages, in bytes. Errors behind it would be overlooked, and a compiler may remark on every
// line of the largest probe several times.
const qsizetype mostMessages = 64'000'000;

// Behind that many answers that another try has mended, a compiler is taken for one that does not
// work twice at a time.
const int mostMended = 3;

// Clang's (its manual, "Formatting of Diagnostics"), which else stops after 20 errors.
const QString withoutErrorLimit = u"-ferror-limit=0"_s;
const int manyErrors = 30;

// What is put behind each probe, see askIn().
const int declarationsBehind = 3;

const ProbeLimits usualLimits {20'000, 500'000};
const ProbeLimits smallLimits {99 - declarationsBehind, 4000};
const ProbeLimits widerLimits {2000, 50'000};

// Behind every probe: a compiler that has lost the rest of the source leaves an object without this
// name. Declared first, since some have something to say to a definition alone.
const QByteArray endName = "calyx_source_end";
const QByteArray endMark = "extern int " + endName + "; int " + endName + ";\n";

/// The usual one, or what tests set, in milliseconds.
int timeLimit()
{
    const int set = qEnvironmentVariableIntValue("BEXLOR_TIME_LIMIT");
    return set > 0 ? set : usualTimeLimit;
}

/// How often a probe is asked again whose answer \a first is unlike all others. One that took all
/// its time would take it each time.
int repetitionsAfter(const ProbeAnswer &first)
{
    return first.run.ending == platform::ProgramRun::TimedOut ? 1 : 3;
}

/// What the program that has been made in \a folder prints.
QByteArray printedBy(const QString &folder)
{
    // A compiler that takes no name for its output leaves the one that is usual.
    for (const QString &name : {u"probe.exe"_s, u"a.out"_s, u"a.exe"_s}) {
        const QString program = folder + u'/' + name;
        if (QFile::exists(program))
            return platform::runProgram({program}, folder, timeLimit()).output;
    }
    return {};
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

ProbeAnswer ProbeRunner::tryWithoutObjectName()
{
    m_compiler.namesObjects = false;
    const ProbeAnswer answer = ask(acceptedProbe);
    m_compiler.namesObjects = !answer.compiled();
    return answer;
}

bool ProbeRunner::learnControls(const ProbeAnswer &accepted)
{
    const auto ask = [this](const QByteArray &source) {
        return askOnce(source, CompileTo::Object);
    };
    const std::optional<Controls> controls = askControls(ask, accepted);
    m_knowsControls = controls.has_value();
    m_controls = controls.value_or(Controls());
    if (m_knowsControls) {
        liftErrorLimit();
        widenLimits();
    }
    return m_knowsControls;
}

/// How many of many errors the compiler names. They are not alike, since it may report those once,
/// and it may pass over the declaration behind each.
int ProbeRunner::errorsNamed() const
{
    QByteArray source;
    for (int i = 0; i < manyErrors; ++i)
        source += "int calyx_" + QByteArray::number(i) + " = ;\n" + acceptedProbe;
    int count = 0;
    for (const int line : askOnce(source, CompileTo::Object).lines)
        count += line % 2;
    return count;
}

/// Adds the option to the command that makes the compiler name all errors, if it needs it and
/// understands it.
void ProbeRunner::liftErrorLimit()
{
    const int named = errorsNamed();
    m_controls.stopsAtFirstError = named < 2;
    if (named == manyErrors || m_controls.stopsAtFirstError)
        return;
    m_compiler.command << withoutErrorLimit;
    if (errorsNamed() != manyErrors)
        m_compiler.command.removeLast();
}

/// Many a compiler that is said to need small probes takes larger ones.
void ProbeRunner::widenLimits()
{
    if (m_limits.bytes >= widerLimits.bytes)
        return;
    QByteArray source;
    for (int i = 0; i < widerLimits.declarations; ++i)
        source += "extern int calyx_" + QByteArray::number(i) + ";\n";
    if (askOnce(source, CompileTo::Object).compiled())
        m_limits = widerLimits;
}

ProbeAnswer ProbeRunner::ask(const QByteArray &source, CompileTo goal) const
{
    if (m_malfunction)
        return *m_malfunction;
    const ProbeAnswer answer = askOnce(source, goal);
    return isExpected(answer) ? answer : askAgain(answer, source, goal);
}

QList<ProbeAnswer> ProbeRunner::askAll(const QList<QByteArray> &sources) const
{
    if (m_malfunction)
        return QList<ProbeAnswer>(sources.size(), *m_malfunction);
    QList<ProbeAnswer> answers(sources.size());
    ProbeAnswer *const places = answers.data(); // not detached by the threads
    QThreadPool pool;
    if (m_mended > mostMended)
        pool.setMaxThreadCount(1);
    for (qsizetype i = 0; i < sources.size(); ++i) {
        pool.start(
            [this, places, &sources, i] { places[i] = askOnce(sources[i], CompileTo::Object); });
    }
    pool.waitForDone();
    for (qsizetype i = 0; i < sources.size(); ++i) {
        if (!isExpected(answers[i]))
            answers[i] = askAgain(answers[i], sources[i], CompileTo::Object);
    }
    return answers;
}

bool ProbeRunner::isExpected(const ProbeAnswer &answer) const
{
    return !m_knowsControls || m_controls.isExpected(answer);
}

ProbeAnswer ProbeRunner::askAgain(const ProbeAnswer &first, const QByteArray &source,
                                  CompileTo goal) const
{
    if (m_malfunction)
        return *m_malfunction;
    ProbeAnswer answer;
    for (int tries = 0; tries < repetitionsAfter(first); ++tries) {
        answer = askOnce(source, goal);
        if (m_controls.isExpected(answer)) {
            ++m_mended;
            return answer;
        }
    }
    // The assembler and the linker name no line of the probe, and no licence server does; what
    // stands in a probe may keep the compiler from seeing its end.
    if ((answer.compiled() || m_controls.isRejection(answer)) && worksStill())
        return answer;
    answer.lacksSomething = answer.compiled();
    return fail(answer);
}

bool ProbeRunner::worksStill() const
{
    const ProbeAnswer answer = askOnce(acceptedProbe, CompileTo::Object);
    return answer.compiled() && m_controls.isExpected(answer);
}

ProbeAnswer ProbeRunner::fail(const ProbeAnswer &answer) const
{
    if (!m_malfunction)
        m_malfunction = answer;
    return *m_malfunction;
}

ProbeAnswer ProbeRunner::askOnce(const QByteArray &source, CompileTo goal) const
{
    const QString folder = m_folder + u"/%1"_s.arg(++m_folders);
    const ProbeAnswer answer = askIn(folder, source, goal);
    QDir(folder).removeRecursively();
    return answer;
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
    QByteArray text = source;
    if (needsMain)
        text += "int main(void) { return 0; }\n";
    if (goal == CompileTo::Object)
        text += endMark;
    answer.isAsked = QDir().mkdir(folder) && platform::writeScratchFile(folder + u'/' + name, text);
    if (!answer.isAsked)
        return answer;
    ++m_started;
    answer.run = platform::runProgram(command(goal), folder, timeLimit(), mostMessages);
    const NamedLines named =
        namedLines(answer.run.errors + '\n' + answer.run.output, name.toLatin1());
    answer.messageCounts = named.all;
    answer.lines = named.ofErrors.isEmpty() ? QSet<int>(named.all.keyBegin(), named.all.keyEnd())
                                            : named.ofErrors;
    const QByteArray left = bytesLeftIn(folder, name, layout.objectExtension);
    answer.leftNothing = left.isEmpty();
    answer.namesEnd = goal == CompileTo::Program || left.contains(endName);
    if (answer.compiled())
        answer.bytes = goal == CompileTo::Object ? left : printedBy(folder);
    return answer;
}

QString probeName(bool isCpp)
{
    return isCpp ? u"probe.cpp"_s : u"probe.c"_s;
}
