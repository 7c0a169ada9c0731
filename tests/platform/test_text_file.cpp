#include "files.h"
#include "row.h"
#include "text_file.h"

class TestTextFile : public QObject
{
    Q_OBJECT

private slots:
    void isReplacedWholeOrNotAtAll()
    {
        const QTemporaryDir temporary;
        // Windows takes so long a path in one form only.
        const QDir folder(temporary.filePath(QString(150, 'x') + '/' + QString(150, 'y')));
        QVERIFY(folder.mkpath("."));
        const QString path = folder.filePath("größe.txt");
        QVERIFY(platform::writeTextFile(path, "old\n"));
        writeTestFile(path + ".calyx-new", "left by a program that was killed");
        QVERIFY(platform::writeTextFile(path, "newer\n"));

        // A file that is open elsewhere can be replaced on some systems.
        QFile reader(path);
        QVERIFY(reader.open(QIODevice::ReadOnly));
        const bool written = platform::writeTextFile(path, "newest\n");
        reader.close();
        QCOMPARE(platform::readTextFile(path).value(), written ? "newest\n" : "newer\n");
        QCOMPARE(folder.entryList(QDir::Files).join(' '), "größe.txt");

        QVERIFY(!platform::writeTextFile(folder.filePath("missing/x"), "x"));
        QVERIFY(!platform::writeTextFile(folder.path(), "x"));
        QVERIFY(!platform::writeTextFile("", "x"));
    }

    void isReadWholeOrNotAtAll()
    {
        using platform::FileContent;
        const QTemporaryDir folder;
        const QString path = folder.filePath("x");
        QCOMPARE(platform::readFile(path).state, FileContent::Missing);
        QCOMPARE(platform::readFile("").state, FileContent::Missing);
        QCOMPARE(platform::readFile(folder.path()).state, FileContent::Unusable);
        writeTestFile(path, "a\xff\xc3(\xe2\x82z");
        QCOMPARE(platform::readFile(path, 7).bytes, readTestFile(path));
        QCOMPARE(platform::readFile(path, 6).state, FileContent::Unusable);
        const QString text = platform::readTextFile(path).value();
        QVERIFY(text.startsWith('a') && text.contains('(') && text.endsWith('z'));
    }
};

QTEST_APPLESS_MAIN(TestTextFile)
#include "test_text_file.moc"
