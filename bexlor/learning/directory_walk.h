#pragma once

#include <QStringList>
#include <atomic>
#include <filesystem>
#include <vector>

struct WalkedFile
{
    std::filesystem::path path; ///< where it was seen, which may be a link
    bool isRead;                ///< not when another way to it has been found before
};

/// The regular files below some directories, and sentences on what has been passed over.
struct DirectoryWalk
{
    std::vector<WalkedFile> files;
    QStringList remarks;
};

/// Finds all files before any of them is read, counting them in \a found. Links are followed once,
/// to files and to directories, but not to other file systems than those of \a directories, nor up
/// to a folder around them, nor to more than some ten thousand files outside; what is neither file
/// nor directory is not opened.
DirectoryWalk walkDirectories(const QStringList &directories, std::atomic<qint64> &found);

/// \a path with slashes, also where its bytes are no text.
QString slashed(const std::filesystem::path &path);

/// The sentence that says so of \a path.
QString cannotBeRead(const std::filesystem::path &path);
