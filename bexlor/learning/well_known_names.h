#pragma once

#include <QByteArray>
#include <QList>

/// Names of predefined macros that many compilers have, whether or not their files name them.
QList<QByteArray> wellKnownMacros();

/// Extension keywords of many compilers, and names of types that they bring along.
QList<QByteArray> wellKnownKeywords(bool isCpp);

/// Whether \a name is a keyword of the standard language, C or C++.
bool isStandardKeyword(const QByteArray &name, bool isCpp);

/// Whether \a name is a part of the preprocessor or the language that is neither a macro with a
/// definition nor a keyword: one that no conditional may test, whose value is another each time, or
/// that has been made for probes.
bool isSpecialName(const QByteArray &name);
