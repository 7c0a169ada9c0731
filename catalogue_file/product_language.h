#pragma once

#include <QString>

/// The language of a compiler stands at the end of its name.

/// The language that the product is not for: "C++" under "kov", "C" under "kovpp".
QLatin1StringView otherLanguage(const QString &productCode);

/// Whether the menu offers the compiler \a name for the product: under "kov" not the one named
/// "C++" nor those that end with "- C++", under "kovpp" likewise "C" and "- C".
bool isOffered(const QString &name, const QString &productCode);

/// Whether \a name tells a language, so that one product is not offered it.
bool tellsLanguage(const QString &name);
