#include "generation/command_check.h"

#include "platform/program_search.h"

#include <QDir>
#include <QTemporaryDir>
#include <QTest>

class TestCommandCheck : public QObject
{
    Q_OBJECT

private:
    QTemporaryDir m_folder;

    void create(const QString &name)
    {
        QFile file(m_folder.filePath(name));
        QVERIFY(file.open(QIODevice::WriteOnly));
    }

private slots:
    void initTestCase()
    {
        QDir(m_folder.path()).mkpath("tools/sub folder");
        QDir(m_folder.path()).mkpath("tools/folder");
        for (const char *name : {"tools/plain", "tools/dos.com", "tools/script.bat", "here.exe",
                                 "here.bat", "tools/sub folder/cc"})
            create(name);
        QDir::setCurrent(m_folder.path());
    }
    void cleanupTestCase() { QDir::setCurrent(QDir::rootPath()); }

    void takesTheProgramsWord_data()
    {
        QTest::addColumn<QString>("line");
        QTest::addColumn<QString>("word");
        QTest::newRow("bare") << "cc"
                              << "cc";
        QTest::newRow("with options") << "cc -m32 \"x\""
                                      << "cc";
        QTest::newRow("leading space") << " cc"
                                       << "";
        QTest::newRow("quoted") << "\"C:\\a b\\cc\" -m32"
                                << "C:\\a b\\cc";
        QTest::newRow("no closing quote") << "\"C:\\a b\\cc -m32"
                                          << "C:\\a b\\cc -m32";
        QTest::newRow("quote only") << "\""
                                    << "";
    }
    void takesTheProgramsWord()
    {
        QFETCH(QString, line);
        QTEST(commandWord(line), "word");
    }

    void triesTheCandidatesInOrder()
    {
        QCOMPARE(commandCandidates("cc", "D:\\x;;y "),
                 QStringList({".\\cc.exe", "D:\\x\\cc", "D:\\x\\cc.exe", "D:\\x\\cc.com",
                              "D:\\x\\cc.bat", "\\cc", "\\cc.exe", "\\cc.com", "\\cc.bat", "y \\cc",
                              "y \\cc.exe", "y \\cc.com", "y \\cc.bat"}));
        QCOMPARE(commandCandidates("cc", QString()), QStringList {".\\cc.exe"});
    }

    void findsPrograms_data()
    {
        QTest::addColumn<QString>("word");
        QTest::addColumn<bool>("found");
        QTest::newRow("bare name on the path") << "plain" << true;
        QTest::newRow("suffix .com on the path") << "dos" << true;
        QTest::newRow("suffix .bat on the path") << "script" << true;
        QTest::newRow("suffix .exe in the current folder") << "here" << true;
        QTest::newRow("a folder on the path") << "folder" << false;
        QTest::newRow("missing") << "absent" << false;
        QTest::newRow("path with backslashes") << "tools\\sub folder\\cc" << true;
        QTest::newRow("a path gets no suffix") << ".\\here" << false;
        QTest::newRow("a path to a folder") << "tools\\folder" << true;
        QTest::newRow("absolute path with slashes") << m_folder.filePath("tools/plain") << true;
        QTest::newRow("missing absolute path") << m_folder.filePath("plain") << false;
    }
    void findsPrograms()
    {
        QFETCH(QString, word);
        const QString searchPath = m_folder.path() + "\\nowhere;" + m_folder.path() + "\\tools";
        QTEST(commandIsFound(word, searchPath), "found");
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
        QVERIFY(!commandIsFound("plain", platform::searchPathVariable()));
        qputenv("PATH", previous);
    }
};

QTEST_GUILESS_MAIN(TestCommandCheck)
#include "test_command_check.moc"
