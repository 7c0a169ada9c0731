#pragma once

#include <QByteArray>
#include <QHash>
#include <QSet>

/// The line numbers that \a messages give for the file \a source, whatever stands around them:
/// "x.c:12", "x.c(12)", "\"x.c\", line 12", "line 12 of x.c". Those of errors only, if \a ofErrors
/// is set.
QSet<int> namedLines(const QByteArray &messages, const QByteArray &source, bool ofErrors = false);

/// How many of \a messages give each of these line numbers.
QHash<int, int> messagesOnLines(const QByteArray &messages, const QByteArray &source);
