#include "argument_reader.h"

#include "host_path.h"

#include <QDir>

using namespace Qt::StringLiterals;

QString ArgumentReader::value()
{
    m_failed |= m_next >= m_list.size();
    return m_failed ? QString() : m_list[m_next++];
}

QString ArgumentReader::path()
{
    return platform::hostPath(value());
}

QString ArgumentReader::wholePath()
{
    return QDir::current().absoluteFilePath(path());
}

QString ArgumentReader::program()
{
    const QString given = path();
    return given.contains(u'/') ? QDir::current().absoluteFilePath(given) : given;
}

bool ArgumentReader::flag(QLatin1StringView flag)
{
    const bool found = !m_failed && m_next < m_list.size() && m_list[m_next] == flag;
    m_next += found ? 1 : 0;
    return found;
}

bool ArgumentReader::either(QLatin1StringView first, QLatin1StringView second)
{
    const bool isSecond = flag(second);
    m_failed |= !isSecond && !flag(first);
    return isSecond;
}

UsageError ArgumentReader::error() const
{
    if (m_next < m_list.size())
        return {u"Argument %1 is not expected there: %2"_s.arg(QString::number(m_next + 1),
                                                               m_list[m_next])};
    if (m_list.isEmpty())
        return {u"There are no arguments."_s};
    return {u"There is an argument missing behind the last one: %1"_s.arg(m_list.last())};
}
