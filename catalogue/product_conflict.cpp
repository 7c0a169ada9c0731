#include "product_conflict.h"

#include "generator_interface.h"
#include "product_language.h"

#include <QCoreApplication>

QString conflictWith(const QString &name, const QString &productCode)
{
    if (!name.endsWith(otherLanguage(productCode)))
        return QString();
    return productCode == generator::productC
             ? QCoreApplication::translate(
                 "Calyx", "You have selected KOV for a currently selected C++ execution command.\n"
                          "Please reselect the Exe Command below.")
             : QCoreApplication::translate(
                 "Calyx", "You have selected KOV++ for a currently selected C execution command.\n"
                          "Please reselect the Exe Command below.");
}
