#include "program_search.h"

#include "host_path.h"

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QStandardPaths>

using namespace Qt::StringLiterals;

namespace platform {

namespace {

bool opens(const QString &path)
{
    // Opening a pipe would wait for its other end.
    return QFileInfo(path).isFile() && QFile(path).open(QIODevice::ReadOnly);
}

} // namespace

QString searchPathVariable()
{
    // Qt reports an empty variable and a missing one alike unless asked.
    if (!qEnvironmentVariableIsSet("PATH"))
        return QString();
    return qEnvironmentVariable("PATH").replace(QDir::listSeparator(), u';');
}

QStringList programCandidates(const QString &word, const QString &searchPath)
{
    QStringList candidates {hostPath(u"."_s, word + ".exe"_L1)};
    if (searchPath.isNull())
        return candidates;
    for (const QString &directory : searchPath.split(u';')) {
        for (const char *suffix : {"", ".exe", ".com", ".bat"})
            candidates << hostPath(directory, word + QLatin1String(suffix));
    }
    return candidates;
}

QString findCommand(const QString &word, const QString &searchPath)
{
    if (word.contains(u'\\')) {
        const QString path = hostPath(word);
        return QFileInfo::exists(path) ? path : QString();
    }
    for (const QString &candidate : inHostOrder(programCandidates(word, searchPath))) {
        if (opens(candidate))
            return candidate;
    }
    return QString();
}

QString findProgram(const QString &name)
{
    QString path = QStandardPaths::findExecutable(name);
    if (path.isEmpty())
        path = QStandardPaths::findExecutable(name, {QCoreApplication::applicationDirPath()});
    return path.isEmpty() ? name : path;
}

} // namespace platform
