#include "bisection.h"

#include <algorithm>

namespace {

/// Those of \a batch, whose items stand one after the other behind \a prelude, that \a lines name.
Batch itemsOn(const QSet<int> &lines, const QByteArray &prelude, const QList<QByteArray> &items,
              const Batch &batch)
{
    Batch named;
    int line = int(prelude.count('\n')) + 1;
    for (const int index : batch) {
        const int end = line + int(items[index].count('\n'));
        bool isNamed = false;
        for (; line < end; ++line)
            isNamed |= lines.contains(line);
        if (isNamed)
            named << index;
    }
    return named;
}

Batch without(const Batch &batch, const Batch &taken)
{
    Batch rest;
    std::set_difference(batch.begin(), batch.end(), taken.begin(), taken.end(),
                        std::back_inserter(rest));
    return rest;
}

void set(QList<bool> &flags, const Batch &batch)
{
    for (const int index : batch)
        flags[index] = true;
}

/// Looks for the items that keep a probe from compiling.
class Bisection
{
public:
    Bisection(const QByteArray &prelude, const QList<QByteArray> &items)
        : accepted(items.size(), false), m_prelude(prelude), m_items(items)
    { }

    QList<bool> accepted;
    Batch suspects; ///< named by a message in a probe with others

    /// Asks \a batches, and what they are divided into, until every item is accepted, suspected, or
    /// rejected alone.
    void run(const AskProbes &ask, QList<Batch> batches)
    {
        while (!batches.isEmpty()) {
            QList<QByteArray> sources;
            for (const Batch &batch : batches)
                sources << m_prelude + joinedItems(m_items, batch);
            const QList<ProbeAnswer> answers = ask(sources);
            m_next.clear();
            for (qsizetype i = 0; i < batches.size(); ++i)
                take(batches[i], answers[i]);
            batches = m_next;
        }
    }

private:
    void take(const Batch &batch, const ProbeAnswer &answer)
    {
        if (answer.compiled())
            set(accepted, batch);
        else if (batch.size() > 1)
            divide(batch, itemsOn(answer.lines, m_prelude, m_items, batch));
    }

    void divide(const Batch &batch, const Batch &named)
    {
        const Batch rest = without(batch, named);
        if (rest.isEmpty()) {
            halve(batch); // to name all says nothing
            return;
        }
        suspects << named;
        // A compiler that names one line only, or none, may stop at its first error.
        if (named.size() > 1)
            m_next << rest;
        else
            halve(rest);
    }

    void halve(const Batch &batch)
    {
        const qsizetype half = batch.size() / 2;
        for (const Batch &part : {batch.first(half), batch.sliced(half)}) {
            if (!part.isEmpty())
                m_next << part;
        }
    }

    const QByteArray &m_prelude;
    const QList<QByteArray> &m_items;
    QList<Batch> m_next;
};

} // namespace

QList<Batch> batchesOf(const QList<QByteArray> &items, qsizetype preludeSize, ProbeLimits limits)
{
    QList<Batch> batches;
    qsizetype size = 0;
    for (int index = 0; index < items.size(); ++index) {
        const bool isFull = batches.isEmpty() || batches.last().size() * 2 >= limits.declarations
                         || size + items[index].size() > limits.bytes;
        if (isFull) {
            batches << Batch();
            size = preludeSize;
        }
        batches.last() << index;
        size += items[index].size();
    }
    return batches;
}

QByteArray joinedItems(const QList<QByteArray> &items, const Batch &batch)
{
    QByteArray text;
    for (const int index : batch)
        text += items[index];
    return text;
}

QList<bool> acceptedItems(const AskProbes &ask, const QByteArray &prelude,
                          const QList<QByteArray> &items, ProbeLimits limits, bool confirmsAlone)
{
    Bisection bisection(prelude, items);
    bisection.run(ask, batchesOf(items, prelude.size(), limits));
    if (!confirmsAlone || bisection.suspects.isEmpty())
        return bisection.accepted;
    QList<QByteArray> sources;
    for (const int index : bisection.suspects)
        sources << prelude + items[index];
    const QList<ProbeAnswer> answers = ask(sources);
    for (qsizetype i = 0; i < answers.size(); ++i)
        bisection.accepted[bisection.suspects[i]] = answers[i].compiled();
    return bisection.accepted;
}

std::optional<QList<bool>> itemsWithoutMessage(const AskProbes &ask, const QByteArray &prelude,
                                               const QList<QByteArray> &items,
                                               const QByteArray &control, ProbeLimits limits)
{
    const QList<QByteArray> all = items + QList<QByteArray> {control};
    const int controlIndex = int(items.size());
    QList<bool> isSilent(items.size(), false);
    QList<Batch> open = batchesOf(items, prelude.size(), limits);
    while (!open.isEmpty()) {
        QList<QByteArray> sources;
        for (Batch &batch : open) {
            batch << controlIndex;
            sources << prelude + joinedItems(all, batch);
        }
        const QList<ProbeAnswer> answers = ask(sources);
        QList<Batch> next;
        for (qsizetype i = 0; i < open.size(); ++i) {
            const Batch named = itemsOn(answers[i].allLines, prelude, all, open[i]);
            const Batch silent = without(open[i], named);
            if (named.isEmpty())
                return {};
            if (silent.contains(controlIndex))
                next << without(silent, {controlIndex}); // it has stopped at the first errors
            else
                set(isSilent, silent);
        }
        next.removeAll(Batch());
        open = next;
    }
    return isSilent;
}
