#pragma once

#include <QString>

/// The word of a command line that names the program: the text between the quotes when the line
/// begins with one (up to its end when there is no second quote), else the text before the first
/// space. Text that follows the second quote without a space belongs to the word, as it does when
/// the command is started.
QString commandWord(const QString &commandLine);

enum class CommandState {
    Valid,
    NotOnPath,  ///< its program is not found
    Incomplete, ///< its program is found, but a "<specify ...>" of the catalogue is left in it
};

/// Whether \a commandLine, which is not empty, can be used.
CommandState checkCommand(const QString &commandLine);
