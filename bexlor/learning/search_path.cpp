#include "learning.h"

#include "header_directories.h"
#include "text_file.h"

#include <QRegularExpression>
#include <algorithm>
#include <map>

using namespace Qt::StringLiterals;

namespace {

QByteArray inBrackets(const QString &name)
{
    return '<' + name.toLocal8Bit() + '>';
}

QSet<QString> setOf(const QStringList &names)
{
    return {names.begin(), names.end()};
}

/// Whether the compiler's \a answer names a file whose path ends with \a path.
bool namesFile(const ProbeAnswer &answer, const QString &path)
{
    QString messages = platform::decodedText(answer.run.output + answer.run.errors);
    return messages.replace(u'\\', u'/').contains(QString(path).replace(u'\\', u'/'));
}

/// Which of \a names the compiler finds when they are included.
QSet<QString> foundHeaders(const Questions &questions, const QStringList &names)
{
    if (questions.conditions({"defined __has_include"}).first()) {
        QList<QByteArray> conditions;
        for (const QString &name : names)
            conditions << "__has_include(" + inBrackets(name) + ')';
        return setOf(selected(names, questions.conditions(conditions)));
    }
    if (!questions.rejects(ErrorKind::MissingHeader))
        return {};
    QList<QByteArray> sources;
    for (const QString &name : names)
        sources << "#include " + inBrackets(name) + "\nint calyx_object;\n";
    const QList<ProbeAnswer> answers = questions.eachAlone(sources);
    QList<bool> isFound;
    for (qsizetype i = 0; i < names.size(); ++i) {
        // A header that is found and cannot be compiled alone is named with its path.
        isFound << (answers[i].compiled() || namesFile(answers[i], u'/' + names[i]));
    }
    return setOf(selected(names, isFound));
}

/// The names of the macros that the header \a path may define.
QSet<QByteArray> macrosOf(const QString &path)
{
    static const QRegularExpression define(
        u"^[ \\t]*#[ \\t]*define[ \\t]+([A-Za-z_][A-Za-z0-9_]*)"_s,
        QRegularExpression::MultilineOption);
    QSet<QByteArray> names;
    const QByteArray header = platform::readFile(path).bytes;
    QRegularExpressionMatchIterator matches = define.globalMatch(QString::fromLatin1(header));
    while (matches.hasNext())
        names << matches.next().captured(1).toLatin1();
    return names;
}

/// Tells which of several files with one name the compiler takes, by the macros that each defines.
class Comparison
{
public:
    Comparison(const Questions &questions, const HeaderDirectories &directories)
        : m_questions(questions), m_directories(directories)
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
        const double definedOfFirst = fractionIn(defined, ofFirst - ofSecond);
        const double definedOfSecond = fractionIn(defined, ofSecond - ofFirst);
        if (definedOfFirst > 2 * definedOfSecond)
            return true;
        return definedOfSecond > 2 * definedOfFirst ? std::optional(false) : std::nullopt;
    }

    /// Whether \a directory is the one that its header \a name is taken from. Nothing when it is as
    /// good as others.
    std::optional<bool> isTakenFrom(const QString &name, const QString &directory)
    {
        const QStringList all = m_directories.directoriesWith(name);
        bool isCertain = true;
        for (const QString &other : all) {
            if (other == directory)
                continue;
            const std::optional<bool> answer = takesFirst(name, directory, other);
            if (answer == false)
                return false;
            isCertain &= answer.has_value();
        }
        if (isCertain)
            return true;
        // One that cannot be compiled alone shows no macros, but its path.
        const auto isNamed = [this, &name](const QString &other) {
            return namesFile(errorsIn(name), other + u'/' + name);
        };
        if (!definesNothing(name) || std::none_of(all.begin(), all.end(), isNamed))
            return {};
        return isNamed(directory);
    }

