#pragma once

#include "arguments.h"

#include <variant>

// What a command line may ask for. Paths are the host's, and whole where another working directory
// is entered before they are used.

/// The clang that is meant where none is named.
inline constexpr QLatin1StringView usualClang("clang");

/// To generate a personality once more.
struct AgainRequest
{
    QString personality;
    bool verifiesOnly = false; ///< and to write nothing, but tell what has changed
};

/// To generate the personality of a compiler of the catalogue.
struct EntryRequest
{
    QString name; ///< of the compiler, alone or behind its family and a slash
    QString catalogue;
    QString personality;
};

/// To check whether clang sees code as the compiler of a personality does.
struct CheckRequest
{
    QString personality;
    QStringList sources; ///< files and, called .json, compilation databases
    QString preprocess;  ///< the option that makes the compiler preprocess
    QString clang;       ///< a program's name or path
    QString jsonFile;    ///< to write the verdicts to, or empty
};

/// To write a personality in the form that another program reads.
struct ExportRequest
{
    enum Format { CompileCommands, Clangd, Cppcheck, VsCode, Json };
    QString personality;
    Format format = Json;
    QString database; ///< a compilation database, or empty
    QString output;   ///< the file to write; empty for the standard output
    QString clang;    ///< as above
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
using Request = std::variant<UsageError, Arguments, AgainRequest, EntryRequest, CheckRequest,
                             ExportRequest, HelpRequest, VersionRequest>;

/// The lines that say how the generator is called, without a line feed behind the last.
QString usage();

/// The same with what each argument means.
QString help();

/// Takes \a list, the command line without the program's name, apart: a command word with what it
/// asks for, or what parseArguments() takes.
Request parseRequest(const QStringList &list);
