// What the generator learns of compilers when it may not ask them in the GNU driver's own way,
// given only their include and binary directories.
//
// For each compiler that is installed one line of a table:
//   names     found, of those that its "-dM -E" lists (of those that its manual lists for cc65)
//   values    equal, of those found; wrong ones besides; the others are said to be undetermined;
//             "-" where a manual lists the names only
//   headers   of its own directories, of those that it accepts alone: accepted by clang with the
//             personality, and by clang with the compiler's "-isystem" list and "--target" alone
//   started   how often the compiler was started; seconds and megabytes of the generator's run
//
// Usage: bench_personalities GENERATOR [HEADERS-AT-MOST [COMPILER...]]
// Of more headers than that, 400 unless said otherwise and all for 0, an evenly spread part is
// taken.

#include "compilers.h"

#include "dialects.h"
#include "personality.h"

#include <QCoreApplication>
#include <QDir>
#include <QDirIterator>
#include <QElapsedTimer>
#include <QMap>
#include <QProcess>
#include <QRegularExpression>
#include <QTemporaryDir>
#include <atomic>
#include <cstdio>
#include <thread>

namespace {

struct Run
{
    bool succeeded;
    QByteArray output;
    QByteArray errors;
};

Run run(const QStringList &command, const QString &folder)
{
    QProcess process;
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert("LC_ALL", "C");
    process.setProcessEnvironment(environment);
    process.setWorkingDirectory(folder);
    process.setStandardInputFile(QProcess::nullDevice());
    process.start(command.first(), command.mid(1));
    const bool ended = process.waitForFinished(120'000);
    process.kill();
    process.waitForFinished();
    return {ended && process.exitStatus() == QProcess::NormalExit && process.exitCode() == 0,
            process.readAllStandardOutput(), process.readAllStandardError()};
}

QMap<QByteArray, Macro> byName(const QList<Macro> &macros)
{
    QMap<QByteArray, Macro> map;
    for (const Macro &macro : macros)
        map[macro.name.split('(').first()] = macro;
    return map;
}

/// The headers below \a directories, as they are included, at most \a limit of them (0: all).
QStringList headersBelow(const QStringList &directories, bool isCpp, int limit)
{
    static const QRegularExpression header("\\.(h|hh|hpp)$");
    QStringList names;
    for (const QString &directory : directories) {
        QDirIterator entries(directory, QDir::Files,
                             QDirIterator::Subdirectories | QDirIterator::FollowSymlinks);
        while (entries.hasNext()) {
            const QString path = entries.next();
            const QString file = entries.fileName();
            if (file.contains(header) || (isCpp && !file.contains('.')))
                names << path.mid(directory.size() + 1);
        }
    }
    names.sort();
    names.removeDuplicates();
    if (limit == 0 || names.size() <= limit)
        return names;
    QStringList part;
    for (int i = 0; i < limit; ++i)
        part << names[i * names.size() / limit];
    return part;
}

struct Headers
{
    std::atomic<int> byCompiler = 0, byPersonality = 0, byPeer = 0;
};

void tryHeaders(const Subject &subject, const QString &personality, const QStringList &searchPath,
                const QStringList &names, const QString &folder, Headers &count)
{
    std::atomic<qsizetype> next = 0;
    const QString extension = subject.isCpp ? ".cpp" : ".c";
    QStringList peer {"clang", "--target=" + subject.target, "-nostdinc", "-fsyntax-only"};
    for (const QString &directory : searchPath)
        peer << "-isystem" << directory;
    const auto work = [&] {
        for (qsizetype index; (index = next++) < names.size();) {
            const QString base = QString::number(index);
            QFile source(folder + '/' + base + extension);
            if (!source.open(QIODevice::WriteOnly))
                continue;
            source.write("#include <" + names[index].toLocal8Bit() + ">\n");
            source.close();
            const QString object = base + (subject.isSmall ? ".rel" : ".o");
            const QStringList own =
                subject.command.split(' ') + QStringList {"-c", source.fileName(), "-o", object};
            if (!run(own, folder).succeeded)
                continue;
            ++count.byCompiler;
            const QStringList clang {"clang", "--config", personality, "-fsyntax-only",
                                     source.fileName()};
            count.byPersonality += run(clang, folder).succeeded;
            count.byPeer += run(peer + QStringList {source.fileName()}, folder).succeeded;
        }
    };
    std::thread other(work);
    work();
    other.join();
}

/// The largest resident size, in megabytes, that the process \a id has had so far.
int peakMemory(qint64 id)
{
    QFile status(QString("/proc/%1/status").arg(id));
    if (!status.open(QIODevice::ReadOnly))
        return 0;
    static const QRegularExpression peak("VmHWM:\\s+(\\d+)");
    return peak.match(QString::fromLatin1(status.readAll())).captured(1).toInt() / 1000;
}

void measure(const Subject &subject, const QString &generator, int limit)
{
    const QTemporaryDir folder;
    const QStringList arguments = generatorArguments(subject, folder.path(), "x.p_c");
    QProcess process;
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert("BEXLOR_LEARN_ONLY", "1");
    process.setProcessEnvironment(environment);
    process.setWorkingDirectory(folder.path());
    QElapsedTimer timer;
    timer.start();
    process.start(generator, arguments);
    int memory = 0;
    while (!process.waitForFinished(20) && process.state() != QProcess::NotRunning)
        memory = std::max(memory, peakMemory(process.processId()));
    const double seconds = double(timer.elapsed()) / 1000;
    const QString said = QString::fromLocal8Bit(process.readAllStandardOutput());
    const QString started = QRegularExpression("started (\\d+) times").match(said).captured(1);

    const QString source = folder.filePath(subject.isCpp ? "empty.cpp" : "empty.c");
    QFile(source).open(QIODevice::WriteOnly);
    const QStringList command = subject.command.split(' ');
    QFile personality(folder.filePath("x.p_c"));
    personality.open(QIODevice::ReadOnly);
    const Facts learned = parsePersonality(personality.readAll()).facts;
    const QMap<QByteArray, Macro> macros = byName(learned.macros.known);
    QMap<QByteArray, Macro> truth =
        byName(macrosIn(run(command + QStringList {"-dM", "-E", source}, folder.path()).output));
    // What has another value in each file is no definition to find.
    truth.removeIf([](const auto &macro) { return isBuiltIntoThePreprocessor(macro.key()); });
    for (const QByteArray &name : subject.listedNames)
        truth[name] = {name, {}};
    const bool hasValues = subject.listedNames.isEmpty();
    int found = 0, equal = 0, wrong = 0;
    QByteArray remarks;
    for (auto macro = truth.cbegin(); macro != truth.cend(); ++macro) {
        const bool isLearned = macros.contains(macro.key());
        if (!isLearned && !learned.macros.undetermined.contains(macro.key())) {
            remarks += "    not found: " + macro.key() + '\n';
            continue;
        }
        ++found;
        if (!hasValues)
            continue;
        if (!isLearned) {
            remarks += "    undetermined: " + macro->name + '\n';
            continue;
        }
        const Macro mine = macros[macro.key()];
        const bool isEqual = mine.name == macro->name && mine.value == macro->value;
        equal += isEqual;
        wrong += !isEqual;
        if (!isEqual)
            remarks += "    wrong: " + macro->name + '\n';
    }

    const QStringList listed =
        directoriesBehind("#include <...> search starts here:",
                          run(command + QStringList {"-v", "-E", source}, folder.path()).errors);
    const QStringList searchPath = listed.isEmpty() ? learned.searchPath.directories : listed;
    Headers headers;
    tryHeaders(subject, folder.filePath("x.p_c"), searchPath,
               headersBelow(searchPath, subject.isCpp, limit), folder.path(), headers);

    const auto outOf = [](int part, int all) {
        return QString("%1/%2").arg(part).arg(all).rightJustified(9).toLatin1();
    };
    std::printf("%-24s %s %9s %5s %s %s %8s %7.1f %6d\n", qPrintable(subject.name),
                outOf(found, int(truth.size())).constData(),
                hasValues ? outOf(equal, found).constData() : "-",
                hasValues ? QByteArray::number(wrong).constData() : "-",
                outOf(headers.byPersonality, headers.byCompiler).constData(),
                outOf(headers.byPeer, headers.byCompiler).constData(), qPrintable(started), seconds,
                memory);
    std::printf("%s", remarks.constData());
    std::fflush(stdout);
}

} // namespace

int main(int argc, char *argv[])
{
    QCoreApplication application(argc, argv);
    const QStringList arguments = application.arguments();
    if (arguments.size() < 2) {
        std::fprintf(stderr,
                     "usage: bench_personalities GENERATOR [HEADERS-AT-MOST [COMPILER...]]\n");
        return 2;
    }
    const int limit = arguments.size() > 2 ? arguments[2].toInt() : 400;
    const QStringList chosen = arguments.mid(3);
    std::printf("%-24s %9s %9s %5s %9s %9s %8s %7s %6s\n", "compiler", "names", "values", "wrong",
                "headers", "peer", "started", "seconds", "MB");
    for (const Subject &subject : installedSubjects(chosen))
        measure(subject, QFileInfo(arguments[1]).absoluteFilePath(), limit);
    return 0;
}
