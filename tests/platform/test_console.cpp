#include "files.h"
#include "program_run.h"
#include "row.h"

#include <windows.h>

class TestConsole : public QObject
{
    Q_OBJECT

private slots:
    // The wizard has no console. Programs that it starts would open one, programs that this one
    // starts would share its own.
    void initTestCase() { QVERIFY(FreeConsole()); }

    void staysOffTheScreen_data()
    {
        const Columns<QString> row("program");
        row("program", "compiler.exe");
        row("batch file", "compiler.bat");
    }
    void staysOffTheScreen()
    {
        QFETCH(QString, program);
        const QTemporaryDir folder;
        QVERIFY(QFile::copy(STAND_IN, folder.filePath("compiler.exe")));
        writeTestFile(folder.filePath("compiler.bat"), "@\"%~dp0compiler.exe\"\r\n");
        qputenv("STAND_IN", "console");
        const platform::ProgramRun run =
            platform::runProgram({folder.filePath(program)}, folder.path(), patience);
        QCOMPARE(run.output.trimmed(), QByteArray("hidden"));
    }
};

QTEST_GUILESS_MAIN(TestConsole)
#include "test_console.moc"
