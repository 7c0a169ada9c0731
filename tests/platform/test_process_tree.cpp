#include "command_line.h"
#include "files.h"
#include "process_tree.h"
#include "program_run.h"
#include "row.h"

namespace {

const bool isWindows = QDir::separator() == '\\';
const QString standIn = QFileInfo(STAND_IN).absoluteFilePath();
const QDir::Filters everything = QDir::AllEntries | QDir::NoDotAndDotDot;

} // namespace

class TestProcessTree : public QObject
{
    Q_OBJECT

private slots:
    void cleanup() { qunsetenv("STAND_IN"); }

    void passesArgumentsOnAsTheyAre_data()
    {
        const Columns<QString, bool> row("program", "isInFile");
        row("program", "odd folder & co/program.exe", false);
        if (isWindows)
            row("batch file", "odd folder & co/compiler.bat", false);
        row("in a file of commands", "odd folder & co/program.exe", true);
    }
    void passesArgumentsOnAsTheyAre()
    {
        QFETCH(QString, program);
        QFETCH(bool, isInFile);
        const QTemporaryDir folder;
        QVERIFY(QDir(folder.path()).mkdir("odd folder & co"));
        QVERIFY(QFile::copy(standIn, folder.filePath("odd folder & co/program.exe")));
        writeTestFile(folder.filePath("odd folder & co/compiler.bat"),
                      "@\"%~dp0program.exe\" %*\r\n");
        const QStringList plain {
            "", "-c", "a b", "ends in backslashes\\\\", "&echo.>injected", "|<>^!()", "größe µ"};
        const QStringList special {"\"cc -m32\"",
                                   "quoted \\\"",
                                   "-DTEXT=\"a \\\"b\\\"\"",
                                   "100%",
                                   "%PATH%",
                                   "\"&echo.>injected",
                                   "\" & echo.>injected & \"",
                                   "$(>injected)",
                                   "a;>injected",
                                   "it's`>injected`",
                                   "~",
                                   "*",
                                   "#",
                                   "!!"};
        for (QStringList arguments : {plain, special}) {
            if (isInFile && isWindows)
                arguments.removeOne("größe µ"); // in which encoding depends on the console
            QStringList command = QStringList(folder.filePath(program)) + arguments;
            if (isInFile) {
                const QString file = folder.filePath("commands.bat");
                writeTestFile(file, platform::commandFileLine(command).toLocal8Bit());
                command = isWindows ? QStringList {file} : QStringList {"sh", file};
            }
            const platform::ProgramRun run = platform::runProgram(command, folder.path(), patience);
            QVERIFY2(run.succeeded(), run.errors);
            const QByteArray record = readTestFile(folder.filePath("arguments.txt"));
            const QStringList arrived = QString::fromUtf8(record).remove('\r').split('\n');
            if (!program.endsWith(".bat") || arguments.first().isEmpty())
                QCOMPARE(arrived.mid(0, arrived.size() - 1), arguments);
        }
        QCOMPARE(QDir(folder.path()).entryList({"injected*"}), QStringList());
    }

    void keepsToItsTimeAndItsMemory()
    {
        const QTemporaryDir folder;
        qputenv("STAND_IN", "child beat\nlines 1000000000");
        platform::ProgramRun run;
        // A busy machine takes longer to start both.
        const auto areStarted = [&] {
            return QFile::exists(folder.filePath("beat")) && run.output.size() >= 1'000'000;
        };
        for (int limit = 300; limit < patience && !areStarted(); limit *= 2)
            run = platform::runProgram({standIn}, folder.path(), limit);
        QCOMPARE(run.ending, platform::ProgramRun::TimedOut);
        QCOMPARE(run.output.size(), 1'000'000);
        QVERIFY(QFile::exists(folder.filePath("beat")));
        QTRY_VERIFY_WITH_TIMEOUT(hasStopped(folder.filePath("beat")), patience);
    }

    void leavesNothingRunning()
    {
        const QTemporaryDir folder;
        qputenv("STAND_IN", "input\nchild beat\nwait beat\nprint end"); // there is no input
        const platform::ProgramRun run = platform::runProgram({standIn}, folder.path(), patience);
        QVERIFY(run.succeeded());
        QCOMPARE(run.output.trimmed(), "end");
        QTRY_VERIFY_WITH_TIMEOUT(hasStopped(folder.filePath("beat")), patience);
    }

    void endsWithItsOwner()
    {
        const QTemporaryDir folder;
        const QString beat = folder.filePath("beat");
        qputenv("STAND_IN", "child beat\nwait never");
        QProcess process;
        process.setWorkingDirectory(folder.path());
        {
            platform::ProcessTree tree(process);
            QVERIFY(tree.start({standIn}));
            QTRY_VERIFY_WITH_TIMEOUT(QFile::exists(beat), patience);
        }
        QTRY_VERIFY_WITH_TIMEOUT(hasStopped(beat), patience);
        process.waitForFinished();
    }

    void endsWithTheProgramThatStartedIt()
    {
        const QTemporaryDir folder;
        const QString beat = folder.filePath("beat"), detached = folder.filePath("detached");
        const QDir temporary(folder.filePath("temporary"));
        QVERIFY(QDir(folder.path()).mkdir("temporary"));
        QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
        for (const char *variable : {"TMPDIR", "TMP", "TEMP"})
            environment.insert(variable, QDir::toNativeSeparators(temporary.path()));
        environment.insert("STAND_IN", "detached " + detached + "\nchild " + beat + "\nwait never");
        const QStringList arguments = QString("kov|cmp|%1|-o|-c|-D|.o|%c %o%e %j %s |-op|x.p_c")
                                          .arg(QDir::toNativeSeparators(standIn))
                                          .split('|');
        QProcess generator;
        generator.setProcessEnvironment(environment);
        generator.setWorkingDirectory(folder.path());
        generator.start(QFileInfo(GENERATOR).absoluteFilePath(), arguments);
        for (const QString &path : {beat, detached})
            QTRY_VERIFY_WITH_TIMEOUT(QFile::exists(path), patience);
        QVERIFY(!temporary.entryList(everything).isEmpty());
        generator.kill();
        generator.waitForFinished();
        for (const QString &path : {beat, detached})
            QTRY_VERIFY_WITH_TIMEOUT(hasStopped(path), patience);
        if (isWindows) {
            // What a killed program leaves is removed by the next.
            environment.insert("STAND_IN", "exit 1");
            generator.setProcessEnvironment(environment);
            generator.start(QFileInfo(GENERATOR).absoluteFilePath(), arguments);
            generator.waitForFinished();
        }
        QTRY_COMPARE_WITH_TIMEOUT(temporary.entryList(everything), QStringList(), patience);
    }
};

QTEST_GUILESS_MAIN(TestProcessTree)
#include "test_process_tree.moc"
