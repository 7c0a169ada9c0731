#pragma once

#include <QString>
#include <QStringList>

/// What becomes of single answers on their way into the generator's arguments.

/// \a command in double quotes when it holds a space and has none at its start or end.
QString quotedCommand(const QString &command);
/// \a extension with a dot before it, unless it is empty. What the local encoding lacks is
/// replaced.
QString withDot(const QString &extension);
/// The path of the personality \a name, with its extension, in the folder \a destination.
QString personalityPath(const QString &destination, const QString &name);
/// The path of a catalogue file: one named without a backslash lies in \a folder, which is beside
/// the working directory. An empty name stays empty.
QString inFolder(QLatin1StringView folder, const QString &file);
/// \a flag and \a value, or nothing when the value is empty.
QStringList option(QLatin1StringView flag, const QString &value);
