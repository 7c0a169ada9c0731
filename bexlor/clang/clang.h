#pragma once

#include "facts.h"

/// What clang can be told of a compiler, and how.

/// The target of clang that a compiler's code is for: by its predefined macros or, for an
/// architecture that clang does not have, the one whose types differ least. Empty when nothing is
/// known of either.
QByteArray clangTarget(const Facts &facts);

/// What becomes of those options of a compiler that change the language, or how types are laid out.
struct PassedOptions
{
    QList<QByteArray> forClang; ///< one or two words each, with a space between them
    QStringList lacking;        ///< of the compiler, that clang has nothing like
};

/// What becomes of the options of \a command, a program and its options.
PassedOptions passedOptions(const QStringList &command, bool isCpp);

/// The options that make clang's language and types those of a compiler: its target, the language
/// version, the features, those that are \a passed on, and the types that a target does not settle.
QList<QByteArray> languageOptions(const Facts &facts, const QList<QByteArray> &passed, bool isCpp);

/// The macros that clang defines even under -undef.
QList<QByteArray> macrosOfClang();

/// Whether clang can be told the definition of \a macro in a file of options.
bool canBeDefined(const Macro &macro);

/// The extension keywords that clang has as well, for which nothing has to be defined.
QList<QByteArray> keywordsOfClang();

/// Definitions under which clang reads what the keywords that it lacks are used in.
QList<Macro> keywordDefinitions(const Facts &facts);

/// Whether \a directory holds a compiler's own headers for the instructions of its processors. They
/// consist of calls to functions that are built into that compiler and no other; clang has headers
/// of the same names and contents, made for itself.
bool holdsIntrinsics(const QString &directory);
