#pragma once

#include <QStringList>

/// The directories that may hold the headers of the compiler whose program is \a program, a path:
/// where compilers of that name are installed, and those that its file names. They exist; whether
/// they are searched is not known.
QStringList directoriesBeside(const QString &program);
