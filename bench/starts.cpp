// How much the generator asks of compilers.
//
// For each compiler that is installed one line of a table, for a run in which it lists what it
// knows of itself and for one by probes alone:
//   started   how often the compiler was started
//   CPU       seconds of processor time, of the generator and all that it started
// The last lines are gcc behind a script that sleeps 0.3 seconds at each start, as a compiler does
// that asks a licence server over a network; "silent" is the longest time for which the generator
// printed nothing.
//
// Usage: bench_starts GENERATOR [COMPILER...]

#include "compilers.h"

#include <QCoreApplication>
#include <QElapsedTimer>
#include <QFile>
#include <QFileInfo>
#include <QProcess>
#include <QRegularExpression>
#include <QTemporaryDir>
#include <cstdio>

namespace {

/// What a run of the generator took; times in seconds.
struct Cost
{
    QString started;
    double processor = 0;
    double elapsed = 0;
    double silent = 0;
};

Cost costOf(const QString &generator, const Subject &subject, bool learnsOnly)
{
    const QTemporaryDir folder;
    QProcess process;
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    if (learnsOnly)
        environment.insert("BEXLOR_LEARN_ONLY", "1");
    process.setProcessEnvironment(environment);
    process.setWorkingDirectory(folder.path());
    // The shell tells the processor time of all its children on the standard error.
    QElapsedTimer whole, silence;
    whole.start();
    process.start("bash", QStringList {"-c", "TIMEFORMAT='%U %S'; time \"$@\"", "bash", generator}
                              + generatorArguments(subject, folder.path(), "x.p_c"));
    Cost cost;
    QByteArray said;
    silence.start();
    while (process.state() != QProcess::NotRunning) {
        if (process.waitForReadyRead(10))
            silence.restart();
        said += process.readAllStandardOutput();
        cost.silent = std::max(cost.silent, double(silence.elapsed()) / 1000);
    }
    cost.elapsed = double(whole.elapsed()) / 1000;
    said += process.readAllStandardOutput();
    cost.started =
        QRegularExpression("started (\\d+) times").match(QString::fromLocal8Bit(said)).captured(1);
    const QList<QByteArray> times =
        process.readAllStandardError().trimmed().split('\n').last().split(' ');
    for (const QByteArray &time : times)
        cost.processor += time.toDouble();
    return cost;
}

void measure(const QString &generator, const Subject &subject)
{
    const Cost listed = costOf(generator, subject, false);
    const Cost learned = costOf(generator, subject, true);
    std::printf("%-24s %8s %6.1f %12s %6.1f\n", qPrintable(subject.name),
                qPrintable(listed.started), listed.processor, qPrintable(learned.started),
                learned.processor);
    std::fflush(stdout);
}

void measureSlow(const QString &generator, Subject subject)
{
    const QTemporaryDir folder;
    subject.command = folder.filePath("slow");
    QFile script(subject.command);
    if (!script.open(QIODevice::WriteOnly))
        return;
    script.write("#!/bin/sh\nsleep 0.3\nexec gcc \"$@\"\n");
    script.close();
    script.setPermissions(QFile::ReadOwner | QFile::ExeOwner);
    for (const bool learnsOnly : {false, true}) {
        const Cost cost = costOf(generator, subject, learnsOnly);
        std::printf("%-24s started %s times in %.1f s, silent %.1f s\n",
                    learnsOnly ? "slow gcc, by probes" : "slow gcc", qPrintable(cost.started),
                    cost.elapsed, cost.silent);
        std::fflush(stdout);
    }
}

} // namespace

int main(int argc, char *argv[])
{
    QCoreApplication application(argc, argv);
    const QStringList arguments = application.arguments();
    if (arguments.size() < 2) {
        std::fprintf(stderr, "usage: bench_starts GENERATOR [COMPILER...]\n");
        return 2;
    }
    const QString generator = QFileInfo(arguments[1]).absoluteFilePath();
    std::printf("%-24s %8s %6s %12s %6s\n", "compiler", "started", "CPU", "by probes", "CPU");
    const QList<Subject> subjects = installedSubjects(arguments.mid(2));
    for (const Subject &subject : subjects)
        measure(generator, subject);
    for (const Subject &subject : subjects) {
        if (subject.name == "gcc")
            measureSlow(generator, subject);
    }
    return 0;
}
