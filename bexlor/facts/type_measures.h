#pragma once

#include <QByteArray>

/// The declarations in C that types are measured by, each with a line feed behind it. \a name
/// becomes the tag of what is declared.

/// A structure in which a member of \a type, see Type::name, stands behind a single character:
/// where it lies tells its alignment.
QByteArray structureBehindChar(const QByteArray &name, const QByteArray &type);

/// The alignment of \a type, in bytes, by that structure: a difference, without parentheses.
QByteArray alignmentIn(const QByteArray &name, const QByteArray &type);

/// A structure of a char and a bit-field of int. In some compilers the bits lie beside the
/// character, in others in an int of their own.
QByteArray bitFieldStructure(const QByteArray &name);

/// An enumeration with the smallest values. It declares "NAME_zero", too.
QByteArray smallEnumeration(const QByteArray &name);
