#pragma once

#include <string>
#include <vector>

/// The arguments of main in UTF-8, without the program's name.
std::vector<std::string> utf8Arguments(int argc, char *argv[]);

/// Lets the standard output take every byte as it is from now on.
void writeBytes();

/// Starts this program once more with \a instructions in the variable STAND_IN.
void startAgain(const std::string &instructions);

/// Whether a window shows the console of this program.
bool showsConsole();

/// Ends this program as a wrong access to memory does.
[[noreturn]] void crash();
