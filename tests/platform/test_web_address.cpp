#include "platform/web_address.h"

#include <QFile>
#include <QTemporaryDir>
#include <QTest>

class TestWebAddress : public QObject
{
    Q_OBJECT

private slots:
    void isHandedToTheDesktop()
    {
        const QTemporaryDir folder;
        QFile opener(folder.filePath("xdg-open"));
        QVERIFY(opener.open(QIODevice::WriteOnly));
        opener.write("#!/bin/sh\nprintf '%s\\n' \"$@\" >\"$0.txt\"\n");
        opener.close();
        opener.setPermissions(QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
        const QByteArray previous = qgetenv("PATH");
        qputenv("PATH", folder.path().toLocal8Bit());
        platform::openWebAddress("https://a.example/b%26c");
        qputenv("PATH", previous);
        QFile opened(folder.filePath("xdg-open.txt"));
        QTRY_VERIFY(opened.size() > 0);
        QVERIFY(opened.open(QIODevice::ReadOnly));
        QCOMPARE(opened.readAll(), QByteArray("https://a.example/b%26c\n"));
    }
};

QTEST_GUILESS_MAIN(TestWebAddress)
#include "test_web_address.moc"
