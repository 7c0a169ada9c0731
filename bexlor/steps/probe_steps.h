#pragma once

#include "probe_runner.h"
#include "progress.h"

#include <optional>

/// The steps that find out whether the compiler works, and its logs. One that returns nothing, or
/// false, has said why the run ends there.

/// Removes what an earlier run has left, which would be taken for this one's.
void removeLogs();

/// What the compiler says to a probe that any compiler accepts. Leaves the logs in \a logFolder.
std::optional<ProbeAnswer> compileFirstProbe(Progress &progress, ProbeRunner &runner,
                                             const QString &logFolder);

/// Whether \a compiler takes the files that its command includes first, which no other probe does:
/// clang is to include them, too. \a folder is for temporary files; leaves the logs in \a logFolder
/// if it does not.
bool compileIncludedFiles(Progress &progress, const Compiler &compiler, const QString &folder,
                          const QString &logFolder);

/// Whether the answers of \a runner's compiler, \a first being that to the first probe, can be
/// trusted as far as is needed: it must reject what is no C.
bool checkControls(Progress &progress, ProbeRunner &runner, const ProbeAnswer &first);

/// Whether the first probe still compiles: a compiler that has stopped working, for want of a
/// license or of room on the disk, would be taken for one that rejects everything. Leaves the logs
/// in \a logFolder then.
bool worksStill(Progress &progress, const ProbeRunner &runner, const QString &logFolder);
