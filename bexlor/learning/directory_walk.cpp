#include "directory_walk.h"

#include <QDir>
#include <QFileInfo>
#include <algorithm>
#include <unordered_set>

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

class Walker
{
public:
    explicit Walker(std::atomic<qint64> &count) : m_count(count) { }

    DirectoryWalk found;

    /// \a directory must not have a link in its path.
    void walk(const fs::path &directory)
    {
        if (!isNew(directory))
            return;
        std::vector<fs::path> directories;
        const std::size_t firstFile = found.files.size();
        std::error_code error;
        for (fs::directory_iterator entry(directory, error), end; !error && entry != end;
             entry.increment(error)) {
            std::error_code ignored;
            if (entry->is_directory(ignored)) {
                directories.push_back(withoutLinks(entry->path()));
            } else if (entry->is_regular_file(ignored)) {
                const bool isRead =
                    !entry->is_symlink(ignored) || isNew(fs::canonical(entry->path(), ignored));
                found.files.push_back({entry->path(), isRead});
                ++m_count;
            }
        }
        if (error)
            found.remarks << cannotBeRead(directory);
        // Which of two ways to one file or directory is taken must not depend on the file system.
        std::sort(found.files.begin() + std::ptrdiff_t(firstFile), found.files.end());
        std::sort(directories.begin(), directories.end());
        for (const fs::path &next : directories)
            walk(next);
    }

private:
    bool isNew(const fs::path &path) { return m_visited.insert(path.native()).second; }

    std::atomic<qint64> &m_count;
    std::unordered_set<fs::path::string_type> m_visited;
};

} // namespace

DirectoryWalk walkDirectories(const QStringList &directories, std::atomic<qint64> &found)
{
    Walker walker(found);
    for (const QString &directory : directories) {
        const QDir given(directory);
        if (!given.exists())
            walker.found.remarks << u"Passed over, since it does not exist: %1"_s.arg(directory);
        else
            walker.walk(withoutLinks(given.filesystemPath()));
    }
    return walker.found;
}

QString slashed(const fs::path &path)
{
    return QFileInfo(path).filePath();
}

QString cannotBeRead(const fs::path &path)
{
    return u"Passed over, since it cannot be read: %1"_s.arg(slashed(path));
}
