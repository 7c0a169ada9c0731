#pragma once

#include "compiler.h"

#include <optional>

/// A source file, and how it is compiled.
struct CheckedSource
{
    QString file;             ///< as the user or the database names it
    QString directory;        ///< in which it is compiled
    QStringList command;      ///< of the compiler; writes only \a output, if anything
    QString output;           ///< empty if the command names none
    QStringList bareCommand;  ///< the same without what names the output and asks for an object
    QStringList clangOptions; ///< those of the command that clang is given, too, and the file
};

/// How \a compiler, with the options that it always gets, compiles \a file, an absolute path, in
/// \a folder. Its output is called by \a number there.
CheckedSource sourceOfFile(const Compiler &compiler, const QString &file, const QString &folder,
                           qsizetype number = 0);

/// The sources of a compilation database, "compile_commands.json" as clang's manual describes it,
/// that are in the language of \a compiler. The flags of \a compiler tell where an entry names its
/// output, which becomes a file in \a folder. Nothing if \a json is no such database.
std::optional<QList<CheckedSource>>
sourcesOfDatabase(const QByteArray &json, const Compiler &compiler, const QString &folder);

/// The words of a command in a database: apart at white space outside quotes, where a backslash
/// makes a quote, a space or a backslash behind it literal.
QStringList databaseWords(const QString &command);
