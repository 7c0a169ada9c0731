#include "forms/form_font.h"

#include <QFontDatabase>
#include <QFontInfo>
#include <QFontMetricsF>
#include <QGuiApplication>

namespace {

// The rectangles were drawn for a face in which the lower-case alphabet is 12.73 ems wide, as it is
// in Arial (advance widths of its horizontal metrics table). Rounding to whole pixels at this size
// makes a few hundredths of difference.
const qreal alphabetInEms = 12.73;
const qreal tolerance = 1.03;

bool isTooWide(const QFont &font)
{
    const qreal width = QFontMetricsF(font).horizontalAdvance("abcdefghijklmnopqrstuvwxyz");
    return width > alphabetInEms * tolerance * QFontInfo(font).pixelSize();
}

} // namespace

QFont formFont()
{
    QFont font = QGuiApplication::font();
    font.setPointSize(8);
    if (!isTooWide(font))
        return font;
    const QStringList installed = QFontDatabase::families();
    for (const char *family : {"Arial", "Liberation Sans", "Arimo", "Nimbus Sans", "FreeSans"}) {
        if (installed.contains(QLatin1String(family))) {
            font.setFamily(QLatin1String(family));
            break;
        }
    }
    return font;
}
