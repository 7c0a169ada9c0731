#pragma once

#include "arguments.h"
#include "personality.h"

#include <optional>
#include <variant>

/// A personality that is generated once more.
struct EarlierPersonality
{
    QByteArray text;
    Personality content;
    Arguments arguments; ///< by which it was generated, for the same file
};

/// Reads the personality \a path, a whole path. Otherwise a sentence that says why it cannot be
/// generated once more.
std::variant<EarlierPersonality, QString> readEarlierPersonality(const QString &path);

/// Goes to the folder that \a earlier was generated in, which paths in its answers may be relative
/// to. A sentence when there is no such folder any more.
std::optional<QString> enterFolderOf(const EarlierPersonality &earlier);
