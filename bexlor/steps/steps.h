#pragma once

#include "dialects.h"
#include "learning.h"
#include "progress.h"

#include <optional>

/// The steps of a run. Each tells \a progress what it does, how far it is and what it finds; one
/// that returns nothing, or false, has said why the run ends there.

/// Removes what an earlier run has left, which would be taken for this one's.
void removeLogs();

/// \a arguments without the header directories that cannot be used. Nothing when they are refused
/// or the files that they name cannot be used. Says first which files are used that no page shows.
std::optional<Arguments> checkArguments(Progress &progress, const Arguments &arguments);

/// Whether the personality \a path can be written.
bool checkDestination(Progress &progress, const QString &path);

/// What the compiler says to a probe that any compiler accepts. Leaves the logs in \a logFolder.
std::optional<ProbeAnswer> compileFirstProbe(Progress &progress, ProbeRunner &runner,
                                             const QString &logFolder);

/// Whether \a compiler takes the files that its command includes first, which no other probe does:
/// clang is to include them, too. \a folder is for temporary files; leaves the logs in \a logFolder
/// if it does not.
bool compileIncludedFiles(Progress &progress, const Compiler &compiler, const QString &folder,
                          const QString &logFolder);

/// Whether the answers of \a runner's compiler, \a first being that to the first probe, can be
/// trusted as far as is needed: it must reject what is no C.
bool checkControls(Progress &progress, ProbeRunner &runner, const ProbeAnswer &first);

/// Writes an empty source into \a folder, and returns its path.
std::optional<QString> writeEmptySource(Progress &progress, const QString &folder, bool isCpp);

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

TypeFacts measureTypes(Progress &progress, const Questions &questions);

QList<Keyword> findKeywords(Progress &progress, const Questions &questions, const HeaderScan &scan,
                            const Facts &known);

/// What the compiler accepts though newer clang does not; see learnLeniencies().
QList<QByteArray> findLeniencies(Progress &progress, const Questions &questions);

/// The search path: the one \a listed or, if there is none, what can be found of it.
SearchPath findSearchPath(Progress &progress, const Questions &questions,
                          const std::optional<SearchPath> &listed, const HeaderScan &scan);

/// Whether the first probe still compiles: a compiler that has stopped working, for want of a
/// license or of room on the disk, would be taken for one that rejects everything. Leaves the logs
/// in \a logFolder then.
bool worksStill(Progress &progress, const ProbeRunner &runner, const QString &logFolder);

/// Whether \a facts hold the types, and the search path is not one that the compiler has and that
/// is lacking: without them clang would read code as if it were for another compiler.
bool checkCompleteness(Progress &progress, const Facts &facts, bool lacksSearchPath);

/// The text of the personality of the compiler of \a facts. Says what clang cannot be told of it.
/// Nothing when the template can no longer be read.
std::optional<QByteArray> textOfPersonality(Progress &progress, const Arguments &arguments,
                                            const Compiler &compiler, const Facts &facts);

/// Writes the personality \a text to \a path, over one that has been there before, and says how
/// clang and clang-tidy take it.
bool writePersonality(Progress &progress, const QString &path, const QByteArray &text);
