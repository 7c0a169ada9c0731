#include "accepted_options.h"

#include "compiler.h"
#include "path_options.h"

using namespace Qt::StringLiterals;

namespace {

const int timeLimit = 60'000; // milliseconds

/// The options of \a command, see CompileCommand::compilingWords(), each with the words behind it
/// that are no options. A file that it has included first is named as clang has it.
QList<QStringList> optionsOf(const CompileCommand &command)
{
    QList<QStringList> options;
    const QStringList words = command.compilingWords();
    for (qsizetype i = 1; i < words.size(); ++i) {
        const QString &word = words[i];
        if (const auto included = includedFileAt(words, i)) {
            options.append({included->option, included->file});
            i += included->words.size() - 1;
        } else if (word == "--"_L1 || command.isNamedBy(word)) {
            continue;
        } else if (word.startsWith(u'-')) {
            options.append({word});
        } else if (!options.isEmpty()) {
            // What stands before all options belongs to one who starts the compiler.
            options.last() << word;
        }
    }
    return options;
}

/// Whether \a option, as optionsOf() has it, names a file that is to be included first.
bool includesFirst(const QStringList &option)
{
    return option.size() > 1
        && (option.first() == "-include"_L1 || option.first() == "-imacros"_L1);
}

/// Such an option for the part of clang that compiles. The one that starts it would take what GCC
/// has left beside a header that it has precompiled, "pre.h.gch", for clang's own and reject it.
QStringList pastTheDriver(const QStringList &option, const QString &directory)
{
    const QStringList words = withAbsolutePaths({u"clang"_s, option[0], option[1]}, {}, directory);
    return {u"-Xclang"_s, words[1], u"-Xclang"_s, words[2]};
}

} // namespace

AcceptedOptions::AcceptedOptions(const Clang &clang, const QString &personality,
                                 const QString &source)
    : m_clang(clang), m_personality(personality), m_source(source)
{ }

bool AcceptedOptions::isTaken(const QStringList &option, const QString &directory)
{
    // What these name does not matter, and there may be thousands of them.
    const QString flag = option.first().left(2);
    if ((flag == "-I"_L1 || flag == "-D"_L1 || flag == "-U"_L1) && option.join(QString()) != flag)
        return true;
    // What one names in a directory may be another file, or missing, in the next.
    const QStringList asked =
        withAbsolutePaths(QStringList {m_clang.program} + option, {}, directory);
    const auto known = m_known.constFind(asked);
    if (known != m_known.constEnd())
        return *known;
    // An option that is only warned of would be told of in every file.
    const QStringList arguments =
        QStringList {u"-fsyntax-only"_s, u"-Werror"_s} + option + QStringList {m_source};
    return m_known[asked] =
               runClang(m_clang, m_personality, arguments, directory, timeLimit).succeeded();
}

QStringList AcceptedOptions::of(const CompileCommand &command)
{
    const QString &directory = command.directory;
    QStringList taken;
    for (const QStringList &option : optionsOf(command)) {
        const QStringList alone = option.first(1), withValue = option.mid(0, 2);
        // What is included first may be found only with the other options, so that it is not asked
        // for alone.
        if (includesFirst(option))
            taken << pastTheDriver(option, directory);
        else if (isTaken(alone, directory))
            taken << alone;
        else if (withValue.size() == 2 && isTaken(withValue, directory))
            taken << withValue;
        else
            m_refused << alone.first();
    }
    return taken;
}

QStringList AcceptedOptions::refused() const
{
    QStringList options = m_refused.values();
    options.sort();
    return options;
}
