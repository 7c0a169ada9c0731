#pragma once

#include "clang_program.h"
#include "compile_database.h"
#include "progress.h"

#include <variant>

/// The programs and files of others that the steps on a personality work with.

/// The clang that \a word names; nothing, which is then said, when there is none.
std::optional<Clang> findClang(Progress &progress, const QString &word);

/// The sentence on the file \a path, called \a noun, that cannot be written: why, if it is for want
/// of its folder.
QString notWritten(const QString &noun, const QString &path);

/// The entries of the database \a path, or a sentence if they cannot be read.
std::variant<QList<CompileCommand>, QString> readDatabase(const QString &path);

/// Writes an empty source into \a folder, and returns its path.
std::optional<QString> writeEmptySource(Progress &progress, const QString &folder, bool isCpp);

/// Leaves those of \a directories out that a line of a personality cannot hold, and says so.
void leaveOutOddDirectories(Progress &progress, QStringList &directories);
