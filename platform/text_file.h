#pragma once

#include <QByteArray>
#include <QString>
#include <functional>
#include <memory>
#include <optional>

class QIODevice;
class QLockFile;

/// Files that are read and replaced whole. A path is the host's; one that names a link means the
/// file behind it. Texts are in the local 8-bit encoding, as the toolkit knows it.
namespace platform {

/// How large a file may be that is read without being asked for more.
constexpr qint64 usualSizeLimit = 64'000'000;

struct FileContent
{
    enum State {
        Whole,
        Missing,  ///< there is no such file
        Unusable, ///< there is something that cannot be read whole: another kind of file, one that
                  ///< may not be read or is larger than the limit, or a fault while it was read
    };
    State state = Missing;
    QByteArray bytes; ///< only of a whole file
};

/// Reads the regular file \a path; nothing else is opened, since that might wait for ever.
FileContent readFile(const QString &path, qint64 sizeLimit = usualSizeLimit);

/// The whole text of the file \a path; nothing when it cannot be read whole. Bytes that are not
/// valid in the encoding become replacement characters.
std::optional<QString> readTextFile(const QString &path, qint64 sizeLimit = usualSizeLimit);

/// The text of \a bytes from elsewhere: in UTF-8, which clang and newer GNU compilers write on
/// every system, where they can be that, otherwise in the local encoding.
QString decodedText(const QByteArray &bytes);

/// A file that is to be replaced, and is kept from other programs that go the same way while this
/// lives. Others are waited for, for some seconds.
class FileReplacement
{
public:
    explicit FileReplacement(const QString &path);
    ~FileReplacement();
    FileReplacement(const FileReplacement &) = delete;
    FileReplacement &operator=(const FileReplacement &) = delete;

    FileContent read(qint64 sizeLimit = usualSizeLimit) const;

    /// Puts \a content in the place of the file's, or creates the file. Whatever happens meanwhile,
    /// the file holds its old content or the new one; its owner, group and mode stay. Where no
    /// other file can be made in its folder, or none with its owner, it is written in place. False
    /// when the file has been left as it was.
    bool write(const QByteArray &content);

    /// Writes content of any size to a device, and returns whether all of it went there.
    using Writer = std::function<bool(QIODevice &)>;
    /// The same as it comes from \a writer.
    bool write(const Writer &writer);

private:
    bool replace(const Writer &writer);
    bool writeInPlace(const Writer &writer);

    const QString m_path; ///< with links resolved
    const std::unique_ptr<QLockFile> m_lock;
    bool m_isLocked = false;
};

/// Whether a file can be made in \a folder, which only an attempt tells on every system.
bool canCreateFileIn(const QString &folder);

/// Replaces or creates a file as FileReplacement does.
bool writeFile(const QString &path, const QByteArray &content);
/// The same for a text.
bool writeTextFile(const QString &path, const QString &text);

/// Writes the file \a path as it comes, for what nobody misses after a crash. False when not all of
/// \a content has arrived.
bool writeScratchFile(const QString &path, const QByteArray &content);

} // namespace platform
