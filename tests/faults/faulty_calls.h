#pragma once

// In the place of a value of errno:
const int killHere = -1;
const int writeLess = -2; ///< a write takes only a half; other calls are not touched

/// Lets, of the calls of this process to the system from now on that open, read, write, name and
/// remove files, the one with the number \a call, from 1 on, fail with \a error. With ENOSPC,
/// EDQUOT and EROFS the later ones that would change something on the disk fail, too.
void beginFault(int call, int error);

/// Whether there has been such a call.
bool hasFaulted();
