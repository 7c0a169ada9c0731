#include "macro_values.h"

#include "integer_types.h"
#include "probe_line.h"
#include "redefinitions.h"

#include <QMap>
#include <algorithm>
#include <array>

namespace {

/// The value of a constant integer expression.
struct Integer
{
    quint64 bits; ///< of the value, as wide as they may be
    bool isNegative;
    std::optional<bool> isUnsigned; ///< its type
    int size;                       ///< of its type, in bytes; 0 if not known

    quint64 magnitude() const { return isNegative ? 0 - bits : bits; }
    /// Whether it is the least that a type of so many bytes holds.
    bool isLeastOf(int bytes) const
    {
        return isNegative && bytes > 0 && bytes <= 8
            && magnitude() == quint64(1) << (8 * bytes - 1);
    }
};

/// The sizes of the integer types in bytes, the least that ISO C allows where they are not told.
struct IntegerSizes
{
    int ofInt;
    int ofLong;
};

// What brings each 16 bits of a value to its end, by no shift that is as wide as the least int.
const std::array<QByteArray, 4> shiftsOfParts {"", ">>15>>1", ">>15>>15>>2", ">>15>>15>>15>>3"};

QByteArray objectName(qsizetype number)
{
    return "calyx_" + QByteArray::number(number) + 'o';
}

/// Which of \a expressions both the preprocessor and the compiler take for an integer.
QList<bool> areIntegers(const Questions &questions, const QList<QByteArray> &expressions)
{
    QList<QByteArray> items;
    for (const QByteArray &text : expressions) {
        items << "#if (" + text + ") || 1\n#endif\nextern char " + objectName(items.size()) + "[("
                     + text + ")==(" + text + ")?1:2];\n";
    }
    return questions.accepted({}, items);
}

QList<std::optional<Integer>> integerValues(const Questions &questions,
                                            const QList<QByteArray> &names)
{
    QList<QByteArray> expressions;
    for (const QByteArray &name : names) {
        const QByteArray value = '(' + name + ')';
        for (const QByteArray &shift : shiftsOfParts)
            expressions << '(' + value + shift + ")&65535";
        expressions << value + "<0?1:2" << value + "*0-1<0?1:2"
                    << "sizeof" + value;
    }
    const QList<std::optional<int>> answers = questions.numbers({}, expressions);
    QList<std::optional<Integer>> values;
    for (auto answer = answers.begin(); answer != answers.end();) {
        quint64 bits = 0;
        bool isWhole = true;
        for (std::size_t part = 0; part < shiftsOfParts.size(); ++part, ++answer) {
            bits |= quint64(answer->value_or(0)) << (16 * part);
            isWhole &= answer->has_value();
        }
        const std::optional<int> sign = *answer++, typeSign = *answer++, size = *answer++;
        const Integer value {bits, sign == 1,
                             typeSign ? std::optional(typeSign == 2) : std::nullopt,
                             size.value_or(0)};
        values << (isWhole && sign ? std::optional(value) : std::nullopt);
    }
    return values;
}

/// What an integer constant like \a value may end with, the likeliest first.
QList<QByteArray> suffixesFor(const Integer &value, const IntegerSizes &sizes)
{
    if (value.size == 0 || !value.isUnsigned)
        return {"", "L", "U", "UL", "LL", "ULL"};
    QList<QByteArray> suffixes {"LL", "L", ""};
    if (value.size <= sizes.ofInt)
        suffixes = {""};
    else if (value.size == sizes.ofLong)
        suffixes = {"L", "LL", ""};
    if (!*value.isUnsigned)
        return suffixes;
    for (QByteArray &suffix : suffixes)
        suffix.prepend('U');
    return suffixes << suffixes.first().toLower() << "";
}

/// The definitions that the macro \a name with that \a value may have. The first one has its type.
QList<Macro> likelyDefinitions(const QByteArray &name, const Integer &value,
                               const IntegerSizes &sizes)
{
    const quint64 magnitude = value.magnitude();
    QList<QByteArray> digits {QByteArray::number(magnitude),
                              "0x" + QByteArray::number(magnitude, 16)};
    const bool isMask = magnitude > 99 && (magnitude & (magnitude + 1)) == 0;
    if (isMask)
        digits.swapItemsAt(0, 1);
    QList<Macro> definitions;
    for (const QByteArray &suffix : suffixesFor(value, sizes)) {
        for (const QByteArray &number : digits) {
            if (value.isNegative) {
                definitions.append({name, "(-" + number + suffix + ')'});
                definitions.append({name, '-' + number + suffix});
            } else {
                definitions.append({name, number + suffix});
            }
        }
    }
    // The least of a type has no constant of its own. That of a smaller one is often written alike.
    QList<Macro> differences;
    if (value.isLeastOf(1) || value.isLeastOf(2) || value.isLeastOf(4) || value.isLeastOf(8)) {
        QByteArray largest = name;
        largest.replace("MIN", "MAX");
        const QByteArray suffix = suffixesFor(value, sizes).first();
        differences = {{name, "(-" + QByteArray::number(magnitude - 1) + suffix + " - 1)"},
                       {name, "(-" + largest + " - 1)"}};
    }
    return value.isLeastOf(value.size) ? differences + definitions : definitions + differences;
}

/// The names of other macros that a definition may consist of: of those \a others with the same
/// value as \a macro, unless so many have it that none is likely.
QList<QByteArray> likelyNames(const QByteArray &macro, const QList<QByteArray> &others)
{
    const qsizetype mostNames = 3;
    QList<QByteArray> names = others;
    names.removeAll(macro);
    return names.size() > mostNames ? QList<QByteArray>() : names;
}

/// The macros \a names, which are integers.
QList<OpenMacro> openIntegers(const Questions &questions, const QList<QByteArray> &names)
{
    const QList<std::optional<int>> told = questions.numbers({}, {"sizeof(int)", "sizeof(long)"});
    const IntegerSizes sizes {told[0].value_or(2), told[1].value_or(4)};
    const QList<std::optional<Integer>> values = integerValues(questions, names);
    QMap<quint64, QList<QByteArray>> namesOf;
    for (qsizetype i = 0; i < names.size(); ++i) {
        if (values[i])
            namesOf[values[i]->bits] << names[i];
    }
    QList<OpenMacro> open;
    for (qsizetype i = 0; i < names.size(); ++i) {
        OpenMacro macro {names[i], {}, {}};
        if (values[i]) {
            macro.definitions = likelyDefinitions(names[i], *values[i], sizes);
            macro.otherwise = macro.definitions.first();
            for (const QByteArray &other : likelyNames(names[i], namesOf[values[i]->bits]))
                macro.definitions.append({names[i], other});
        }
        open << macro;
    }
    return open;
}

/// Those of \a names that stand for an integer type, which the compiler takes for a conflict with
/// any other one; the others are left in \a rest.
QList<OpenMacro> typesAmong(const Questions &questions, const QList<QByteArray> &names,
                            QList<QByteArray> &rest)
{
    QList<QByteArray> declarations;
    for (const QByteArray &name : names) {
        for (const IntegerType &type : integerTypes()) {
            declarations << probeLine("extern @ %; extern " + type.name + " %;\n", name,
                                      declarations.size());
        }
    }
    const QList<bool> isSame = questions.rejects(ErrorKind::ConflictingDeclaration)
                                 ? questions.accepted({}, declarations)
                                 : QList<bool>(declarations.size(), false);
    QList<OpenMacro> open;
    auto same = isSame.begin();
    for (const QByteArray &name : names) {
        const auto end = same + integerTypes().size();
        const qsizetype index = std::find(same, end, true) - same;
        const bool isOne = std::count(same, end, true) == 1;
        same = end;
        if (!isOne) {
            rest << name;
            continue;
        }
        OpenMacro macro {name, {}, Macro {name, integerTypes()[index].spellings.first()}};
        for (const QByteArray &spelling : integerTypes()[index].spellings)
            macro.definitions.append({name, spelling});
        open << macro;
    }
    return open;
}

/// What else the macro \a name may be: nothing at all, itself, or a function-like one that gives an
/// integer its type. \a isEmpty is whether nothing but the first can be.
OpenMacro otherMacro(const QByteArray &name, bool isEmpty)
{
    if (isEmpty)
        return {name, {{name, ""}}, Macro {name, ""}};
    OpenMacro macro {name, {{name, name}}, {}};
    for (const char *replacement : {"c", "c ## L", "c ## U", "c ## UL", "c ## LL", "c ## ULL"})
        macro.definitions.append({name + "(c)", replacement});
    return macro;
}

QList<OpenMacro> others(const Questions &questions, const QList<QByteArray> &names)
{
    QList<QByteArray> gaps;
    for (const QByteArray &name : names)
        gaps << "extern char " + objectName(gaps.size()) + "[1 " + name + " + 1];\n";
    const QList<bool> isEmpty = questions.accepted({}, gaps);
    QList<OpenMacro> open;
    for (qsizetype i = 0; i < names.size(); ++i)
        open << otherMacro(names[i], isEmpty[i]);
    return open;
}

} // namespace

MacroFacts learnMacrosByValues(const Questions &questions, const QList<QByteArray> &names)
{
    const QList<bool> isInteger = areIntegers(questions, names);
    const QList<QByteArray> integers = selected(names, isInteger);
    QList<QByteArray> noIntegers = names, noTypes;
    noIntegers.removeIf([&integers](const QByteArray &name) { return integers.contains(name); });
    QList<OpenMacro> open = openIntegers(questions, integers);
    open << typesAmong(questions, noIntegers, noTypes) << others(questions, noTypes);
    return firstConfirmed(questions, open);
}
