#include "program_run.h"

#include "process_tree.h"

#include <QDeadlineTimer>
#include <QProcess>

using namespace Qt::StringLiterals;

namespace platform {

namespace {

const int milliseconds = 50; // between two looks at what the program has written

/// Adds to \a kept what fits into \a limit and drops the rest, so that a program that never stops
/// printing does not fill the memory.
void keep(QByteArray &kept, const QByteArray &more, qsizetype limit)
{
    kept += more.left(limit - kept.size());
}

} // namespace

ProgramRun runProgram(const QStringList &command, const QString &directory, int timeLimit,
                      qsizetype outputLimit)
{
    ProgramRun run;
    if (command.isEmpty())
        return run;
    QProcess process;
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert(u"LC_ALL"_s, u"C"_s);
    process.setProcessEnvironment(environment);
    process.setWorkingDirectory(directory);
    process.setStandardInputFile(QProcess::nullDevice());
    ProcessTree tree(process);
    if (!tree.start(command))
        return run;

    const QDeadlineTimer deadline(timeLimit);
    while (process.state() != QProcess::NotRunning && !deadline.hasExpired()) {
        process.waitForReadyRead(milliseconds);
        keep(run.output, process.readAllStandardOutput(), outputLimit);
        keep(run.errors, process.readAllStandardError(), outputLimit);
    }
    const bool timedOut = process.state() != QProcess::NotRunning;
    tree.end();
    process.waitForFinished();
    keep(run.output, process.readAllStandardOutput(), outputLimit);
    keep(run.errors, process.readAllStandardError(), outputLimit);
    run.ending = timedOut                                    ? ProgramRun::TimedOut
               : process.exitStatus() == QProcess::CrashExit ? ProgramRun::Crashed
                                                             : ProgramRun::Exited;
    run.exitCode = process.exitCode();
    return run;
}

} // namespace platform
