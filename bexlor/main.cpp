// The generator: asks a compiler about itself and writes its personality.
//
// Progress goes to the standard output, one line for each step. The command attempted, and what it
// wrote, are left in the working directory as compile.bat, stdout.log and stderr.log. The exit
// status is 0 when the personality has been written, 1 when a step failed, 2 for a command line
// that usage() does not allow.

#include "bexlor/arguments.h"
#include "bexlor/compiler.h"
#include "bexlor/facts.h"
#include "bexlor/personality.h"
#include "platform/text_file.h"

#include <QCoreApplication>
#include <QFileInfo>
#include <QTemporaryDir>
#include <cstdio>

namespace {

void say(const QString &line)
{
    std::fprintf(stdout, "%s\n", line.toLocal8Bit().constData());
    std::fflush(stdout);
}

void leaveLogs(const QStringList &command, const ProgramRun &run)
{
    platform::writeFile(QStringLiteral("compile.bat"), commandLine(command).toLocal8Bit() + '\n');
    platform::writeFile(QStringLiteral("stdout.log"), run.output);
    platform::writeFile(QStringLiteral("stderr.log"), run.errors);
}

QString howItEnded(const ProgramRun &run)
{
    switch (run.ending) {
    case ProgramRun::NotStarted:
        return QStringLiteral("the compiler could not be started");
    case ProgramRun::Crashed:
        return QStringLiteral("the compiler crashed");
    case ProgramRun::TimedOut:
        return QStringLiteral("the compiler did not end within its time");
    case ProgramRun::Exited:
        break;
    }
    return QStringLiteral("the compiler returned %1").arg(run.exitCode);
}

/// Runs one step and leaves its logs; says why when it fails.
ProgramRun attempt(const QString &step, const QStringList &command, const QString &directory)
{
    const ProgramRun run = runProgram(command, directory);
    leaveLogs(command, run);
    if (!run.succeeded())
        say(QStringLiteral("%1 failed: %2.").arg(step, howItEnded(run)));
    return run;
}

bool generate(const Arguments &arguments)
{
    const QString folder = QFileInfo(arguments.personality).absolutePath();
    if (!QFileInfo(folder).isDir()) {
        say(QStringLiteral("The folder of the personality does not exist: %1").arg(folder));
        return false;
    }
    QTemporaryDir workshop;
    const QString source = QLatin1String(arguments.isCpp ? "probe.cpp" : "probe.c");
    const QByteArray probe = "int calyx_probe;\n";
    if (!workshop.isValid() || !platform::writeFile(workshop.filePath(source), probe)) {
        say(QStringLiteral("No temporary file could be written: %1").arg(workshop.errorString()));
        return false;
    }

    const Compiler compiler = findCompiler(arguments);
    say(QStringLiteral("Compiling a first probe ..."));
    const QString object = QStringLiteral("probe") + arguments.objectExtension;
    if (!attempt(QStringLiteral("Compiling the first probe"),
                 compileCommand(compiler, source, object), workshop.path())
             .succeeded())
        return false;

    QStringList query = compiler.command;
    for (const QString &define : compiler.defines)
        query << QStringLiteral("-D") + define;
    say(QStringLiteral("Asking for the predefined macros ..."));
    const ProgramRun macros = attempt(QStringLiteral("Asking for the predefined macros"),
                                      query + QStringList {"-dM", "-E", source}, workshop.path());
    if (!macros.succeeded())
        return false;
    say(QStringLiteral("Asking for the search path ..."));
    const ProgramRun searchPath =
        attempt(QStringLiteral("Asking for the search path"),
                query + QStringList {"-v", "-E", source}, workshop.path());
    if (!searchPath.succeeded())
        return false;
    const Facts facts {parseMacros(macros.output), parseSearchPath(searchPath.errors)};
    if (facts.macros.isEmpty()) {
        say(QStringLiteral("The compiler does not tell its predefined macros under -dM -E."));
        return false;
    }
    say(QStringLiteral("Found %1 macros and %2 search directories.")
            .arg(facts.macros.size())
            .arg(facts.searchPath.size()));

    QByteArray templateText;
    if (!arguments.templateFile.isEmpty()) {
        QFile file(arguments.templateFile);
        if (!file.open(QIODevice::ReadOnly)) {
            say(QStringLiteral("The template cannot be read: %1").arg(arguments.templateFile));
            return false;
        }
        templateText = file.readAll();
    }
    if (!platform::writeFile(arguments.personality,
                             personalityText(arguments, facts, templateText))) {
        say(QStringLiteral("The personality cannot be written: %1").arg(arguments.personality));
        return false;
    }
    say(QStringLiteral("Wrote %1").arg(arguments.personality));
    return true;
}

} // namespace

int main(int argc, char *argv[])
{
    QCoreApplication application(argc, argv);
    const std::optional<Arguments> arguments = parseArguments(application.arguments().mid(1));
    if (!arguments) {
        std::fprintf(stderr, "%s\n", usage().toLocal8Bit().constData());
        return 2;
    }
    return generate(*arguments) ? 0 : 1;
}
