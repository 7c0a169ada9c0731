#pragma once

#include <QProcess>
#include <QString>
#include <memory>

namespace platform {

/// While it lives, every program started in a ProcessTree ends with this program at the latest,
/// also when this program is killed. To be made before the first thread and the first program.
class ProgramGuard
{
public:
    ProgramGuard();
    /// The programs also put their temporary files into \a folder, which is removed with all that
    /// is in it at the end. Where nothing can outlive a killed program its folder is removed by the
    /// next one that has one beside it. What has detached itself from a ProcessTree ends then, too:
    /// on Windows always; on Linux what has kept the environment that it was started with and
    /// belongs to the same user; elsewhere it goes on.
    explicit ProgramGuard(const QString &folder);
    ~ProgramGuard();
    ProgramGuard(const ProgramGuard &) = delete;
    ProgramGuard &operator=(const ProgramGuard &) = delete;

private:
    /// \a folder may be empty.
    static void begin(const QString &folder);
    /// Sets the environment variable \a name, for programs of any kind, to the path \a folder.
    static void setVariable(const char *name, const QString &folder);
};

/// A program with all that it starts itself.
class ProcessTree
{
public:
    /// \a process, not yet started, must outlive the tree.
    explicit ProcessTree(QProcess &process);
    /// Ends what is left, too.
    ~ProcessTree();
    ProcessTree(const ProcessTree &) = delete;
    ProcessTree &operator=(const ProcessTree &) = delete;

    /// Starts \a command, a program's path and its arguments, which arrive as they are; but for
    /// those of a batch file with quotation marks in them, which depend on who reads them. False
    /// when it cannot be started.
    bool start(const QStringList &command);
    /// Ends whatever is left of the tree, also when the process has ended by itself.
    void end();

private:
    struct System;
    QProcess &m_process;
    const std::unique_ptr<System> m_system;
};

} // namespace platform
