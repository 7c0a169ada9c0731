#pragma once

#include "checked_source.h"
#include "clang_program.h"
#include "personality.h"
#include "rejection.h"
#include "token_stream.h"

#include <QDeadlineTimer>
#include <functional>

/// What two compilers make of one source.
struct Verdict
{
    enum Result {
        Same,
        Different,
        NotCompared,
        RejectedByClang,
        RejectedByCompiler,
        NotStarted, ///< the compiler that the source's command names is not there
        Missing     ///< the source is not there, or the directory in which it is compiled
    };
    QString file;
    Result result = NotStarted;
    TokenDifference difference; ///< only of code that is different
    Rejection rejection;        ///< only of a source that clang rejects
    QString message; ///< why the compiler rejects it or it is not compared; what is not there
};

/// How sources are checked.
struct Checking
{
    Clang clang;
    QString personality;  ///< its whole path
    Personality content;  ///< what it holds
    CommandLayout layout; ///< of the compiler's command
    QString preprocess;   ///< what makes the compiler preprocess; empty: nothing is compared
    bool checksSyntaxOnly = false; ///< the compiler takes the GNU compilers' option for that
    /// After that no source is begun, and what is under way is ended.
    QDeadlineTimer deadline = QDeadlineTimer(QDeadlineTimer::Forever);
};

/// The folders of headers that belong to the compiler of \a personality and that clang has its own
/// of, which it finds first.
QStringList ownHeadersOf(const Personality &personality);

/// Whether \a compiler takes the GNU compilers' option to check a source and write nothing; \a
/// folder is for probes. One that has not answered by \a deadline does not.
bool canCheckSyntaxOnly(const Compiler &compiler, const QString &folder,
                        QDeadlineTimer deadline = QDeadlineTimer(QDeadlineTimer::Forever));

/// Gives the verdicts on \a sources to \a report, in their order and each as soon as it is there.
/// As many sources are checked at a time as there are processors. Those that the deadline has come
/// before are left out.
void checkSources(const Checking &checking, const QList<CheckedSource> &sources,
                  const std::function<void(const Verdict &)> &report);
