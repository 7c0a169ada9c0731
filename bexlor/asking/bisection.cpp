#include "bisection.h"

#include <algorithm>
#include <numeric>

namespace {

const QByteArray harmless = "extern int calyx_harmless;\n";

// Where a compiler expects a function that it takes a wrong declaration for, this is its end; where
// it does not, this is an error of its own.
const QByteArray endOfFunction = "{ }\n";

/// Those of \a batch, whose items stand one after the other behind \a prelude, that \a lines name.
template <typename Lines>
Batch itemsOn(const Lines &lines, const QByteArray &prelude, const QList<QByteArray> &items,
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
    Bisection(const AskProbes &ask, const QByteArray &prelude, const QList<QByteArray> &items,
              ProbeLimits limits)
        : accepted(items.size(), false), m_ask(ask), m_prelude(prelude), m_items(items),
          m_limits(limits)
    { }

    QList<bool> accepted;
    Batch suspects; ///< named by a message in a probe with others

    /// Asks for all items until each is accepted, suspected, or rejected alone.
    void run()
    {
        askBatches(batchesOf(m_items, m_prelude.size(), m_limits));
        // What stands before an error that is named alone is right if the compiler stops there.
        Batch all;
        for (const NamedAlone &error : m_namedAlone)
            all << error.before;
        std::sort(all.begin(), all.end());
        m_takesApart = false;
        askBatches(batchesOfSome(all));
        // Where all of it is, the error is one without what stands before it.
        for (const NamedAlone &error : m_namedAlone) {
            const bool isCertain = std::all_of(error.before.begin(), error.before.end(),
                                               [this](int index) { return accepted[index]; });
            if (!isCertain)
                suspects << error.index;
        }
        std::sort(suspects.begin(), suspects.end());
    }

private:
    /// An item that is the only one a probe's messages name, and what stands before it there.
    struct NamedAlone
    {
        int index;
        Batch before;
    };

    QList<Batch> batchesOfSome(const Batch &indices) const
    {
        QList<QByteArray> items;
        for (const int index : indices)
            items << m_items[index];
        QList<Batch> batches;
        for (const Batch &batch : batchesOf(items, m_prelude.size(), m_limits)) {
            batches << Batch();
            for (const int place : batch)
                batches.last() << indices[place];
        }
        return batches;
    }

    /// Asks \a batches, and what they are divided into.
    void askBatches(QList<Batch> batches)
    {
        while (!batches.isEmpty()) {
            QList<QByteArray> sources;
            for (const Batch &batch : batches)
                sources << m_prelude + joinedItems(m_items, batch) + harmless;
            const QList<ProbeAnswer> answers = m_ask(sources);
            m_next.clear();
            for (qsizetype i = 0; i < batches.size(); ++i)
                take(batches[i], answers[i]);
            batches = m_next;
        }
    }

    void take(const Batch &batch, const ProbeAnswer &answer)
    {
        if (answer.compiled())
            set(accepted, batch);
        else if (batch.size() > 1)
            divide(batch, itemsOn(answer.lines, m_prelude, m_items, batch),
                   answer.lines.contains(endOf(batch)));
    }

    /// The line behind \a batch in its probe, which is harmless.
    int endOf(const Batch &batch) const
    {
        return int(m_prelude.count('\n') + joinedItems(m_items, batch).count('\n')) + 1;
    }

    void divide(const Batch &batch, const Batch &named, bool namesHarmless)
    {
        const Batch rest = without(batch, named);
        if (rest.isEmpty() && namesHarmless) {
            halve(batch); // to name all says nothing
        } else if (named.size() == 1 && m_takesApart) {
            const qsizetype place = batch.indexOf(named.first());
            m_namedAlone.append({named.first(), batch.first(place)});
            if (place + 1 < batch.size())
                m_next << batch.sliced(place + 1);
        } else {
            suspects << named;
            addRest(rest, named);
        }
    }

    /// Goes on with \a rest, what \a named has been taken out of.
    void addRest(const Batch &rest, const Batch &named)
    {
        // A compiler that names one line only, or none, may stop at its first error.
        if (named.size() <= 1)
            halve(rest);
        else if (!rest.isEmpty())
            m_next << rest;
    }

    void halve(const Batch &batch)
    {
        const qsizetype half = batch.size() / 2;
        for (const Batch &part : {batch.first(half), batch.sliced(half)}) {
            if (!part.isEmpty())
                m_next << part;
        }
    }

    const AskProbes &m_ask;
    const QByteArray &m_prelude;
    const QList<QByteArray> &m_items;
    const ProbeLimits m_limits;
    QList<Batch> m_next;
    bool m_takesApart = true; ///< a batch at an error that is named alone
    QList<NamedAlone> m_namedAlone;
};

/// How many of \a suspects, from the first one on, are rejected each for itself: the compiler names
/// them, and not the harmless line that stands between them, where it would still be astray. What
/// it says of \a separator, which stands before that line, counts for nothing.
qsizetype rejectedForThemselves(const AskProbes &ask, const QByteArray &prelude,
                                const QList<QByteArray> &items, const Batch &suspects,
                                const QByteArray &separator)
{
    QList<QByteArray> mixed;
    for (const int index : suspects)
        mixed << items[index] << separator << harmless;
    Batch all(mixed.size());
    std::iota(all.begin(), all.end(), 0);
    const ProbeAnswer answer = ask({prelude + mixed.join()}).first();
    const Batch named = itemsOn(answer.lines, prelude, mixed, all);
    if (answer.compiled())
        return 0;
    int count = 0;
    while (count < suspects.size() && named.contains(3 * count) && !named.contains(3 * count + 2))
        ++count;
    return count;
}

/// Those of \a suspects for which it takes a probe of their own to tell whether they are rejected.
Batch doubtful(const AskProbes &ask, const QByteArray &prelude, const QList<QByteArray> &items,
               const Batch &suspects, const QByteArray &separator, ProbeLimits limits)
{
    // A harmless declaration stands behind each.
    const qsizetype most = std::max(1, limits.declarations / 3);
    Batch open = suspects, alone;
    while (!open.isEmpty()) {
        const qsizetype count =
            rejectedForThemselves(ask, prelude, items, open.mid(0, most), separator);
        if (count == 0 && open.size() == suspects.size())
            return suspects; // it goes astray, or names no line
        open.remove(0, count);
        if (count == 0)
            alone << open.takeFirst(); // this one may be accepted
    }
    return alone;
}

/// Sets in \a accepted whether \a suspects are accepted apart from one another.
void confirm(const AskProbes &ask, const QByteArray &prelude, const QList<QByteArray> &items,
             const Batch &suspects, const QByteArray &separator, ProbeLimits limits,
             QList<bool> &accepted)
{
    const Batch alone = doubtful(ask, prelude, items, suspects, separator, limits);
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
        const bool isFull = batches.isEmpty()
                         || (batches.last().size() + 2) * 2 > limits.declarations
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
    Bisection bisection(ask, prelude, items, limits);
    bisection.run();
    if (confirms)
        confirm(ask, prelude, items, bisection.suspects, {}, limits, bisection.accepted);
    return bisection.accepted;
}

QList<bool> itemsAcceptedApart(const AskProbes &ask, const QByteArray &prelude,
                               const QList<QByteArray> &items, ProbeLimits limits)
{
    QList<bool> accepted(items.size(), false);
    for (const Batch &batch : batchesOf(items, prelude.size(), limits))
        confirm(ask, prelude, items, batch, endOfFunction, limits, accepted);
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
            const Batch named = itemsOn(answers[i].messageCounts, prelude, all, open[i]);
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
