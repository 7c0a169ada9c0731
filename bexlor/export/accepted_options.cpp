#include "accepted_options.h"

using namespace Qt::StringLiterals;

namespace {

const int patience = 60'000; // milliseconds

} // namespace

AcceptedOptions::AcceptedOptions(const Clang &clang, const QString &personality,
                                 const QString &source)
    : m_clang(clang), m_personality(personality), m_source(source)
{ }

bool AcceptedOptions::takes(const QStringList &option, const QString &directory) const
{
    // An option that is only warned of would be told of in every file.
    const QStringList arguments =
        QStringList {u"-fsyntax-only"_s, u"-Werror"_s} + option + QStringList {m_source};
    return runClang(m_clang, m_personality, arguments, directory, patience).succeeded();
}

QList<QStringList> AcceptedOptions::of(const QList<QStringList> &options, const QString &directory)
{
    QList<QStringList> taken;
    for (const QStringList &option : options) {
        // What these name does not matter, and there may be thousands of them.
        const bool isCommon =
            option.first().startsWith("-I"_L1) || option.first().startsWith("-D"_L1);
        const QStringList key = isCommon ? QStringList {option.first().first(2)} : option;
        if (!m_known.contains(key))
            m_known[key] = isCommon || takes(option, directory);
        if (m_known[key])
            taken << option;
    }
    return taken;
}

QStringList AcceptedOptions::refused() const
{
    QStringList options;
    for (const auto &[option, isTaken] : m_known.asKeyValueRange()) {
        if (!isTaken)
            options << option.first();
    }
    options.sort();
    options.removeDuplicates();
    return options;
}
