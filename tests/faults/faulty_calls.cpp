// A library that stands before that of the system. It is linked to the program that tries saves,
// and loaded before the generator and the compilers that it starts: there the variables FAULT_CALL
// and FAULT_ERROR say what beginFault() is told, FAULT_PROGRAM in which program, and FAULT_COUNT
// names the file that holds the number of calls of all its processes so far, as an int.
#include "faulty_calls.h"

#include <atomic>
#include <cerrno>
#include <csignal>
#include <cstdarg>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <dlfcn.h>
#include <fcntl.h>
#include <stdio_ext.h>
#include <sys/mman.h>
#include <sys/stat.h>
#include <unistd.h>

namespace {

using Counter = std::atomic<int>;

int faultyCall = 0, faultyError = 0;
Counter ownCalls = 0;
Counter *calls = &ownCalls;
pid_t owner = 0; // a process that it forks has calls of its own

enum class Change { None, OfDisk };

bool lasts(int error)
{
    return error == ENOSPC || error == EDQUOT || error == EROFS;
}

/// Whether the call that begins here is to fail; errno is set then.
bool fails(Change change)
{
    if (getpid() != owner)
        return false;
    const int call = ++*calls;
    const bool isAfter = call > faultyCall && lasts(faultyError) && change == Change::OfDisk;
    if (call != faultyCall && !isAfter)
        return false;
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
    const char *program = getenv("FAULT_PROGRAM");
    if (!program || std::strcmp(program, program_invocation_short_name) != 0)
        return;
    const int file = open(getenv("FAULT_COUNT"), O_RDWR | O_CREAT, 0600);
    if (ftruncate(file, sizeof(Counter)) != 0)
        std::abort();
    calls = static_cast<Counter *>(
        mmap(nullptr, sizeof(Counter), PROT_READ | PROT_WRITE, MAP_SHARED, file, 0));
    close(file);
    beginFault(std::atoi(getenv("FAULT_CALL")), std::atoi(getenv("FAULT_ERROR")));
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
    // Whether a file may be read is asked when it is opened.
    const bool canFail = isFile(file) && faultyError != EACCES;
    return canFail && fails(Change::None) ? -1 : real(&read, "read")(file, bytes, size);
}

extern "C" ssize_t write(int file, const void *bytes, std::size_t size)
{
    const bool isBefore = *calls < faultyCall;
    if (isFile(file) && fails(Change::OfDisk))
        return -1;
    const bool isShort = faultyError == writeLess && isBefore && *calls >= faultyCall;
    return real(&write, "write")(file, bytes, isShort && size > 1 ? size / 2 : size);
}

/// What waits in the buffer is written by the system's library itself.
extern "C" int fclose(FILE *stream)
{
    if (!__fwriting(stream) || !isFile(fileno(stream)) || !fails(Change::OfDisk))
        return real(&fclose, "fclose")(stream);
    __fpurge(stream);
    real(&fclose, "fclose")(stream);
    errno = faultyError;
    return EOF;
}

void beginFault(int call, int error)
{
    faultyCall = call;
    faultyError = error;
    owner = getpid();
}

bool hasFaulted()
{
    return *calls >= faultyCall;
}
