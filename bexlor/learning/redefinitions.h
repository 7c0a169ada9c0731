#pragma once

#include "facts.h"
#include "questions.h"

/// Definitions that a compiler confirms: it accepts that of a macro again where it is the same, and
/// has something to say about another one.

/// Which of \a macros the compiler has with exactly that definition. Nothing when it does not mind
/// another one.
std::optional<QList<bool>> confirmed(const Questions &questions, const QList<Macro> &macros);

/// A macro, and the definitions that it may have, the likeliest first.
struct OpenMacro
{
    QByteArray name;
    QList<Macro> definitions;
    std::optional<Macro> otherwise; ///< with the same meaning, where none is confirmed
};

/// The macros \a open, each with the first definition that the compiler confirms.
MacroFacts firstConfirmed(const Questions &questions, const QList<OpenMacro> &open);
