#include "changes.h"

#include <QSet>
#include <algorithm>

using namespace Qt::StringLiterals;

namespace {

struct Group
{
    QByteArray name;
    QList<QByteArray> lines;
};

QList<QByteArray> linesCalled(const QByteArray &name, const QList<Group> &groups)
{
    for (const Group &group : groups) {
        if (group.name == name)
            return group.lines;
    }
    return {};
}

void addLine(QList<Group> &groups, const QByteArray &name, const QByteArray &line)
{
    const auto group = std::find_if(groups.begin(), groups.end(),
                                    [&name](const Group &known) { return known.name == name; });
    if (group == groups.end())
        groups.append({name, {line}});
    else
        group->lines << line;
}

/// The lines of a personality below their headings, and the facts of one word together.
QList<Group> groupsOf(const QByteArray &text)
{
    QList<Group> groups;
    QByteArray heading;
    for (const QByteArray &line : text.split('\n')) {
        const qsizetype space = line.indexOf(' ', 3);
        if (line.startsWith("#: ") && space > 0)
            addLine(groups, line.sliced(3, space - 3), line.sliced(space + 1));
        else if (line.startsWith("# "))
            heading = line.sliced(2);
        else if (!line.isEmpty())
            addLine(groups, heading, line);
    }
    return groups;
}

QStringList changesIn(const QByteArray &name, const QList<QByteArray> &before,
                      const QList<QByteArray> &after)
{
    const QSet<QByteArray> old(before.begin(), before.end()), now(after.begin(), after.end());
    const QString group = QString::fromUtf8(name);
    QStringList changes;
    for (const QByteArray &line : before) {
        if (!now.contains(line))
            changes << group + ": - "_L1 + QString::fromUtf8(line);
    }
    for (const QByteArray &line : after) {
        if (!old.contains(line))
            changes << group + ": + "_L1 + QString::fromUtf8(line);
    }
    if (changes.isEmpty() && before != after)
        changes << group + ": in another order"_L1;
    return changes;
}

} // namespace

QStringList changesBetween(const QByteArray &before, const QByteArray &after)
{
    const QList<Group> old = groupsOf(before), now = groupsOf(after);
    QList<QByteArray> names;
    for (const Group &group : old + now) {
        if (!names.contains(group.name))
            names << group.name;
    }
    QStringList changes;
    for (const QByteArray &name : names)
        changes << changesIn(name, linesCalled(name, old), linesCalled(name, now));
    if (changes.isEmpty() && before != after)
        changes << u"comments: others"_s;
    return changes;
}
