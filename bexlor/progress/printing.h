#pragma once

#include <QString>
#include <cstdio>

/// Prints \a lines and a line feed. They may hold what anybody has written, see Progress::say().
void printLines(std::FILE *stream, const QString &lines);
