#include "probe_steps.h"

#include "command_line.h"
#include "generator_interface.h"
#include "probe_options.h"
#include "text_file.h"

#include <QDir>

using namespace Qt::StringLiterals;

namespace {

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

} // namespace

void removeLogs()
{
    for (const QLatin1StringView file :
         {generator::attemptedCommand, generator::standardOutput, generator::standardError})
        QFile::remove(file);
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
    const ProgressStep step(progress, u"Compiling a first probe ..."_s);
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
    const ProgressStep step(progress, u"Compiling what the command includes first ..."_s);
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
    const ProgressStep step(progress, u"Compiling control probes ..."_s);
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

bool worksStill(Progress &progress, const ProbeRunner &runner, const QString &logFolder)
{
    const ProgressStep step(progress, u"Compiling the first probe again ..."_s);
    const ProbeAnswer again = runner.ask(acceptedProbe);
    if (again.compiled())
        return true;
    leaveLogs(logFolder, runner.command(), again.run);
    progress.say(u"The compiler no longer answers as it did: %1."_s.arg(howItEnded(again)));
    return false;
}
