#include "questions.h"

#include "asked_constants.h"

Questions::Questions(const ProbeRunner &runner) : m_runner(runner)
{
    QList<CompileTo> goals {CompileTo::Object};
    if (!runner.compiler().isCross)
        goals << CompileTo::Program;
    for (const CompileTo goal : goals) {
        const auto arrays = std::make_shared<const ConstantArrays>(runner, goal);
        if (arrays->readsTexts())
            m_texts = arrays;
        if (arrays->readsNumbers())
            m_numbers = arrays;
        if (m_texts || m_numbers)
            break;
    }
    if (!m_numbers && AskedConstants::arePossible(runner.controls()))
        m_numbers = std::make_shared<const AskedConstants>(runner);
}

QList<bool> Questions::accepted(const QByteArray &prelude, const QList<QByteArray> &items,
                                bool confirms) const
{
    return acceptedItems(askProbes(m_runner), prelude, items, limits(), confirms);
}

std::optional<QList<bool>> Questions::withoutMessage(const QByteArray &prelude,
                                                     const QList<QByteArray> &items,
                                                     const QByteArray &control) const
{
    return itemsWithoutMessage(askProbes(m_runner), prelude, items, control, limits());
}

std::optional<QList<bool>> Questions::withFewerMessages(const QByteArray &prelude,
                                                        const QList<QByteArray> &items,
                                                        const QList<QByteArray> &others) const
{
    return itemsWithFewerMessages(askProbes(m_runner), prelude, items, others, limits());
}

QList<ProbeAnswer> Questions::eachAlone(const QList<QByteArray> &sources) const
{
    return m_runner.askAll(sources);
}

bool Questions::rejects(ErrorKind kind) const
{
    return m_runner.controls().rejects(kind);
}

QList<bool> Questions::acceptedApart(const QList<QByteArray> &items) const
{
    return itemsAcceptedApart(askProbes(m_runner), {}, items, limits());
}

QList<std::optional<QByteArray>> Questions::texts(const QByteArray &prelude,
                                                  const QList<QByteArray> &literals) const
{
    return m_texts ? m_texts->texts(prelude, literals)
                   : QList<std::optional<QByteArray>>(literals.size());
}

QList<std::optional<int>> Questions::numbers(const QByteArray &prelude,
                                             const QList<QByteArray> &expressions) const
{
    return m_numbers ? m_numbers->numbers(prelude, expressions)
                     : QList<std::optional<int>>(expressions.size());
}

QList<bool> Questions::conditions(const QList<QByteArray> &conditions,
                                  const QByteArray &prelude) const
{
    return m_numbers ? m_numbers->conditions(prelude, conditions)
                     : QList<bool>(conditions.size(), false);
}
