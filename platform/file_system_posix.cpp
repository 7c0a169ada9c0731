#include "file_system.h"

#include <QFile>
#include <cerrno>
#include <cstdio>
#include <sys/stat.h>
#include <unistd.h>

namespace platform {

bool takeOverOwner(QFile &newFile, const QString &path)
{
    struct stat old
    {
    }, own {};
    const int descriptor = newFile.handle();
    if (stat(QFile::encodeName(path).constData(), &old) != 0 || fstat(descriptor, &own) != 0)
        return false;
    const bool isOwned = own.st_uid == old.st_uid && own.st_gid == old.st_gid;
    if (!isOwned && fchown(descriptor, old.st_uid, old.st_gid) != 0)
        return false;
    const mode_t permissions = 07777;
    return fchmod(descriptor, old.st_mode & permissions) == 0;
}

bool reachDisk(QFile &file)
{
    int result;
    while ((result = fsync(file.handle())) != 0 && errno == EINTR) { }
    // Some file systems have no such thing.
    return result == 0 || errno == EINVAL || errno == ENOTSUP;
}

bool replaceFile(const QString &newPath, const QString &path)
{
    return std::rename(QFile::encodeName(newPath).constData(), QFile::encodeName(path).constData())
        == 0;
}

QString asciiPath(const QString &path)
{
    return path;
}

Qt::CaseSensitivity caseOfFileNames()
{
    return Qt::CaseSensitive;
}

std::optional<quint64> fileSystemOf(const QString &path)
{
    struct stat status
    {
    };
    if (stat(QFile::encodeName(path).constData(), &status) != 0)
        return {};
    return quint64(status.st_dev);
}

} // namespace platform
