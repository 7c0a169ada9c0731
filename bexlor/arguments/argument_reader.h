#pragma once

#include "arguments.h"

/// Walks along a list of arguments; every take fails once one has failed.
class ArgumentReader
{
public:
    /// \a list must outlive this.
    explicit ArgumentReader(const QStringList &list) : m_list(list) { }

    /// The next argument.
    QString value();
    /// The same as the host's path.
    QString path();
    /// The same as a path that does not depend on the working directory.
    QString wholePath();
    /// The same for a program: a path is made whole, a name that is looked for stays.
    QString program();
    /// Whether the next argument is \a flag, which is then passed.
    bool flag(QLatin1StringView flag);
    /// One of two words; true for the second.
    bool either(QLatin1StringView first, QLatin1StringView second);
    /// Passes \a flag, which must come next.
    void expect(QLatin1StringView flag) { m_failed |= !this->flag(flag); }

    /// How many arguments have been taken.
    qsizetype taken() const { return m_next; }
    bool isAtEnd() const { return m_failed || m_next == m_list.size(); }
    /// Whether all arguments have been taken, and none was missing.
    bool isComplete() const { return !m_failed && m_next == m_list.size(); }
    /// Which argument is wrong in a list that is not complete.
    UsageError error() const;

private:
    const QStringList &m_list;
    qsizetype m_next = 0;
    bool m_failed = false;
};
