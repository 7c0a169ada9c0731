#pragma once

#include <QString>

/// The program's own paths use the backslash as separator on every system, and so do the fields,
/// the catalogue and the generator's arguments.
namespace platform {

/// \a path as the host's file system takes it. On a POSIX host every backslash becomes a slash. One
/// that begins with a colon stays relative, though the toolkit takes such names for those of
/// resources in the program.
QString hostPath(const QString &path);

/// The host's path of \a name in \a directory. On a POSIX host a name that is an absolute path
/// stands for itself, as when a relative path is resolved.
QString hostPath(const QString &directory, const QString &name);

/// \a path, which has the host's separators already, as a path in every case, see hostPath().
QString literalPath(const QString &path);

} // namespace platform
