#pragma once

#include <QStringList>

namespace platform {

/// \a command, a program and its arguments, as one line that the system's command interpreter takes
/// apart into the same words again. Only on Windows a name between two "%" may still stand for the
/// variable of that name.
QString commandLine(const QStringList &command);

} // namespace platform
