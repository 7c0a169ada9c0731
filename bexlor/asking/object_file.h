#pragma once

#include <QByteArray>
#include <QString>

/// The bytes that an object file holds: as it is; for the relocatable format of the ASxxxx
/// assemblers what its hexadecimal digits stand for; for ca65's format, which takes a constant
/// array apart, its data put together again.
QByteArray objectBytes(const QByteArray &file);

/// The bytes of all that a compiler has left in \a folder beside the file \a source, the most
/// likely object, which has \a extension, first.
QByteArray bytesLeftIn(const QString &folder, const QString &source, const QString &extension);
