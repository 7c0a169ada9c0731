#pragma once

#include <QString>
#include <optional>

class QFile;

/// What the toolkit leaves open about files.
namespace platform {

/// Gives the open file \a newFile the owner, group and mode of \a path. False when it may not.
bool takeOverOwner(QFile &newFile, const QString &path);

/// Waits until the open \a file is on the disk. False when the disk reports a fault.
bool reachDisk(QFile &file);

/// Puts the file \a newPath in the place of \a path, in one step. False when neither has changed.
bool replaceFile(const QString &newPath, const QString &path);

/// A name for the file or folder \a path, which exists, in ASCII alone where the system has one,
/// for programs that take it in one encoding or another.
QString asciiPath(const QString &path);

/// Whether the case of letters tells files apart.
Qt::CaseSensitivity caseOfFileNames();

/// A number for the file system on which \a path lies, links followed; nothing when the system does
/// not tell.
std::optional<quint64> fileSystemOf(const QString &path);

} // namespace platform
