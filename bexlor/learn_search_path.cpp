#include "learning.h"

#include <QFile>
#include <QHash>
#include <QMap>
#include <QRegularExpression>
#include <QSet>
#include <algorithm>
#include <map>

using namespace Qt::StringLiterals;

namespace {

const int headersTried = 8;    // of a directory that has none for itself
const int headersCompared = 3; // of those that two directories have both
const int levelsAbove = 2;     // of a header, where a directory without own headers is looked for
const int namesFromBelow = 50; // that stand for such a directory

/// The directories that have headers, in the order in which they were given, with the names of the
/// headers in each.
class Directories
{
public:
    Directories(const QList<HeaderFile> &headers, bool isCpp)
    {
        QList<HeaderFile> included;
        for (const HeaderFile &header : headers) {
            if (mayBeIncluded(header.name, isCpp))
                included << header;
        }
        QSet<QString> own;
        for (const HeaderFile &header : included)
            own << header.directory;
        for (const HeaderFile &header : included) {
            add(header.directory, header.name);
            // A directory that has headers in its subdirectories only may be searched as well.
            QString directory = header.directory, name = header.name;
            for (int level = 0; level < levelsAbove; ++level) {
                const qsizetype slash = directory.lastIndexOf(u'/');
                // Behind the root a name would be a whole path, which is found without a search.
                if (slash <= 0 || directory.at(slash - 1) == u':')
                    break;
                name.prepend(directory.mid(slash + 1) + u'/');
                directory.truncate(slash);
                if (!own.contains(directory) && m_names[directory].size() < namesFromBelow)
                    add(directory, name);
            }
        }
    }

    const QStringList &all() const { return m_order; }
    QStringList holders(const QString &name) const { return m_holders.value(name); }

    /// Headers of \a directory that none of \a others has, those first that few directories have.
    QStringList tellingHeaders(const QString &directory, const QSet<QString> &others) const
    {
        QStringList telling;
        for (const QString &name : m_names[directory]) {
            const QStringList sharing = holders(name);
            const auto isOther = [&others](const QString &holder) {
                return others.contains(holder);
            };
            if (std::none_of(sharing.begin(), sharing.end(), isOther))
                telling << name;
        }
        std::stable_sort(telling.begin(), telling.end(),
                         [this](const QString &a, const QString &b) {
                             return holders(a).size() < holders(b).size();
                         });
        // One that no other directory has says all there is to say.
        const bool isUnique = !telling.isEmpty() && holders(telling.first()).size() == 1;
        return telling.mid(0, isUnique ? 1 : headersTried);
    }

    /// Some headers that both directories have, in themselves or in subdirectories of the same
    /// name.
    QStringList common(const QString &first, const QString &second) const
    {
        QStringList names;
        for (const QString &directory : m_order) {
            if (directory != first && !directory.startsWith(first + u'/'))
                continue;
            const QString below = directory.mid(first.size());
            for (const QString &name : m_names[directory]) {
                if (names.size() == headersCompared)
                    return names;
                if (holders(name).contains(second + below))
                    names << (below + u'/' + name).mid(1);
            }
        }
        return names;
    }

private:
    void add(const QString &directory, const QString &name)
    {
        if (m_names[directory].isEmpty())
            m_order << directory;
        m_names[directory] << name;
        m_holders[name] << directory;
    }

    static bool mayBeIncluded(const QString &name, bool isCpp)
    {
        static const QRegularExpression header(u"\\.(h|hh|hpp|hxx|inc|H)$"_s);
        if (name.contains(u'>') || name.contains(u'\\'))
            return false;
        return name.contains(header) || (isCpp && !name.contains(u'.'));
    }

    QStringList m_order;
    QMap<QString, QStringList> m_names;
    QHash<QString, QStringList> m_holders; ///< the directories of each name
};

QByteArray inBrackets(const QString &name)
{
    return '<' + name.toLocal8Bit() + '>';
}

/// Which of \a names the compiler finds when they are included.
QSet<QString> foundOf(const Experiment &experiment, const QStringList &names)
{
    QSet<QString> found;
    if (experiment.conditions({"defined __has_include"}).first()) {
        QList<QByteArray> conditions;
        for (const QString &name : names)
            conditions << "__has_include(" + inBrackets(name) + ')';
        const QList<bool> holds = experiment.conditions(conditions);
        for (qsizetype i = 0; i < names.size(); ++i) {
            if (holds[i])
                found << names[i];
        }
        return found;
    }
    QList<QByteArray> sources;
    for (const QString &name : names)
        sources << "#include " + inBrackets(name) + "\nint calyx_object;\n";
    const QList<Answer> answers = experiment.prober().askAll(sources);
    for (qsizetype i = 0; i < names.size(); ++i) {
        // A header that is found and cannot be compiled alone is named with its path.
        const QByteArray messages = answers[i].run.output + answers[i].run.errors;
        const QByteArray name = names[i].toLocal8Bit();
        if (answers[i].compiled() || messages.contains('/' + name)
            || messages.contains('\\' + name))
            found << names[i];
    }
    return found;
}

/// The names of the macros that the header \a path may define.
QSet<QByteArray> macrosOf(const QString &path)
{
    static const QRegularExpression define(
        u"^[ \\t]*#[ \\t]*define[ \\t]+([A-Za-z_][A-Za-z0-9_]*)"_s,
        QRegularExpression::MultilineOption);
    QSet<QByteArray> names;
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        return names;
    QRegularExpressionMatchIterator matches =
        define.globalMatch(QString::fromLatin1(file.readAll()));
    while (matches.hasNext())
        names << matches.next().captured(1).toLatin1();
    return names;
}

/// Tells which of several files with one name the compiler takes, by the macros that each defines.
class Comparison
{
public:
    Comparison(const Experiment &experiment, const Directories &directories)
        : m_experiment(experiment), m_directories(directories)
    { }

