#include "stand_in_system.h"

#include <cstdlib>
#include <unistd.h>

std::vector<std::string> utf8Arguments(int argc, char *argv[])
{
    return {argv + 1, argv + argc};
}

void writeBytes() { }

void startAgain(const std::string &instructions)
{
    if (fork() != 0)
        return;
    setenv("STAND_IN", instructions.c_str(), 1);
    execl("/proc/self/exe", "child", nullptr);
    _exit(127);
}

bool showsConsole()
{
    return false;
}

void crash()
{
    std::abort();
}
