#pragma once

#include "arguments.h"
#include "exit_status.h"
#include "progress.h"

/// The steps of a personality in their order; the first that fails says why, and ends them.
/// \a folder is for temporary files.

/// Writes the personality that \a arguments ask for, and lets clang try it. The logs are left in
/// the working directory.
ExitStatus generate(Progress &progress, const Arguments &arguments, const QString &folder);

/// Writes nothing, no logs either, but says in which lines the personality that \a arguments ask
/// for would differ from the \a earlier one; Missing when there are any.
ExitStatus verify(Progress &progress, const Arguments &arguments, const QByteArray &earlier,
                  const QString &folder);