    /// Whether the header \a name is taken from \a first rather than from \a second. Nothing when
    /// the two do not differ in what shows.
    std::optional<bool> takesFirst(const QString &name, const QString &first, const QString &second)
    {
        const QSet<QByteArray> &ofFirst = macrosIn(first + u'/' + name);
        const QSet<QByteArray> &ofSecond = macrosIn(second + u'/' + name);
        if (ofFirst == ofSecond)
            return {};
        const QSet<QByteArray> &defined = definedBehind(name, {first, second});
        // Of its own macros some may have been defined elsewhere, and others are only defined
        // under some condition.
        const double firstShare = share(ofFirst - ofSecond, defined);
        const double secondShare = share(ofSecond - ofFirst, defined);
        if (firstShare > 2 * secondShare)
            return true;
        return secondShare > 2 * firstShare ? std::optional(false) : std::nullopt;
    }

    /// Whether \a directory is the one that its header \a name is taken from. Nothing when it is as
    /// good as others.
    std::optional<bool> isTakenFrom(const QString &name, const QString &directory)
    {
        bool isCertain = true;
        for (const QString &other : m_directories.holders(name)) {
            if (other == directory)
                continue;
            const std::optional<bool> answer = takesFirst(name, directory, other);
            if (answer == false)
                return false;
            isCertain &= answer.has_value();
        }
        return isCertain ? std::optional(true) : std::nullopt;
    }

    /// Whether \a first comes before \a second for a header that tells.
    bool precedes(const QString &first, const QString &second)
    {
        for (const QString &name : m_directories.common(first, second)) {
            if (const std::optional<bool> answer = takesFirst(name, first, second))
                return *answer;
        }
        return false;
    }

private:
    static double share(const QSet<QByteArray> &names, const QSet<QByteArray> &defined)
    {
        const auto count = std::count_if(names.begin(), names.end(), [&](const QByteArray &name) {
            return defined.contains(name);
        });
        return names.isEmpty() ? 0 : double(count) / double(names.size());
    }

    const QSet<QByteArray> &macrosIn(const QString &path)
    {
        if (!m_macros.contains(path))
            m_macros[path] = macrosOf(path);
        return m_macros[path];
    }

    /// Of the macros in all files \a name, those of \a directories among them, the ones that are
    /// defined once it has been included.
    const QSet<QByteArray> &definedBehind(const QString &name, QStringList directories)
    {
        directories << m_directories.holders(name);
        directories.removeDuplicates();
        directories.sort();
        const QString key = name + u'\n' + directories.join(u'\n');
        if (m_defined.contains(key))
            return m_defined[key];
        QSet<QByteArray> all;
        for (const QString &directory : directories)
            all += macrosIn(directory + u'/' + name);
        const QList<QByteArray> names(all.begin(), all.end());
        QList<QByteArray> tests;
        for (const QByteArray &macro : names)
            tests << "defined " + macro;
        const QList<bool> holds =
            m_experiment.conditions(tests, "#include " + inBrackets(name) + '\n');
        QSet<QByteArray> &defined = m_defined[key];
        for (qsizetype i = 0; i < names.size(); ++i) {
            if (holds[i])
                defined << names[i];
        }
        return defined;
    }

    const Experiment &m_experiment;
    const Directories &m_directories;
    std::map<QString, QSet<QByteArray>> m_macros;  ///< of each file
    std::map<QString, QSet<QByteArray>> m_defined; ///< behind each header
};

/// Whether the headers \a names, which are found, are those of \a directory: one of them shows it
/// and none the contrary. Where no file differs from the others of its name, the directory that was
/// given first is as good as any.
bool isSearched(const Directories &directories, Comparison &comparison, const QStringList &names,
                const QString &directory)
{
    bool isLikely = false;
    for (const QString &name : names) {
        const std::optional<bool> answer = comparison.isTakenFrom(name, directory);
        if (answer)
            return *answer;
        isLikely |= directories.holders(name).first() == directory;
    }
    return isLikely;
}

} // namespace

void learnSearchPath(const Experiment &experiment, const QList<HeaderFile> &headers, Facts &facts)
{
    const Directories directories(headers, experiment.prober().isCpp());
    Comparison comparison(experiment, directories);

    // A directory is searched when headers of it are found that none has of those that are known to
    // be searched.
    QSet<QString> searched;
    for (bool hasGrown = true; hasGrown;) {
        hasGrown = false;
        QMap<QString, QStringList> telling;
        QStringList all;
        for (const QString &directory : directories.all()) {
            if (!searched.contains(directory))
                all << (telling[directory] = directories.tellingHeaders(directory, searched));
        }
        all.removeDuplicates();
        const QSet<QString> found = foundOf(experiment, all);
        for (auto row = telling.begin(); row != telling.end(); ++row) {
            row->removeIf([&found](const QString &name) { return !found.contains(name); });
            if (isSearched(directories, comparison, *row, row.key())) {
                searched << row.key();
                hasGrown = true;
            }
        }
    }
    // One whose headers are all in others shows only when it comes before one of them.
    for (const QString &directory : directories.all()) {
        if (searched.contains(directory) || !directories.tellingHeaders(directory, {}).isEmpty())
            continue;
        for (const QString &other : QSet<QString>(searched)) {
            if (comparison.precedes(directory, other))
                searched << directory;
        }
    }

    // Each goes before the first one that it must precede.
    for (const QString &directory : directories.all()) {
        if (!searched.contains(directory))
            continue;
        qsizetype place = 0;
        while (place < facts.searchPath.size()
               && !comparison.precedes(directory, facts.searchPath[place]))
            ++place;
        facts.searchPath.insert(place, directory);
    }
}
