#pragma once

/// What the program's exit statuses mean.
enum class ExitStatus {
    Done = 0,
    Failed = 1,  ///< a step failed, or clang rejects what the compiler accepts
    Usage = 2,   ///< the command line is not one that usage() allows
    Missing = 3, ///< something that a check or an export needs is missing, a check has had nothing
                 ///< to tell of, or what was to be verified has changed
};
