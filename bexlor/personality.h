#pragma once

#include "bexlor/facts.h"

/// The text of a personality: a file of compiler options that clang reads under --config, one
/// option a line. It makes clang see the code as the compiler of \a facts does, with what the user
/// of \a arguments has added: \a templateText comes first, substitute headers and the user's header
/// directories take part in the search path, the force-include file is included.
QByteArray personalityText(const Arguments &arguments, const Facts &facts,
                           const QByteArray &templateText);

/// \a text as one word of an option file: in double quotes, in which a backslash makes the
/// character after it literal.
QByteArray quotedOption(const QByteArray &text);
