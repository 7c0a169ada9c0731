#pragma once

#include <QPixmap>

/// The picture in the file \a path; where the screen has more pixels than the forms count, the one
/// twice as large beside it, whose name ends in "@2x.png". Empty when there is no file \a path.
QPixmap picture(const QString &path);
