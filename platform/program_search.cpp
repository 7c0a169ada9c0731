#include "platform/program_search.h"

#include <QCoreApplication>
#include <QDir>
#include <QStandardPaths>

namespace platform {

QString searchPathVariable()
{
    // Qt reports an empty variable and a missing one alike unless asked.
    if (!qEnvironmentVariableIsSet("PATH"))
        return QString();
    return qEnvironmentVariable("PATH").replace(QDir::listSeparator(), QLatin1Char(';'));
}

QString findProgram(const QString &name)
{
    QString path = QStandardPaths::findExecutable(name);
    if (path.isEmpty())
        path = QStandardPaths::findExecutable(name, {QCoreApplication::applicationDirPath()});
    return path.isEmpty() ? name : path;
}

} // namespace platform
