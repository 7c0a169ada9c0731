#pragma once

#include "probe_answer.h"

/// Thrown when a compiler does not answer, or in a way that tells nothing: what it has said before
/// and would say next is no ground for facts.
struct Malfunction
{
    QString reason; ///< a sentence; empty when how the compiler ended says it
    platform::ProgramRun run;
};