    /// Whether \a first comes before \a second for a header that tells.
    bool precedes(const QString &first, const QString &second)
    {
        for (const QString &name : m_directories.commonHeaders(first, second)) {
            if (const std::optional<bool> answer = takesFirst(name, first, second))
                return *answer;
        }
        return false;
    }

private:
    /// How many of \a names, from 0 to 1, are in \a set.
    static double fractionIn(const QSet<QByteArray> &set, QSet<QByteArray> names)
    {
        const qsizetype all = names.size();
        return all == 0 ? 0 : double(names.intersect(set).size()) / double(all);
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
        directories << m_directories.directoriesWith(name);
        const QString key = keyOf(name, directories);
        if (m_defined.contains(key))
            return m_defined[key];
        QSet<QByteArray> all;
        for (const QString &directory : directories)
            all += macrosIn(directory + u'/' + name);
        const QList<QByteArray> names(all.begin(), all.end());
        QList<QByteArray> tests;
        for (const QByteArray &macro : names)
            tests << "defined " + macro;
        const QList<QByteArray> defined =
            selected(names, m_questions.conditions(tests, "#include " + inBrackets(name) + '\n'));
        return m_defined[key] = {defined.begin(), defined.end()};
    }

    /// Whether it has been asked what the header \a name defines, and that is nothing.
    bool definesNothing(const QString &name) const
    {
        const auto defined = m_defined.find(keyOf(name, m_directories.directoriesWith(name)));
        return defined != m_defined.end() && defined->second.isEmpty();
    }

    static QString keyOf(const QString &name, QStringList directories)
    {
        directories.removeDuplicates();
        directories.sort();
        return name + u'\n' + directories.join(u'\n');
    }

    /// What the compiler says when only the header \a name is included.
    const ProbeAnswer &errorsIn(const QString &name)
    {
        if (!m_errors.contains(name))
            m_errors[name] = m_questions.eachAlone({"#include " + inBrackets(name) + '\n'}).first();
        return m_errors[name];
    }

    const Questions &m_questions;
    const HeaderDirectories &m_directories;
    std::map<QString, ProbeAnswer> m_errors;       ///< of each header
    std::map<QString, QSet<QByteArray>> m_macros;  ///< of each file
    std::map<QString, QSet<QByteArray>> m_defined; ///< behind each header
};

/// Whether the headers \a names, which are found, are those of \a directory: one of them shows it
/// and none the contrary. Where no file differs from the others of its name, the directory that was
/// given first is as good as any.
bool isSearched(const HeaderDirectories &directories, Comparison &comparison,
                const QStringList &names, const QString &directory)
{
    bool isLikely = false;
    for (const QString &name : names) {
        const std::optional<bool> answer = comparison.isTakenFrom(name, directory);
        if (answer)
            return *answer;
        isLikely |= directories.directoriesWith(name).first() == directory;
    }
    return isLikely;
}

} // namespace

QStringList learnSearchPath(const Questions &questions, const QList<HeaderFile> &headers)
{
    const HeaderDirectories directories(headers, questions.isCpp());
    Comparison comparison(questions, directories);
    QStringList all;
    for (const QString &directory : directories.all())
        all << directories.tellingHeaders(directory);
    all.removeDuplicates();
    const QSet<QString> found = foundHeaders(questions, all);
    QStringList path;
    for (const QString &directory : directories.all()) {
        QStringList names = directories.tellingHeaders(directory);
        names.removeIf([&found](const QString &name) { return !found.contains(name); });
        if (!isSearched(directories, comparison, names, directory))
            continue;
        // Each goes before the first one that it must precede.
        const auto place =
            std::find_if(path.begin(), path.end(), [&comparison, &directory](const QString &other) {
                return comparison.precedes(directory, other);
            });
        path.insert(place, directory);
    }
    return path;
}

bool includesStandardHeaders(const Questions &questions)
{
    // That the directive is accepted says little; what it defines can be read back.
    const std::pair<QByteArray, QByteArray> definedIn[] = {
        {"limits.h", "CHAR_BIT"}, {"stddef.h", "NULL"}, {"stdio.h", "EOF"}};
    return std::any_of(std::begin(definedIn), std::end(definedIn), [&questions](const auto &row) {
        return questions.conditions({"defined " + row.second}, "#include <" + row.first + ">\n")
            .first();
    });
}
