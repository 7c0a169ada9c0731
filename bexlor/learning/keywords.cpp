#include "learning.h"

#include "keyword_forms.h"
#include "keyword_types.h"
#include "probe_line.h"
#include "well_known_names.h"

#include <QSet>
#include <algorithm>
#include <functional>

namespace {

QSet<QByteArray> macroNames(const MacroFacts &macros)
{
    QSet<QByteArray> names(macros.undetermined.begin(), macros.undetermined.end());
    for (const Macro &macro : macros.known)
        names << bareName(macro.name);
    return names;
}

bool isReservedFunction(const QByteArray &name)
{
    // Functions that the compiler brings along are no keywords, and there are thousands of them.
    return name.startsWith("__builtin_") || name.startsWith("__sync_")
        || name.startsWith("__atomic_");
}

/// Whether \a name may begin an assembler's text. A compiler may take all that follows for it.
bool mayBeginAssembler(const QByteArray &name)
{
    return name.contains("asm");
}

/// The order in which names are asked for: alphabetical, but what may begin an assembler's text
/// comes last.
bool isAskedBefore(const QByteArray &a, const QByteArray &b)
{
    const bool isAssembler = mayBeginAssembler(a);
    return isAssembler == mayBeginAssembler(b) ? a < b : !isAssembler;
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

/// Those of \a names that cannot be declared, each in the line that probeLine() makes of
/// \a declaration.
QList<QByteArray> undeclarable(const Questions &questions, const QByteArray &declaration,
                               const QList<QByteArray> &names)
{
    QList<QByteArray> items;
    for (const QByteArray &name : names)
        items << probeLine(declaration, name, items.size());
    QList<bool> flags = questions.accepted({}, items, true);
    std::transform(flags.begin(), flags.end(), flags.begin(), std::logical_not());
    return selected(names, flags);
}

/// Those of \a names that cannot be declared: as a member, which collides with nothing that the
/// compiler knows, or for the well-known ones, among them types that a compiler brings along and
/// that may be members' names, as an object.
QList<QByteArray> undeclarableNames(const Questions &questions, QList<QByteArray> names)
{
    QList<QByteArray> rejected;
    // One that stops at its first error takes a probe for each that is rejected.
    if (questions.stopsAtFirstError() && questions.rejects(ErrorKind::UnknownName)) {
        rejected = keywordsOfWholeFamilies(questions, names);
        names.removeIf([&rejected](const QByteArray &name) { return rejected.contains(name); });
    }
    const QByteArray member = "struct % { char @[1]; };\n";
    // One that stops in an assembler's text does not tell what it has accepted before.
    const auto firstAsm = questions.stopsAtFirstError()
                            ? std::find_if(names.cbegin(), names.cend(), &mayBeginAssembler)
                            : names.cend();
    rejected << undeclarable(questions, member, {names.cbegin(), firstAsm})
             << undeclarable(questions, member, {firstAsm, names.cend()});
    QList<QByteArray> types;
    for (const QByteArray &name : wellKnownKeywords(questions.isCpp())) {
        if (names.contains(name) && !rejected.contains(name))
            types << name;
    }
    rejected << undeclarable(questions, "static int @ = 0;\n", types);
    std::sort(rejected.begin(), rejected.end(), &isAskedBefore);
    return rejected;
}

/// Whether \a name, a keyword of the standard, can be declared.
bool isOrdinaryName(const Questions &questions, const QByteArray &name)
{
    return questions.accepted({}, {"static int " + name + " = 0;\n"}).first();
}

} // namespace

QList<Keyword> learnKeywords(const Questions &questions, const QList<ScannedName> &names,
                             const MacroFacts &macros, const TypeFacts &types,
                             const QList<QByteArray> &settled)
{
    const QList<QByteArray> found =
        undeclarableNames(questions, candidates(names, questions.isCpp(), macros));
    const QList<QList<Keyword::Form>> forms = keywordForms(questions, found, settled);
    QList<Keyword> keywords;
    for (qsizetype i = 0; i < found.size(); ++i) {
        for (const Keyword::Form form : forms[i])
            keywords.append({found[i], form, {}});
    }
    addStandIns(questions, types, keywords);
    for (const Keyword &block : assemblerBlocks(questions, found)) {
        keywords.removeIf([&block](const Keyword &keyword) { return keyword.name == block.name; });
        keywords << block;
    }
    if (!questions.isCpp() && isOrdinaryName(questions, "_Bool"))
        keywords.append({"_Bool", Keyword::OrdinaryName, {}});
    std::stable_sort(keywords.begin(), keywords.end(),
                     [](const Keyword &a, const Keyword &b) { return a.name < b.name; });
    return keywords;
}
