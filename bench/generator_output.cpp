// How well the wizard keeps up with a generator that prints without end. For each kind of output:
// the processor time until all of it is on the page, the longest time for which the window does not
// answer meanwhile (in processor time, so that other programs do not count), and the peak of
// memory. Each is compared with short lines in the same run, and those with the toolkit's
// plain-text widget.
//
// Usage: bench_generator_output [MEGABYTES]    50 unless said otherwise

#include "calyx.h"
#include "form_font.h"
#include "log_browser.h"
#include "report.h"

#include <QAbstractButton>
#include <QApplication>
#include <QDir>
#include <QFileInfo>
#include <QPlainTextEdit>
#include <QProcess>
#include <QTemporaryDir>
#include <QTextBlock>
#include <QTimer>
#include <cstdio>
#include <cstring>
#include <ctime>

namespace {

struct Output
{
    const char *name;
    const char *piece; ///< what is printed again and again
    bool isUnbuffered; ///< each by itself
    long most;         ///< pieces; 0: as many as asked for
};

const Output outputs[] = {
    {"short lines", "a line of about eighty characters, as compilers and generators print them\n",
     false, 0},
    {"plain-text widget",
     "a line of about eighty characters, as compilers and generators print them\n", false, 0},
    {"one line", "words without a line end ", false, 0},
    {"Arabic", "السطر الأول من مخرجات المترجم الذي لا يتوقف عن الكتابة\n", false, 0},
    {"emoji", "compiled 🙂 linked 🎉 warned ⚠️ and so on 👩‍💻\n", false, 0},
    {"two bytes a write", "x\n", true, 20'000},
    {"empty lines", "\n", false, 0},
};

/// What this program does when it runs under the generator's name.
int print(int index, int megabytes)
{
    const Output &output = outputs[index];
    const long asked = megabytes * 1'000'000L / long(std::strlen(output.piece));
    if (output.isUnbuffered)
        std::setvbuf(stdout, nullptr, _IONBF, 0);
    for (long i = 0; i < (output.most ? output.most : asked); ++i)
        std::fputs(output.piece, stdout);
    return 0;
}

double processorTime()
{
    return double(std::clock()) / CLOCKS_PER_SEC;
}

int peakMegabytes()
{
    QFile status("/proc/self/status");
    if (!status.open(QIODevice::ReadOnly))
        return 0;
    const QByteArray text = status.readAll();
    return text.mid(text.indexOf("VmHWM:") + 6).simplified().split(' ').first().toInt() / 1000;
}

/// Runs the event loop until \a isDone and prints processor time, longest gap and memory.
template <typename Predicate>
int measure(Predicate isDone)
{
    const double start = processorTime();
    double turn = start, longestGap = 0;
    QTimer timer;
    QObject::connect(&timer, &QTimer::timeout, [&] {
        longestGap = std::max(longestGap, processorTime() - turn);
        turn = processorTime();
    });
    timer.start(0);
    while (!isDone())
        QApplication::processEvents(QEventLoop::WaitForMoreEvents);
    std::printf("%f %f %d\n", processorTime() - start, longestGap, peakMegabytes());
    return 0;
}

int measureWizard()
{
    Calyx wizard;
    wizard.show();
    wizard.showPage(wizard.Page4);
    wizard.accept();
    return measure([&] { return wizard.buttonText(QWizard::CancelButton) == "Close"; });
}

int measurePlainText()
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
    return measure(
        [&] { return process.state() == QProcess::NotRunning && process.bytesAvailable() == 0; });
}

} // namespace

int main(int argc, char *argv[])
{
    const int index = qEnvironmentVariableIntValue("OUTPUT");
    if (QFileInfo(QString::fromLocal8Bit(argv[0])).fileName() == QLatin1String("Bexlor.exe"))
        return print(index, qEnvironmentVariableIntValue("MEGABYTES"));

    QApplication::setStyle(QStringLiteral("windows"));
    QApplication application(argc, argv);
    QApplication::setFont(formFont());
    if (qEnvironmentVariableIsSet("OUTPUT"))
        return QLatin1String(outputs[index].name) == "plain-text widget" ? measurePlainText()
                                                                         : measureWizard();

    const QTemporaryDir folder;
    QFile::link(QApplication::applicationFilePath(), folder.filePath("Bexlor.exe"));
    qputenv("PATH", folder.path().toLocal8Bit());
    qputenv("MEGABYTES", argc > 1 ? argv[1] : "50");
    QDir::setCurrent(folder.path());
    printHeading();
    double seconds = 0, gap = 0, memory = 0; // of the first
    for (int i = 0; i < int(std::size(outputs)); ++i) {
        qputenv("OUTPUT", QByteArray::number(i));
        QProcess process;
        process.setProcessChannelMode(QProcess::ForwardedErrorChannel);
        process.start(QApplication::applicationFilePath(), QStringList());
        process.waitForFinished(-1);
        const QList<QByteArray> figures = process.readAllStandardOutput().simplified().split(' ');
        const double taken = figures.value(0).toDouble();
        const double longest = figures.value(1).toDouble();
        const double peak = figures.value(2).toDouble();
        if (i == 0) {
            seconds = taken;
            gap = longest;
            memory = peak;
        }
        const QByteArray name = outputs[i].name;
        printRow(name, taken, "s", taken / seconds, outputs[0].name);
        printRow(name + ", longest gap", 1000 * longest, "ms", longest / gap, outputs[0].name);
        printRow(name + ", memory", peak, "MB", peak / memory, outputs[0].name);
    }
    return 0;
}
