#pragma once

#include "facts.h"
#include "questions.h"

/// Gives each of \a keywords that stands for a type a standard type of the same kind and size for a
/// stand-in, one of \a types or the type of truth values: whole numbers, floating-point numbers and
/// single bits are kinds of their own, and so is what is volatile by itself. What is of another
/// kind, or of one that cannot be found out, gets none.
void addStandIns(const Questions &questions, const TypeFacts &types, QList<Keyword> &keywords);
