#pragma once

#include <QString>

/// The word of a command line that names the program: the text between the quotes when the line
/// begins with one (up to its end when there is no second quote), else the text before the first
/// space.
QString commandWord(const QString &commandLine);
