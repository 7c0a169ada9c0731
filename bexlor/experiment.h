#pragma once

#include "prober.h"

#include <functional>
#include <optional>

/// Larger questions to a compiler, each answered by as few probes as possible.
class Experiment
{
public:
    /// Finds out how constants can be read back: from the object file or, from a native compiler,
    /// by running a program; and which character set their texts are in.
    Experiment(const Prober &prober, bool compilerIsNative);

    /// Whether constants can be read back at all.
    bool readsConstants() const { return m_channel != Channel::None; }

    /// Which of \a items, one or more whole lines each, are accepted behind \a prelude. Those that
    /// are have compiled in one probe with their neighbours. One that is not may have been rejected
    /// for what stands before it, unless \a confirmsAlone asks to try it without the others.
    QList<bool> accepted(const QByteArray &prelude, const QList<QByteArray> &items,
                         bool confirmsAlone = false) const;

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

    const Prober &prober() const { return m_prober; }

private:
    enum class Channel { None, Object, Program };
    using Indices = QList<int>;

    /// The whole probe for some items, and the arrays whose bytes are to be read back.
    struct Probe
    {
        QByteArray source;
        QList<QByteArray> arrays;
    };
    using MakeProbe = std::function<Probe(const Indices &)>;

    QList<Indices> batches(qsizetype preludeSize, const QList<QByteArray> &items,
                           const Indices &chosen) const;
    QList<std::optional<QByteArray>> arrays(const QByteArray &prelude,
                                            const QList<QByteArray> &contents, bool areTexts) const;
    bool learnCharacterSet();
    QByteArray bytesOf(const Probe &probe, const Answer &answer) const;
    QList<std::pair<Indices, QByteArray>> read(const QByteArray &prelude,
                                               const QList<QByteArray> &items,
                                               const MakeProbe &makeProbe) const;

    const Prober &m_prober;
    Channel m_channel = Channel::None;
    QByteArray m_characters; ///< that the compiler's 256 codes stand for; empty if for themselves
};
