#pragma once

#include "arguments.h"
#include "facts.h"

#include <QJsonObject>

/// An option of clang: one word, or two if a path stands behind it.
using Option = QList<QByteArray>;

/// What a personality holds: the facts about a compiler, and the options by which clang sees the
/// code as that compiler does.
struct Personality
{
    QString command;      ///< the compiler's command as it was typed
    QStringList switches; ///< implicit switches
    CommandLine answers;  ///< by which it has been generated
    Facts facts;
    QByteArray templateText; ///< options that come before all others, in whole lines
    QList<Option> language;
    QList<Option> keywordDefinitions; ///< under which clang reads the keywords that it lacks
    QList<Option> searchPath;
    QList<Option> includedFirst;

    bool operator==(const Personality &) const = default;
};

/// The personality of the compiler of \a facts with what the user of \a arguments has added:
/// \a templateText comes first, substitute headers come before all others, and the force-include
/// file is included before the files of \a includedByCommand: options, each followed by its file.
Personality composePersonality(const Arguments &arguments, const Facts &facts,
                               const QStringList &includedByCommand,
                               const QByteArray &templateText);

/// The text of a personality: a file of compiler options that clang reads under --config, one
/// option a line. What no option can say stands in lines that begin with "#:", one fact each; the
/// README describes them. In UTF-8, as clang reads it, but for what the compiler has told in bytes.
QByteArray personalityText(const Personality &personality);

/// Reads back what personalityText() has written. Lines that it does not write are passed over.
Personality parsePersonality(const QByteArray &text);

/// The facts of \a personality as a JSON object. Its keys are the words of the "#:" lines, each
/// with the value of its line, or with a list of them where there may be several. Beside them,
/// "predefined" has the macros by their names, and "options" the words that clang is given.
QJsonObject personalityFacts(const Personality &personality);
