#pragma once

#include "compiler.h"
#include "exit_status.h"
#include "personality.h"
#include "progress.h"
#include "request.h"

/// The steps that let clang read code with a personality that is there.

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
