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

/// What clang's \a messages say first.
Rejection rejectionIn(const QByteArray &messages);
