#pragma once

#include <QByteArray>
#include <QList>

/// An integer type by its shortest name, and how compilers spell it in their macros, the usual way
/// first.
struct IntegerType
{
    QByteArray name;
    QList<QByteArray> spellings;
};

/// The integer types of C and C++, char last, which is like one of the others.
const QList<IntegerType> &integerTypes();
