#pragma once

#include "facts.h"

#include <optional>

/// What a template, a file of options for clang, says; its text may be empty.

/// The words of \a templateText, as clang reads a configuration file.
QList<QByteArray> templateWords(const QByteArray &templateText);

/// A macro that is defined, or without a value taken back.
struct MacroChange
{
    QByteArray name; ///< with the parameters of one like a function
    std::optional<QByteArray> value;

    bool concerns(const Macro &macro) const;
};

/// The macros that \a templateText defines and takes back, in its order.
QList<MacroChange> macroChanges(const QByteArray &templateText);

/// \a macros as they are behind \a templateText.
QList<Macro> changedMacros(const QList<Macro> &macros, const QByteArray &templateText);
