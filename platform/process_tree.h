#pragma once

#include <QProcess>
#include <QString>

namespace platform {

/// While it lives, every program started in a ProcessTree ends with this program at the latest,
/// also when this program is killed, and a folder of temporary files is removed then. To be made
/// before the first thread and the first program.
class ProgramGuard
{
public:
    /// \a folder is removed with all that is in it.
    explicit ProgramGuard(const QString &folder);
    ~ProgramGuard();
    ProgramGuard(const ProgramGuard &) = delete;
    ProgramGuard &operator=(const ProgramGuard &) = delete;
};

/// A program with all that it starts itself. To be made before the process is started.
class ProcessTree
{
public:
    explicit ProcessTree(QProcess &process);

    /// To be called once the process has been started.
    void started();
    /// Ends whatever is left of the tree; also to be called when the process has ended by itself.
    void end();

private:
    QProcess &m_process;
    qint64 m_id = 0;
};

} // namespace platform
