#include "catalogue/product_language.h"

namespace {

QLatin1String otherLanguage(const QString &productCode)
{
    return QLatin1String(productCode == QLatin1String("kov") ? "C++" : "C");
}

} // namespace

bool isOffered(const QString &name, const QString &productCode)
{
    const QLatin1String other = otherLanguage(productCode);
    return name != other && !name.endsWith(QLatin1String("- ") + other);
}

bool conflictsWith(const QString &name, const QString &productCode)
{
    return name.endsWith(otherLanguage(productCode));
}
