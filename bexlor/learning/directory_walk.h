#pragma once

#include <QStringList>
#include <filesystem>
#include <unordered_set>
#include <vector>

/// The regular files below some directories, found before any of them is read. Links are followed
/// once, to files and to directories; what is neither is not opened.
class DirectoryWalk
{
public:
    struct File
    {
        std::filesystem::path path; ///< where it was seen, which may be a link
        bool isRead;                ///< not when another way to it has been found before

        bool operator<(const File &other) const { return path < other.path; }
    };

    explicit DirectoryWalk(const QStringList &directories);

    const std::vector<File> &files() const { return m_files; }
    /// Sentences on what has been passed over.
    const QStringList &remarks() const { return m_remarks; }

private:
    void walk(const std::filesystem::path &directory);
    bool isNew(const std::filesystem::path &path);

    std::vector<File> m_files;
    QStringList m_remarks;
    std::unordered_set<std::filesystem::path::string_type> m_visited;
};

/// \a path with slashes, also where its bytes are no text.
QString slashed(const std::filesystem::path &path);

/// The sentence that says so of \a path.
QString cannotBeRead(const std::filesystem::path &path);
