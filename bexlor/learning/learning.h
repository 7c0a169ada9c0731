#pragma once

#include "facts.h"
#include "header_scan.h"
#include "questions.h"

/// What can be learned of a compiler by compiling probes alone. Each function returns what it has
/// found, and is given what it needs of what was found before.

/// The names that may be predefined macros: those of \a names and the well-known ones.
QList<QByteArray> macroCandidates(const QList<ScannedName> &names);

/// The predefined macros among \a candidates with their values. Those whose definition cannot be
/// found out with certainty are listed as undetermined.
MacroFacts learnMacros(const Questions &questions, const QList<QByteArray> &candidates);

/// The basic types, the signedness of char, the byte order and the types behind the standard
/// headers' type names.
TypeFacts learnTypes(const Questions &questions);

/// The keywords among \a names and the well-known ones that are no standard keywords and no
/// \a macros, with stand-ins from \a types, in alphabetical order. Those \a settled, of which it is
/// enough to know that they are there, are not tried behind functions, where each form needs a
/// probe.
QList<Keyword> learnKeywords(const Questions &questions, const QList<ScannedName> &names,
                             const MacroFacts &macros, const TypeFacts &types,
                             const QList<QByteArray> &settled = {});

/// The attributes, of some that clang does not have, that the compiler takes without a message;
/// none where it does not report unknown ones.
QList<QByteArray> learnAttributes(const Questions &questions);

/// What the compiler accepts though newer clang does not: the names of clang's warnings that are
/// errors there.
QList<QByteArray> learnLeniencies(const Questions &questions);

/// Which directories with \a headers the compiler searches by itself, in its order.
QStringList learnSearchPath(const Questions &questions, const QList<HeaderFile> &headers);

/// Whether the compiler finds standard headers, so that it does search directories.
bool includesStandardHeaders(const Questions &questions);
