// The header pass over a tree of headers, against ripgrep printing every preprocessor line of the
// same tree to a file and Universal Ctags listing its macros there. Each is run several times after
// one run that warms the file cache up; the fastest counts.
//
// Usage: bench_header_pass [DIRECTORY]

#include "header_scan.h"
#include "report.h"

#include <QCoreApplication>
#include <QElapsedTimer>
#include <QProcess>
#include <QTemporaryDir>
#include <algorithm>

namespace {

template <typename Work>
double fastest(int rounds, Work work)
{
    work();
    double best = 1e9;
    for (int round = 0; round < rounds; ++round) {
        QElapsedTimer timer;
        timer.start();
        work();
        best = std::min(best, double(timer.nsecsElapsed()) / 1e9);
    }
    return best;
}

double timeOf(int rounds, const QString &program, const QStringList &arguments)
{
    const QTemporaryDir output;
    return fastest(rounds, [&] {
        QProcess process;
        process.setStandardOutputFile(output.filePath("output"));
        process.setStandardErrorFile(QProcess::nullDevice());
        process.start(program, arguments);
        process.waitForFinished(-1);
    });
}

} // namespace

int main(int argc, char *argv[])
{
    QCoreApplication application(argc, argv);
    const QString directory = argc > 1 ? QString::fromLocal8Bit(argv[1]) : "/usr/include";
    HeaderScan scan;
    ScanProgress progress;
    const double pass = fastest(7, [&] { scan = scanHeaders({directory}, progress); });
    const double ripgrep =
        timeOf(7, "rg", {"--no-heading", "--no-ignore", "--hidden", "--text", "^\\s*#", directory});
    const double ctags =
        timeOf(2, "ctags",
               {"-f", "-", "-R", "--languages=C,C++", "--kinds-C=d", "--kinds-C++=d", directory});
    printHeading();
    const QByteArray what = "names in " + QByteArray::number(scan.files) + " files";
    printRow(what, pass, "s", pass / ripgrep, "ripgrep, preprocessor lines");
    printRow(what, pass, "s", pass / ctags, "ctags, macros");
    return 0;
}
