#include "file_system.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <algorithm>
#include <io.h>
#include <qt_windows.h>

using namespace Qt::StringLiterals;

namespace platform {

namespace {

// What begins a path on a share, and paths of any length on a share or elsewhere.
const QLatin1StringView share("\\\\"), longShare("\\\\?\\UNC\\"), longPath("\\\\?\\");

/// \a path as the system takes it at any length. Without the prefix it would be limited to 260
/// characters: Microsoft's "Naming Files, Paths, and Namespaces".
std::wstring nativePath(const QString &path)
{
    const QString absolute = QDir::toNativeSeparators(QFileInfo(path).absoluteFilePath());
    if (!absolute.startsWith(share))
        return (longPath + absolute).toStdWString();
    return (longShare + absolute.mid(share.size())).toStdWString();
}

/// \a path without what nativePath() adds.
QString withoutPrefix(const QString &path)
{
    return path.startsWith(longShare) ? share + path.mid(longShare.size())
                                      : path.mid(longPath.size());
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
    if (FlushFileBuffers(reinterpret_cast<HANDLE>(_get_osfhandle(file.handle()))))
        return true;
    // Some file systems have no such thing.
    const DWORD error = GetLastError();
    return error == ERROR_INVALID_FUNCTION || error == ERROR_NOT_SUPPORTED;
}

bool replaceFile(const QString &newPath, const QString &path)
{
    const std::wstring from = nativePath(newPath), to = nativePath(path);
    const DWORD attributes = GetFileAttributesW(to.c_str());
    const bool isProtected =
        attributes != INVALID_FILE_ATTRIBUTES && (attributes & FILE_ATTRIBUTE_READONLY) != 0;
    const int tries = isProtected ? 1 : 20;
    const DWORD betweenTries = 50; // milliseconds
    for (int i = 0; i < tries; ++i) {
        // The call that would take the old file's rights over by itself leaves a file behind where
        // the old one is open elsewhere.
        if (MoveFileExW(from.c_str(), to.c_str(),
                        MOVEFILE_REPLACE_EXISTING | MOVEFILE_WRITE_THROUGH))
            return true;
        // A virus scanner looks at the new file now, or somebody reads the old one.
        const DWORD error = GetLastError();
        if (error != ERROR_ACCESS_DENIED && error != ERROR_SHARING_VIOLATION)
            return false;
        Sleep(betweenTries);
    }
    return false;
}

QString asciiPath(const QString &path)
{
    const auto isAscii = [](QChar character) { return character.unicode() < 0x80; };
    if (std::all_of(path.begin(), path.end(), isAscii))
        return path;
    const std::wstring whole = nativePath(path);
    std::wstring shortName(GetShortPathNameW(whole.c_str(), nullptr, 0), L'\0');
    shortName.resize(GetShortPathNameW(whole.c_str(), shortName.data(), DWORD(shortName.size())));
    const QString name = QString::fromStdWString(shortName);
    // Where the volume keeps no short names the long one comes back.
    return name.isEmpty() ? path : QDir::fromNativeSeparators(withoutPrefix(name));
}

Qt::CaseSensitivity caseOfFileNames()
{
    return Qt::CaseInsensitive;
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
