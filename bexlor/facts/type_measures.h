#pragma once

#include <QByteArray>

/// The declarations in C that a type is measured by, each with a line feed behind it, and what they
/// tell. The names are those that the declaration gives.

/// A structure in which a member of \a type, see Type::name, stands behind a single character:
/// where it lies tells its alignment.
QByteArray structureBehindChar(const QByteArray &name, const QByteArray &type);

/// The alignment of \a type, in bytes, by the structure \a name of it.
QByteArray alignmentIn(const QByteArray &name, const QByteArray &type);

/// A structure of a char and a bit-field of int. In some compilers the bits lie beside the
/// character, in others in an int of their own.
QByteArray bitFieldStructure(const QByteArray &name);

/// An enumeration with the smallest values.
QByteArray smallEnumeration(const QByteArray &name);
