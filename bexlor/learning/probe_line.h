#pragma once

#include <QByteArray>

/// A line of a probe: \a line, in which "%" stands for a name that only this \a number has, and "@"
/// for \a word.
inline QByteArray probeLine(QByteArray line, const QByteArray &word, qsizetype number)
{
    return line.replace('%', "calyx_" + QByteArray::number(number)).replace('@', word);
}
