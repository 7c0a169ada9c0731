#pragma once

#include <QList>
#include <QString>
#include <QStringList>
#include <functional>
#include <optional>

/// A key takes the one line that follows it, or all lines up to the first empty one.
enum class SettingsKind { Single, List };

struct SettingsEntry
{
    QString key;
    QStringList values; ///< one of a single key, any number of a list key
};

/// Reads the text of a settings file: the entries of the keys that \a kindOf knows, in the order of
/// the text, an entry that occurs twice included. Lines may end with a line feed, a carriage return
/// or both. Lines that are neither keys nor values are passed over.
QList<SettingsEntry>
parseSettings(const QString &text,
              const std::function<std::optional<SettingsKind>(const QString &key)> &kindOf);
