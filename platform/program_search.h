#pragma once

#include <QString>

namespace platform {

/// The PATH environment variable with its entries separated by ";", whatever separates them on the
/// host; a null string when there is no such variable.
QString searchPathVariable();

/// The host's path of the program \a name, which is looked for along the PATH and then beside the
/// running program; \a name itself when it is found in neither.
QString findProgram(const QString &name);

} // namespace platform
