#pragma once

#include "arguments.h"

/// The words \a words of a compiler command without the options that are no questions to the
/// compiler: those that name or make other files than the object, which each probe would write
/// over; those that leave nothing in the object to read (link-time optimisation); those that make
/// each message cost a start (stopping at the first error) or unreadable (other formats). From the
/// manuals of the GNU compilers, clang, cc65 and Microsoft's; \a layout has the output flag.
QStringList withoutOutputOptions(const QStringList &words, const CommandLayout &layout);

/// The first of \a words that keeps a compiler from compiling; empty when there is none.
QString optionAgainstCompiling(const QStringList &words);
