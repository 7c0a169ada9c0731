// How well the wizard keeps up with a generator that prints 50 MB of lines: how long it takes until
// all of them are on the page, and for how long at most the window does not answer meanwhile. The
// peer is the toolkit's plain-text widget with the same program's output appended as it arrives.
//
// Usage: bench_generator_output [MEGABYTES]

#include "calyx.h"
#include "form_font.h"
#include "log_browser.h"

#include <QAbstractButton>
#include <QApplication>
#include <QDir>
#include <QElapsedTimer>
#include <QFileInfo>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QProcess>
#include <QTemporaryDir>
#include <QTextBlock>
#include <QTimer>
#include <cstdio>
#include <cstring>

namespace {

/// What this program does when it runs under the generator's name.
int printLines(int megabytes)
{
    const char *line =
        "a line of about eighty characters, as compilers and generators print them\n";
    const long count = megabytes * 1'000'000L / long(std::strlen(line));
    for (long i = 0; i < count; ++i)
        std::fputs(line, stdout);
    return 0;
}

struct Measurement
{
    qint64 total = 0;      ///< milliseconds
    qint64 longestGap = 0; ///< milliseconds between two turns of the event loop
    int lines = 0;
};

/// Runs the event loop until \a isDone, watching how often it turns.
template <typename Predicate>
Measurement measure(Predicate isDone)
{
    Measurement measurement;
    QElapsedTimer total, gap;
    QTimer timer;
    QObject::connect(&timer, &QTimer::timeout, [&] {
        measurement.longestGap = std::max(measurement.longestGap, gap.restart());
    });
    total.start();
    gap.start();
    timer.start(0);
    while (!isDone())
        QApplication::processEvents(QEventLoop::WaitForMoreEvents);
    measurement.total = total.elapsed();
    return measurement;
}

Measurement measureWizard()
{
    Calyx wizard;
    wizard.show();
    wizard.showPage(wizard.Page4);
    wizard.accept();
    Measurement measurement =
        measure([&] { return wizard.buttonText(QWizard::CancelButton) == "Close"; });
    measurement.lines = wizard.DetailsText->document()->blockCount();
    return measurement;
}

Measurement measurePeer()
{
    QPlainTextEdit peer;
    peer.resize(390, 310);
    peer.setReadOnly(true);
    peer.show();
    QProcess process;
    QObject::connect(&process, &QProcess::readyReadStandardOutput, [&] {
        QTextCursor end(peer.document());
        end.movePosition(QTextCursor::End);
        end.insertText(QString::fromLocal8Bit(process.readAllStandardOutput()));
    });
    process.start(QStringLiteral("Bexlor.exe"), QStringList());
    Measurement measurement = measure(
        [&] { return process.state() == QProcess::NotRunning && process.bytesAvailable() == 0; });
    measurement.lines = peer.document()->blockCount();
    return measurement;
}

void print(const char *name, const Measurement &measurement)
{
    std::printf("%-14s %8.1f s   longest gap %5lld ms   %d lines\n", name,
                double(measurement.total) / 1000, static_cast<long long>(measurement.longestGap),
                measurement.lines);
}

} // namespace

int main(int argc, char *argv[])
{
    if (QFileInfo(QString::fromLocal8Bit(argv[0])).fileName() == QLatin1String("Bexlor.exe"))
        return printLines(qEnvironmentVariableIntValue("MEGABYTES"));

    QApplication::setStyle(QStringLiteral("windows"));
    QApplication application(argc, argv);
    QApplication::setFont(formFont());
    const QTemporaryDir folder;
    QFile::link(QApplication::applicationFilePath(), folder.filePath("Bexlor.exe"));
    qputenv("PATH", folder.path().toLocal8Bit());
    qputenv("MEGABYTES", argc > 1 ? argv[1] : "50");
    QDir::setCurrent(folder.path());

    const Measurement wizard = measureWizard();
    const Measurement peer = measurePeer();
    print("wizard", wizard);
    print("plain text", peer);
    std::printf("ratio          %8.2f\n", double(wizard.total) / double(peer.total));
    return 0;
}
