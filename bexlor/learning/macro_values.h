#pragma once

#include "facts.h"
#include "questions.h"

/// The macros \a names, which are all predefined, where no texts can be read back: integers from
/// their values, and names of types from declarations. Where the compiler confirms how a value is
/// written it is as it stands there, and else a constant of the same value and type.
MacroFacts learnMacrosByValues(const Questions &questions, const QList<QByteArray> &names);
