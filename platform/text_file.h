#pragma once

#include <QByteArray>
#include <QString>
#include <optional>

/// Text files in the local 8-bit encoding, as the toolkit knows it.
namespace platform {

/// The whole text of the file \a path; nothing when it cannot be read. Bytes that are not valid in
/// the encoding become replacement characters.
std::optional<QString> readTextFile(const QString &path);

/// Replaces the file \a path by \a text, or creates it, whole or not at all: whatever happens
/// meanwhile, the file holds its old content or the new one. False when it was left alone.
bool writeTextFile(const QString &path, const QString &text);

/// The same for content that is not text.
bool writeFile(const QString &path, const QByteArray &content);

} // namespace platform
