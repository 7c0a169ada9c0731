#pragma once

#include <QString>
#include <QStringList>

namespace platform {

/// The PATH environment variable with its entries separated by ";", whatever separates them on the
/// host; a null string when there is no such variable.
QString searchPathVariable();

/// Where the program \a word is looked for, as the host's paths, in this order: in the current
/// folder with ".exe", then in each entry of \a searchPath (a ";" list; null means no entry) as it
/// stands and with ".exe", ".com" and ".bat". The entries are taken as they are, an empty one
/// included.
QStringList programCandidates(const QString &word, const QString &searchPath);

/// \a candidates in the order in which the host's command interpreter would take them: only that of
/// Windows prefers the current folder to the PATH.
QStringList inHostOrder(QStringList candidates);

/// The host's path of the program that the first word of a command names: a word with a backslash
/// is a path and need only exist, for any other the first of its candidates that opens for reading,
/// in the host's order. Empty when there is none.
QString findCommand(const QString &word, const QString &searchPath);

/// The host's path of the program \a name, which is looked for along the PATH and then beside the
/// running program; \a name itself when it is found in neither.
QString findProgram(const QString &name);

} // namespace platform
