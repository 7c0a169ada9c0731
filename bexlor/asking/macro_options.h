#pragma once

#include <QStringList>
#include <optional>

/// An option that defines a macro or takes one back.
struct MacroOption
{
    QString definition;  ///< NAME or NAME=VALUE; only NAME of one that is taken back
    qsizetype words = 1; ///< of the command
};

/// The option that begins with the word \a index of \a words, a program and its options. Options
/// are those of the manuals of the GNU compilers, clang, cc65, sdcc, Arm and Microsoft, and
/// \a defineFlag, which may be empty.
std::optional<MacroOption> macroOptionAt(const QStringList &words, qsizetype index,
                                         const QString &defineFlag = {});
