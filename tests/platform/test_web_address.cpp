#include "web_address.h"

#include <QDir>
#include <QFile>
#include <QSettings>
#include <QTemporaryDir>
#include <QTest>

namespace {

const bool isWindows = QDir::separator() == '\\';
const QString standIn = QFileInfo(STAND_IN).absoluteFilePath();
const QString scheme = QStringLiteral("calyx-test");

// What the user may register, and the only place where Wine looks.
const QString registries[] = {QStringLiteral("HKEY_CURRENT_USER\\Software\\Classes"),
                              QStringLiteral("HKEY_LOCAL_MACHINE\\Software\\Classes")};

/// Makes the stand-in what opens an address of the test's scheme: on Windows as its registered
/// program, elsewhere in place of the desktop's opener.
void becomeOpener(const QString &folder)
{
    if (!isWindows) {
        QVERIFY(QFile::copy(standIn, folder + "/xdg-open"));
        qputenv("PATH", QFile::encodeName(folder));
        return;
    }
    const QString command = QDir::toNativeSeparators(standIn);
    for (const QString &registry : registries) {
        QSettings entry(registry + '\\' + scheme, QSettings::NativeFormat);
        entry.setValue("URL Protocol", "");
        entry.setValue("shell/open/command/Default", QString("\"%1\" \"%2\"").arg(command, "%1"));
    }
}

} // namespace

class TestWebAddress : public QObject
{
    Q_OBJECT

private slots:
    void cleanup()
    {
        for (const QString &registry : registries)
            if (isWindows)
                QSettings(registry, QSettings::NativeFormat).remove(scheme);
    }

    void isHandedToTheDesktop()
    {
        QTemporaryDir folder;
        QVERIFY(QDir::setCurrent(folder.path()));
        becomeOpener(folder.path());
        const QString address = scheme + "://host.example/a%20b%26c%20d.exe";
        platform::openWebAddress(address);
        const auto opened = [&] {
            QFile record(folder.filePath("arguments.txt"));
            return record.open(QIODevice::ReadOnly | QIODevice::Text)
                     ? QString::fromUtf8(record.readAll())
                     : QString();
        };
        QTRY_COMPARE_WITH_TIMEOUT(opened(), address + '\n', 20'000);
        QDir::setCurrent(QDir::rootPath());
        QTRY_VERIFY(folder.remove()); // once the stand-in has left it
    }
};

QTEST_GUILESS_MAIN(TestWebAddress)
#include "test_web_address.moc"
