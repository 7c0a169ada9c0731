#pragma once

#include "program_run.h"

#include <QHash>
#include <QList>
#include <QSet>

/// What the compiler has said to one probe.
struct ProbeAnswer
{
    bool isAsked = false; ///< not when the probe could not be written
    platform::ProgramRun run;
    QSet<int> lines; ///< of the probe that its errors name, or else its other messages
    QHash<int, int> messageCounts; ///< how many messages name each line; the first line is 1
    QByteArray bytes; ///< of the object file, read from hexadecimal text where it is that; of a
                      ///< program what it prints

    bool leftNothing = false;    ///< neither an object file nor anything else
    bool namesEnd = false;       ///< its object does: the probe has been read to its end
    bool lacksSomething = false; ///< that its source has, though other objects show it

    /// Some compilers, and what they are started by, end alike whether there were errors or not.
    bool compiled() const { return run.succeeded() && !leftNothing && !lacksSomething; }
};

/// How many declarations and bytes a probe may have.
struct ProbeLimits
{
    int declarations;
    int bytes;
};
