#pragma once

#include "checked_source.h"
#include "personality.h"
#include "rejection.h"
#include "token_stream.h"

#include <atomic>

/// A clang that has been found.
struct Clang
{
    QString program; ///< its path
    QString version; ///< "clang 14"
    QString headers; ///< the folder of the headers that belong to it
};

/// The clang on the PATH. Nothing when there is none that answers.
std::optional<Clang> findClang();

/// What two compilers make of one source.
struct Verdict
{
    enum Result { Same, Different, NotCompared, RejectedByClang, RejectedByCompiler };
    QString file;
    Result result = RejectedByCompiler;
    TokenDifference difference; ///< only of code that is different
    Rejection rejection;        ///< only of a source that clang rejects
    QString message;            ///< the compiler's first words on one that it rejects
};

/// How sources are checked.
struct Checking
{
    Compiler compiler;
    Clang clang;
    QString personality; ///< its absolute path
    Personality content; ///< what it holds
    QString preprocess;  ///< what makes the compiler preprocess; empty: nothing is compared
    bool checksSyntaxOnly = false; ///< the compiler takes the GNU compilers' option for that
};

/// The folders of headers that belong to the compiler of \a personality and that clang has its own
/// of, which it finds first.
QStringList ownHeadersOf(const Personality &personality);

/// Whether \a compiler takes the GNU compilers' option to check a source and write nothing; \a
/// folder is for probes.
bool canCheckSyntaxOnly(const Compiler &compiler, const QString &folder);

/// The verdicts on \a sources in their order, as many at a time as there are processors. \a done
/// counts them. After \a timeLimit milliseconds no further source is begun; the verdicts end before
/// the first that was not.
QList<Verdict> checkSources(const Checking &checking, const QList<CheckedSource> &sources,
                            std::atomic<int> &done, std::optional<int> timeLimit = {});
