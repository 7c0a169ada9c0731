#pragma once

#include "program_run.h"

#include <QList>
#include <QSet>

/// What the compiler has said to one probe.
struct ProbeAnswer
{
    platform::ProgramRun run;
    QSet<int> lines;          ///< of the probe that its errors name, or else its other messages
    QSet<int> allLines;       ///< that any message names; the first line is 1
    QByteArray bytes;         ///< of the object file, read from hexadecimal text where it is that
    bool isWritten = true;    ///< not when there was no room for the source
    bool namesSource = false; ///< a message names one of its lines, or a header that it includes
    bool leftFiles = false;   ///< any, beside the source
    bool leftObject = false;  ///< one with the object file extension
    bool isContradicted = false; ///< that it compiled, by other signs than the exit status

    bool compiled() const { return run.succeeded() && !isContradicted; }
};

/// How many declarations and bytes a probe may have.
struct ProbeLimits
{
    int declarations;
    int bytes;
};
