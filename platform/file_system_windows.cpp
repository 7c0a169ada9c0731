#include "file_system.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <io.h>
#include <qt_windows.h>

using namespace Qt::StringLiterals;

namespace platform {

namespace {

/// \a path as the system takes it at any length. Without the prefix it would be limited to 260
/// characters: Microsoft's "Naming Files, Paths, and Namespaces".
std::wstring nativePath(const QString &path)
{
    const QString absolute = QDir::toNativeSeparators(QFileInfo(path).absoluteFilePath());
    const QLatin1StringView share("\\\\");
    if (!absolute.startsWith(share))
        return ("\\\\?\\"_L1 + absolute).toStdWString();
    return ("\\\\?\\UNC\\"_L1 + absolute.mid(share.size())).toStdWString();
}

} // namespace

bool takeOverOwner(QFile &file, const QString &path)
{
    // A new file has the access rights of its folder; the old one may have others.
    const std::wstring from = nativePath(path), to = nativePath(file.fileName());
    const SECURITY_INFORMATION rights = DACL_SECURITY_INFORMATION;
    DWORD size = 0;
    GetFileSecurityW(from.c_str(), rights, nullptr, 0, &size);
    QByteArray descriptor(qsizetype(size), '\0');
    return GetFileSecurityW(from.c_str(), rights, descriptor.data(), size, &size)
        && SetFileSecurityW(to.c_str(), rights, descriptor.data());
}

bool reachDisk(QFile &file)
{
    return FlushFileBuffers(reinterpret_cast<HANDLE>(_get_osfhandle(file.handle())));
}

bool replaceFile(const QString &newPath, const QString &path)
{
    // The call that would take the old file's rights over by itself leaves a file behind where the
    // old one is open elsewhere.
    return MoveFileExW(nativePath(newPath).c_str(), nativePath(path).c_str(),
                       MOVEFILE_REPLACE_EXISTING | MOVEFILE_WRITE_THROUGH);
}

std::optional<quint64> fileSystemOf(const QString &path)
{
    const DWORD all = FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE;
    // A directory is opened only with this flag.
    const HANDLE file = CreateFileW(nativePath(path).c_str(), 0, all, nullptr, OPEN_EXISTING,
                                    FILE_FLAG_BACKUP_SEMANTICS, nullptr);
    if (file == INVALID_HANDLE_VALUE)
        return {};
    BY_HANDLE_FILE_INFORMATION information {};
    const bool isKnown = GetFileInformationByHandle(file, &information);
    CloseHandle(file);
    return isKnown ? std::optional<quint64>(information.dwVolumeSerialNumber) : std::nullopt;
}

} // namespace platform
