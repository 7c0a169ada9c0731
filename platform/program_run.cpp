#include "program_run.h"

#include "process_tree.h"

#include <QDeadlineTimer>
#include <QProcess>

using namespace Qt::StringLiterals;

namespace platform {

namespace {

const int betweenLooks = 50; // at what the program has written, in milliseconds

/// The environment, with messages in English and without what makes the GNU compilers and clang
/// write or print more than their command says: GCC's manual, "Environment Variables Affecting
/// GCC", and the start of clang's driver.
QProcessEnvironment quietEnvironment()
{
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert(u"LC_ALL"_s, u"C"_s);
    environment.insert(u"VSLANG"_s, u"1033"_s); // what Microsoft's compiler looks at
    for (const QString &variable :
         {u"DEPENDENCIES_OUTPUT"_s, u"SUNPRO_DEPENDENCIES"_s, u"GCC_EXTRA_DIAGNOSTIC_OUTPUT"_s,
          u"CC_PRINT_OPTIONS"_s, u"CC_PRINT_HEADERS"_s, u"CC_LOG_DIAGNOSTICS"_s,
          u"CC_PRINT_PROC_STAT"_s, u"CC_PRINT_INTERNAL_STAT"_s})
        environment.remove(variable);
    return environment;
}

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
    process.setProcessEnvironment(quietEnvironment());
    process.setWorkingDirectory(directory);
    process.setStandardInputFile(QProcess::nullDevice());
    ProcessTree tree(process);
    if (!tree.start(command))
        return run;

    const QDeadlineTimer deadline(timeLimit);
    while (process.state() != QProcess::NotRunning && !deadline.hasExpired()) {
        process.waitForReadyRead(betweenLooks);
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
