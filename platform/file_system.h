#pragma once

#include <QString>

class QFile;

/// What the toolkit leaves open about replacing a file.
namespace platform {

/// Gives the open file \a newFile the owner, group and mode of \a path. False when it may not.
bool takeOverOwner(QFile &newFile, const QString &path);

/// Waits until the open \a file is on the disk. False when the disk reports a fault.
bool reachDisk(QFile &file);

/// Puts the file \a newPath in the place of \a path, in one step. False when neither has changed.
bool replaceFile(const QString &newPath, const QString &path);

} // namespace platform
