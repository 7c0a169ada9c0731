#pragma once

#include "bisection.h"
#include "probe_runner.h"

/// What compiles the probes of bisections, with the compiler of \a runner.
inline AskProbes askProbes(const ProbeRunner &runner)
{
    return [&runner](const QList<QByteArray> &sources) { return runner.askAll(sources); };
}

/// Whether \a prelude, which may be empty, compiles with nothing but a declaration behind it.
inline bool preludeCompiles(const ProbeRunner &runner, const QByteArray &prelude)
{
    return prelude.isEmpty() || runner.ask(prelude + acceptedProbe).compiled();
}

/// A way in which a compiler tells constant integers. An answer is missing where an expression does
/// not compile behind its prelude.
class NumberSource
{
public:
    virtual ~NumberSource() = default;

    /// The values, from 0 to 65535, of constant integer expressions behind \a prelude.
    virtual QList<std::optional<int>> numbers(const QByteArray &prelude,
                                              const QList<QByteArray> &expressions) const = 0;

    /// Which of \a conditions, each what stands behind "#if", are true behind \a prelude. One that
    /// the compiler does not understand is not.
    virtual QList<bool> conditions(const QByteArray &prelude,
                                   const QList<QByteArray> &conditions) const = 0;
};
