#pragma once

#include <cstdio>

/// Prints the heading of the table that printRow() fills.
inline void printHeading()
{
    std::printf("%-34s %12s %7s  %s\n", "what", "figure", "ratio", "against");
}

/// Prints one row: \a figure in \a unit, and how many times that is what \a peer costs in the same
/// run.
inline void printRow(const char *what, double figure, const char *unit, double ratio,
                     const char *peer)
{
    std::printf("%-34s %9.2f %-2s %7.2f  %s\n", what, figure, unit, ratio, peer);
    std::fflush(stdout);
}
