#pragma once

#include <QByteArray>
#include <QString>
#include <QStringList>

/// The bytes that an object file holds: as it is; for the relocatable format of the ASxxxx
/// assemblers what its hexadecimal digits stand for; for ca65's format, which takes a constant
/// array apart, its data put together again.
QByteArray objectBytes(const QByteArray &file);

/// The paths of all that a compiler has left in \a folder beside the file \a source.
QStringList filesLeftIn(const QString &folder, const QString &source);

/// The bytes of \a files, the most likely object, which has \a extension, first.
QByteArray bytesOfFiles(QStringList files, const QString &extension);
