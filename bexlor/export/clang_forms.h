#pragma once

#include "options_for_clang.h"

/// \a commands once more, each by \a clang with the personality \a personality and what
/// \a forClang says of its options: a compilation database.
QByteArray compileCommands(const QList<CompileCommand> &commands, const QString &clang,
                           const QString &personality, OptionsForClang &forClang);

/// A configuration of clangd, a fragment of its file ".clangd", that adds the personality
/// \a personality and removes \a refused, the options of the compiler that clang does not take.
QByteArray clangdConfiguration(const QString &personality, const QStringList &refused);
