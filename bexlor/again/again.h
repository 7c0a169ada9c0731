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

/// What differs between two texts of personalities, a line each: the heading or the word that the
/// fact stands behind, and "-" with what is gone, "+" with what is new, or that the order is
/// another. None for equal texts.
QStringList changesBetween(const QByteArray &before, const QByteArray &after);
