#pragma once

#include "arguments.h"
#include "personality.h"

#include <variant>

/// A personality that is generated once more.
struct EarlierPersonality
{
    QByteArray text;
    Personality content;
    Arguments arguments; ///< by which it was generated, for the same file
    QString remark;      ///< on what is no longer as it was then, or empty
};

/// Reads the personality \a path, a whole path, and goes to the folder that it was generated in,
/// where that still exists. Otherwise a sentence that says why it cannot be generated once more.
std::variant<EarlierPersonality, QString> readEarlierPersonality(const QString &path);

/// What differs between two texts of personalities, a line each: the heading or the word that the
/// fact stands behind, and "-" with what is gone, "+" with what is new, or that the order is
/// another. None for equal texts.
QStringList changesBetween(const QByteArray &before, const QByteArray &after);
