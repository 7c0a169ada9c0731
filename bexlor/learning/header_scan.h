#pragma once

#include <QByteArray>
#include <QList>
#include <QString>
#include <QStringList>
#include <atomic>

/// How a name occurs below the compiler's directories.
enum NameUse : unsigned char {
    TestedInHeader = 1, ///< by a preprocessor conditional
    UsedInHeader = 2,   ///< outside comments and literals
    InBinary = 4,       ///< stands in a compiler's binary file
    /// Behind "-D" or "/D" in a file that is no header or in the compiler's command, or formed of
    /// words as the names are that a compiler's options define.
    DefinedByOption = 8
};

struct ScannedName
{
    QByteArray text;
    unsigned uses = 0; ///< NameUse values
};

/// A regular text file; in a directory with headers it may be one of them.
struct HeaderFile
{
    QString directory; ///< absolute, with slashes
    QString name;
};

/// What has been found below the directories, in an order that depends on nothing but the files.
struct HeaderScan
{
    QList<ScannedName> names;
    QList<HeaderFile> headers;
    QStringList remarks; ///< sentences on what has been passed over
    qint64 files = 0;
};

/// How far a scan is, for other threads to look at.
struct ScanProgress
{
    std::atomic<qint64> found = 0; ///< files; all are found before the first is read
    std::atomic<qint64> read = 0;
};

/// Reads every regular file below \a directories once, counting them in \a progress. Of the names
/// used in headers only those are kept that may be keywords: with a leading underscore, or of
/// lower-case letters and not long.
HeaderScan scanHeaders(const QStringList &directories, ScanProgress &progress);

/// The names in \a files, the compiler's own programs and what they are configured by: those that
/// are defined by options, and those that are spelled as macros are. Files that cannot be read have
/// none.
QList<ScannedName> scanProgramFiles(const QStringList &files);

/// The files in \a directories and in the folders right below them, unread.
QList<HeaderFile> headersNear(const QStringList &directories);
