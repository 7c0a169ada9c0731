#include "colours.h"

#include <QWidget>

void setForegroundColour(QWidget *widget, const QColor &colour)
{
    QPalette palette = widget->palette();
    palette.setColor(widget->foregroundRole(), colour);
    widget->setPalette(palette);
}

void setBackgroundColour(QWidget *widget, const QColor &colour)
{
    QPalette palette = widget->palette();
    palette.setColor(widget->backgroundRole(), colour);
    widget->setPalette(palette);
}

QPalette formPalette()
{
    struct Row
    {
        QPalette::ColorRole role;
        QColor active, inactive, disabled;
    };
    const QColor white(Qt::white), black(Qt::black), grey(106, 104, 100);
    const QColor face(212, 208, 200), navy(10, 36, 106);
    const Row rows[] = {
        {QPalette::WindowText, black, black, grey},
        {QPalette::Button, face, face, face},
        {QPalette::Light, white, white, white},
        {QPalette::Midlight, QColor(233, 229, 220), QColor(233, 229, 220), QColor(233, 231, 227)},
        {QPalette::Dark, QColor(128, 128, 128), QColor(128, 128, 128), QColor(128, 128, 128)},
        {QPalette::Mid, QColor(141, 138, 133), QColor(141, 138, 133), QColor(141, 138, 133)},
        {QPalette::Text, black, black, grey},
        {QPalette::BrightText, white, white, white},
        {QPalette::ButtonText, black, black, grey},
        {QPalette::Base, white, white, white},
        {QPalette::Window, white, white, white},
        {QPalette::Shadow, QColor(64, 64, 64), QColor(64, 64, 64), black},
        {QPalette::Highlight, navy, face, navy},
        {QPalette::HighlightedText, white, black, white},
        {QPalette::Link, QColor(0, 0, 255), QColor(0, 0, 255), QColor(0, 0, 255)},
        {QPalette::LinkVisited, QColor(255, 0, 255), QColor(255, 0, 255), QColor(255, 0, 255)},
    };
    QPalette palette;
    for (const Row &row : rows) {
        palette.setColor(QPalette::Active, row.role, row.active);
        palette.setColor(QPalette::Inactive, row.role, row.inactive);
        palette.setColor(QPalette::Disabled, row.role, row.disabled);
    }
    return palette;
}
