#pragma once

#include "dialects.h"
#include "learning.h"
#include "progress.h"

#include <optional>

/// The steps that learn the facts. Each tells \a progress what it does, how far it is and what it
/// finds; one that returns nothing, or false, has said why the run ends there.

/// What the compiler lists of itself; \a first may have told its version. \a folder is for the
/// source that it is given.
std::optional<DialectAnswers> askForListings(Progress &progress, const Compiler &compiler,
                                             const ProbeAnswer &first, const QString &folder);

/// The directories that the compiler searches of those that lie beside its program, or that its
/// file names. For a user who has named none.
QStringList findDirectoriesBeside(Progress &progress, const Questions &questions);

/// The names below \a directories.
HeaderScan readDirectories(Progress &progress, const QStringList &directories);

/// How \a runner's compiler answers larger questions.
Questions findHowToAsk(Progress &progress, const ProbeRunner &runner);

/// The predefined macros: those \a listed or, if there are none, those that can be found by their
/// names. Nothing when they are those of another language, too. \a logFolder as for worksStill().
std::optional<MacroFacts> findMacros(Progress &progress, const Questions &questions,
                                     const QList<Macro> &listed, const QList<ScannedName> &names,
                                     const QString &logFolder);

/// What can be read back of the types; nothing where no number can.
TypeFacts measureTypes(Progress &progress, const Questions &questions);

/// The keywords among the names of \a scan and the well-known ones, of a compiler of which the
/// macros and types are \a known. Says what of them clang cannot be told.
QList<Keyword> findKeywords(Progress &progress, const Questions &questions, const HeaderScan &scan,
                            const Facts &known);

/// The attributes that the compiler has and clang has not.
QList<QByteArray> findAttributes(Progress &progress, const Questions &questions);

/// What the compiler accepts though newer clang does not; see learnLeniencies().
QList<QByteArray> findLeniencies(Progress &progress, const Questions &questions);

/// The search path: the one \a listed or, if there is none, what can be found of it.
SearchPath findSearchPath(Progress &progress, const Questions &questions,
                          const std::optional<SearchPath> &listed, const HeaderScan &scan);

/// Whether \a facts hold the types, and the search path is not one that the compiler has and that
/// is lacking: without them clang would read code as if it were for another compiler.
bool checkCompleteness(Progress &progress, const Facts &facts, bool lacksSearchPath);
