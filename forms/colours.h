#pragma once

#include <QPalette>

class QWidget;

/// Sets the colour in which \a widget paints its text, in every state, and leaves the rest of its
/// palette alone.
void setForegroundColour(QWidget *widget, const QColor &colour);

/// The same for the colour on which it paints; a button's is that of its face.
void setBackgroundColour(QWidget *widget, const QColor &colour);

/// The colours of the forms: dark on white, whatever the desktop's are.
QPalette formPalette();
