#pragma once

#include "facts.h"

#include <optional>

/// Definitions of function-like macros, found by using them with placeholders for arguments.

const int mostParameters = 6;

/// The placeholders for \a count arguments, with commas between them.
QByteArray placeholders(int count);

/// Definitions that the function-like macro \a name may have, the likeliest first. \a uses are what
/// its use with 0, 1, 2 ... placeholders becomes, nothing where it is not accepted: its number of
/// parameters is the only one that it accepts. The names of the parameters are guessed.
QList<Macro> functionLikeDefinitions(const QByteArray &name,
                                     const QList<std::optional<QByteArray>> &uses);
