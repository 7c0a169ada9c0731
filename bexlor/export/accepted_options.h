#pragma once

#include "clang_program.h"

#include <QHash>

/// Which options clang takes under a personality, which clang itself is asked.
class AcceptedOptions
{
public:
    /// \a personality is the whole path of the file, \a source that of an empty one.
    AcceptedOptions(const Clang &clang, const QString &personality, const QString &source);

    /// Those of \a options, each with its value, that clang takes without a word in \a directory.
    QList<QStringList> of(const QList<QStringList> &options, const QString &directory);

    /// The options that clang did not take so far, without their values, in alphabetical order.
    QStringList refused() const;

private:
    bool takes(const QStringList &option, const QString &directory) const;

    const Clang m_clang;
    const QString m_personality;
    const QString m_source;
    QHash<QStringList, bool> m_known;
};
