#pragma once

#include "bexlor/compiler.h"

#include <QList>

/// A predefined macro. The name of a function-like one includes its parameter list.
struct Macro
{
    QByteArray name;
    QByteArray value;
};

/// What a compiler has told about itself.
struct Facts
{
    QList<Macro> macros;    ///< in the order in which it lists them
    QStringList searchPath; ///< the header directories that it searches by itself, in its order
};

/// The macros of a listing as preprocessors print it under -dM: lines "#define NAME VALUE".
QList<Macro> parseMacros(const QByteArray &listing);

/// The header directories of a listing as the GNU driver prints it under -v: first those for
/// quoted names, then those for names in angle brackets. Empty when there is no such listing.
QStringList parseSearchPath(const QByteArray &listing);
