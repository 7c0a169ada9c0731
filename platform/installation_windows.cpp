#include "installation.h"

#include <QCoreApplication>
#include <QDir>
#include <QProcess>
#include <qt_windows.h>

using namespace Qt::StringLiterals;

namespace platform {

Installation installation()
{
    const QString bin = QCoreApplication::applicationDirPath();
    const QString folder = QDir::cleanPath(bin + "/.."_L1);
    return {bin + "/calyx.exe"_L1, folder, folder};
}

void complain(const QString &text)
{
    MessageBoxW(nullptr, text.toStdWString().c_str(), L"Calyx", MB_OK | MB_ICONWARNING);
}

std::optional<int> continueAs(const QString &program, const QStringList &arguments,
                              const QString &workingDirectory)
{
    QProcess process;
    process.setWorkingDirectory(workingDirectory);
    process.start(program, arguments);
    if (!process.waitForStarted(-1))
        return {};
    process.waitForFinished(-1);
    return process.exitStatus() == QProcess::NormalExit ? process.exitCode() : 1;
}

} // namespace platform
