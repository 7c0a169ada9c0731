#include "files.h"
#include "row.h"
#include "text_file.h"

#include <QDir>
#include <QTemporaryDir>
#include <QTest>
#include <csignal>
#include <sys/resource.h>
#include <sys/stat.h>
#include <unistd.h>

namespace {

/// Somebody who may not write everywhere, while this lives.
struct OrdinaryUser
{
    OrdinaryUser()
    {
        [[maybe_unused]] const int result = seteuid(geteuid() == 0 ? 65534 : geteuid());
    }
    ~OrdinaryUser() { [[maybe_unused]] const int result = seteuid(getuid()); }
};

} // namespace

class TestFileReplacement : public QObject
{
    Q_OBJECT

private slots:
    void leavesTheOldFileOnAFullDisk_data()
    {
        QTest::addColumn<int>("size");
        row("all of it waiting in the buffer", 5000);
        row("more than the buffer holds", 100'000);
    }
    void leavesTheOldFileOnAFullDisk()
    {
        QFETCH(int, size);
        const QTemporaryDir folder;
        const QString path = folder.filePath("x");
        writeTestFile(path, "old\n");
        // A limit on the size of files stands for a disk that fills up.
        std::signal(SIGXFSZ, SIG_IGN);
        rlimit limit;
        getrlimit(RLIMIT_FSIZE, &limit);
        const rlimit small {1000, limit.rlim_max};
        setrlimit(RLIMIT_FSIZE, &small);
        const bool written = platform::writeFile(path, QByteArray(size, 'x'));
        setrlimit(RLIMIT_FSIZE, &limit);
        QVERIFY(!written);
        QCOMPARE(readTestFile(path), QByteArray("old\n"));
        QCOMPARE(QDir(folder.path()).entryList(QDir::Files).size(), 1);
    }

    void keepsLinksAndModes()
    {
        const QTemporaryDir folder;
        const QString path = folder.filePath("x"), link = folder.filePath("link");
        writeTestFile(path, "old\n");
        QVERIFY(QFile::link("x", link));
        QCOMPARE(chmod(QFile::encodeName(path), 0640), 0);
        QVERIFY(platform::writeFile(link, "new\n"));
        QCOMPARE(readTestFile(path), QByteArray("new\n"));
        QVERIFY(QFileInfo(link).isSymLink());
        struct stat status;
        QCOMPARE(stat(QFile::encodeName(path), &status), 0);
        QCOMPARE(status.st_mode & 07777, mode_t(0640));
    }

    void writesInPlaceWhereTheFolderAllowsNoOther_data()
    {
        QTest::addColumn<int>("folderMode");
        QTest::addColumn<int>("fileMode");
        QTest::addColumn<bool>("isWritten");
        row("only the file", 0555, 0666, true);
        row("neither", 0555, 0444, false);
        row("a file of somebody else", 0777, 0666, true);
    }
    void writesInPlaceWhereTheFolderAllowsNoOther()
    {
        QFETCH(int, folderMode);
        QFETCH(int, fileMode);
        QFETCH(bool, isWritten);
        const QTemporaryDir folder;
        const QString path = folder.filePath("x");
        writeTestFile(path, "old content\n");
        chmod(QFile::encodeName(path), mode_t(fileMode));
        chmod(QFile::encodeName(folder.path()), mode_t(folderMode));
        struct stat before, after;
        stat(QFile::encodeName(path), &before);
        {
            const OrdinaryUser user;
            QCOMPARE(platform::writeFile(path, "new\n"), isWritten);
        }
        stat(QFile::encodeName(path), &after);
        QCOMPARE(readTestFile(path), QByteArray(isWritten ? "new\n" : "old content\n"));
        QCOMPARE(after.st_uid, before.st_uid);
        chmod(QFile::encodeName(folder.path()), 0700);
        QCOMPARE(QDir(folder.path()).entryList(QDir::Files).size(), 1);
    }

    void passesOverWhatIsNoFile()
    {
        const QTemporaryDir folder;
        const QString path = folder.filePath("fifo");
        QCOMPARE(mkfifo(QFile::encodeName(path), 0600), 0);
        QCOMPARE(platform::readFile(path).state, platform::FileContent::Unusable);
        QVERIFY(!platform::writeFile(path, "x"));
        QVERIFY(QFile::exists(path));
    }
};

QTEST_APPLESS_MAIN(TestFileReplacement)
#include "test_file_replacement.moc"
