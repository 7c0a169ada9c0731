// A library that stands before that of the system. It is linked to the program that tries saves,
// and loaded before the generator: there the variables FAULT_CALL and FAULT_ERROR say what
// beginFault() is told, FAULT_PROGRAM in which program, and FAULT_MARK names a file that is made
// when the call fails.
#include "faulty_calls.h"

#include <atomic>
#include <cerrno>
#include <csignal>
#include <cstdarg>
#include <cstdlib>
#include <cstring>
#include <dlfcn.h>
#include <fcntl.h>
#include <sys/stat.h>
#include <sys/syscall.h>
#include <unistd.h>

namespace {

int faultyCall = 0, faultyError = 0;
std::atomic<bool> failed = false;
std::atomic<int> calls = 0;
pid_t owner = 0; // a process that it forks has calls of its own

enum class Change { None, OfDisk };

bool lasts(int error)
{
    return error == ENOSPC || error == EDQUOT || error == EROFS;
}

void leaveMark()
{
    if (const char *mark = getenv("FAULT_MARK"))
        syscall(SYS_close, syscall(SYS_openat, AT_FDCWD, mark, O_CREAT | O_WRONLY, 0600));
}

/// Whether the call that begins here is to fail; errno is set then.
bool fails(Change change)
{
    if (getpid() != owner)
        return false;
    const bool isMeant = ++calls == faultyCall;
    const bool isAfter = failed && lasts(faultyError) && change == Change::OfDisk;
    if (!isMeant && !isAfter)
        return false;
    if (!failed.exchange(true))
        leaveMark();
    if (faultyError == killHere)
        kill(getpid(), SIGKILL);
    errno = faultyError;
    return faultyError > 0 && (change == Change::OfDisk || !lasts(faultyError));
}

/// Pipes and terminals know no full disk.
bool isFile(int file)
{
    struct stat status
    {
    };
    return fstat(file, &status) == 0 && S_ISREG(status.st_mode);
}

template <typename Function>
Function *real(Function *, const char *name)
{
    return reinterpret_cast<Function *>(dlsym(RTLD_NEXT, name));
}

[[gnu::constructor]] void obeyTheEnvironment()
{
    const char *program = getenv("FAULT_PROGRAM"), *call = getenv("FAULT_CALL"),
               *error = getenv("FAULT_ERROR");
    if (program && call && error && std::strcmp(program, program_invocation_short_name) == 0)
        beginFault(std::atoi(call), std::atoi(error));
}

mode_t modeOf(int flags, va_list arguments)
{
    return flags & (O_CREAT | O_TMPFILE) ? va_arg(arguments, mode_t) : 0;
}

Change changeBy(int flags)
{
    return flags & (O_CREAT | O_TRUNC) ? Change::OfDisk : Change::None;
}

} // namespace

// The rest of a name's call follows from its parameters.
#define FAULTY(name, change, parameters, arguments)                                                \
    extern "C" int name parameters                                                                 \
    {                                                                                              \
        return fails(change) ? -1 : real(&name, #name) arguments;                                  \
    }

FAULTY(fsync, Change::OfDisk, (int file), (file))
FAULTY(fdatasync, Change::OfDisk, (int file), (file))
FAULTY(fchmod, Change::OfDisk, (int file, mode_t mode), (file, mode))
FAULTY(fchown, Change::OfDisk, (int file, uid_t user, gid_t group), (file, user, group))
FAULTY(ftruncate64, Change::OfDisk, (int file, off64_t size), (file, size))
FAULTY(rename, Change::OfDisk, (const char *from, const char *to), (from, to))
FAULTY(link, Change::OfDisk, (const char *from, const char *to), (from, to))
FAULTY(unlink, Change::None, (const char *path), (path))
FAULTY(mkdir, Change::OfDisk, (const char *path, mode_t mode), (path, mode))

#define FAULTY_OPEN(name, parameters, ...)                                                         \
    extern "C" int name parameters                                                                 \
    {                                                                                              \
        va_list list;                                                                              \
        va_start(list, flags);                                                                     \
        const mode_t mode = modeOf(flags, list);                                                   \
        va_end(list);                                                                              \
        return fails(changeBy(flags)) ? -1 : real(&name, #name)(__VA_ARGS__, flags, mode);         \
    }

FAULTY_OPEN(open, (const char *path, int flags, ...), path)
FAULTY_OPEN(open64, (const char *path, int flags, ...), path)
FAULTY_OPEN(openat, (int folder, const char *path, int flags, ...), folder, path)

extern "C" ssize_t read(int file, void *bytes, std::size_t size)
{
    return isFile(file) && fails(Change::None) ? -1 : real(&read, "read")(file, bytes, size);
}

extern "C" ssize_t write(int file, const void *bytes, std::size_t size)
{
    const bool isBefore = calls < faultyCall;
    if (isFile(file) && fails(Change::OfDisk))
        return -1;
    const bool isShort = faultyError == writeLess && isBefore && calls >= faultyCall;
    return real(&write, "write")(file, bytes, isShort && size > 1 ? size / 2 : size);
}

void beginFault(int call, int error)
{
    faultyCall = call;
    faultyError = error;
    calls = 0;
    failed = false;
    owner = getpid();
}

bool hasFaulted()
{
    return failed;
}
