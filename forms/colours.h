#pragma once

#include <QColor>
#include <QWidget>

/// Sets the colour in which \a widget paints its text, in every state, and leaves the rest of its
/// palette alone.
inline void setForegroundColour(QWidget *widget, const QColor &colour)
{
    QPalette palette = widget->palette();
    palette.setColor(widget->foregroundRole(), colour);
    widget->setPalette(palette);
}

/// The same for the colour on which it paints; a button's is that of its face.
inline void setBackgroundColour(QWidget *widget, const QColor &colour)
{
    QPalette palette = widget->palette();
    palette.setColor(widget->backgroundRole(), colour);
    widget->setPalette(palette);
}
