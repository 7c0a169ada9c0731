#pragma once

#include "experiment.h"
#include "facts.h"
#include "names.h"

/// What can be learned of a compiler by compiling probes alone. Each function adds what it finds to
/// the facts and needs those that the functions before it have added.

/// The predefined macros among \a names and the well-known ones, with their values. Those whose
/// definition cannot be found out with certainty are listed as undetermined.
void learnMacros(const Experiment &experiment, const QList<Name> &names, Facts &facts);

/// The basic types, the signedness of char, the byte order and the types behind the standard
/// headers' type names.
void learnTypes(const Experiment &experiment, Facts &facts);

/// The keywords among \a names and the well-known ones that are no standard keywords.
void learnKeywords(const Experiment &experiment, const QList<Name> &names, Facts &facts);

/// Which directories with \a headers the compiler searches by itself, and in which order.
void learnSearchPath(const Experiment &experiment, const QList<HeaderFile> &headers, Facts &facts);
