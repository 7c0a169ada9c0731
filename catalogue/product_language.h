#pragma once

#include <QString>

/// The language of a compiler stands at the end of its name.

/// Whether the menu offers the compiler \a name for the product: under "kov" not the one named
/// "C++" nor those that end with "- C++", under "kovpp" likewise "C" and "- C".
bool isOffered(const QString &name, const QString &productCode);

/// Whether \a name tells a language, so that one product is not offered it.
bool tellsLanguage(const QString &name);

/// What to say when the chosen compiler \a name is of the other language than the product: under
/// "kov" when it ends with "C++", under "kovpp" with a capital "C". Otherwise an empty text.
QString conflictWith(const QString &name, const QString &productCode);
