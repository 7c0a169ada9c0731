#pragma once

#include "number_source.h"

/// Integers asked bit by bit: what is true is rejected. Nothing that the compiler leaves is looked
/// at, so that it may hide its objects; but there are as many errors as bits that are set.
class AskedConstants : public NumberSource
{
public:
    explicit AskedConstants(const ProbeRunner &runner);

    /// Whether there is an error that the compiler with \a controls rejects for its value.
    static bool arePossible(const Controls &controls);

    QList<std::optional<int>> numbers(const QByteArray &prelude,
                                      const QList<QByteArray> &expressions) const override;
    QList<bool> conditions(const QByteArray &prelude,
                           const QList<QByteArray> &conditions) const override;

private:
    QList<bool> accepted(const QByteArray &prelude, const QList<QByteArray> &items) const;
    QByteArray rejectedIf(const QByteArray &expression, qsizetype number) const;
    QByteArray rejected() const;

    const ProbeRunner &m_runner;
    const bool m_usesArrays; ///< of negative size, and else #error
};
