#pragma once

#include "facts.h"

/// What clang can be told of a compiler, and how.

/// A target of clang, and options that lay its types out as a compiler's.
struct TargetChoice
{
    QByteArray name; ///< empty when nothing is known
    QList<QByteArray> options;
};

/// The target of clang that a compiler's code is for, by its predefined macros. Where its types are
/// not the compiler's, options and other targets of the architecture are tried; for an architecture
/// that clang does not have, all targets. \a passed are options that clang gets in any case.
TargetChoice chooseTarget(const Facts &facts, const QList<QByteArray> &passed);

/// Of what is known of the types \a ofClang, that which is not as in \a types.
TypeFacts differingTypes(const TypeFacts &types, const TypeFacts &ofClang);

/// A sentence for each thing that differingTypes() has found of \a types, which is in \a ofClang.
QStringList differenceSentences(const TypeFacts &types, const TypeFacts &ofClang);

/// What becomes of those options of a compiler that change the language, or how types are laid out.
struct PassedOptions
{
    QList<QByteArray> forClang; ///< one or two words each, with a space between them
    QStringList lacking;        ///< of the compiler, that clang has nothing like
};

/// What becomes of the options of \a command, a program and its options.
PassedOptions passedOptions(const QStringList &command, bool isCpp);

/// What makes clang's language and types those of a compiler.
struct Language
{
    QList<QByteArray> options;
    QList<Macro> redefinitions; ///< of predefined macros that must fit clang's own types
    TypeFacts differingTypes;   ///< of clang, where no option makes them the compiler's
};

/// The language of a compiler: its target, the language version, the features, the options that are
/// \a passed on, and the types that a target does not settle.
Language languageOf(const Facts &facts, const QList<QByteArray> &passed, bool isCpp);

/// Options that make clang's language and processor those that the macros \a after tell, where they
/// are others than those of \a before, which clang with \a target has been told of.
QList<QByteArray> changedOptions(const MacroFacts &before, const MacroFacts &after,
                                 const QByteArray &target, bool isCpp);

/// The macros that clang defines even under -undef.
QList<QByteArray> macrosOfClang();

/// The option that defines \a macro, and the one that takes the macro \a name back.
QByteArray definingOption(const Macro &macro);
QByteArray undefiningOption(const QByteArray &name);

/// The words by which clang and its tools take the personality \a path. Two words, and a whole
/// path: anything else is looked for in clang's own folder.
QStringList personalityOption(const QString &path);

/// Whether clang can be told the definition of \a macro in a file of options.
bool canBeDefined(const Macro &macro);

/// The extension keywords of a compiler with \a macros that clang has as well, for which nothing
/// has to be defined.
QList<QByteArray> keywordsOfClang(const MacroFacts &macros);

/// Definitions that clang's own headers ask for where they take the place of a compiler's.
QList<Macro> headerDefinitions(const MacroFacts &macros);

/// Definitions under which clang reads what the keywords that it lacks are used in, and those that
/// its headers ask for.
QList<Macro> keywordDefinitions(const Facts &facts);

/// Whether \a directory holds a compiler's own headers for the instructions of its processors. They
/// consist of calls to functions that are built into that compiler and no other; clang has headers
/// of the same names and contents, made for itself.
bool holdsIntrinsics(const QString &directory);
