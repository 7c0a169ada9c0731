#pragma once

#include "facts.h"

/// A source that a compiler accepts where its types are those of \a facts, and that clang accepts
/// with their personality: their sizes and alignments, the sign of char, the byte order if a macro
/// tells it, and the types behind standard names. In C of 1990, or C++ of any year.
QByteArray typeAssertions(const Facts &facts, bool isCpp);
