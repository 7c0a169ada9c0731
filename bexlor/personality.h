#pragma once

#include "arguments.h"
#include "facts.h"

/// The text of a personality: a file of compiler options that clang reads under --config, one
/// option a line. It makes clang see the code as the compiler of \a facts does, with what the user
/// of \a arguments has added: \a templateText comes first, substitute headers come before all
/// others and the force-include file is included. What no option can say stands in lines that begin
/// with "#:", one fact each; the README describes them. In UTF-8, as clang reads it, but for what
/// the compiler has told in bytes.
QByteArray personalityText(const Arguments &arguments, const Facts &facts,
                           const QByteArray &templateText);

/// \a text as one word of an option file: in double quotes, in which a backslash makes the
/// character after it literal.
QByteArray quotedOption(const QByteArray &text);
