#pragma once

#include "answers.h"
#include "compiler_catalogue.h"

/// Puts what \a record says into the answers.
void applyRecord(const CompilerRecord &record, Answers &answers);

/// Takes the answers that the pages show over into \a record. Its name and family and the files
/// that belong to it stay.
void updateRecord(CompilerRecord &record, const Answers &answers);

/// A record of all that the answers say of the compiler.
CompilerRecord recordFrom(const Answers &answers);

/// Empties what a chosen compiler has filled in, for a product that it is not for.
void resetCompiler(Answers &answers);
