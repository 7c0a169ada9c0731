#pragma once

#include "number_source.h"

#include <span>

/// Constants that are read back from what a compiler makes of a probe: each stands there between
/// marks.
class ConstantArrays : public NumberSource
{
public:
    /// Looks for a form of constants whose bytes come back from what \a goal names: the object
    /// file, or what a program prints; and for the character set that their texts are in.
    ConstantArrays(const ProbeRunner &runner, CompileTo goal);

    bool readsNumbers() const { return m_form && m_form->takesLists; }
    bool readsTexts() const { return m_readsTexts; }

    QList<std::optional<int>> numbers(const QByteArray &prelude,
                                      const QList<QByteArray> &expressions) const override;
    QList<bool> conditions(const QByteArray &prelude,
                           const QList<QByteArray> &conditions) const override;
    /// The texts of string literals, each given as an expression that may only be one behind
    /// \a prelude.
    QList<std::optional<QByteArray>> texts(const QByteArray &prelude,
                                           const QList<QByteArray> &literals) const;

private:
    /// How a constant is declared.
    struct Form
    {
        const char *declaration; ///< "@" stands for its name
        bool takesLists;         ///< of characters in braces, besides literals
        bool isForCpp;           ///< as well
    };
    static const Form forms[];

    bool learnForm(std::span<const Form> tried);
    bool learnCharacterSet();
    QByteArray defined(const Form &form, qsizetype number, const QByteArray &content) const;
    QList<std::optional<QByteArray>> arrays(const QByteArray &prelude,
                                            const QList<QByteArray> &contents,
                                            const QByteArray &characters) const;
    QList<std::optional<QByteArray>> readBack(const QByteArray &prelude,
                                              const QList<QByteArray> &items,
                                              const QByteArray &characters) const;
    void readContents(const QByteArray &source, const Batch &batch, const ProbeAnswer &first,
                      const QByteArray &characters,
                      QList<std::optional<QByteArray>> &contents) const;
    QList<Batch> readBatches(const QByteArray &prelude, const QList<QByteArray> &items,
                             const QList<Batch> &batches, const QByteArray &characters,
                             QList<std::optional<QByteArray>> &contents) const;
    QByteArray bytesOf(const QByteArray &source, const Batch &batch,
                       const ProbeAnswer &answer) const;

    const ProbeRunner &m_runner;
    const CompileTo m_goal;
    const Form *m_form = nullptr; ///< which has proven that constants come back
    bool m_readsTexts = false;
    bool m_isProven = false;           ///< that what is there comes back
    mutable QByteArray m_soundPrelude; ///< the last one that is known to compile
    QByteArray m_characters; ///< that the compiler's 256 codes stand for; empty if for themselves
};
