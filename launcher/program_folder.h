#pragma once

#include <QStringList>

/// Brings the program folder \a folder, in which the wizard works and saves, up to what is shipped
/// in \a shipped; the two may be one. What is missing is made. Pictures are replaced, and the
/// catalogue gains what is new; everything else that is there stays. Returns what could not be
/// done, one line each: the wizard works without it.
QStringList bringUpToDate(const QString &shipped, const QString &folder);
