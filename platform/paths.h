#pragma once

#include <QString>

/// The program's own paths use the backslash as separator on every system, and so do the fields,
/// the catalogue and the generator's arguments. These functions lead to the host's own paths.
namespace platform {

/// \a path as the host's file system takes it. On a POSIX host every backslash becomes a slash; an
/// absolute path behind a backslash stands for itself, as when a relative path is resolved, so that
/// "/usr/bin\/opt/cc" is "/opt/cc".
QString hostPath(const QString &path);

} // namespace platform
