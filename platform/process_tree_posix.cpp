#include "process_tree.h"

#include <QFile>
#include <algorithm>
#include <cerrno>
#include <chrono>
#include <csignal>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <set>
#include <string>
#include <sys/socket.h>
#include <sys/wait.h>
#include <thread>
#include <unistd.h>

namespace platform {

namespace {

// A process of its own that outlives this one by a moment. Programs report their process group to
// it before they run, and are taken from its list when they have ended. Once the connection is
// closed, for whatever reason, it ends those that are left.
struct Report
{
    pid_t group;
    bool begins;
};

int reports = -1; // the end of the connection that is written to
pid_t guardian = -1;

void report(pid_t group, bool begins)
{
    // Should the guardian be gone, nothing is left to do about it.
    const Report record {group, begins};
    if (reports >= 0)
        send(reports, &record, sizeof record, MSG_NOSIGNAL);
}

const int mostPasses = 100;
constexpr std::chrono::milliseconds betweenPasses(10);

/// Ends the programs that have a folder for temporary files below \a folder: those that have left
/// their process group. Looks for them where Linux shows the environment of each process. False
/// when there was one.
bool endDetached(const std::string &folder)
{
    const std::string sought = "\nTMPDIR=" + folder + '/';
    bool isFound = false;
    std::error_code ignored;
    for (std::filesystem::directory_iterator process("/proc", ignored), end;
         !ignored && process != end; process.increment(ignored)) {
        const pid_t number = std::atoi(process->path().filename().c_str());
        if (number <= 0)
            continue;
        std::ifstream file(process->path() / "environ", std::ios::binary);
        std::string environment = '\n' + std::string(std::istreambuf_iterator<char>(file), {});
        std::replace(environment.begin(), environment.end(), '\0', '\n');
        if (environment.find(sought) == environment.npos)
            continue;
        isFound = true;
        kill(number, SIGKILL);
    }
    return !isFound;
}

[[noreturn]] void guard(int source, const std::string &folder)
{
    std::set<pid_t> groups;
    Report record;
    ssize_t size;
    while ((size = read(source, &record, sizeof record)) != 0) {
        if (size < 0 && errno != EINTR)
            break;
        if (size != sizeof record)
            continue;
        if (record.begins)
            groups.insert(record.group);
        else
            groups.erase(record.group);
    }
    for (const pid_t group : groups)
        kill(-group, SIGKILL);
    // What has been killed takes a moment to end, and may write to the folder until then.
    for (int i = 0; i < mostPasses && !folder.empty(); ++i) {
        std::error_code error;
        const bool hasEnded = endDetached(folder);
        std::filesystem::remove_all(folder, error);
        if (hasEnded && !error)
            break;
        std::this_thread::sleep_for(betweenPasses);
    }
    _exit(0);
}

} // namespace

void ProgramGuard::begin(const QString &folder)
{
    int ends[2];
    if (socketpair(AF_UNIX, SOCK_SEQPACKET | SOCK_CLOEXEC, 0, ends) != 0)
        return;
    guardian = fork();
    if (guardian < 0) {
        close(ends[0]);
        close(ends[1]);
        return;
    }
    if (guardian == 0) {
        // Whatever ends this program must not end the guardian with it, and nobody may wait for
        // output from the guardian.
        setsid();
        for (const int number : {SIGINT, SIGTERM, SIGHUP})
            std::signal(number, SIG_IGN);
        close(ends[1]);
        for (const int stream : {0, 1, 2})
            close(stream);
        guard(ends[0], folder.toLocal8Bit().toStdString());
    }
    close(ends[0]);
    reports = ends[1];
}

void ProgramGuard::setVariable(const char *name, const QString &folder)
{
    qputenv(name, QFile::encodeName(folder));
}

ProgramGuard::~ProgramGuard()
{
    if (reports < 0)
        return;
    close(reports);
    reports = -1;
    waitpid(guardian, nullptr, 0);
}

struct ProcessTree::System
{
    pid_t group = 0;
};

ProcessTree::ProcessTree(QProcess &process)
    : m_process(process), m_system(std::make_unique<System>())
{
    m_process.setChildProcessModifier([] {
        setpgid(0, 0);
        report(getpid(), true);
    });
}

ProcessTree::~ProcessTree()
{
    end();
}

bool ProcessTree::start(const QStringList &command)
{
    m_process.start(command.first(), command.mid(1));
    // Also what cannot be started has reported itself by then, and is to be taken from the list.
    m_system->group = static_cast<pid_t>(m_process.processId());
    if (m_process.waitForStarted())
        return true;
    end();
    return false;
}

void ProcessTree::end()
{
    if (m_system->group <= 0)
        return;
    kill(-m_system->group, SIGKILL);
    report(m_system->group, false);
    m_system->group = 0;
}

} // namespace platform
