#pragma once

#include "facts.h"
#include "program_run.h"

#include <functional>

/// Runs \a command, a program and its arguments.
using RunCommand = std::function<platform::ProgramRun(const QStringList &command)>;

/// What a compiler is given for one such question, in milliseconds.
constexpr int listingTimeLimit = 30'000;

/// What a compiler lists of itself; empty where it lists nothing. A search path without directories
/// is an answer, too: options can have a compiler search nowhere.
struct DialectAnswers
{
    QList<Macro> macros;
    std::optional<SearchPath> searchPath;
    QByteArray versionLine;
};

/// Asks the compiler that \a command starts in the ways of several families, until it has answered
/// or none is left; one that fails is asked the same once more. \a known is not asked for.
/// \a source is an empty source file.
DialectAnswers askInDialects(const RunCommand &run, const QStringList &command,
                             const QString &source, const DialectAnswers &known = {});

/// The macros alone, asked for in the same ways.
QList<Macro> askForMacros(const RunCommand &run, const QStringList &command, const QString &source);

/// The directories that \a command names behind -I, as Microsoft's compiler also /I, or behind the
/// long names of cc65 and the GNU compilers, in one word with it or in the next; links in them are
/// followed.
QStringList includeDirectories(const QStringList &command);

/// The macros of a listing as preprocessors print it under -dM: lines "#define NAME VALUE". tcc
/// also lists what its options take back, "#undef NAME", or define anew.
QList<Macro> macrosIn(const QByteArray &listing);

/// The directories in the lines behind \a heading, which is a whole line of \a listing, up to the
/// next heading: a line that ends with a colon, or that begins with "End of". Links in them are
/// followed. Those that do not exist are left out, unless none does: then the compiler runs where
/// other files are.
QStringList directoriesBehind(const QByteArray &heading, const QByteArray &listing);

/// The line of \a banner that looks like a name with a version, or an empty text.
QByteArray versionLineIn(const QByteArray &banner);
