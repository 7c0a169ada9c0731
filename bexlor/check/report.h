#pragma once

#include "check.h"
#include "exit_status.h"

/// How many of the sources the compiler accepts.
qsizetype acceptedByCompiler(const QList<Verdict> &verdicts);

/// One line on \a verdict: the file, a colon, and what came out.
QString verdictLine(const Verdict &verdict);

/// The counts of all \a verdicts, and a table of the kinds of rejections if there are any.
QStringList summaryLines(const QString &clangVersion, const QList<Verdict> &verdicts);

/// "clang 14 accepts 58 of the 58 headers that the compiler accepts.", for sources called \a noun.
QString acceptanceSentence(const QString &clangVersion, const QList<Verdict> &verdicts,
                           const QString &noun);

/// All of it for other programs; the README describes the keys.
QByteArray verdictsAsJson(const Checking &checking, const QList<Verdict> &verdicts);

/// Missing when a compiler or a source is, or when the compiler accepts none; Failed when clang
/// rejects a source that the compiler accepts.
ExitStatus exitStatus(const QList<Verdict> &verdicts);
