#pragma once

#include "compiler.h"
#include "progress.h"

#include <optional>

/// A personality, and the compiler as it has turned out to be called.
struct MadePersonality
{
    QByteArray text;
    Compiler compiler;
};

/// Takes the steps from the first probe to the text of the personality that \a arguments, which can
/// be used, ask for. \a folder is for temporary files, the logs are left in \a logFolder. Nothing
/// when a step fails, which has said why.
std::optional<MadePersonality> makePersonality(Progress &progress, const Arguments &arguments,
                                               const QString &folder, const QString &logFolder);
