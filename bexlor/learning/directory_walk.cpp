#include "directory_walk.h"

#include <QDir>
#include <QFileInfo>
#include <algorithm>

using namespace Qt::StringLiterals;

namespace fs = std::filesystem;

namespace {

/// \a directory without links in its last part, of whatever kind the system has.
fs::path withoutLinks(const fs::path &directory)
{
    const QFileInfo info(directory);
    const QFileInfo target(info.isJunction() ? QFileInfo(info.junctionTarget()) : info);
    return target.filesystemCanonicalFilePath().make_preferred();
}

} // namespace

DirectoryWalk::DirectoryWalk(const QStringList &directories)
{
    for (const QString &directory : directories) {
        const QDir given(directory);
        if (!given.exists())
            m_remarks << u"Passed over, since it does not exist: %1"_s.arg(directory);
        else
            walk(withoutLinks(given.filesystemPath()));
    }
}

/// \a directory must not have a link in its path.
void DirectoryWalk::walk(const fs::path &directory)
{
    if (!isNew(directory))
        return;
    std::vector<fs::path> directories;
    const std::size_t firstFile = m_files.size();
    std::error_code error;
    for (fs::directory_iterator entry(directory, error), end; !error && entry != end;
         entry.increment(error)) {
        std::error_code ignored;
        if (entry->is_directory(ignored)) {
            directories.push_back(withoutLinks(entry->path()));
        } else if (entry->is_regular_file(ignored)) {
            const bool isRead =
                !entry->is_symlink(ignored) || isNew(fs::canonical(entry->path(), ignored));
            m_files.push_back({entry->path(), isRead});
        }
    }
    if (error)
        m_remarks << cannotBeRead(directory);
    // Which of two ways to one file or directory is taken must not depend on the file system.
    std::sort(m_files.begin() + std::ptrdiff_t(firstFile), m_files.end());
    std::sort(directories.begin(), directories.end());
    for (const fs::path &next : directories)
        walk(next);
}

bool DirectoryWalk::isNew(const fs::path &path)
{
    return m_visited.insert(path.native()).second;
}

QString slashed(const fs::path &path)
{
    return QFileInfo(path).filePath();
}

QString cannotBeRead(const fs::path &path)
{
    return u"Passed over, since it cannot be read: %1"_s.arg(slashed(path));
}
