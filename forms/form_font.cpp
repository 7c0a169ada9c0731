#include "form_font.h"

#include <QFontDatabase>
#include <QFontInfo>
#include <QFontMetricsF>
#include <QGuiApplication>

using namespace Qt::StringLiterals;

namespace {

// The rectangles were drawn for a face in which the lower-case alphabet is 12.73 ems wide and a
// line 1.15 ems high, as they are in Arial (advance widths and line metrics of its tables).
// Rounding to whole pixels at this size makes a few hundredths of difference in a text, and one
// pixel in a line.
const qreal alphabetInEms = 12.73;
const qreal tolerance = 1.03;
const qreal lineInEms = 1.15;

bool isTooLarge(const QFont &font)
{
    const QFontMetricsF metrics(font);
    const int em = QFontInfo(font).pixelSize();
    return metrics.horizontalAdvance(u"abcdefghijklmnopqrstuvwxyz"_s)
             > alphabetInEms * tolerance * em
        || metrics.lineSpacing() > lineInEms * em + 1;
}

} // namespace

QFont formFont()
{
    QFont font = QGuiApplication::font();
    font.setPointSize(8);
    if (!isTooLarge(font))
        return font;
    const QStringList installed = QFontDatabase::families();
    for (const char *family : {"Arial", "Liberation Sans", "Arimo"}) {
        QFont candidate = font;
        candidate.setFamily(QLatin1String(family));
        if (installed.contains(QLatin1String(family)) && !isTooLarge(candidate))
            return candidate;
    }
    return font;
}
