#include "learning.h"

#include "well_known_names.h"

#include <QSet>
#include <algorithm>
#include <functional>

namespace {

/// The forms in which a keyword may be used, "@" standing for it and "%" for a name that nothing
/// else has. Most are declarations within a function, at whose end a compiler that has lost its way
/// finds it again. What qualifies a char is no type of its own, whereas "__int64 int" may be one.
struct Use
{
    const char *line;
    Keyword::Form form;
    bool isBehindFunction = false;
};

/// In the order in which they tell most, for compilers that are asked one after the other.
const Use uses[] = {
    {"void %f(void) { extern char @ %; }", Keyword::Qualifier},
    {"void %f(void) { extern @ char %; }", Keyword::Qualifier},
    {"extern void %(void) @;", Keyword::Qualifier, true},
    {"void %f(void) { extern @ void %(void); }", Keyword::Qualifier},
    {"void %f(void) { extern char * @ %; }", Keyword::Qualifier},
    {"void %f(void) { extern @ %; }", Keyword::TypeName},
    {"void %f(void) { extern @ *%; }", Keyword::TypeName},
    {"static @ char %(void) { return 0; }", Keyword::Qualifier},
    {"extern void @ %(int);", Keyword::Qualifier},
    {"void %f(void) { extern @(1) int %; }", Keyword::QualifierWithArgument},
    {"void %f(void) { extern int @(1) %; }", Keyword::QualifierWithArgument},
    {"extern void %(void) @(1);", Keyword::QualifierWithArgument, true},
    {"extern void %(void) @(a, b);", Keyword::QualifierWithArgument, true},
    {"void %f(void) { extern @((unused)) int %; }", Keyword::QualifierWithArgument},
    {"void %f(void) { extern @(dllimport) int %; }", Keyword::QualifierWithArgument},
    {"void %f(void) { extern @(a, b) int %; }", Keyword::QualifierWithArgument},
    {"extern void %(void) @((noreturn));", Keyword::QualifierWithArgument, true},
};

QSet<QByteArray> macroNames(const MacroFacts &macros)
{
    QSet<QByteArray> names(macros.undetermined.begin(), macros.undetermined.end());
    for (const Macro &macro : macros.known)
        names << macro.name.split('(').first();
    return names;
}

bool isReservedFunction(const QByteArray &name)
{
    // Functions that the compiler brings along are no keywords, and there are thousands of them.
    return name.startsWith("__builtin_") || name.startsWith("__sync_")
        || name.startsWith("__atomic_");
}

/// The order in which names are asked for: alphabetical, but what may begin an assembler's text
/// comes last, since a compiler may take all that follows for it.
bool isAskedBefore(const QByteArray &a, const QByteArray &b)
{
    const bool isAssembler = a.contains("asm");
    return isAssembler == b.contains("asm") ? a < b : !isAssembler;
}

/// The names that may be keywords: those used in headers and the well-known ones.
QList<QByteArray> candidates(const QList<ScannedName> &names, bool isCpp, const MacroFacts &macros)
{
    const QSet<QByteArray> isMacro = macroNames(macros);
    const QList<QByteArray> known = wellKnownKeywords(isCpp);
    QSet<QByteArray> chosen(known.begin(), known.end());
    for (const ScannedName &name : names) {
        if ((name.uses & UsedInHeader) && !isReservedFunction(name.text))
            chosen << name.text;
    }
    QList<QByteArray> sorted;
    for (const QByteArray &name : chosen) {
        if (!isMacro.contains(name) && !isStandardKeyword(name, isCpp) && !isSpecialName(name))
            sorted << name;
    }
    std::sort(sorted.begin(), sorted.end(), &isAskedBefore);
    return sorted;
}

/// Those of \a names that cannot be declared, each in an item that "@" in \a declaration makes with
/// its name and "%" with a number.
QList<QByteArray> undeclarable(const Questions &questions, const QByteArray &declaration,
                               const QList<QByteArray> &names)
{
    QList<QByteArray> items;
    for (const QByteArray &name : names) {
        QByteArray item = declaration;
        items << item.replace('@', name).replace('%', QByteArray::number(items.size()));
    }
    QList<bool> flags = questions.accepted({}, items, true);
    std::transform(flags.begin(), flags.end(), flags.begin(), std::logical_not());
    return selected(names, flags);
}

/// Those of \a names that cannot be declared: as a member, which collides with nothing that the
/// compiler knows, or for the well-known ones, among them types that a compiler brings along and
/// that may be members' names, as an object.
QList<QByteArray> undeclarableNames(const Questions &questions, const QList<QByteArray> &names)
{
    QList<QByteArray> rejected = undeclarable(questions, "struct calyx_% { char @[1]; };\n", names);
    QList<QByteArray> types;
    for (const QByteArray &name : wellKnownKeywords(questions.isCpp())) {
        if (names.contains(name) && !rejected.contains(name))
            types << name;
    }
    rejected << undeclarable(questions, "static int @ = 0;\n", types);
    std::sort(rejected.begin(), rejected.end(), &isAskedBefore);
    return rejected;
}

QByteArray lineOf(const Use &use, const QByteArray &keyword, qsizetype number)
{
    const QByteArray name = "calyx_" + QByteArray::number(number);
    return QByteArray(use.line).replace('@', keyword).replace('%', name) + '\n';
}

/// Tries to use keywords, in few probes.
class Trial
{
public:
    Trial(const Questions &questions, const QList<QByteArray> &keywords,
          const QSet<QByteArray> &called, const QList<QByteArray> &settled)
        : forms(keywords.size()), m_questions(questions), m_keywords(keywords), m_called(called),
          m_settled(settled.begin(), settled.end())
    { }

