#pragma once

#include <QByteArray>
#include <QList>
#include <QStringList>

/// A predefined macro. The name of a function-like one includes its parameter list.
struct Macro
{
    QByteArray name;
    QByteArray value;
};

/// A type by its name, with its size and alignment in bytes.
struct Type
{
    QByteArray name;
    int size = 0;
    int alignment = 0;
};

enum class ByteOrder { Unknown, LittleEndian, BigEndian };

/// A name that cannot be declared: an extension keyword or a type that the compiler brings along.
struct Keyword
{
    enum Form {
        Undetermined,
        Qualifier,             ///< stands where a qualifier may stand, alone
        QualifierWithArgument, ///< the same with one argument in parentheses
        TypeName,              ///< stands for a type
    };
    QByteArray name;
    Form form = Undetermined;
    QByteArray standIn; ///< of a type: a standard type of the same kind and size
};

/// What a compiler has told about itself.
struct Facts
{
    QByteArray versionLine;
    QList<Macro> macros;
    QList<QByteArray> undeterminedMacros; ///< predefined, but with what value is not known
    QStringList searchPath; ///< the header directories that it searches by itself, in its order
    QStringList quotedSearchPath; ///< those before them that it searches for quoted names only
    QStringList includedFirst;    ///< options and files in turn, from the compiler's command
    QList<Type> types;
    QByteArray sizeType, pointerDifferenceType, wideCharacterType; ///< names of basic types
    bool charIsUnsigned = false;
    int smallEnumSize = 0; ///< of an enumeration with small values, in bytes; 0 if not known
    ByteOrder byteOrder = ByteOrder::Unknown;
    QList<Keyword> keywords;
};

/// The first of the basic types with that size and kind; empty when there is none.
QByteArray typeLike(const Facts &facts, int size, bool isFloating, bool isUnsigned);

/// The macros of a listing as preprocessors print it under -dM: lines "#define NAME VALUE".
QList<Macro> parseMacros(const QByteArray &listing);

/// Takes both search paths from a listing as the GNU driver prints it under -v; leaves \a facts as
/// they are when there is no such listing.
void parseSearchPath(const QByteArray &listing, Facts &facts);

/// The line of \a banner that looks like a name with a version, or an empty text.
QByteArray versionLineOf(const QByteArray &banner);
