#include "object_file.h"

#include "text_file.h"

#include <QDirIterator>
#include <QRegularExpression>
#include <QStringList>
#include <algorithm>

using namespace Qt::StringLiterals;

namespace {

const qint64 largestObject = platform::usualSizeLimit;

/// The bytes in the lines "T" of an ASxxxx file, for example "T 00 00 61 62", each of which begins
/// with an address.
QByteArray fromAsxxxx(const QByteArray &file, int addressBytes)
{
    QByteArray bytes;
    for (const QByteArray &line : file.split('\n')) {
        if (line.startsWith("T "))
            bytes += QByteArray::fromHex(line.mid(2)).mid(addressBytes);
    }
    return bytes;
}

/// Reads one of the numbers of ca65's object files, seven bits a byte, the least significant first.
/// Moves \a at behind it; -1 when the file ends before.
int takeNumber(const QByteArray &file, qsizetype &at)
{
    int number = 0;
    for (int shift = 0; at < file.size() && shift < 28; shift += 7) {
        const unsigned char byte = static_cast<unsigned char>(file[at++]);
        number |= (byte & 0x7f) << shift;
        if (!(byte & 0x80))
            return number;
    }
    return -1;
}

/// The constants in an object file of the assembler ca65. It holds an array as one fragment for
/// each byte: a zero, the length one, the byte, and a list of numbers that refer to source lines.
QByteArray fromCa65(const QByteArray &file)
{
    const int mostLineNumbers = 4;
    QByteArray bytes;
    for (qsizetype start = 0; start + 3 < file.size();) {
        qsizetype at = start + 3;
        const bool mayBegin = file[start] == 0 && file[start + 1] == 1;
        const int lineNumbers = mayBegin ? takeNumber(file, at) : 0;
        if (lineNumbers < 1 || lineNumbers > mostLineNumbers) {
            bytes += '\n';
            ++start;
            continue;
        }
        bytes += file[start + 2];
        for (int i = 0; i < lineNumbers; ++i)
            takeNumber(file, at);
        start = at;
    }
    return bytes;
}

} // namespace

QByteArray objectBytes(const QByteArray &file)
{
    if (file.startsWith("Uzna"))
        return fromCa65(file);
    // The first line of an ASxxxx file: radix, byte order, and how many bytes an address has.
    static const QRegularExpression asxxxx(u"^X[HL]([234])\\s"_s);
    const QRegularExpressionMatch match = asxxxx.match(QString::fromLatin1(file.left(16)));
    return match.hasMatch() ? fromAsxxxx(file, match.captured(1).toInt()) : file;
}

QByteArray bytesLeftIn(const QString &folder, const QString &source, const QString &extension)
{
    QStringList files;
    QDirIterator entries(folder, QDir::Files | QDir::Hidden, QDirIterator::Subdirectories);
    while (entries.hasNext()) {
        const QString file = entries.next();
        if (entries.fileName() != source && entries.fileInfo().size() <= largestObject)
            files << file;
    }
    std::sort(files.begin(), files.end());
    if (!extension.isEmpty()) {
        std::stable_partition(files.begin(), files.end(), [&extension](const QString &file) {
            return file.endsWith(extension);
        });
    }
    QByteArray bytes;
    for (const QString &path : files) {
        const platform::FileContent file = platform::readFile(path, largestObject);
        if (file.state == platform::FileContent::Whole)
            bytes += objectBytes(file.bytes) + '\n';
    }
    return bytes;
}
