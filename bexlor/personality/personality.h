#pragma once

#include "arguments.h"
#include "facts.h"

#include <QJsonObject>

/// An option of clang: a word, and those behind it that belong to it, such as a path.
using Option = QList<QByteArray>;

/// What a personality holds: the facts about a compiler, and the options by which clang sees the
/// code as that compiler does.
struct Personality
{
    QString command;      ///< the compiler's command as it was typed
    QStringList switches; ///< implicit switches
    CommandLine answers;  ///< by which it has been generated
    QStringList lacking;  ///< options of the compiler that clang has nothing like
    Facts facts;
    TypeFacts typesOfClang;  ///< of clang with this personality, where they are not the compiler's
    QByteArray templateText; ///< options that override those of the compiler, in whole lines
    QList<Option> language;
    QList<Option> keywordDefinitions; ///< under which clang reads the keywords that it lacks
    QList<Option> searchPath;
    QList<Option> includedFirst;

    bool operator==(const Personality &) const = default;
};

/// What a compiler's command says that is passed on to clang.
struct CommandParts
{
    QStringList command;            ///< the program and its options
    QStringList includeDirectories; ///< those that it names by -I
    QList<Option> includedFirst;    ///< each with a name as it is searched for, or a path
};

/// The personality of the compiler of \a facts, which is called as \a parts say, with what the user
/// of \a arguments has added: substitute headers come before all others, and the force-include file
/// is included before the files of the command. Directories are searched in the compiler's order.
Personality composePersonality(const Arguments &arguments, const Facts &facts,
                               const CommandParts &parts, const QByteArray &templateText);

/// What stands behind \a start in the options of \a personality's language; empty where there is no
/// such option.
QByteArray languageOption(const Personality &personality, const QByteArray &start);

/// The text of a personality: a file of compiler options that clang reads under --config, one
/// option a line. What no option can say stands in lines that begin with "#:", one fact each, which
/// docs/architecture.md lists. In UTF-8, as clang reads it, but for what the compiler has told in
/// bytes.
QByteArray personalityText(const Personality &personality);

/// Reads back what personalityText() has written. Lines that it does not write are passed over.
Personality parsePersonality(const QByteArray &text);

/// The facts of \a personality as a JSON object. Its keys are the words of the "#:" lines, each
/// with the value of its line, or with a list of them where there may be several. Beside them,
/// "predefined" has the macros by their names, and "options" the words that clang is given.
QJsonObject personalityFacts(const Personality &personality);
