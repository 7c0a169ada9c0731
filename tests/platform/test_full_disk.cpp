#include "text_file.h"

#include <QDir>
#include <QTemporaryDir>
#include <QTest>
#include <csignal>
#include <sys/resource.h>

class TestFullDisk : public QObject
{
    Q_OBJECT

private slots:
    void leavesTheOldFile()
    {
        const QTemporaryDir folder;
        const QString path = folder.filePath("größe.txt");
        QVERIFY(platform::writeTextFile(path, "old\n"));

        // A limit on the size of files stands for a disk that fills up.
        std::signal(SIGXFSZ, SIG_IGN);
        rlimit limit;
        getrlimit(RLIMIT_FSIZE, &limit);
        const rlimit small {1000, limit.rlim_max};
        setrlimit(RLIMIT_FSIZE, &small);
        const bool written = platform::writeTextFile(path, QString(100'000, 'x'));
        setrlimit(RLIMIT_FSIZE, &limit);
        QVERIFY(!written);
        QCOMPARE(platform::readTextFile(path).value(), "old\n");
        QCOMPARE(QDir(folder.path()).entryList(QDir::Files).size(), 1);
    }
};

QTEST_APPLESS_MAIN(TestFullDisk)
#include "test_full_disk.moc"
