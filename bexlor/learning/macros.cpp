#include "learning.h"

#include "macro_definitions.h"
#include "macro_values.h"
#include "redefinitions.h"
#include "well_known_names.h"

#include <QSet>
#include <algorithm>
#include <cstring>

using namespace Qt::StringLiterals;

namespace {

const qsizetype longestLine = 500; // ISO C90 promises 509 characters of a source line
const int namesInGroup = 16;

// The value stands between two characters that no macro swallows, so that an empty one is no empty
// argument. Arguments are taken as they come where the compiler has variadic macros.
const QByteArray variadicQuote = "#define CALYX_Q(...) #__VA_ARGS__\n"
                                 "#define CALYX_T(...) CALYX_Q(__VA_ARGS__)\n";
const QByteArray plainQuote = "#define CALYX_Q(x) #x\n#define CALYX_T(x) CALYX_Q(x)\n";

QByteArray quoted(const QByteArray &expression)
{
    return "CALYX_T(~ " + expression + " ~)";
}

/// What has been quoted, from the text "~ 1 ~".
QByteArray unquoted(const QByteArray &text)
{
    return text.mid(1, text.size() - 2).trimmed();
}

/// The definitions by which quoted() works with this compiler. Nothing where texts are not read
/// back, or by a preprocessor older than ISO C, which has no operator for it.
std::optional<QByteArray> quoteDefinitions(const Questions &questions)
{
    const std::pair<QByteArray, QByteArray> quotes[] = {{variadicQuote, "x, y"}, {plainQuote, "x"}};
    for (const auto &[quote, text] : quotes) {
        if (questions.texts(quote, {quoted(text)}).first() == "~ " + text + " ~")
            return quote;
    }
    return {};
}

/// What each of \a expressions becomes behind \a prelude, which begins with the quote's
/// definitions.
QList<std::optional<QByteArray>> expanded(const Questions &questions, const QByteArray &prelude,
                                          const QList<QByteArray> &expressions)
{
    QList<QByteArray> literals;
    for (const QByteArray &expression : expressions)
        literals << quoted(expression);
    QList<std::optional<QByteArray>> texts = questions.texts(prelude, literals);
    for (std::optional<QByteArray> &text : texts) {
        if (text)
            text = unquoted(*text);
    }
    return texts;
}

/// Tests of \a names in groups, each as long as a line may be: "defined A || defined B".
QList<QList<QByteArray>> groupsOf(const QList<QByteArray> &names)
{
    QList<QList<QByteArray>> groups;
    qsizetype length = 0;
    for (const QByteArray &name : names) {
        const qsizetype more = name.size() + qsizetype(std::strlen(" || defined "));
        const bool isFull =
            groups.isEmpty() || groups.last().size() == namesInGroup || length + more > longestLine;
        if (isFull) {
            groups << QList<QByteArray>();
            length = 0;
        }
        groups.last() << name;
        length += more;
    }
    return groups;
}

/// Which of \a names are defined: first asked in groups, then one by one in those groups where one
/// is.
QList<QByteArray> definedNames(const Questions &questions, const QList<QByteArray> &names)
{
    const QList<QList<QByteArray>> groups = groupsOf(names);
    QList<QByteArray> conditions;
    for (const QList<QByteArray> &group : groups)
        conditions << "defined " + group.join(" || defined ");
    QList<QByteArray> suspects, tests;
    for (const QList<QByteArray> &group : selected(groups, questions.conditions(conditions)))
        suspects << group;
    for (const QByteArray &name : suspects)
        tests << "defined " + name;
    return selected(suspects, questions.conditions(tests));
}

/// Whether a compiler may refuse to have the macro defined again or taken back, whatever its value
/// (ISO C 6.10.8, ISO C++ [cpp.predefined]).
bool isProtected(const QByteArray &name)
{
    return name.startsWith("__STDC") || name == "__cplusplus";
}

/// The value of \a macro with every other one of \a defined taken back, so that nothing in it is
/// replaced; as it was where that cannot be asked.
QByteArray bareValue(const Questions &questions, const QByteArray &quote, const Macro &macro,
                     const QList<QByteArray> &defined)
{
    QByteArray undefined;
    for (const QByteArray &other : defined) {
        if (other != macro.name && !isProtected(other))
            undefined += "#undef " + other + '\n';
    }
    if (undefined.size() > questions.limits().bytes)
        return macro.value;
    return expanded(questions, quote + undefined, {macro.name}).first().value_or(macro.value);
}

/// Adds those of \a macros that the compiler confirms to \a facts. Returns the others.
QList<Macro> keepConfirmed(const Questions &questions, const QList<Macro> &macros,
                           MacroFacts &facts)
{
    const std::optional<QList<bool>> isExact = confirmed(questions, macros);
    QList<Macro> others;
    for (qsizetype i = 0; i < macros.size(); ++i)
        (isExact && (*isExact)[i] ? facts.known : others) << macros[i];
    return others;
}

/// The object-like macros \a macros as they are: read back, their values are what becomes of their
/// definitions. \a defined are the names of all macros.
MacroFacts withBareValues(const Questions &questions, const QByteArray &quote,
                          const QList<Macro> &macros, const QList<QByteArray> &defined)
{
    MacroFacts facts;
    const std::optional<QList<bool>> isExact = confirmed(questions, macros);
    QList<Macro> doubtful;
    for (qsizetype i = 0; i < macros.size(); ++i) {
        const bool isKept = !isExact || (*isExact)[i] || isProtected(macros[i].name);
        (isKept ? facts.known : doubtful) << macros[i];
    }
    // Something in these values has been replaced, or a string does not say what it was made of.
    for (Macro &macro : doubtful)
        macro.value = bareValue(questions, quote, macro, defined);
    for (const Macro &macro : keepConfirmed(questions, doubtful, facts))
        facts.undetermined << macro.name;
    return facts;
}

/// For each of the function-like macros \a names the definitions that it may have.
QList<OpenMacro> possibleDefinitions(const Questions &questions, const QByteArray &quote,
                                     const QList<QByteArray> &names)
{
    QList<QList<std::optional<QByteArray>>> uses(names.size());
    for (int count = 0; count <= mostParameters; ++count) {
        QList<QByteArray> expressions;
        for (const QByteArray &name : names)
            expressions << name + '(' + placeholders(count) + ')';
        const QList<std::optional<QByteArray>> texts = expanded(questions, quote, expressions);
        for (qsizetype i = 0; i < names.size(); ++i)
            uses[i] << texts[i];
    }
    QList<OpenMacro> macros;
    for (qsizetype i = 0; i < names.size(); ++i) {
        const Macro ofItself {names[i], names[i]};
        macros.append(
            {names[i], QList<Macro> {ofItself} + functionLikeDefinitions(names[i], uses[i]), {}});
    }
    return macros;
}

/// The macros \a defined from the texts that they become.
MacroFacts learnByTexts(const Questions &questions, const QByteArray &quote,
                        const QList<QByteArray> &defined)
{
    const QList<std::optional<QByteArray>> texts = expanded(questions, quote, defined);
    MacroFacts facts;
    QList<Macro> objectLike;
    QList<QByteArray> functionLike;
    for (qsizetype i = 0; i < defined.size(); ++i) {
        if (!texts[i])
            facts.undetermined << defined[i];
        else if (*texts[i] == defined[i]) // without arguments it is not replaced
            functionLike << defined[i];
        else
            objectLike.append({defined[i], *texts[i]});
    }
    const QList<OpenMacro> open = possibleDefinitions(questions, quote, functionLike);
    for (const MacroFacts &more :
         {withBareValues(questions, quote, objectLike, defined), firstConfirmed(questions, open)}) {
        facts.known << more.known;
        facts.undetermined << more.undetermined;
    }
    return facts;
}

} // namespace

QList<QByteArray> macroCandidates(const QList<ScannedName> &names)
{
    const QList<QByteArray> known = wellKnownMacros();
    QSet<QByteArray> chosen(known.begin(), known.end());
    for (const ScannedName &name : names) {
        const bool isUsedOnly = name.uses == UsedInHeader;
        if (!isUsedOnly || name.text.startsWith('_'))
            chosen << name.text;
    }
    QList<QByteArray> sorted(chosen.begin(), chosen.end());
    sorted.removeIf(&isSpecialName);
    std::sort(sorted.begin(), sorted.end());
    return sorted;
}

MacroFacts learnMacros(const Questions &questions, const QList<QByteArray> &candidates)
{
    const QList<QByteArray> defined = definedNames(questions, candidates);
    const std::optional<QByteArray> quote = quoteDefinitions(questions);
    MacroFacts facts =
        quote ? learnByTexts(questions, *quote, defined) : learnMacrosByValues(questions, defined);
    std::sort(facts.known.begin(), facts.known.end(),
              [](const Macro &a, const Macro &b) { return a.name < b.name; });
    std::sort(facts.undetermined.begin(), facts.undetermined.end());
    return facts;
}
