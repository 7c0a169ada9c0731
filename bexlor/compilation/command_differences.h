#pragma once

#include "compile_database.h"
#include "compiler.h"
#include "personality.h"

#include <QHash>

/// What a personality does not say of a compile command, whose options are others than those that
/// it has been made with.
struct CommandDifference
{
    /// Options of clang that say it behind the personality: macros, and the version of the language
    QStringList options;
    /// The program and its options, without those that change neither the types nor the target, if
    /// either is another: no option behind the personality makes up for that.
    QString otherTypes;
};

/// The differences that the options of compile commands make, for which compilers that list their
/// macros are asked, once for each set of options.
class CommandDifferences
{
public:
    /// \a compiler is that of \a personality. The compilers are asked about the empty file \a
    /// source, in its folder.
    CommandDifferences(const Personality &personality, const Compiler &compiler,
                       const QString &source);

    /// The difference that the options of \a command make: none where they are the compiler's own,
    /// where nothing is answered, or where another compiler is started, whose headers clang does
    /// not get either.
    CommandDifference of(const CompileCommand &command);

private:
    QList<Macro> macrosUnder(const QStringList &command);
    /// Whether \a program, with the personality's options, is such a compiler as the personality's.
    bool isLikeOwn(const QStringList &program);
    CommandDifference differenceUnder(const QStringList &words);

    const Personality m_personality;
    const Compiler m_compiler;
    const QString m_source;
    QStringList m_switches;   ///< the words of those that decide macros
    QStringList m_ownOptions; ///< the same of the compiler's command, without those
    QHash<QStringList, CommandDifference> m_known; ///< of the words that decide macros
    QHash<QStringList, bool> m_areLikeOwn;         ///< by the program that is started
    bool m_isTooSlow = false;                      ///< one has not answered in time
};
