#pragma once

#include <QByteArray>
#include <QStringList>

/// Why clang rejects a source.
struct Rejection
{
    QString kind;    ///< one of rejectionKinds()
    QString message; ///< clang's first error, with its place
};

/// The kinds, in the order in which they are reported.
QStringList rejectionKinds();

/// The line of the first error in a compiler's \a messages, or the first line where none is one.
QString firstError(const QByteArray &messages);

/// What clang's \a messages say first.
Rejection rejectionIn(const QByteArray &messages);
