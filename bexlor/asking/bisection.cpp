#include "bisection.h"

#include <algorithm>
#include <numeric>

namespace {

const QByteArray harmless = "extern int calyx_harmless;\n";

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

/// How many messages name lines of each item of \a batch.
QList<int> messagesOf(const ProbeAnswer &answer, const QByteArray &prelude,
                      const QList<QByteArray> &items, const Batch &batch)
{
    QList<int> counts;
    int line = int(prelude.count('\n')) + 1;
    for (const int index : batch) {
        int count = 0;
        for (const int end = line + int(items[index].count('\n')); line < end; ++line)
            count += answer.messageCounts.value(line);
        counts << count;
    }
    return counts;
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

/// How many of \a suspects, from the first one on, are rejected each for itself: the compiler names
/// them, and nothing of what stands between them, where it would still be astray.
qsizetype rejectedForThemselves(const AskProbes &ask, const QByteArray &prelude,
                                const QList<QByteArray> &items, const Batch &suspects)
{
    QList<QByteArray> mixed;
    for (const int index : suspects)
        mixed << items[index] << harmless;
    Batch all(mixed.size());
    std::iota(all.begin(), all.end(), 0);
    const ProbeAnswer answer = ask({prelude + mixed.join()}).first();
    const Batch named = itemsOn(answer.lines, prelude, mixed, all);
    if (answer.compiled())
        return 0;
    qsizetype count = 0;
    while (count < named.size() && named[count] == 2 * count)
        ++count;
    return count;
}

/// Those of \a suspects for which it takes a probe of their own to tell whether they are rejected.
Batch doubtful(const AskProbes &ask, const QByteArray &prelude, const QList<QByteArray> &items,
               const Batch &suspects)
{
    Batch open = suspects, alone;
    while (!open.isEmpty()) {
        const qsizetype count = rejectedForThemselves(ask, prelude, items, open);
        if (count < 2)
            break; // it stops at its first error, goes astray, or names no line
        open.remove(0, count);
        // It has stopped after so many errors, or this one is accepted.
        if (!open.isEmpty())
            alone << open.takeFirst();
    }
    return alone + open;
}

/// Sets in \a accepted whether \a suspects are accepted apart from one another.
void confirm(const AskProbes &ask, const QByteArray &prelude, const QList<QByteArray> &items,
             const Batch &suspects, QList<bool> &accepted)
{
    const Batch alone = doubtful(ask, prelude, items, suspects);
    QList<QByteArray> sources;
    for (const int index : alone)
        sources << prelude + items[index];
    const QList<ProbeAnswer> answers = ask(sources);
    for (qsizetype i = 0; i < answers.size(); ++i)
        accepted[alone[i]] = answers[i].compiled();
}

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
                          const QList<QByteArray> &items, ProbeLimits limits, bool confirms)
{
    Bisection bisection(prelude, items);
    bisection.run(ask, batchesOf(items, prelude.size(), limits));
    if (confirms)
        confirm(ask, prelude, items, bisection.suspects, bisection.accepted);
    return bisection.accepted;
}

QList<bool> itemsAcceptedApart(const AskProbes &ask, const QByteArray &prelude,
                               const QList<QByteArray> &items, ProbeLimits limits)
{
    QList<bool> accepted(items.size(), false);
    for (const Batch &batch : batchesOf(items, prelude.size(), limits))
        confirm(ask, prelude, items, batch, accepted);
    return accepted;
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

std::optional<QList<bool>> itemsWithFewerMessages(const AskProbes &ask, const QByteArray &prelude,
                                                  const QList<QByteArray> &items,
                                                  const QList<QByteArray> &others,
                                                  ProbeLimits limits)
{
    const int control = int(items.size()) - 1;
    QList<bool> hasFewer(items.size(), false);
    for (Batch &batch : batchesOf(items, prelude.size(), limits)) {
        if (!batch.contains(control))
            batch << control;
        const QList<ProbeAnswer> answers =
            ask({prelude + joinedItems(items, batch), prelude + joinedItems(others, batch)});
        const QList<int> counts = messagesOf(answers[0], prelude, items, batch);
        const QList<int> otherCounts = messagesOf(answers[1], prelude, others, batch);
        for (qsizetype i = 0; i < batch.size(); ++i)
            hasFewer[batch[i]] = counts[i] < otherCounts[i];
        if (!hasFewer[control])
            return {};
    }
    hasFewer.removeLast();
    return hasFewer;
}
