#include "file_system.h"

#include <QDir>
#include <QFile>
#include <io.h>
#include <qt_windows.h>

namespace platform {

namespace {

std::wstring nativePath(const QString &path)
{
    return QDir::toNativeSeparators(path).toStdWString();
}

} // namespace

bool takeOverOwner(QFile &, const QString &)
{
    return true; // replaceFile() does
}

bool reachDisk(QFile &file)
{
    return FlushFileBuffers(reinterpret_cast<HANDLE>(_get_osfhandle(file.handle())));
}

bool replaceFile(const QString &newPath, const QString &path)
{
    const std::wstring from = nativePath(newPath), to = nativePath(path);
    // Keeps the old file's owner, access rights and attributes.
    if (ReplaceFileW(to.c_str(), from.c_str(), nullptr, REPLACEFILE_IGNORE_MERGE_ERRORS, nullptr,
                     nullptr))
        return true;
    return !QFile::exists(path) && MoveFileExW(from.c_str(), to.c_str(), MOVEFILE_WRITE_THROUGH);
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
