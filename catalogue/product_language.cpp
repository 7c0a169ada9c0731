#include "product_language.h"

#include "generator_interface.h"

#include <QCoreApplication>

using namespace Qt::StringLiterals;

namespace {

bool isForC(const QString &productCode)
{
    return productCode == generator::productC;
}

QLatin1StringView otherLanguage(const QString &productCode)
{
    return isForC(productCode) ? "C++"_L1 : "C"_L1;
}

} // namespace

bool isOffered(const QString &name, const QString &productCode)
{
    const QLatin1StringView other = otherLanguage(productCode);
    return name != other && !name.endsWith("- "_L1 + other);
}

bool tellsLanguage(const QString &name)
{
    return !isOffered(name, generator::productC) || !isOffered(name, generator::productCpp);
}

QString conflictWith(const QString &name, const QString &productCode)
{
    if (!name.endsWith(otherLanguage(productCode)))
        return QString();
    return isForC(productCode)
             ? QCoreApplication::translate(
                 "Calyx", "You have selected KOV for a currently selected C++ execution command.\n"
                          "Please reselect the Exe Command below.")
             : QCoreApplication::translate(
                 "Calyx", "You have selected KOV++ for a currently selected C execution command.\n"
                          "Please reselect the Exe Command below.");
}
