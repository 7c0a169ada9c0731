#pragma once

#include "order_tokens.h"

#include <QString>
#include <QStringList>
#include <variant>

/// How a compile command is put together.
struct CommandLayout
{
    QString outputFlag; ///< empty if the compiler needs none, like the next two
    QString objectFlag;
    QString defineFlag;
    QString objectExtension; ///< with its dot, or empty
    QList<OrderToken> order;
};

/// A command line, and the folder that relative paths in it start from.
struct CommandLine
{
    QString directory;
    QStringList arguments; ///< without the program's name

    bool operator==(const CommandLine &) const = default;
};

/// What the generator has been asked for: its command line, taken apart. Paths are the host's.
struct Arguments
{
    bool isCpp = false; ///< the personality is for the C++ product
    bool crossCompiler = false;
    QString command; ///< the compiler command as it was passed, quotes included
    CommandLayout layout;
    QString order; ///< of the layout, as it was passed
    QStringList headerDirectories;
    QString personality; ///< path of the file to write
    QStringList defines; ///< NAME or NAME=VALUE; without a define flag, also -DNAME and the like
    QStringList switches;
    QString templateFile; ///< empty if there is none, like the next two
    QString forceIncludeFile;
    QString substituteHeaders;
    bool reduceFileSize = false;
    bool checksTypes = false; ///< by a source beside the personality
    CommandLine answers; ///< the list that all this was taken from, with an empty text as the path
                         ///< of the personality
};

/// Whether \a define is a word by itself, "-DNAME" or "/DNAME".
bool bringsOwnFlag(const QString &define);

/// Why a command line is not one that usage() allows: a sentence that names the argument.
struct UsageError
{
    QString sentence;
};

/// Takes \a list, the answers of the wizard, apart.
std::variant<UsageError, Arguments> parseArguments(const QStringList &list);
