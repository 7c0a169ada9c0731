#pragma once

#include "arguments.h"

#include <variant>

/// To generate a personality once more.
struct AgainRequest
{
    QString personality;       ///< the host's path
    bool verifiesOnly = false; ///< and to write nothing, but tell what has changed
};

/// To check whether clang sees code as the compiler of a personality does.
struct CheckRequest
{
    QString personality; ///< the host's path, like all others
    QStringList sources; ///< files, or one compilation database
    QString preprocess;  ///< the option that makes the compiler preprocess
    QString jsonFile;    ///< to write the verdicts to, or empty

    bool isDatabase() const;
};

/// To say how the generator is called.
struct HelpRequest
{
};

/// To say which generator this is.
struct VersionRequest
{
};

/// What a command line asks for.
using Request =
    std::variant<UsageError, Arguments, AgainRequest, CheckRequest, HelpRequest, VersionRequest>;

/// The lines that say how the generator is called, without a line feed behind the last.
QString usage();

/// The same with what each argument means.
QString help();

/// Takes \a list, the command line without the program's name, apart: a command word with what it
/// asks for, or what parseArguments() takes.
Request parseRequest(const QStringList &list);
