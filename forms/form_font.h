#pragma once

#include <QFont>

/// The font of the forms: the toolkit's default at 8 points or, where its letters are too large for
/// the forms' fixed rectangles, the first installed face with Arial's metrics at that size.
QFont formFont();
