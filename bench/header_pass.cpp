// The header pass over a tree of headers, against ripgrep printing every preprocessor line of the
// same tree to a file and Universal Ctags listing its macros there. Each is run several times after
// one run that warms the file cache up; the fastest counts.
//
// Usage: bench_header_pass [DIRECTORY]

#include "header_scan.h"

#include <QCoreApplication>
#include <QElapsedTimer>
#include <QProcess>
#include <QTemporaryDir>
#include <algorithm>
#include <cstdio>

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
    const double pass = fastest(7, [&] { scan = scanHeaders({directory}); });
    const double ripgrep =
        timeOf(7, "rg", {"--no-heading", "--no-ignore", "--hidden", "--text", "^\\s*#", directory});
    const double ctags =
        timeOf(2, "ctags",
               {"-f", "-", "-R", "--languages=C,C++", "--kinds-C=d", "--kinds-C++=d", directory});
    std::printf("header pass  %6.3f s   %lld files, %lld names\n", pass,
                static_cast<long long>(scan.files), static_cast<long long>(scan.names.size()));
    std::printf("ripgrep      %6.3f s   ratio %.2f\n", ripgrep, pass / ripgrep);
    std::printf("ctags        %6.3f s   ratio %.2f\n", ctags, pass / ctags);
    return 0;
}
