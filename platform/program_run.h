#pragma once

#include <QByteArray>
#include <QStringList>

namespace platform {

/// How a program ended, and what it wrote.
struct ProgramRun
{
    enum Ending { Exited, NotStarted, Crashed, TimedOut };
    Ending ending = NotStarted;
    int exitCode = -1;
    QByteArray output; ///< its first bytes, up to the limit, like the next
    QByteArray errors;

    bool succeeded() const { return ending == Exited && exitCode == 0; }
};

/// How much of what a program writes is kept, where no more is asked for, in bytes.
constexpr qsizetype usualOutputLimit = 1'000'000;

/// Runs \a command, a program and its arguments, in \a directory with nothing on its standard input
/// and its messages in English, and waits until it ends. After \a timeLimit milliseconds it is
/// ended. When it ends, all that it has started ends with it.
ProgramRun runProgram(const QStringList &command, const QString &directory, int timeLimit,
                      qsizetype outputLimit = usualOutputLimit);

} // namespace platform
