#pragma once

#include <QString>

/// What the names of files tell of the language in them.

/// Whether \a file is a source or a header of C, or of C++, by its extension; some are of both.
bool isInLanguage(const QString &file, bool isCpp);

/// Whether \a file is a header of C, or of C++, by its extension. C++ also has headers without one,
/// which nothing tells from other files.
bool isHeader(const QString &file, bool isCpp);
