#include "learning.h"

#include "known_names.h"

#include <QMap>
#include <QSet>
#include <algorithm>

namespace {

const qsizetype longestLine = 500; // ISO C90 promises 509 characters of a source line
const int namesInGroup = 16;
const int mostParameters = 6;

// The value stands between two characters that no macro swallows, so that an empty one is no empty
// argument. Arguments are taken as they come where the compiler has variadic macros.
const QByteArray variadicQuote = "#define CALYX_Q(...) #__VA_ARGS__\n"
                                 "#define CALYX_T(...) CALYX_Q(__VA_ARGS__)\n";
const QByteArray plainQuote = "#define CALYX_Q(x) #x\n#define CALYX_T(x) CALYX_Q(x)\n";

QByteArray quoted(const QByteArray &expression)
{
    return "CALYX_T(~ " + expression + " ~)";
}

QByteArray unquoted(const QByteArray &text)
{
    return text.mid(1, text.size() - 2).trimmed();
}

QList<QByteArray> candidates(const QList<Name> &names)
{
    QSet<QByteArray> chosen;
    for (const Name &name : names) {
        const bool isUsedOnly = (name.uses & ~unsigned(CalledInHeader)) == UsedInHeader;
        if ((!isUsedOnly || name.text.startsWith('_')) && !isSpecialName(name.text))
            chosen << name.text;
    }
    for (const QByteArray &name : knownMacros())
        chosen << name;
    QList<QByteArray> sorted(chosen.begin(), chosen.end());
    std::sort(sorted.begin(), sorted.end());
    return sorted;
}

/// Which of \a names are defined: first asked in groups, then one by one in those groups where one
/// is.
QList<QByteArray> definedOf(const Experiment &experiment, const QList<QByteArray> &names)
{
    QList<QList<QByteArray>> groups;
    QList<QByteArray> conditions;
    for (const QByteArray &name : names) {
        const QByteArray test = "defined " + name;
        const bool isFull = groups.isEmpty() || groups.last().size() == namesInGroup
                         || conditions.last().size() + test.size() + 10 > longestLine;
        if (isFull) {
            groups << QList<QByteArray>();
            conditions << test;
        } else {
            conditions.last() += " || " + test;
        }
        groups.last() << name;
    }
    const QList<bool> groupHolds = experiment.conditions(conditions);
    QList<QByteArray> suspects, tests, defined;
    for (qsizetype i = 0; i < groups.size(); ++i) {
        if (groupHolds[i])
            suspects << groups[i];
    }
    for (const QByteArray &name : suspects)
        tests << "defined " + name;
    const QList<bool> holds = experiment.conditions(tests);
    for (qsizetype i = 0; i < suspects.size(); ++i) {
        if (holds[i])
            defined << suspects[i];
    }
    return defined;
}

/// Which of \a macros the compiler has with exactly that definition: it accepts the same one again
/// without a word. Nothing when it would accept another one as well.
std::optional<QSet<qsizetype>> confirmed(const Experiment &experiment, const QList<Macro> &macros)
{
    const QByteArray prelude = "#define CALYX_CONTROL 1\n";
    const QByteArray control = "#define CALYX_CONTROL 2\n";
    const int perProbe = std::max(1, experiment.prober().byteLimit() / 100);
    QSet<qsizetype> confirmed;
    QList<QList<qsizetype>> open;
    for (qsizetype i = 0; i < macros.size(); ++i) {
        if (i % perProbe == 0)
            open << QList<qsizetype>();
        open.last() << i;
    }
    while (!open.isEmpty()) {
        QList<QByteArray> sources;
        for (const QList<qsizetype> &batch : open) {
            QByteArray source = prelude;
            for (const qsizetype index : batch)
                source += "#define " + macros[index].name + ' ' + macros[index].value + '\n';
            sources << source + control + "extern int calyx_end;\n";
        }
        const QList<Answer> answers = experiment.prober().askAll(sources);
        QList<QList<qsizetype>> next;
        for (qsizetype i = 0; i < open.size(); ++i) {
            const QSet<int> &lines = answers[i].allLines;
            QList<qsizetype> silent;
            for (qsizetype j = 0; j < open[i].size(); ++j) {
                if (!lines.contains(int(j) + 2))
                    silent << open[i][j];
            }
            const bool reachedTheEnd = lines.contains(int(open[i].size()) + 2);
            if (reachedTheEnd) {
                for (const qsizetype index : silent)
                    confirmed << index;
            } else if (silent.size() == open[i].size()) {
                return {};
            } else if (!silent.isEmpty()) {
                next << silent; // it has stopped at the first errors
            }
        }
        open = next;
    }
    return confirmed;
}

QByteArray placeholder(int number)
{
    return "calyxp" + QByteArray::number(number) + 'z';
}

bool isNameCharacter(char c)
{
    return std::isalnum(static_cast<unsigned char>(c)) || c == '_';
}

/// The replacement list of a macro with \a parameters from what its use with the placeholders
/// becomes, with "##" and "#" where the placeholders show them.
QByteArray replacementFrom(QByteArray use, const QList<QByteArray> &parameters)
{
    for (qsizetype i = 0; i < parameters.size(); ++i) {
        const QByteArray argument = placeholder(int(i));
        use.replace('"' + argument + '"', '#' + parameters[i]);
        for (qsizetype at = 0; (at = use.indexOf(argument, at)) >= 0;) {
            const qsizetype end = at + argument.size();
            const bool joinsBefore = at > 0 && isNameCharacter(use[at - 1]);
            const bool joinsBehind = end < use.size() && isNameCharacter(use[end]);
            const QByteArray parameter =
                (joinsBefore ? " ## " : "") + parameters[i] + (joinsBehind ? " ## " : "");
            use.replace(at, argument.size(), parameter);
            at += parameter.size();
        }
    }
    return use;
}

/// Definitions that the function-like macro \a name may have, the likeliest first. \a uses are what
/// its use with 0, 1, 2 ... arguments becomes: its number of parameters is the only one that it
/// accepts. The names of the parameters are guessed.
QList<Macro> functionLikeDefinitions(const QByteArray &name,
                                     const QList<std::optional<QByteArray>> &uses)
{
    static const QList<QByteArray> singleNames {"c", "x", "a", "n",   "v",    "e",   "s",    "t",
                                                "p", "X", "A", "arg", "args", "val", "value"};
    static const QList<QByteArray> severalNames[] = {{"a", "b", "c", "d", "e", "f"},
                                                     {"x", "y", "z", "w", "v", "u"},
                                                     {"A", "B", "C", "D", "E", "F"}};
    QList<qsizetype> counts;
    for (qsizetype count = 0; count < uses.size(); ++count) {
        if (uses[count])
            counts << count;
    }
    if (counts == QList<qsizetype> {0, 1})
        counts.removeFirst(); // no argument is also one empty argument
    if (counts.size() != 1)
        return {};
    const qsizetype count = counts.first();
    const QByteArray use = unquoted(*uses[count]);

    QList<QList<QByteArray>> parameterLists;
    if (count == 1) {
        for (const QByteArray &parameter : singleNames)
            parameterLists << QList<QByteArray> {parameter};
    } else {
        for (const QList<QByteArray> &several : severalNames)
            parameterLists << several.mid(0, count);
    }
    QList<Macro> definitions;
    for (const QList<QByteArray> &parameters : parameterLists) {
        definitions.append(
            {name + '(' + parameters.join(',') + ')', replacementFrom(use, parameters)});
    }
    return definitions;
}

/// Adds the function-like macros \a names to the facts, those with a definition that the compiler
/// confirms, and the others as undetermined.
void learnFunctionLike(const Experiment &experiment, const QByteArray &prelude,
                       const QList<QByteArray> &names, Facts &facts)
{
    QMap<QByteArray, QList<std::optional<QByteArray>>> uses;
    QByteArray arguments;
    for (int count = 0; count <= mostParameters; ++count) {
        QList<QByteArray> expressions;
        for (const QByteArray &name : names)
            expressions << quoted(name + '(' + arguments + ')');
        const QList<std::optional<QByteArray>> texts = experiment.texts(prelude, expressions);
        for (qsizetype i = 0; i < names.size(); ++i)
            uses[names[i]] << texts[i];
        arguments += (count == 0 ? "" : ",") + placeholder(count);
    }

    QMap<QByteArray, QList<Macro>> open;
    for (const QByteArray &name : names) {
        open[name] << Macro {name, name}; // a macro that stands for itself
        open[name] << functionLikeDefinitions(name, uses[name]);
    }
    while (!open.isEmpty()) {
        QList<Macro> tried;
        for (auto definitions = open.begin(); definitions != open.end(); ++definitions)
            tried << definitions->takeFirst();
        const QSet<qsizetype> exact = confirmed(experiment, tried).value_or(QSet<qsizetype>());
        const QList<QByteArray> keys = open.keys();
        for (qsizetype i = 0; i < keys.size(); ++i) {
            if (exact.contains(i))
                facts.macros << tried[i];
            else if (open[keys[i]].isEmpty())
                facts.undeterminedMacros << keys[i];
            else
                continue;
            open.remove(keys[i]);
        }
    }
}

/// Whether a compiler may refuse to have the macro defined again or taken back, whatever its value
/// (ISO C 6.10.8, ISO C++ [cpp.predefined]).
bool isProtected(const QByteArray &name)
{
    return name.startsWith("__STDC") || name == "__cplusplus";
}

/// The value of \a name with every other macro taken back, so that nothing in it is replaced.
std::optional<QByteArray> bareValue(const Experiment &experiment, const QByteArray &prelude,
                                    const QByteArray &name, const QByteArray &replacedValue,
                                    const QList<QByteArray> &defined)
{
    QByteArray undefined;
    for (const QByteArray &other : defined) {
        if (other != name && !isProtected(other))
            undefined += "#undef " + other + '\n';
    }
    if (undefined.size() > experiment.prober().byteLimit())
        return replacedValue;
    const auto text = experiment.texts(prelude + undefined, {quoted(name)}).first();
    return text ? std::optional(unquoted(*text)) : std::nullopt;
}

} // namespace

