#pragma once

#include "accepted_options.h"
#include "compile_database.h"

/// \a commands once more, each by \a clang with the personality \a personality and those of its
/// options that are \a accepted: a compilation database.
QByteArray compileCommands(const QList<CompileCommand> &commands, const QString &clang,
                           const QString &personality, AcceptedOptions &accepted);

/// A configuration of clangd, a fragment of its file ".clangd", that adds the personality
/// \a personality and removes \a refused, the options of the compiler that clang does not take.
QByteArray clangdConfiguration(const QString &personality, const QStringList &refused);
