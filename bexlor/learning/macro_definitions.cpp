#include "macro_definitions.h"

#include <cctype>

namespace {

QByteArray placeholder(int number)
{
    return "calyxp" + QByteArray::number(number) + 'z';
}

bool isNameCharacter(char c)
{
    return std::isalnum(static_cast<unsigned char>(c)) || c == '_';
}

/// The replacement list of a macro with \a parameters from what its use with the placeholders
/// becomes, with "##" and "#" where the placeholders show them: "x_calyxp0z" has been "x_ ## a".
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

/// The lists of \a count parameters that macros often have.
QList<QList<QByteArray>> parameterLists(qsizetype count)
{
    static const QList<QByteArray> singleNames {"c", "x", "a", "n",   "v",    "e",   "s",    "t",
                                                "p", "X", "A", "arg", "args", "val", "value"};
    static const QList<QByteArray> severalNames[] = {{"a", "b", "c", "d", "e", "f"},
                                                     {"x", "y", "z", "w", "v", "u"},
                                                     {"A", "B", "C", "D", "E", "F"}};
    QList<QList<QByteArray>> lists;
    if (count == 0)
        return {{}};
    if (count == 1) {
        for (const QByteArray &parameter : singleNames)
            lists << QList<QByteArray> {parameter};
    } else {
        for (const QList<QByteArray> &several : severalNames)
            lists << several.first(count);
    }
    return lists;
}

} // namespace

QByteArray placeholders(int count)
{
    QByteArrayList all;
    for (int number = 0; number < count; ++number)
        all << placeholder(number);
    return all.join(',');
}

QList<Macro> functionLikeDefinitions(const QByteArray &name,
                                     const QList<std::optional<QByteArray>> &uses)
{
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
    QList<Macro> definitions;
    for (const QList<QByteArray> &parameters : parameterLists(count)) {
        definitions.append(
            {name + '(' + parameters.join(',') + ')', replacementFrom(*uses[count], parameters)});
    }
    return definitions;
}
