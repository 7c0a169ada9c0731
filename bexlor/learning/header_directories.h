#pragma once

#include "header_scan.h"

#include <QHash>
#include <QMap>
#include <QSet>

/// The directories that may be on a search path, in the order in which they were given, with the
/// names of the headers in each. A directory that has headers in its subdirectories only may be
/// searched as well, for names such as "sys/types.h".
class HeaderDirectories
{
public:
    HeaderDirectories(const QList<HeaderFile> &headers, bool isCpp);

    const QStringList &all() const { return m_order; }
    /// The directories that have a header called \a name.
    QStringList directoriesWith(const QString &name) const { return m_directories.value(name); }

    /// Some headers of \a directory, those that the fewest directories have.
    QStringList tellingHeaders(const QString &directory) const;

    /// Some headers that both directories have, in themselves or in subdirectories of the same
    /// name.
    QStringList commonHeaders(const QString &first, const QString &second) const;

private:
    void add(const QString &directory, const QString &name);
    void addAbove(const HeaderFile &header, const QSet<QString> &withOwnHeaders);

    QStringList m_order;
    QMap<QString, QStringList> m_names;
    QHash<QString, QStringList> m_directories; ///< of each name
};
