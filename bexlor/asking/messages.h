#pragma once

#include <QByteArray>
#include <QHash>
#include <QSet>

/// The line numbers that a compiler's messages give for a source; the first line is 1.
struct NamedLines
{
    QHash<int, int> all; ///< how many messages give each
    QSet<int> ofErrors;
};

/// Those that \a messages give for the file \a source, whatever stands around them: "x.c:12",
/// "x.c(12)", "\"x.c\", line 12", "line 12 of x.c". Its name may be in capitals, too.
NamedLines namedLines(const QByteArray &messages, const QByteArray &source);
