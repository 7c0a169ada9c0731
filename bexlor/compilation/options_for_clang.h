#pragma once

#include "accepted_options.h"
#include "command_differences.h"

/// What clang is told of compile commands behind a personality.
class OptionsForClang
{
public:
    OptionsForClang(const CommandDifferences &differences, const AcceptedOptions &accepted);

    /// What \a command says otherwise than the personality, then those of its own options that
    /// clang takes.
    QStringList of(const CompileCommand &command);

    /// How many of the commands so far have other types than the personality or another target, of
    /// which clang cannot be told, and what a personality should be made with instead; empty if
    /// there is none.
    QString remarkOnTypes() const;

private:
    CommandDifferences m_differences;
    AcceptedOptions m_accepted;
    QStringList m_ofOtherTypes;
};
