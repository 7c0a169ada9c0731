#pragma once

/// Calls of the system that fail when they are told to: write, read, open, fsync, rename, unlink,
/// fchmod and ftruncate, and the other names that the same calls have.
struct Fault
{
    int call = 0;  ///< which of the calls fails, from 1 on; 0 for none
    int error = 0; ///< with which value of errno, or one of those below
};

const int killHere = -1;
const int writeLess = -2; ///< a write takes only a half; other calls are not touched

/// Lets the calls of this process, from now on, be counted, and one of them fail once. With ENOSPC,
/// EDQUOT and EROFS the later ones that would change something on the disk fail, too.
extern "C" void beginFault(const Fault *fault);
/// How many calls there have been since, and whether one has failed.
extern "C" int endFault(bool *hasFailed);
