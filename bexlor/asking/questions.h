#pragma once

#include "bisection.h"
#include "probe_runner.h"

/// Larger questions to a compiler, each answered by as few probes as possible.
class Questions
{
public:
    /// Finds out how constants can be read back: from the object file or, from a native compiler,
    /// by running a program; and which character set their texts are in.
    explicit Questions(const ProbeRunner &runner);

    /// Whether constants can be read back at all.
    bool readsConstants() const { return m_source != ConstantSource::None; }
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

    /// What the compiler says to each of \a sources, in a probe of its own.
    QList<ProbeAnswer> eachAlone(const QList<QByteArray> &sources) const;
    /// Which of \a items, most of which are rejected, are accepted; see itemsAcceptedApart().
    QList<bool> acceptedApart(const QList<QByteArray> &items) const;

    /// The texts of string literals, each given as an expression that may only be one behind
    /// \a prelude. No value for one that is not.
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
    enum class ConstantSource { None, ObjectFile, RunningProgram };

    bool readsTexts();
    bool learnCharacterSet();
    QList<std::optional<QByteArray>> arrays(const QByteArray &prelude,
                                            const QList<QByteArray> &elements,
                                            const QByteArray &characters) const;
    void readContents(const QByteArray &source, const Batch &batch, const ProbeAnswer &first,
                      const QByteArray &characters,
                      QList<std::optional<QByteArray>> &contents) const;
    QList<Batch> readBatches(const QByteArray &prelude, const QList<QByteArray> &items,
                             const QList<Batch> &batches, const QByteArray &characters,
                             QList<std::optional<QByteArray>> &contents) const;
    QByteArray bytesOf(const QByteArray &source, const Batch &batch,
                       const ProbeAnswer &answer) const;
    AskProbes askProbes() const;

    const ProbeRunner &m_runner;
    ConstantSource m_source = ConstantSource::None;
    bool m_isProven = false; ///< that constants come back from there
    QByteArray m_characters; ///< that the compiler's 256 codes stand for; empty if for themselves
};
