#pragma once

#include <string>
#include <vector>

/// The arguments of main in UTF-8, without the program's name.
std::vector<std::string> utf8Arguments(int argc, char *argv[]);

/// Lets the standard output take every byte as it is from now on.
void writeBytes();

enum class Belonging { Child, Detached };

/// Starts this program once more with \a instructions in the variable STAND_IN, as its child or in
/// a session, or without a console, that it has left.
void startAgain(const std::string &instructions, Belonging belonging);

/// Whether a window shows the console of this program.
bool showsConsole();

/// Ends this program as a wrong access to memory does.
[[noreturn]] void crash();
