#pragma once

#include <QStringList>

namespace platform {

/// \a command, a program and its arguments, as one line that the system's command interpreter takes
/// apart into the same words again. Only on Windows a name between two "%" may still stand for the
/// variable of that name.
QString commandLine(const QStringList &command);

/// The same for a file of commands, in which also Windows's interpreter takes a "%" for itself.
QString commandFileLine(const QStringList &command);

/// The words of \a line, a command that a build tool has written down for programs of this system.
QStringList splitCommandLine(const QString &line);

/// The words of a text that no user has typed, as a POSIX shell takes it apart: at white space
/// outside quotes of either kind, a backslash making a quote, a space or a backslash behind it
/// literal, as clang's manual says of compilation databases. Response files of the GNU compilers
/// are read alike on every system; any other character behind a backslash is taken for a part of a
/// path of Windows.
QStringList shellWords(const QString &text);

} // namespace platform
