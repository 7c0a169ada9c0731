#include "bexlor/arguments.h"

#include "platform/paths.h"

namespace {

// Walks along the list; every take fails once one has failed.
class Reader
{
public:
    explicit Reader(const QStringList &list) : m_list(list) { }

    QString value()
    {
        m_failed |= m_next >= m_list.size();
        return m_failed ? QString() : m_list[m_next++];
    }

    /// Whether the next argument is \a flag, which is then passed.
    bool flag(const char *flag)
    {
        const bool found = m_next < m_list.size() && m_list[m_next] == QLatin1String(flag);
        m_next += found ? 1 : 0;
        return found;
    }

    /// One of two words; true for the second.
    bool either(const char *first, const char *second)
    {
        const bool isSecond = flag(second);
        m_failed |= !isSecond && !flag(first);
        return isSecond;
    }

    QString path() { return platform::hostPath(value()); }

    bool isComplete() const { return !m_failed && m_next == m_list.size(); }

private:
    const QStringList &m_list;
    qsizetype m_next = 0;
    bool m_failed = false;
};

} // namespace

QString usage()
{
    return QStringLiteral(
        "usage: Bexlor.exe kov|kovpp cmp|ccmp COMMAND OUTPUT-FLAG OBJECT-FLAG DEFINE-FLAG "
        "OBJECT-EXTENSION ORDER {-i DIRECTORY} -op PERSONALITY [-xd DEFINES] [-xs SWITCHES] "
        "[-tpl FILE] [-fi FILE] [-sub DIRECTORY] [-rfs]");
}

std::optional<Arguments> parseArguments(const QStringList &list)
{
    Reader reader(list);
    Arguments arguments;
    arguments.isCpp = reader.either("kov", "kovpp");
    arguments.crossCompiler = reader.either("cmp", "ccmp");
    arguments.command = reader.value();
    arguments.outputFlag = reader.value();
    arguments.objectFlag = reader.value();
    arguments.defineFlag = reader.value();
    arguments.objectExtension = reader.value();
    arguments.order = reader.value();
    while (reader.flag("-i"))
        arguments.headerDirectories << reader.path();
    if (!reader.flag("-op"))
        return {};
    arguments.personality = reader.path();
    if (reader.flag("-xd"))
        arguments.defines = splitCommaList(reader.value());
    if (reader.flag("-xs"))
        arguments.switches = splitCommaList(reader.value());
    if (reader.flag("-tpl"))
        arguments.templateFile = reader.path();
    if (reader.flag("-fi"))
        arguments.forceIncludeFile = reader.path();
    if (reader.flag("-sub"))
        arguments.substituteHeaders = reader.path();
    arguments.reduceFileSize = reader.flag("-rfs");
    if (!reader.isComplete())
        return {};
    return arguments;
}

QStringList splitCommaList(const QString &list)
{
    QStringList items {QString()};
    int depth = 0;
    bool quoted = false;
    for (const QChar character : list) {
        if (character == QLatin1Char('"'))
            quoted = !quoted;
        else if (!quoted && character == QLatin1Char('('))
            ++depth;
        else if (!quoted && character == QLatin1Char(')'))
            --depth;
        if (character == QLatin1Char(',') && depth <= 0 && !quoted)
            items << QString();
        else
            items.last() += character;
    }
    for (QString &item : items)
        item = item.trimmed();
    items.removeAll(QString());
    return items;
}