    QList<QSet<int>> forms; ///< in which each keyword may be used

    /// Tries all uses at once, but for those behind functions: a compiler takes what is wrong there
    /// for the start of a definition in the old style and may go astray, so these are tried apart,
    /// and only for keywords that have no other form.
    void runAtOnce()
    {
        QList<Use> among, behind;
        for (const Use &use : uses)
            (use.isBehindFunction ? behind : among) << use;
        tryUses(among);
        for (qsizetype i = 0; i < m_keywords.size(); ++i) {
            if (!forms[i].isEmpty())
                m_settled << m_keywords[i];
        }
        tryUses(behind);
    }

    /// Tries the uses one after the other, each only where it makes a difference: each one that is
    /// rejected takes a probe.
    void runInTurn()
    {
        for (const Use &use : uses)
            tryUses({use});
    }

private:
    /// Tries \a tried, all of which stand behind functions or none, with each keyword.
    void tryUses(const QList<Use> &tried)
    {
        QList<QByteArray> lines;
        QList<std::pair<qsizetype, int>> asked; // keyword and form
        for (qsizetype i = 0; i < m_keywords.size(); ++i) {
            for (const Use &use : tried) {
                if (!isNeeded(use, i))
                    continue;
                lines << lineOf(use, m_keywords[i], lines.size());
                asked << std::pair(i, int(use.form));
            }
        }
        // What stops at its first error does not go astray behind it.
        const bool stops = m_questions.stopsAtFirstError();
        const QList<bool> isAccepted = tried.first().isBehindFunction && !stops
                                         ? m_questions.acceptedApart(lines)
                                         : m_questions.accepted({}, lines, stops);
        for (const auto &[keyword, form] : selected(asked, isAccepted))
            forms[keyword] << form;
    }

    /// Whether it makes a difference to formOf() how \a use of a keyword is taken.
    bool isNeeded(const Use &use, qsizetype keyword) const
    {
        const QSet<int> &known = forms[keyword];
        if (known.contains(use.form))
            return false;
        if (use.isBehindFunction && m_settled.contains(m_keywords[keyword]))
            return false;
        // An unknown name must not pass for a type.
        if (use.form == Keyword::TypeName && !m_questions.rejects(ErrorKind::UnknownName))
            return false;
        // Where types show all forms are weighed; see keepTypesApart().
        if (known.isEmpty() || !m_questions.rejects(ErrorKind::ConflictingDeclaration))
            return true;
        return use.form == Keyword::QualifierWithArgument && known.contains(Keyword::Qualifier)
            && m_called.contains(m_keywords[keyword]);
    }

