#pragma once

#include <QStringList>

/// The path of the program that \a word of a command names, found where the wizard finds it too;
/// empty when there is none.
QString programPath(const QString &word);

/// Whether \a word of a command names a program.
bool isProgram(const QString &word);

/// The command \a passed as it was typed into its field. The wizard puts quotes around one with
/// spaces; \a names tells of a word whether it names a program, and so whether they are the user's
/// own, around a path that holds them.
QString typedCommand(const QString &passed, bool (*names)(const QString &word) = &isProgram);

/// The words of the same, see splitCommand().
QStringList commandWords(const QString &passed, bool (*names)(const QString &word) = &isProgram);
