#pragma once

#include <QString>

/// What to say when the chosen compiler \a name is of the other language than the product: under
/// "kov" when it ends with "C++", under "kovpp" with a capital "C". Otherwise an empty text.
QString conflictWith(const QString &name, const QString &productCode);