void learnMacros(const Experiment &experiment, const QList<Name> &names, Facts &facts)
{
    const QList<QByteArray> defined = definedOf(experiment, candidates(names));
    const bool hasVariadic =
        experiment.texts(variadicQuote, {quoted("x, y")}).first() == QByteArray("~ x, y ~");
    const QByteArray prelude = hasVariadic ? variadicQuote : plainQuote;

    QList<QByteArray> expressions;
    for (const QByteArray &name : defined)
        expressions << quoted(name);
    const QList<std::optional<QByteArray>> texts = experiment.texts(prelude, expressions);

    QList<Macro> objectLike;
    QList<QByteArray> functionLike;
    for (qsizetype i = 0; i < defined.size(); ++i) {
        if (!texts[i])
            facts.undeterminedMacros << defined[i];
        else if (unquoted(*texts[i]) == defined[i])
            functionLike << defined[i];
        else
            objectLike.append({defined[i], unquoted(*texts[i])});
    }

    const std::optional<QSet<qsizetype>> exact = confirmed(experiment, objectLike);
    QList<Macro> doubtful;
    for (qsizetype i = 0; i < objectLike.size(); ++i) {
        if (!exact || exact->contains(i) || isProtected(objectLike[i].name))
            facts.macros << objectLike[i];
        else
            doubtful << objectLike[i];
    }
    // Something in these values has been replaced, or a string does not say what it was made of.
    for (Macro &macro : doubtful) {
        macro.value =
            bareValue(experiment, prelude, macro.name, macro.value, defined).value_or(macro.value);
    }
    const QSet<qsizetype> exactNow = confirmed(experiment, doubtful).value_or(QSet<qsizetype>());
    for (qsizetype i = 0; i < doubtful.size(); ++i) {
        if (exactNow.contains(i))
            facts.macros << doubtful[i];
        else
            facts.undeterminedMacros << doubtful[i].name;
    }

    learnFunctionLike(experiment, prelude, functionLike, facts);
    std::sort(facts.macros.begin(), facts.macros.end(),
              [](const Macro &a, const Macro &b) { return a.name < b.name; });
    std::sort(facts.undeterminedMacros.begin(), facts.undeterminedMacros.end());
}
