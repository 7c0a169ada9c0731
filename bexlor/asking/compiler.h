#pragma once

#include "arguments.h"

#include <optional>

/// A file that the command has included first, by the GNU compilers' -include or -imacros, sdcc's
/// --include, Arm's and IAR's --preinclude or Microsoft's /FI.
struct IncludedFile
{
    QStringList words; ///< of the command
    QString option;    ///< that clang has for it
    QString file;
};

/// The user's compiler, ready to be started: from the same command line everything about it is
/// asked.
struct Compiler
{
    /// The program's path, its options, and the switches; see withoutOtherPurposes() and
    /// withAbsolutePaths().
    QStringList command;
    /// Kept out of the command: the macros of those files are not predefined.
    QList<IncludedFile> includedFirst;
    CommandLayout layout;
    QStringList defines; ///< those of the arguments that the command can name
    bool isCpp = false;
    bool isCross = false;
    bool namesObjects = true; ///< in the command; some compilers let only a program be named
};

/// What the word \a index of \a words, with the next one if it needs that, has included first.
std::optional<IncludedFile> includedFileAt(const QStringList &words, qsizetype index);

/// Those of the defines of \a arguments that no command can name: without a define flag each would
/// be taken for a file, but for one that brings its own.
QStringList unnamedDefines(const Arguments &arguments);

/// The compiler of \a arguments, its program found where the wizard finds it too. When there is no
/// such program the first word stays as it was typed.
Compiler findCompiler(const Arguments &arguments);

/// \a compiler with the files that its command includes first in the command.
Compiler withIncludedFiles(Compiler compiler);

/// The command of \a compiler with its defines as the GNU compilers, and those like them, take
/// them: what a question begins with that is no compilation.
QStringList commandWithDefines(const Compiler &compiler);

/// Whether the command that compiles a source to an object says how that is called.
bool namesOutput(const Compiler &compiler);

/// What a compile command makes of a source file.
enum class CompileTo { Object, Program };

/// The command that compiles \a source, in the compiler's order. Where it names an output, that is
/// \a output. A token without a trailing space is joined to the next one: "-o" and "probe.o" become
/// "-oprobe.o". An output flag that is empty leaves out the output's name too; for a program the
/// object flag is left out, and for an object its name where the compiler does not take one.
QStringList probeCommand(const Compiler &compiler, const QString &source, const QString &output,
                         CompileTo goal = CompileTo::Object);
