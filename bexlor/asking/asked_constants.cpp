#include "asked_constants.h"

namespace {

const int bitsOfNumber = 16;

QByteArray declaredArray(const QByteArray &size, qsizetype number)
{
    return "extern char calyx_" + QByteArray::number(number) + "a[" + size + "];\n";
}

} // namespace

AskedConstants::AskedConstants(const ProbeRunner &runner)
    : m_runner(runner), m_usesArrays(runner.controls().rejects(ErrorKind::NegativeArraySize))
{ }

bool AskedConstants::arePossible(const Controls &controls)
{
    return controls.rejects(ErrorKind::NegativeArraySize)
        || controls.rejects(ErrorKind::ErrorDirective);
}

/// Which of \a items are accepted; none where \a prelude is not.
QList<bool> AskedConstants::accepted(const QByteArray &prelude,
                                     const QList<QByteArray> &items) const
{
    if (!preludeCompiles(m_runner, prelude))
        return QList<bool>(items.size(), false);
    return acceptedItems(askProbes(m_runner), prelude, items, m_runner.limits(), false);
}

/// What is rejected if \a expression, which is 0 or 1, is true.
QByteArray AskedConstants::rejectedIf(const QByteArray &expression, qsizetype number) const
{
    return m_usesArrays ? declaredArray("1-2*(int)(" + expression + ')', number)
                        : "#if " + expression + '\n' + rejected() + "#endif\n";
}

QByteArray AskedConstants::rejected() const
{
    return m_usesArrays ? declaredArray("1-2*(sizeof(char)!=2)", 0) : "#error calyx\n";
}

QList<std::optional<int>> AskedConstants::numbers(const QByteArray &prelude,
                                                  const QList<QByteArray> &expressions) const
{
    QList<QByteArray> bits;
    for (const QByteArray &expression : expressions) {
        for (int bit = 0; bit < bitsOfNumber; ++bit)
            bits << rejectedIf("(" + expression + ")>>" + QByteArray::number(bit) + "&1",
                               bits.size());
    }
    const QList<bool> isClear = accepted(prelude, bits);
    QList<int> values;
    QList<QByteArray> claims;
    for (qsizetype i = 0; i < expressions.size(); ++i) {
        int value = 0;
        for (int bit = 0; bit < bitsOfNumber; ++bit)
            value |= int(!isClear[i * bitsOfNumber + bit]) << bit;
        values << value;
        // What does not compile is rejected bit for bit as well.
        claims << rejectedIf("(" + expressions[i] + ")!=" + QByteArray::number(value), i);
    }
    const QList<bool> isConfirmed = accepted(prelude, claims);
    QList<std::optional<int>> numbers;
    for (qsizetype i = 0; i < values.size(); ++i)
        numbers << (isConfirmed[i] ? std::optional(values[i]) : std::nullopt);
    return numbers;
}

QList<bool> AskedConstants::conditions(const QByteArray &prelude,
                                       const QList<QByteArray> &conditions) const
{
    QList<QByteArray> tests;
    for (const QByteArray &condition : conditions)
        tests << "#if " + condition + '\n' + rejected() + "#endif\n";
    QList<bool> isTrue = accepted(prelude, tests);
    QList<qsizetype> suspects;
    QList<QByteArray> confirmations;
    for (qsizetype i = 0; i < conditions.size(); ++i) {
        isTrue[i] = !isTrue[i];
        if (!isTrue[i])
            continue;
        suspects << i;
        confirmations << "#if " + conditions[i] + "\n#else\n" + rejected() + "#endif\n";
    }
    // What is not understood is rejected either way.
    const QList<bool> isUnderstood = accepted(prelude, confirmations);
    for (qsizetype i = 0; i < suspects.size(); ++i)
        isTrue[suspects[i]] = isUnderstood[i];
    return isTrue;
}
