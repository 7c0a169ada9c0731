#include "program_search.h"

#include "files.h"
#include "host_path.h"
#include "row.h"

class TestProgramSearch : public QObject
{
    Q_OBJECT

private:
    QTemporaryDir m_folder;

private slots:
    void initTestCase()
    {
        QDir(m_folder.path()).mkpath("tools/folder");
        for (const char *name : {"tools/plain", "tools/dos.com", "tools/script.bat", "here.exe",
                                 "here.bat", "both.exe", "tools/both", "tools/sub folder/cc"})
            writeTestFile(m_folder.filePath(name));
        QDir::setCurrent(m_folder.path());
    }
    void cleanupTestCase() { QDir::setCurrent(QDir::rootPath()); }

    void triesTheCandidatesInOrder()
    {
        QStringList expected {".\\cc.exe"};
        for (const char *path : {"D:\\x\\cc", "\\cc", "y \\cc"}) {
            for (const char *suffix : {"", ".exe", ".com", ".bat"})
                expected << platform::hostPath(QString(path) + suffix);
        }
        expected[0] = platform::hostPath(expected[0]);
        QCOMPARE(platform::programCandidates("cc", "D:\\x;;y "), expected);
        QCOMPARE(platform::programCandidates("cc", QString()), expected.mid(0, 1));
    }

    void findsCommands_data()
    {
        const Columns<QString, QString> row("word", "found"); // in the folder
        row("bare name on the path", "plain", "tools/plain");
        row("suffix .com on the path", "dos", "tools/dos.com");
        row("suffix .bat on the path", "script", "tools/script.bat");
        row("suffix .exe in the current folder", "here", "here.exe");
        row("both", "both", QDir::separator() == '/' ? "tools/both" : "both.exe");
        row("a folder on the path", "folder", "");
        row("missing", "absent", "");
        row("path with backslashes", "tools\\sub folder\\cc", "tools/sub folder/cc");
        row("a path gets no suffix", ".\\here", "");
        row("a path to a folder", "tools\\folder", "tools/folder");
        if (QDir::separator() == '/') {
            row("absolute path with slashes", m_folder.filePath("tools/plain"), "tools/plain");
            writeTestFile(m_folder.filePath("./:x/cc"));
            row("path that begins with a colon", ":x\\cc", "./:x/cc");
        }
        row("missing absolute path", m_folder.filePath("plain"), "");
    }
    void findsCommands()
    {
        QFETCH(QString, word);
        QFETCH(QString, found);
        const QString searchPath = m_folder.path() + "\\nowhere;" + m_folder.path() + "\\tools";
        const QString path = platform::findCommand(word, searchPath);
        QCOMPARE(QFileInfo(path).canonicalFilePath(),
                 found.isEmpty() ? QString()
                                 : QFileInfo(m_folder.filePath(found)).canonicalFilePath());
    }

    void readsTheSearchPathVariable()
    {
        const QByteArray previous = qgetenv("PATH");
        const QString twoFolders = QString("/a") + QDir::listSeparator() + "/b c";
        qputenv("PATH", twoFolders.toLocal8Bit());
        QCOMPARE(platform::searchPathVariable(), "/a;/b c");
        qputenv("PATH", "");
        QVERIFY(platform::searchPathVariable().isEmpty());
        qunsetenv("PATH");
        QVERIFY(platform::searchPathVariable().isNull());
        QVERIFY(platform::findCommand("plain", platform::searchPathVariable()).isEmpty());
        qputenv("PATH", previous);
    }

    void findsAProgramBesideTheRunningOne()
    {
        const QByteArray previous = qgetenv("PATH");
        const QString own = QCoreApplication::applicationFilePath();
        qputenv("PATH", "");
        QCOMPARE(platform::findProgram(QFileInfo(own).fileName()), own);
        QCOMPARE(platform::findProgram("no-such-program.exe"), "no-such-program.exe");

        const QTemporaryDir folder;
        const QString other = folder.filePath(QFileInfo(own).fileName());
        QVERIFY(QFile::copy(own, other));
        qputenv("PATH", folder.path().toLocal8Bit());
        QCOMPARE(platform::findProgram(QFileInfo(own).fileName()),
                 QDir::separator() == '/' ? other : own);
        qputenv("PATH", previous);
    }
};

QTEST_GUILESS_MAIN(TestProgramSearch)
#include "test_program_search.moc"
