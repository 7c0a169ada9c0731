#pragma once

#include "arguments.h"

/// Why \a arguments are not acted on, as a sentence; empty when they are. They may come from
/// somebody else's catalogue: nothing but the compiler is started, nothing is written outside the
/// run's own folder but the personality and the logs, and a file that no path was shown for is
/// taken from its own folder.
QString refusalReason(const Arguments &arguments);

/// Whether the absolute path of \a path may stand in a personality.
bool mayStandInPersonality(const QString &path);
