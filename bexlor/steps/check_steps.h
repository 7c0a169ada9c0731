#pragma once

#include "clang_program.h"
#include "compile_database.h"
#include "compiler.h"
#include "exit_status.h"
#include "personality.h"
#include "progress.h"
#include "request.h"

#include <variant>

/// The steps that use a personality that is there: they let clang read code with it, or write it in
/// another form.

/// Checks the sources of \a request with its personality, which holds \a content and was generated
/// by \a arguments; \a folder is for temporary files.
ExitStatus checkWithPersonality(Progress &progress, const CheckRequest &request,
                                const Arguments &arguments, const Personality &content,
                                const QString &folder);

/// Says in one line how many headers of \a compiler's search path clang accepts with the
/// personality that has just been written to \a personality, \a text, and how many were tried: a
/// sample, for two seconds at most. Says nothing where no clang is found.
void checkHeaders(Progress &progress, const Compiler &compiler, const QString &personality,
                  const QByteArray &text, const QString &folder);

/// Writes the types of \a compiler's personality, see above, as assertions beside it, and says in
/// one line whether the compiler and clang accept them.
ExitStatus checkTypes(Progress &progress, const Compiler &compiler, const QString &personality,
                      const QByteArray &text, const QString &folder);

/// Writes the personality that holds \a content as \a request asks; the rest as above.
ExitStatus exportPersonality(Progress &progress, const ExportRequest &request,
                             const Arguments &arguments, const Personality &content,
                             const QString &folder);

/// The clang that \a word names; nothing, which is then said, when there is none.
std::optional<Clang> findClang(Progress &progress, const QString &word);

/// The sentence on the file \a path, called \a noun, that cannot be written: why, if it is for want
/// of its folder.
QString notWritten(const QString &noun, const QString &path);

/// The entries of the database \a path, or a sentence if they cannot be read.
std::variant<QList<CompileCommand>, QString> readDatabase(const QString &path);