    const Questions &m_questions;
    const QList<QByteArray> &m_keywords;
    const QSet<QByteArray> &m_called; ///< used in headers with a parenthesis behind it
    QSet<QByteArray> m_settled;       ///< not tried behind functions
};

/// Leaves those of \a keywords that have a size alone, and none together with char, only the form
/// of a type: a compiler that lets a name be declared again takes "char size_t x;" too.
void keepTypesApart(const Questions &questions, const QList<QByteArray> &keywords,
                    QList<QSet<int>> &forms)
{
    QList<qsizetype> doubtful;
    QList<QByteArray> expressions;
    for (qsizetype i = 0; i < keywords.size(); ++i) {
        if (!forms[i].contains(Keyword::TypeName) || forms[i].size() == 1)
            continue;
        doubtful << i;
        expressions << "sizeof(" + keywords[i] + ')' << "sizeof(" + keywords[i] + " char)"
                    << "sizeof(char " + keywords[i] + ')';
    }
    const QList<std::optional<int>> sizes = questions.numbers({}, expressions);
    for (qsizetype i = 0; i < doubtful.size(); ++i) {
        if (sizes[3 * i] && !sizes[3 * i + 1] && !sizes[3 * i + 2])
            forms[doubtful[i]] = {Keyword::TypeName};
    }
}

/// The form in which a keyword is used that may be used in \a forms; \a isCalled if headers use it
/// with a parenthesis behind it.
Keyword::Form formOf(const QSet<int> &forms, bool isCalled)
{
    const bool standsAlone = forms.contains(Keyword::Qualifier);
    if (forms.contains(Keyword::QualifierWithArgument) && (!standsAlone || isCalled))
        return Keyword::QualifierWithArgument;
    if (standsAlone)
        return Keyword::Qualifier;
    return forms.contains(Keyword::TypeName) ? Keyword::TypeName : Keyword::Undetermined;
}

/// Gives each of \a keywords that stands for a type the standard type of the same kind and size for
/// a stand-in. What has no size only qualifies the int that is left out.
void measureTypes(const Questions &questions, QList<Keyword> &keywords, const TypeFacts &types)
{
    const auto isType = [](const Keyword &keyword) { return keyword.form == Keyword::TypeName; };
    QList<QByteArray> expressions;
    for (const Keyword &keyword : keywords) {
        if (isType(keyword)) {
            const QByteArray cast = '(' + keyword.name + ')';
            expressions << "sizeof" + cast << cast + "2.5==2.5?1:2" << cast + "-1<0?1:2";
        }
    }
    const QList<std::optional<int>> values = questions.numbers({}, expressions);
    auto value = values.begin();
    for (Keyword &keyword : keywords) {
        if (!isType(keyword))
            continue;
        const std::optional<int> size = value[0], isFloating = value[1], isUnsigned = value[2];
        value += 3;
        if (size)
            keyword.standIn = typeLike(types, *size, isFloating == 1, isUnsigned == 2);
    }
}

} // namespace

QList<Keyword> learnKeywords(const Questions &questions, const QList<ScannedName> &names,
                             const MacroFacts &macros, const TypeFacts &types,
                             const QList<QByteArray> &settled)
{
    const QList<QByteArray> found =
        undeclarableNames(questions, candidates(names, questions.isCpp(), macros));
    QSet<QByteArray> called;
    for (const ScannedName &name : names) {
        if (name.uses & CalledInHeader)
            called << name.text;
    }
    Trial trial(questions, found, called, settled);
    if (questions.stopsAtFirstError())
        trial.runInTurn();
    else
        trial.runAtOnce();
    QList<QSet<int>> &forms = trial.forms;
    if (!questions.rejects(ErrorKind::ConflictingDeclaration))
        keepTypesApart(questions, found, forms);
    QList<Keyword> keywords;
    for (qsizetype i = 0; i < found.size(); ++i)
        keywords.append({found[i], formOf(forms[i], called.contains(found[i])), {}});
    measureTypes(questions, keywords, types);
    std::sort(keywords.begin(), keywords.end(),
              [](const Keyword &a, const Keyword &b) { return a.name < b.name; });
    return keywords;
}
