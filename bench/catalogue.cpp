// What a large catalogue costs: 10,000 compilers in 200 families.
//
// Reading it and building its menu is measured against merely reading the same file line by line;
// the time from the start of the process to the first shown window against that of an empty
// catalogue. The second measurement runs this program again.

#include "calyx.h"
#include "compiler_catalogue.h"
#include "form_font.h"
#include "report.h"
#include "text_file.h"

#include <QApplication>
#include <QDir>
#include <QElapsedTimer>
#include <QFile>
#include <QProcess>
#include <QTemporaryDir>
#include <QTextStream>
#include <QWindow>
#include <algorithm>

namespace {

const int families = 200;
const int compilers = 10'000;
const int rounds = 9;

CompilerCatalogue largeCatalogue()
{
    CompilerCatalogue catalogue;
    for (int family = 0; family < families; ++family)
        catalogue.families << QStringLiteral("Family %1").arg(family);
    for (int number = 0; number < compilers; ++number) {
        CompilerRecord record;
        record.Name = QStringLiteral("compiler %1 - C").arg(number);
        record.Family = catalogue.families[number % families];
        record.ExeCommand = QStringLiteral("/opt/compilers/%1/bin/cc -m32").arg(number);
        record.CrossCompiler = record.ReduceFileSize = QStringLiteral("no");
        record.OutputFlag = QStringLiteral("-o");
        record.DefineFlag = QStringLiteral("-D");
        record.ObjectFlag = QStringLiteral("-c");
        record.ObjectFileExtension = QStringLiteral(".o");
        record.Order = QStringLiteral("%c %o %e %d%j %s ");
        record.CompilerDefines = QStringLiteral("DEVICE=%1,RELEASE").arg(number);
        catalogue.compilers << record;
    }
    return catalogue;
}

/// The median of some rounds of \a work, in milliseconds.
template <typename Work>
double median(Work work)
{
    QList<double> times;
    for (int round = 0; round < rounds; ++round) {
        QElapsedTimer timer;
        timer.start();
        work();
        times << double(timer.nsecsElapsed()) / 1e6;
    }
    std::sort(times.begin(), times.end());
    return times[rounds / 2];
}

/// Shows the wizard once and leaves it; what the second measurement starts.
int showOnce(int argc, char *argv[])
{
    QApplication application(argc, argv);
    QApplication::setStyle(QStringLiteral("windows"));
    QApplication::setFont(formFont());
    Calyx wizard;
    wizard.show();
    while (!wizard.windowHandle()->isExposed())
        QApplication::processEvents(QEventLoop::WaitForMoreEvents);
    return 0;
}

double timeToWindow(const QString &folder)
{
    return median([&folder] {
        QProcess process;
        process.setWorkingDirectory(folder);
        process.start(QCoreApplication::applicationFilePath(), {QStringLiteral("show")});
        process.waitForFinished(-1);
    });
}

} // namespace

int main(int argc, char *argv[])
{
    if (argc > 1)
        return showOnce(argc, argv);
    QApplication application(argc, argv);
    const QTemporaryDir empty, large;
    const QString file = large.filePath("compilers.txt");
    platform::writeFile(file, catalogueText(largeCatalogue()));

    const double lines = median([&file] {
        QFile device(file);
        if (!device.open(QIODevice::ReadOnly))
            return;
        QTextStream stream(&device);
        QString line;
        while (stream.readLineInto(&line)) { }
    });
    const auto construct = [](const QString &folder) {
        QDir::setCurrent(folder);
        return median([] { const Calyx wizard; });
    };
    const double menu = construct(large.path()) - construct(empty.path());
    printHeading();
    printRow("catalogue read, menu built", menu, "ms", menu / lines, "its file read line by line");

    const double bare = timeToWindow(empty.path());
    const double full = timeToWindow(large.path());
    printRow("window, large catalogue", full, "ms", full / bare, "window, empty catalogue");
    return 0;
}
