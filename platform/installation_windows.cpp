#include "installation.h"

#include <QCoreApplication>
#include <QDir>
#include <QProcess>

using namespace Qt::StringLiterals;

namespace platform {

Installation installation()
{
    const QString bin = QCoreApplication::applicationDirPath();
    const QString folder = QDir::cleanPath(bin + "/.."_L1);
    return {bin + "/calyx.exe"_L1, folder, folder};
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
