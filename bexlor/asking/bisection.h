#pragma once

#include "probe_answer.h"

#include <functional>
#include <optional>

/// Questions about many items, answered by few probes: the items, each one or more whole lines,
/// stand one after the other in a probe, and the lines that the compiler's messages name tell them
/// apart. What compiles the probes is a function, so that nothing here starts a compiler.

/// Answers to sources, in their order.
using AskProbes = std::function<QList<ProbeAnswer>(const QList<QByteArray> &sources)>;

/// Indices of the items that one probe holds.
using Batch = QList<int>;

/// All of \a items in batches, each small enough to stand behind a prelude of \a preludeSize bytes
/// in one probe, with one more item behind it. An item counts as two declarations, as the largest
/// ones are.
QList<Batch> batchesOf(const QList<QByteArray> &items, qsizetype preludeSize, ProbeLimits limits);

/// Those of \a items whose flag is set.
template <typename Item>
QList<Item> selected(const QList<Item> &items, const QList<bool> &flags)
{
    QList<Item> chosen;
    for (qsizetype i = 0; i < items.size(); ++i) {
        if (flags[i])
            chosen << items[i];
    }
    return chosen;
}

/// Those of \a items that \a batch names, as one text.
QByteArray joinedItems(const QList<QByteArray> &items, const Batch &batch);

/// Which of \a items are accepted behind \a prelude. Those that are have compiled in one probe with
/// their neighbours. One that is not may have been rejected for what stands before it, unless
/// \a confirms asks to try it apart from other suspects: between harmless declarations or,
/// where that does not tell, alone. Works with a compiler that stops at its
/// first error, or that names no line or a wrong one, too; it needs more probes then.
QList<bool> acceptedItems(const AskProbes &ask, const QByteArray &prelude,
                          const QList<QByteArray> &items, ProbeLimits limits, bool confirms);

/// Which of \a items are accepted behind \a prelude apart from one another. Takes few probes only
/// where most are rejected, by a compiler that finds its way again behind each of them.
QList<bool> itemsAcceptedApart(const AskProbes &ask, const QByteArray &prelude,
                               const QList<QByteArray> &items, ProbeLimits limits);

/// Which of \a items draw no message of any kind behind \a prelude. \a control is one that must
/// draw one; it stands behind them and shows that the compiler has got that far. Nothing when it
/// draws none where no other does: this compiler does not say such things.
std::optional<QList<bool>> itemsWithoutMessage(const AskProbes &ask, const QByteArray &prelude,
                                               const QList<QByteArray> &items,
                                               const QByteArray &control, ProbeLimits limits);

/// Which of \a items draw fewer messages behind \a prelude than those of \a others in their places,
/// for a compiler that has something to say about every line. The last of both is a pair of which
/// it is known that the compiler must. Nothing when it does not.
std::optional<QList<bool>> itemsWithFewerMessages(const AskProbes &ask, const QByteArray &prelude,
                                                  const QList<QByteArray> &items,
                                                  const QList<QByteArray> &others,
                                                  ProbeLimits limits);
