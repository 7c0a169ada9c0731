#include "text_file.h"

#include <QDir>
#include <QTemporaryDir>
#include <QTest>

class TestTextFile : public QObject
{
    Q_OBJECT

private slots:
    void isReplacedWholeOrNotAtAll()
    {
        const QTemporaryDir folder;
        const QString path = folder.filePath("größe.txt");
        QVERIFY(platform::writeTextFile(path, "old\n"));
        QVERIFY(platform::writeTextFile(path, "newer\n"));

        // A file that is open elsewhere can be replaced on some systems.
        QFile reader(path);
        QVERIFY(reader.open(QIODevice::ReadOnly));
        const bool written = platform::writeTextFile(path, "newest\n");
        reader.close();
        QCOMPARE(platform::readTextFile(path).value(), written ? "newest\n" : "newer\n");
        QCOMPARE(QDir(folder.path()).entryList(QDir::Files).size(), 1);

        QVERIFY(!platform::writeTextFile(folder.filePath("missing/x"), "x"));
        QVERIFY(!platform::readTextFile(folder.filePath("missing/x")));
    }

    void readsInvalidBytes()
    {
        const QTemporaryDir folder;
        const QString path = folder.filePath("x");
        QVERIFY(platform::writeFile(path, "a\xff\xc3(\xe2\x82z"));
        const QString text = platform::readTextFile(path).value();
        QVERIFY(text.startsWith('a') && text.contains('(') && text.endsWith('z'));
    }
};

QTEST_APPLESS_MAIN(TestTextFile)
#include "test_text_file.moc"
