#pragma once

#include "program_run.h"

#include <optional>

/// A clang that has been found.
struct Clang
{
    QString program; ///< its path
    QString version; ///< "clang 14"
    QString headers; ///< the folder of the headers that belong to it
};

/// The clang that \a word names, on the PATH or by its path. Nothing when there is none that
/// answers.
std::optional<Clang> findClang(const QString &word);

/// Runs \a clang with the personality \a personality, a whole path, and \a arguments; the rest as
/// in runProgram().
platform::ProgramRun runClang(const Clang &clang, const QString &personality,
                              const QStringList &arguments, const QString &directory, int timeLimit,
                              qsizetype outputLimit = platform::usualOutputLimit);
