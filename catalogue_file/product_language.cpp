#include "product_language.h"

#include "generator_interface.h"

using namespace Qt::StringLiterals;

QLatin1StringView otherLanguage(const QString &productCode)
{
    return productCode == generator::productC ? "C++"_L1 : "C"_L1;
}

bool isOffered(const QString &name, const QString &productCode)
{
    const QLatin1StringView other = otherLanguage(productCode);
    return name != other && !name.endsWith("- "_L1 + other);
}

bool tellsLanguage(const QString &name)
{
    return !isOffered(name, generator::productC) || !isOffered(name, generator::productCpp);
}
