#pragma once

#include <QString>
#include <QStringList>

/// The word of a command line that names the program: the text between the quotes when the line
/// begins with one (up to its end when there is no second quote), else the text before the first
/// space.
QString commandWord(const QString &commandLine);

/// Where the program \a word is looked for, in this order: in the current folder with ".exe", then
/// in each entry of \a searchPath (a ";" list; null means no entry) as it stands and with ".exe",
/// ".com" and ".bat". The entries are taken as they are, an empty one included. Paths have
/// backslashes.
QStringList commandCandidates(const QString &word, const QString &searchPath);

/// Whether \a word names a program: a word with a backslash is a path that must exist, for any
/// other one of its candidates must open for reading.
bool commandIsFound(const QString &word, const QString &searchPath);
