#pragma once

#include <QString>
#include <cstdio>

namespace platform {

/// Prints \a text on \a stream at once: in the encoding of a console where that is one, otherwise
/// in the local one.
void print(std::FILE *stream, const QString &text);

} // namespace platform
