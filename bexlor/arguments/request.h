#pragma once

#include "arguments.h"

#include <variant>

/// To say how the generator is called.
struct HelpRequest
{
};

/// To say which generator this is.
struct VersionRequest
{
};

/// What a command line asks for.
using Request = std::variant<UsageError, Arguments, HelpRequest, VersionRequest>;

/// The lines that say how the generator is called, without a line feed behind the last.
QString usage();

/// The same with what each argument means.
QString help();

/// Takes \a list, the command line without the program's name, apart: a command word with what it
/// asks for, or what parseArguments() takes.
Request parseRequest(const QStringList &list);
