#include "header_directories.h"

#include "file_names.h"

#include <algorithm>

using namespace Qt::StringLiterals;

namespace {

const int headersTried = 8;    // of a directory that has none for itself
const int headersCompared = 3; // of those that two directories have both
const int levelsAbove = 2;     // of a header, where a directory without own headers is looked for
const int namesFromBelow = 50; // that stand for such a directory

bool mayBeIncluded(const QString &name, bool isCpp)
{
    if (name.contains(u'>') || name.contains(u'\\'))
        return false;
    // Headers of C++ are there in directories of C, too, and tell those from others as well.
    return isHeader(name, true) || name.endsWith(".inc"_L1) || (isCpp && !name.contains(u'.'));
}

} // namespace

HeaderDirectories::HeaderDirectories(const QList<HeaderFile> &headers, bool isCpp)
{
    QList<HeaderFile> included = headers;
    included.removeIf(
        [isCpp](const HeaderFile &header) { return !mayBeIncluded(header.name, isCpp); });
    QSet<QString> withOwnHeaders;
    for (const HeaderFile &header : included)
        withOwnHeaders << header.directory;
    for (const HeaderFile &header : included) {
        add(header.directory, header.name);
        addAbove(header, withOwnHeaders);
    }
}

/// Adds \a header to the directories above its own that have none themselves.
void HeaderDirectories::addAbove(const HeaderFile &header, const QSet<QString> &withOwnHeaders)
{
    QString directory = header.directory, name = header.name;
    for (int level = 0; level < levelsAbove; ++level) {
        const qsizetype slash = directory.lastIndexOf(u'/');
        // Behind the root a name would be a whole path, which is found without a search.
        if (slash <= 0 || directory.at(slash - 1) == u':')
            return;
        name.prepend(directory.mid(slash + 1) + u'/');
        directory.truncate(slash);
        if (!withOwnHeaders.contains(directory) && m_names[directory].size() < namesFromBelow)
            add(directory, name);
    }
}

void HeaderDirectories::add(const QString &directory, const QString &name)
{
    if (m_names[directory].isEmpty())
        m_order << directory;
    m_names[directory] << name;
    m_directories[name] << directory;
}

QStringList HeaderDirectories::tellingHeaders(const QString &directory) const
{
    QStringList telling = m_names[directory];
    std::stable_sort(telling.begin(), telling.end(), [this](const QString &a, const QString &b) {
        return directoriesWith(a).size() < directoriesWith(b).size();
    });
    // One that no other directory has says all there is to say.
    const bool isUnique = directoriesWith(telling.first()).size() == 1;
    return telling.mid(0, isUnique ? 1 : headersTried);
}

QStringList HeaderDirectories::commonHeaders(const QString &first, const QString &second) const
{
    QStringList names;
    for (const QString &directory : m_order) {
        if (directory != first && !directory.startsWith(first + u'/'))
            continue;
        const QString below = directory.mid(first.size());
        for (const QString &name : m_names[directory]) {
            if (names.size() == headersCompared)
                return names;
            if (directoriesWith(name).contains(second + below))
                names << (below + u'/' + name).mid(1);
        }
    }
    return names;
}
