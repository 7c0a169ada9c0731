#pragma once

#include "check.h"

/// One line on \a verdict: the file, a colon, and what came out.
QString verdictLine(const Verdict &verdict);

/// The counts of all \a verdicts, and a table of the kinds of rejections if there are any.
QStringList summaryLines(const QString &clangVersion, const QList<Verdict> &verdicts);

/// "clang 14 accepts 58 of the 58 headers that the compiler accepts.", for sources called \a noun.
QString acceptanceSentence(const QString &clangVersion, const QList<Verdict> &verdicts,
                           const QString &noun);

/// All of it for other programs; docs/architecture.md describes the keys.
QByteArray verdictsAsJson(const Checking &checking, const QList<Verdict> &verdicts);

/// Whether clang accepts every source that the compiler accepts.
bool clangAcceptsAll(const QList<Verdict> &verdicts);
