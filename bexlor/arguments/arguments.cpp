#include "arguments.h"

#include "comma_list.h"
#include "generator_interface.h"
#include "host_path.h"

using namespace Qt::StringLiterals;

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
    bool flag(QLatin1StringView flag)
    {
        const bool found = m_next < m_list.size() && m_list[m_next] == flag;
        m_next += found ? 1 : 0;
        return found;
    }

    /// One of two words; true for the second.
    bool either(QLatin1StringView first, QLatin1StringView second)
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
    return u"usage: Bexlor.exe kov|kovpp cmp|ccmp COMMAND OUTPUT-FLAG OBJECT-FLAG DEFINE-FLAG "
           "OBJECT-EXTENSION ORDER {-i DIRECTORY} -op PERSONALITY [-xd DEFINES] [-xs SWITCHES] "
           "[-tpl FILE] [-fi FILE] [-sub DIRECTORY] [-rfs]"_s;
}

std::optional<Arguments> parseArguments(const QStringList &list)
{
    Reader reader(list);
    Arguments arguments;
    arguments.isCpp = reader.either(generator::productC, generator::productCpp);
    arguments.crossCompiler = reader.either(generator::nativeCompiler, generator::crossCompiler);
    arguments.command = reader.value();
    arguments.layout.outputFlag = reader.value();
    arguments.layout.objectFlag = reader.value();
    arguments.layout.defineFlag = reader.value();
    arguments.layout.objectExtension = reader.value();
    arguments.layout.order = reader.value();
    while (reader.flag(generator::headerDirectory))
        arguments.headerDirectories << reader.path();
    if (!reader.flag(generator::personality))
        return {};
    arguments.personality = reader.path();
    if (reader.flag(generator::defines))
        arguments.defines = splitCommaList(reader.value());
    if (reader.flag(generator::switches))
        arguments.switches = splitCommaList(reader.value());
    if (reader.flag(generator::templateFile))
        arguments.templateFile = reader.path();
    if (reader.flag(generator::forceIncludeFile))
        arguments.forceIncludeFile = reader.path();
    if (reader.flag(generator::substituteHeaders))
        arguments.substituteHeaders = reader.path();
    arguments.reduceFileSize = reader.flag(generator::reduceFileSize);
    if (!reader.isComplete())
        return {};
    return arguments;
}
