#include "stand_in_system.h"

#include <cstdio>
#include <cstdlib>
#include <fcntl.h>
#include <io.h>
#include <windows.h>

#include <shellapi.h> // needs the types of the header above

namespace {

std::string utf8(const wchar_t *text)
{
    std::string converted(3 * std::char_traits<wchar_t>::length(text) + 1, '\0');
    const int size = WideCharToMultiByte(CP_UTF8, 0, text, -1, converted.data(),
                                         static_cast<int>(converted.size()), nullptr, nullptr);
    converted.resize(static_cast<std::size_t>(size) - 1);
    return converted;
}

} // namespace

std::vector<std::string> utf8Arguments(int, char *[])
{
    int count = 0;
    wchar_t **words = CommandLineToArgvW(GetCommandLineW(), &count);
    std::vector<std::string> arguments;
    for (int i = 1; i < count; ++i)
        arguments.push_back(utf8(words[i]));
    LocalFree(words);
    return arguments;
}

void writeBytes()
{
    _setmode(_fileno(stdout), _O_BINARY);
}

void startAgain(const std::string &instructions, Belonging belonging)
{
    wchar_t program[MAX_PATH];
    GetModuleFileNameW(nullptr, program, MAX_PATH);
    SetEnvironmentVariableA("STAND_IN", instructions.c_str());
    STARTUPINFOW startup {};
    startup.cb = sizeof startup;
    PROCESS_INFORMATION process {};
    const DWORD flags = belonging == Belonging::Detached ? DETACHED_PROCESS : 0;
    if (CreateProcessW(program, nullptr, nullptr, nullptr, TRUE, flags, nullptr, nullptr, &startup,
                       &process)) {
        CloseHandle(process.hThread);
        CloseHandle(process.hProcess);
    }
}

bool showsConsole()
{
    return IsWindowVisible(GetConsoleWindow());
}

void crash()
{
    // Without the system's window that reports it.
    TerminateProcess(GetCurrentProcess(), STATUS_ACCESS_VIOLATION);
    std::abort();
}
