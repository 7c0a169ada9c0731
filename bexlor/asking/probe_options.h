#pragma once

#include <QStringList>

/// Options of a compile command that are no questions to the compiler.

/// \a words, a program and its options, without those that have the compiler write other files,
/// which would be the user's; that make errors of warnings, or have it stop early or report in
/// another form, so that its rejections would say less; or that put off the making of code, so that
/// the object file would hold none. The options are those of the manuals of the GNU compilers,
/// clang, cc65, sdcc, and the compilers of Microsoft, IAR and Arm.
QStringList withoutOtherPurposes(const QStringList &words);

/// \a words, a program and its options, without those that begin with \a outputFlag, which may be
/// empty, and without the name behind the flag alone.
QStringList withoutOutput(const QStringList &words, const QString &outputFlag);

/// The option in \a words that keeps the compiler from making an object file at all; empty if there
/// is none.
QString optionAgainstObjects(const QStringList &words);
