#include "learning.h"

#include "known_names.h"

#include <QSet>
#include <algorithm>

namespace {

/// The forms in which a keyword may be used, "@" standing for it and "%" for a name that nothing
/// else has. Most are declarations within a function, at whose end a compiler that has lost its way
/// finds it again. What qualifies a char is no type of its own, whereas "__int64 int" may be one.
struct Use
{
    const char *line;
    Keyword::Form form;
};

const Use uses[] = {
    {"void %f(void) { extern char @ %; }", Keyword::Qualifier},
    {"void %f(void) { extern @ char %; }", Keyword::Qualifier},
    {"void %f(void) { extern char * @ %; }", Keyword::Qualifier},
    {"void %f(void) { extern @ void %(void); }", Keyword::Qualifier},
    {"static @ char %(void) { return 0; }", Keyword::Qualifier},
    {"extern void @ %(int);", Keyword::Qualifier},
    {"void %f(void) { extern @(1) int %; }", Keyword::QualifierWithArgument},
    {"void %f(void) { extern int @(1) %; }", Keyword::QualifierWithArgument},
    {"void %f(void) { extern @((unused)) int %; }", Keyword::QualifierWithArgument},
    {"void %f(void) { extern @(dllimport) int %; }", Keyword::QualifierWithArgument},
    {"void %f(void) { extern @(a, b) int %; }", Keyword::QualifierWithArgument},
    {"void %f(void) { extern @ %; }", Keyword::TypeName},
    {"void %f(void) { extern @ *%; }", Keyword::TypeName},
};

/// Forms of what may stand behind a function. A compiler takes what is wrong there for the start of
/// a definition in the old style and goes astray, so these are tried one in a probe, and only for
/// keywords that have no other form.
const Use usesBehindFunctions[] = {
    {"extern void %(void) @;", Keyword::Qualifier},
    {"extern void %(void) @(1);", Keyword::QualifierWithArgument},
    {"extern void %(void) @(a, b);", Keyword::QualifierWithArgument},
    {"extern void %(void) @((noreturn));", Keyword::QualifierWithArgument},
};

QSet<QByteArray> macroNames(const Facts &facts)
{
    QSet<QByteArray> names(facts.undeterminedMacros.begin(), facts.undeterminedMacros.end());
    for (const Macro &macro : facts.macros)
        names << macro.name.split('(').first();
    return names;
}

bool isReservedFunction(const QByteArray &name)
{
    // Functions that the compiler brings along are no keywords, and there are thousands of them.
    return name.startsWith("__builtin_") || name.startsWith("__sync_")
        || name.startsWith("__atomic_");
}

/// The names that may be keywords: those used in headers, and those of a compiler's binaries that
/// are also used in headers or are spelled as only keywords are.
QList<QByteArray> candidates(const QList<Name> &names, bool isCpp, const Facts &facts)
{
    const QSet<QByteArray> macros = macroNames(facts);
    const QList<QByteArray> known = knownKeywords(isCpp);
    QSet<QByteArray> chosen(known.begin(), known.end());
    for (const Name &name : names) {
        if ((name.uses & UsedInHeader) && !isReservedFunction(name.text))
            chosen << name.text;
    }
    QList<QByteArray> sorted;
    for (const QByteArray &name : chosen) {
        if (!macros.contains(name) && !isStandardKeyword(name, isCpp) && !isSpecialName(name))
            sorted << name;
    }
    std::sort(sorted.begin(), sorted.end());
    return sorted;
}

/// Those of \a names that cannot be declared: as a member, which collides with nothing that the
/// compiler knows, or for names of types as an object.
QList<QByteArray> reservedOf(const Experiment &experiment, const QList<QByteArray> &names)
{
    QList<QByteArray> members, objects;
    for (qsizetype i = 0; i < names.size(); ++i) {
        const QByteArray number = QByteArray::number(i);
        members << "struct calyx_" + number + " { char " + names[i] + "[1]; };\n";
    }
    const QList<bool> canBeMember = experiment.accepted({}, members, true);
    QList<QByteArray> reserved, others;
    for (qsizetype i = 0; i < names.size(); ++i)
        (canBeMember[i] ? others : reserved) << names[i];

    // Types that the compiler brings along may be members' names, so they are looked for apart.
    QList<QByteArray> types;
    for (const QByteArray &name : knownKeywords(experiment.prober().isCpp())) {
        if (others.contains(name))
            types << name;
    }
    for (const QByteArray &name : types)
        objects << "static int " + name + " = 0;\n";
    const QList<bool> canBeObject = experiment.accepted({}, objects, true);
    for (qsizetype i = 0; i < types.size(); ++i) {
        if (!canBeObject[i])
            reserved << types[i];
    }
    std::sort(reserved.begin(), reserved.end());
    return reserved;
}

QByteArray lineOf(const Use &use, const QByteArray &keyword, qsizetype number)
{
    const QByteArray name = "calyx_" + QByteArray::number(number);
    return QByteArray(use.line).replace('@', keyword).replace('%', name) + '\n';
}

/// For each of \a keywords the forms of use that the compiler accepts.
QList<QSet<int>> acceptedForms(const Experiment &experiment, const QList<QByteArray> &keywords)
{
    QList<QSet<int>> forms(keywords.size());
    QList<QByteArray> lines;
    for (const QByteArray &keyword : keywords) {
        for (const Use &use : uses)
            lines << lineOf(use, keyword, lines.size());
    }
    const QList<bool> accepted = experiment.accepted({}, lines);
    for (qsizetype i = 0; i < lines.size(); ++i) {
        if (accepted[i])
            forms[i / qsizetype(std::size(uses))] << uses[i % qsizetype(std::size(uses))].form;
    }

    QList<QByteArray> probes;
    QList<std::pair<qsizetype, int>> asked;
    for (qsizetype i = 0; i < keywords.size(); ++i) {
        if (!forms[i].isEmpty())
            continue;
        for (const Use &use : usesBehindFunctions) {
            probes << lineOf(use, keywords[i], probes.size());
            asked << std::pair(i, int(use.form));
        }
    }
    const QList<Answer> answers = experiment.prober().askAll(probes);
    for (qsizetype i = 0; i < answers.size(); ++i) {
        if (answers[i].compiled())
            forms[asked[i].first] << asked[i].second;
    }
    return forms;
}

/// Makes a keyword that stands where a type may stand a type, with the standard type of the same
/// kind and size to stand in for it. What has no size only qualifies the int that is left out.
void measureType(const Experiment &experiment, Keyword &keyword, const Facts &facts)
{
    const QByteArray &name = keyword.name;
    const QList<std::optional<int>> values = experiment.numbers(
        {}, {"sizeof(" + name + ')', '(' + name + ")2.5==2.5?1:2", '(' + name + ")-1<0?1:2"});
    if (!values[0]) {
        // C++ never has an int that is left out.
        keyword.form = experiment.prober().isCpp() ? Keyword::Undetermined : Keyword::Qualifier;
        return;
    }
    keyword.standIn = typeLike(facts, *values[0], values[1] == 1, values[2] == 2);
}

} // namespace

void learnKeywords(const Experiment &experiment, const QList<Name> &names, Facts &facts)
{
    const QList<QByteArray> reserved =
        reservedOf(experiment, candidates(names, experiment.prober().isCpp(), facts));
    const QList<QSet<int>> forms = acceptedForms(experiment, reserved);
    QSet<QByteArray> called;
    for (const Name &name : names) {
        if (name.uses & CalledInHeader)
            called << name.text;
    }
    for (qsizetype i = 0; i < reserved.size(); ++i) {
        Keyword keyword {reserved[i], Keyword::Undetermined, {}};
        const bool takesArgument = forms[i].contains(Keyword::QualifierWithArgument);
        const bool standsAlone = forms[i].contains(Keyword::Qualifier);
        if (takesArgument && (!standsAlone || called.contains(keyword.name)))
            keyword.form = Keyword::QualifierWithArgument;
        else if (standsAlone)
            keyword.form = Keyword::Qualifier;
        else if (forms[i].contains(Keyword::TypeName))
            keyword.form = Keyword::TypeName;
        if (keyword.form == Keyword::TypeName)
            measureType(experiment, keyword, facts);
        facts.keywords << keyword;
    }
}
