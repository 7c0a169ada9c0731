#include "again.h"

#include "text_file.h"

#include <QDir>
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

std::variant<EarlierPersonality, QString> readEarlierPersonality(const QString &path)
{
    const platform::FileContent file = platform::readFile(path);
    if (file.state != platform::FileContent::Whole)
        return u"The personality cannot be read: %1"_s.arg(path);
    QByteArray text = file.bytes;
    text.replace("\r\n", "\n"); // git, for one, writes text files so on Windows
    const Personality content = parsePersonality(text);
    const CommandLine &answers = content.answers;
    if (answers.arguments.isEmpty())
        return u"The personality does not say by which answers it was generated: %1"_s.arg(path);
    const auto parsed = parseArguments(answers.arguments);
    if (const auto *error = std::get_if<UsageError>(&parsed))
        return u"The answers in the personality are not complete. %1"_s.arg(error->sentence);

    EarlierPersonality earlier {text, content, std::get<Arguments>(parsed)};
    earlier.arguments.personality = path;
    earlier.arguments.answers = answers;
    return earlier;
}

std::optional<QString> enterFolderOf(const EarlierPersonality &earlier)
{
    const QString &folder = earlier.arguments.answers.directory;
    if (QDir::setCurrent(folder))
        return {};
    return u"There is no folder %1; what was relative to it is looked for in %2."_s.arg(
        folder, QDir::currentPath());
}

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
