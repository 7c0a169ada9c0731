#include "directory_walk.h"

#include "file_system.h"
#include "visible_text.h"

#include <QDir>
#include <QFileInfo>
#include <algorithm>
#include <unordered_set>
#include <utility>

using namespace Qt::StringLiterals;

namespace fs = std::filesystem;

namespace {

// Files that are read behind links which lead out of the directories: more than a kit of headers
// has, and less than a home directory.
const std::size_t mostLinkedFiles = 50'000;

bool isLink(const fs::directory_entry &entry)
{
    // The library of MinGW does not know links.
    const QFileInfo info(entry.path());
    return info.isSymbolicLink() || info.isJunction();
}

/// \a path without links, of whatever kind the system has, in any of its parts.
fs::path withoutLinks(const fs::path &path)
{
    const QFileInfo info(path);
    const QFileInfo target(info.isJunction() ? QFileInfo(info.junctionTarget()) : info);
    return target.filesystemCanonicalFilePath().make_preferred();
}

/// Whether \a path is \a directory or lies below it.
bool isWithin(const fs::path &path, const fs::path &directory)
{
    return std::mismatch(directory.begin(), directory.end(), path.begin(), path.end()).first
        == directory.end();
}

QString passedOver(const QString &reason, const fs::path &path)
{
    return u"Passed over, since it %1: %2"_s.arg(reason, slashed(path));
}

/// What stands in a directory.
struct Entries
{
    std::vector<fs::path> directories;                ///< where they lead
    std::vector<std::pair<fs::path, fs::path>> files; ///< each with where it leads
};

class Walker
{
public:
    Walker(const std::vector<fs::path> &roots, std::atomic<qint64> &count)
        : m_roots(roots), m_count(count)
    {
        for (const fs::path &root : roots)
            m_fileSystems.insert(platform::fileSystemOf(QFileInfo(root).filePath()).value_or(0));
    }

    DirectoryWalk found;

    /// \a directory must not have a link in its path. What lies in one that a link led to, out of
    /// the directories given, \a isOutside.
    void walk(const fs::path &directory, bool isOutside)
    {
        if (!isNew(directory))
            return;
        if (!isOnFileSystem(directory)) {
            found.remarks << passedOver(u"lies on another file system"_s, directory);
            return;
        }
        Entries entries;
        std::error_code error;
        for (fs::directory_iterator entry(directory, error), end; !error && entry != end;
             entry.increment(error))
            visit(*entry, isOutside, entries);
        if (error)
            found.remarks << cannotBeRead(directory);
        // Which of two ways to one file or directory is taken must not depend on the file system.
        std::sort(entries.files.begin(), entries.files.end());
        std::sort(entries.directories.begin(), entries.directories.end());
        // Not kept while what is below is walked over.
        for (const auto &[file, target] : std::exchange(entries.files, {}))
            found.files.push_back({file, isNew(target)});
        for (const fs::path &next : entries.directories)
            walk(next, isOutside || !isGiven(next));
    }

private:
    void visit(const fs::directory_entry &entry, bool isOutside, Entries &entries)
    {
        std::error_code ignored;
        const bool isDirectory = entry.is_directory(ignored);
        if (!isDirectory && !entry.is_regular_file(ignored))
            return;
        const fs::path target = isLink(entry) ? withoutLinks(entry.path()) : entry.path();
        const QString problem = problemWith(entry.path(), target, isDirectory);
        if (!problem.isEmpty())
            found.remarks << passedOver(problem, entry.path());
        else if (isDirectory)
            entries.directories.push_back(target);
        else if (countFile(isOutside))
            entries.files.emplace_back(entry.path(), target);
    }

    /// Why \a path, which leads to \a target, is not followed. Empty when it is.
    QString problemWith(const fs::path &path, const fs::path &target, bool isDirectory) const
    {
        if (hasControlCharacter(slashed(path.filename())))
            return u"has a control character in its name"_s;
        if (target == path || isGiven(target))
            return QString();
        if (!isOnFileSystem(target))
            return u"leads to another file system"_s;
        const bool leadsUp =
            isDirectory
            && std::any_of(m_roots.begin(), m_roots.end(),
                           [&target](const fs::path &root) { return isWithin(root, target); });
        return leadsUp ? u"leads to a folder around the directory"_s : QString();
    }

    /// Whether \a path lies in one of the directories given.
    bool isGiven(const fs::path &path) const
    {
        return std::any_of(m_roots.begin(), m_roots.end(),
                           [&path](const fs::path &root) { return isWithin(path, root); });
    }

    bool isOnFileSystem(const fs::path &path) const
    {
        const std::optional<quint64> fileSystem =
            platform::fileSystemOf(QFileInfo(path).filePath());
        return !fileSystem || m_fileSystems.contains(*fileSystem);
    }

    /// Whether a file is to be read; says so when there are too many outside.
    bool countFile(bool isOutside)
    {
        m_linkedFiles += isOutside ? 1 : 0;
        if (isOutside && m_linkedFiles == mostLinkedFiles + 1) {
            found.remarks << u"Links lead out of the search directories to more than %1 files; the "
                             "others are passed over."_s.arg(mostLinkedFiles);
        }
        const bool isCounted = !isOutside || m_linkedFiles <= mostLinkedFiles;
        m_count += isCounted ? 1 : 0;
        return isCounted;
    }

    bool isNew(const fs::path &path) { return m_visited.insert(path.native()).second; }

    const std::vector<fs::path> &m_roots;
    std::atomic<qint64> &m_count;
    std::unordered_set<quint64> m_fileSystems; ///< of the directories given
    std::unordered_set<fs::path::string_type> m_visited;
    std::size_t m_linkedFiles = 0;
};

} // namespace

DirectoryWalk walkDirectories(const QStringList &directories, std::atomic<qint64> &found)
{
    std::vector<fs::path> roots;
    QStringList remarks;
    for (const QString &directory : directories) {
        const QDir given(directory);
        if (given.exists())
            roots.push_back(withoutLinks(given.filesystemPath()));
        else
            remarks << u"Passed over, since it does not exist: %1"_s.arg(directory);
    }
    Walker walker(roots, found);
    walker.found.remarks = remarks;
    for (const fs::path &root : roots)
        walker.walk(root, false);
    return walker.found;
}

QString slashed(const fs::path &path)
{
    return QFileInfo(path).filePath();
}

QString cannotBeRead(const fs::path &path)
{
    return passedOver(u"cannot be read"_s, path);
}
