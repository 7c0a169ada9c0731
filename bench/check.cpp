// "Bexlor check" over a compilation database, against the same by hand: xargs that runs the
// compiler and clang, to check and to preprocess each source, as many at a time as there are
// processors. The sources are some of this project's own. Each is run twice, in turn; the faster
// time counts.
//
// Usage: bench_check GENERATOR DATABASE [PART-OF-THE-SOURCES'-PATH]

#include "compile_database.h"
#include "probe_options.h"
#include "report.h"
#include "text_file.h"

#include <QCoreApplication>
#include <QDir>
#include <QElapsedTimer>
#include <QFileInfo>
#include <QProcess>
#include <QTemporaryDir>
#include <QThread>
#include <algorithm>
#include <cstdlib>

namespace {

QString quoted(QString word)
{
    return '\'' + word.replace('\'', "'\\''") + '\'';
}

QString shellLine(const QStringList &words)
{
    QStringList quotedWords;
    for (const QString &word : words)
        quotedWords << quoted(word);
    return quotedWords.join(' ');
}

/// What is run by hand for \a command, a line of a shell for each program.
QByteArray linesByHand(const CompileCommand &command, const QString &personality)
{
    QStringList options;
    for (const QString &word : command.words.sliced(1)) {
        if (word.startsWith("-I") || word.startsWith("-D") || word.startsWith("-std"))
            options << word;
        else if (word.startsWith('/') && command.words.contains("-isystem"))
            options << "-isystem" << word;
    }
    const QStringList clang {"clang", "--config", personality, "-w"};
    const QStringList source {command.absoluteFile()};
    QByteArray lines;
    for (const char *way : {" -fsyntax-only", " -E"}) {
        for (const QString &line :
             {shellLine(withoutOtherPurposes(command.words)), shellLine(clang + options + source)})
            lines += ("cd " + quoted(command.directory) + " && " + line + way + " | cat >/dev/null")
                         .toLocal8Bit()
                   + '\0';
    }
    return lines;
}

double timeOf(const QString &program, const QStringList &arguments, const QString &input)
{
    QProcess process;
    process.setStandardInputFile(input);
    process.setStandardOutputFile(QProcess::nullDevice());
    process.setStandardErrorFile(QProcess::nullDevice());
    QElapsedTimer timer;
    timer.start();
    process.start(program, arguments);
    process.waitForFinished(-1);
    return double(timer.nsecsElapsed()) / 1e9;
}

} // namespace

int main(int argc, char *argv[])
{
    QCoreApplication application(argc, argv);
    const QStringList arguments = application.arguments();
    const QString generator = QFileInfo(arguments.value(1)).absoluteFilePath();
    const QString part = arguments.value(3, "/bexlor/arguments/");
    auto commands = parseDatabase(platform::readFile(arguments.value(2)).bytes, ".");
    if (!commands)
        return EXIT_FAILURE;
    commands->removeIf([&part](const CompileCommand &command) {
        return !command.file.contains(part) || command.file.contains("autogen");
    });
    const QTemporaryDir folder;
    QDir::setCurrent(folder.path()); // the generator leaves its logs where it works
    const QString database = folder.filePath("some.json"), byHand = folder.filePath("by_hand"),
                  personality = folder.filePath("mine.p_c");
    QByteArray lines;
    for (const CompileCommand &command : *commands)
        lines += linesByHand(command, personality);
    const QString compiler = "\"c++ -O2 -std=c++20 -fPIC\"";
    const bool isReady =
        platform::writeFile(database, databaseText(*commands)) && platform::writeFile(byHand, lines)
        && QProcess::execute(generator, {"kovpp", "cmp", compiler, "-o", "-c", "-D", ".o",
                                         "%c %o %e %d%j %s ", "-op", personality})
               == 0;
    if (!isReady)
        return EXIT_FAILURE;
    double check = 1e9, peer = 1e9;
    for (int round = 0; round < 2; ++round) {
        peer = std::min(
            peer,
            timeOf("xargs",
                   {"-0", "-n1", "-P" + QString::number(QThread::idealThreadCount()), "sh", "-c"},
                   byHand));
        check = std::min(check, timeOf(generator, {"check", personality, database}, database));
    }
    printHeading();
    const QByteArray what = "check of " + QByteArray::number(commands->size()) + " sources";
    printRow(what, check, "s", check / peer, "xargs");
    return EXIT_SUCCESS;
}
