#include "text_file.h"

#include "file_system.h"

#include <QDateTime>
#include <QFile>
#include <QFileInfo>
#include <QLockFile>
#include <QStringDecoder>
#include <QTemporaryFile>

using namespace Qt::StringLiterals;

namespace platform {

namespace {

// Milliseconds for another program's save, which takes a few of them.
const int usualWait = 500;
const int longestWait = 5000;

/// Removes \a lock when whoever made it was killed before signing it, which is done at once. From
/// one who lives the system does not let it be taken away.
void removeUnsigned(QLockFile &lock)
{
    const QDateTime made = QFileInfo(lock.fileName()).lastModified();
    qint64 process = 0;
    QString host, program;
    const bool isSigned = lock.getLockInfo(&process, &host, &program);
    if (!isSigned && made.isValid() && made.msecsTo(QDateTime::currentDateTime()) > usualWait / 2)
        lock.removeStaleLockFile();
}

/// Waits for \a lock and takes it. False when others keep it, or it cannot be made.
bool acquire(QLockFile &lock)
{
    for (int waited = 0; waited < longestWait; waited += usualWait) {
        if (lock.tryLock(usualWait))
            return true;
        if (lock.error() == QLockFile::PermissionError)
            return false;
        removeUnsigned(lock);
    }
    return lock.tryLock(0);
}

/// What \a path leads to, whether or not that exists.
QString withoutLinks(QString path)
{
    const int mostLinks = 40; // as many as systems follow
    for (int i = 0; i < mostLinks && QFileInfo(path).isSymLink(); ++i)
        path = QFileInfo(path).symLinkTarget();
    return path;
}

/// Whether all that \a writer writes has reached the open \a file. It waits in a buffer, so that
/// only emptying that tells.
bool writeAll(QFile &file, const FileReplacement::Writer &writer)
{
    return writer(file) && file.flush();
}

FileReplacement::Writer writerOf(const QByteArray &content)
{
    return [&content](QIODevice &device) { return device.write(content) == content.size(); };
}

} // namespace

FileContent readFile(const QString &path, qint64 sizeLimit)
{
    const QFileInfo info(path);
    if (path.isEmpty() || (!info.exists() && !info.isSymLink()))
        return {};
    QFile file(path);
    const qint64 size = info.size(); // as much memory is taken at once
    if (!info.isFile() || size > sizeLimit || !file.open(QIODevice::ReadOnly))
        return {FileContent::Unusable, {}};
    // One byte more than there were shows that it has grown since.
    const QByteArray bytes = file.read(size + 1);
    const bool isWhole =
        bytes.size() <= size && file.error() == QFileDevice::NoError && file.atEnd();
    return isWhole ? FileContent {FileContent::Whole, bytes}
                   : FileContent {FileContent::Unusable, {}};
}

std::optional<QString> readTextFile(const QString &path, qint64 sizeLimit)
{
    const FileContent content = readFile(path, sizeLimit);
    if (content.state != FileContent::Whole)
        return {};
    return QString::fromLocal8Bit(content.bytes);
}

QString decodedText(const QByteArray &bytes)
{
    QStringDecoder decoder(QStringDecoder::Utf8);
    const QString text = decoder(bytes);
    return decoder.hasError() ? QString::fromLocal8Bit(bytes) : text;
}

FileReplacement::FileReplacement(const QString &path)
    : m_path(withoutLinks(path)), m_lock(std::make_unique<QLockFile>(m_path + ".lock"_L1))
{
    m_isLocked = acquire(*m_lock);
}

FileReplacement::~FileReplacement() = default;

FileContent FileReplacement::read(qint64 sizeLimit) const
{
    return readFile(m_path, sizeLimit);
}

bool FileReplacement::write(const QByteArray &content)
{
    return write(writerOf(content));
}

bool FileReplacement::write(const Writer &writer)
{
    const QFileInfo info(m_path);
    if (m_path.isEmpty() || (info.exists() && !info.isFile()))
        return false;
    if (m_isLocked)
        return replace(writer);
    // A folder in which no lock can be made takes no new file either.
    return m_lock->error() == QLockFile::PermissionError && info.exists() && writeInPlace(writer);
}

bool FileReplacement::replace(const Writer &writer)
{
    // Under the lock nobody else uses this name: what is there was left by a program that was
    // killed.
    const QString newPath = m_path + ".calyx-new"_L1;
    QFile::remove(newPath);
    QFile file(newPath);
    if (!file.open(QIODevice::WriteOnly | QIODevice::NewOnly))
        return false;
    if (!QFileInfo::exists(m_path) || takeOverOwner(file, m_path)) {
        const bool isWritten = writeAll(file, writer) && reachDisk(file);
        file.close();
        if (isWritten && replaceFile(newPath, m_path))
            return true;
        file.remove();
        return false;
    }
    file.remove();
    return writeInPlace(writer);
}

bool FileReplacement::writeInPlace(const Writer &writer)
{
    const FileContent old = read();
    if (old.state != FileContent::Whole)
        return false;
    QFile file(m_path);
    if (!file.open(QIODevice::WriteOnly))
        return false;
    if (writeAll(file, writer) && reachDisk(file))
        return true;
    // There was room for the old content before.
    file.close();
    writeScratchFile(m_path, old.bytes);
    return false;
}

bool canCreateFileIn(const QString &folder)
{
    return QTemporaryFile(folder + "/XXXXXX"_L1).open();
}

bool writeFile(const QString &path, const QByteArray &content)
{
    return FileReplacement(path).write(content);
}

bool writeTextFile(const QString &path, const QString &text)
{
    return writeFile(path, text.toLocal8Bit());
}

bool writeScratchFile(const QString &path, const QByteArray &content)
{
    QFile file(path);
    return file.open(QIODevice::WriteOnly) && writeAll(file, writerOf(content));
}

} // namespace platform
