#include "files.h"
#include "row.h"
#include "text_file.h"

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
        const Columns<mode_t, mode_t, rlim_t, bool> row("folderMode", "fileMode", "room",
                                                        "isWritten");
        row("only the file", 0555, 0666, RLIM_INFINITY, true);
        row("only the file, on a full disk", 0555, 0666, 50, false);
        row("neither", 0555, 0444, RLIM_INFINITY, false);
        row("a file that is not to be read", 0555, 0222, RLIM_INFINITY, false);
        row("a file of somebody else", 0777, 0666, RLIM_INFINITY, true);
    }
    void writesInPlaceWhereTheFolderAllowsNoOther()
    {
        QFETCH(mode_t, folderMode);
        QFETCH(mode_t, fileMode);
        QFETCH(rlim_t, room);
        QFETCH(bool, isWritten);
        const QByteArray content(100, 'n');
        const QTemporaryDir folder;
        const QString path = folder.filePath("x");
        writeTestFile(path, "old content\n");
        chmod(QFile::encodeName(path), fileMode);
        chmod(QFile::encodeName(folder.path()), folderMode);
        struct stat before, after;
        stat(QFile::encodeName(path), &before);
        // A limit on the size of files stands for a disk that is full.
        std::signal(SIGXFSZ, SIG_IGN);
        rlimit limit;
        getrlimit(RLIMIT_FSIZE, &limit);
        const rlimit small {room, limit.rlim_max};
        {
            const OrdinaryUser user;
            setrlimit(RLIMIT_FSIZE, &small);
            const bool written = platform::writeFile(path, content);
            setrlimit(RLIMIT_FSIZE, &limit);
            QCOMPARE(written, isWritten);
        }
        stat(QFile::encodeName(path), &after);
        QCOMPARE(readTestFile(path), isWritten ? content : "old content\n");
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
