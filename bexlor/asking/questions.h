#pragma once

#include "constant_arrays.h"

#include <memory>

/// Larger questions to a compiler, each answered by as few probes as possible.
class Questions
{
public:
    /// Finds out how constants can be learned: read back from the object file or, from a native
    /// compiler, by running a program; and else integers alone, from what is rejected.
    explicit Questions(const ProbeRunner &runner);

    /// Whether numbers can be learned at all, and texts, which can be read back only.
    bool readsNumbers() const { return m_numbers != nullptr; }
    bool readsTexts() const { return m_texts != nullptr; }
    const ProbeRunner &runner() const { return m_runner; }
    bool isCpp() const { return m_runner.compiler().isCpp; }
    ProbeLimits limits() const { return m_runner.limits(); }

    /// Whether an error of \a kind is rejected, so that what compiles has none.
    bool rejects(ErrorKind kind) const;

    /// Which of \a items, one or more whole lines each, are accepted behind \a prelude; see
    /// acceptedItems().
    QList<bool> accepted(const QByteArray &prelude, const QList<QByteArray> &items,
                         bool confirms = false) const;

    /// Which of \a items draw no message behind \a prelude, though \a control does; see
    /// itemsWithoutMessage().
    std::optional<QList<bool>> withoutMessage(const QByteArray &prelude,
                                              const QList<QByteArray> &items,
                                              const QByteArray &control) const;

    /// Which of \a items draw fewer messages than \a others; see itemsWithFewerMessages().
    std::optional<QList<bool>> withFewerMessages(const QByteArray &prelude,
                                                 const QList<QByteArray> &items,
                                                 const QList<QByteArray> &others) const;
    /// Whether a probe with several errors tells the first only.
    bool stopsAtFirstError() const { return m_runner.controls().stopsAtFirstError; }
    /// Whether what is accepted draws no message.
    bool isQuiet() const { return m_runner.controls().isQuiet; }

    /// What the compiler says to each of \a sources, in a probe of its own.
    QList<ProbeAnswer> eachAlone(const QList<QByteArray> &sources) const;
    /// Which of \a items, most of which are rejected, are accepted; see itemsAcceptedApart().
    QList<bool> acceptedApart(const QList<QByteArray> &items) const;

    /// The texts of string literals, each given as an expression that may only be one behind
    /// \a prelude. No value for one that is not, and none where texts are not read.
    QList<std::optional<QByteArray>> texts(const QByteArray &prelude,
                                           const QList<QByteArray> &literals) const;

    /// The values, from 0 to 65535, of constant integer expressions behind \a prelude.
    QList<std::optional<int>> numbers(const QByteArray &prelude,
                                      const QList<QByteArray> &expressions) const;

    /// Which of \a conditions, each what stands behind "#if", are true behind \a prelude. One that
    /// the compiler does not understand is not.
    QList<bool> conditions(const QList<QByteArray> &conditions,
                           const QByteArray &prelude = {}) const;

private:
    const ProbeRunner &m_runner;
    std::shared_ptr<const ConstantArrays> m_texts;
    std::shared_ptr<const NumberSource> m_numbers;
};
