#pragma once

#include "compile_database.h"
#include "compiler.h"

/// A source file, and how it is compiled.
struct CheckedSource
{
    QString file;        ///< as it is shown
    QString directory;   ///< in which it is compiled
    QStringList command; ///< of the compiler; writes only \a output, or into a folder of its own
    QString output;      ///< empty if the command names none
    QStringList clangOptions; ///< those of the command that clang is given, too, and the file
    QString path;             ///< of the file, absolute
    QString compiled;         ///< what the compiler is given: the same, or a file that includes it
};

/// How \a compiler, with the options that it always gets, compiles \a file, an absolute path, in
/// \a folder. Its output is called by \a number there. One that cannot be told what to write
/// compiles a file that includes \a file, in a folder of that name: some write beside the source.
CheckedSource sourceOfFile(const Compiler &compiler, const QString &file, const QString &folder,
                           qsizetype number);

/// The source of an entry of a database, which \a compiler's layout tells how to read, and for
/// which clang is given \a clangOptions; the rest as above. It is compiled where the entry says, if
/// its output can be kept out of there.
CheckedSource sourceOfEntry(const CompileCommand &entry, const Compiler &compiler,
                            const QStringList &clangOptions, const QString &folder,
                            qsizetype number);
