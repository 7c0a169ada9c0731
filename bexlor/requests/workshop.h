#pragma once

#include "exit_status.h"
#include "progress.h"

#include <functional>

/// Work that reports to \a progress and has \a folder for temporary files.
using Work = std::function<ExitStatus(Progress &progress, const QString &folder)>;

/// Does \a work, and removes the folder and all programs that it has left behind, however this
/// program ends. Failed when no folder can be made.
ExitStatus inWorkshop(const Work &work);
