#pragma once

#include "clang_program.h"
#include "compile_database.h"

#include <QHash>
#include <QSet>

/// Which options clang takes under a personality, which clang itself is asked.
class AcceptedOptions
{
public:
    /// \a personality is the whole path of the file, \a source that of an empty one.
    AcceptedOptions(const Clang &clang, const QString &personality, const QString &source);

    /// Those of the options of \a command that clang takes without a complaint in its directory:
    /// alone, or else with the first of the words behind it, which is its value then.
    QStringList of(const CompileCommand &command);

    /// The options that clang did not take so far, without their values, in alphabetical order.
    QStringList refused() const;

private:
    bool isTaken(const QStringList &option, const QString &directory);

    const Clang m_clang;
    const QString m_personality;
    const QString m_source;
    QHash<QStringList, bool> m_known; ///< of clang with an option, its paths absolute
    QSet<QString> m_refused;
};
