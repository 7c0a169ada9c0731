#pragma once

#include "dialects.h"
#include "learning.h"

#include <optional>

/// The steps of a run. Each says on the standard output what it does and finds; one that returns
/// nothing, or false, has said why the run ends there.

/// Prints \a line on the standard output at once.
void say(const QString &line);

/// Removes what an earlier run has left, which would be taken for this one's.
void removeLogs();

/// Whether the files that the user names can be used.
bool checkFiles(const Arguments &arguments);

/// What the compiler says to a probe that any compiler accepts. Leaves the logs.
std::optional<ProbeAnswer> compileFirstProbe(const ProbeRunner &runner);

/// What the compiler lists of itself; \a first may have told its version. \a folder is for the
/// source that it is given.
DialectAnswers askForListings(const Compiler &compiler, const ProbeAnswer &first,
                              const QString &folder);

/// The names below the directories that the user has given.
HeaderScan readDirectories(const QStringList &directories);

/// The predefined macros: those \a listed or, if there are none, those that can be found by their
/// names.
std::optional<MacroFacts> findMacros(const ProbeRunner &runner, const Questions &questions,
                                     const QList<Macro> &listed, const QList<ScannedName> &names);

TypeFacts measureTypes(const Questions &questions);

QList<Keyword> findKeywords(const Questions &questions, const HeaderScan &scan, const Facts &known);

/// The search path: the one \a listed or, if it is empty, what can be found of it.
SearchPath findSearchPath(const Questions &questions, const SearchPath &listed,
                          const HeaderScan &scan);

/// Whether the first probe still compiles: a compiler that has stopped working, for want of a
/// license or of room on the disk, would be taken for one that rejects everything.
bool worksStill(const ProbeRunner &runner);

/// Writes the personality of the compiler of \a facts to where the user wants it.
bool writePersonality(const Arguments &arguments, const Compiler &compiler, const Facts &facts);
