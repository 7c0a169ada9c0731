#pragma once

#include "arguments.h"
#include "compiler.h"
#include "facts.h"
#include "progress.h"

#include <optional>

/// The steps around the personality: what it is made with, and the file. One that returns nothing,
/// or false, has said why the run ends there.

/// \a arguments without the header directories that cannot be used. Nothing when they are refused
/// or the files that they name cannot be used. Says first which files are used that no page shows.
std::optional<Arguments> checkArguments(Progress &progress, const Arguments &arguments);

/// Whether the personality \a path can be written.
bool checkDestination(Progress &progress, const QString &path);

/// The text of the personality of the compiler of \a facts. Says what clang cannot be told of it.
/// Nothing when the template can no longer be read.
std::optional<QByteArray> textOfPersonality(Progress &progress, const Arguments &arguments,
                                            const Compiler &compiler, const Facts &facts);

/// Writes the personality \a text to \a path, over one that has been there before, and says how
/// clang and clang-tidy take it.
bool writePersonality(Progress &progress, const QString &path, const QByteArray &text);
