#pragma once

#include <QByteArray>
#include <QList>
#include <QStringList>
#include <optional>

/// A predefined macro. The name of a function-like one includes its parameter list.
struct Macro
{
    QByteArray name;
    QByteArray value;

    bool operator==(const Macro &) const = default;
};

struct MacroFacts
{
    QList<Macro> known;
    QList<QByteArray> undetermined; ///< predefined, but with what value is not known

    bool operator==(const MacroFacts &) const = default;
};

/// A type by its name, with its size and alignment in bytes.
struct Type
{
    QByteArray name;
    int size = 0;
    int alignment = 0;

    bool operator==(const Type &) const = default;
};

enum class ByteOrder { Unknown, LittleEndian, BigEndian };

/// What is known of the types; where something is not known it is empty, 0 or Unknown.
struct TypeFacts
{
    QList<Type> basic;
    QByteArray sizeType, pointerDifferenceType, wideCharacterType; ///< names of integer types
    std::optional<bool> charIsUnsigned;
    int smallEnumSize = 0; ///< of an enumeration with small values, in bytes
    int bitFieldSize = 0;  ///< of a structure of a char and a bit-field of int, in bytes
    ByteOrder byteOrder = ByteOrder::Unknown;

    bool operator==(const TypeFacts &) const = default;
};

/// What the standard headers call an integer type, and the fact which one that is.
struct NamedType
{
    const char *name;
    QByteArray TypeFacts::*type;
};
inline constexpr NamedType namedTypes[] = {
    {"size_t", &TypeFacts::sizeType},
    {"ptrdiff_t", &TypeFacts::pointerDifferenceType},
    {"wchar_t", &TypeFacts::wideCharacterType}, // in C++ a type of its own, like that one
};

/// A name that cannot be declared: an extension keyword or a type that the compiler brings along.
/// One that may be used in several forms is listed once for each.
struct Keyword
{
    enum Form {
        Undetermined,
        Qualifier,                 ///< stands where a qualifier may stand, alone
        QualifierWithArgument,     ///< the same with one argument in parentheses
        TypeName,                  ///< stands for a type
        QualifierWithBareArgument, ///< like a qualifier, with one number behind it
        AssemblerBlock,            ///< begins what is no C
        OrdinaryName,              ///< a keyword of the standard that this compiler lets declare
    };
    QByteArray name;
    Form form = Undetermined;
    QByteArray standIn; ///< of a type: a standard type of the same kind and size; of a block of
                        ///< assembler: the keyword that ends it

    bool operator==(const Keyword &) const = default;
};

/// The header directories that a compiler searches by itself, in its order.
struct SearchPath
{
    QStringList directories;
    QStringList forQuotedNames; ///< searched before those, for names in quotation marks only

    bool operator==(const SearchPath &) const = default;
};

/// What a compiler has told about itself.
struct Facts
{
    QByteArray versionLine; ///< in which it names its version
    MacroFacts macros;
    TypeFacts types;
    QList<Keyword> keywords;
    QList<QByteArray> attributes; ///< that it has and clang has not
    QList<QByteArray> leniencies; ///< what it accepts: clang's warnings that clang makes errors of
    SearchPath searchPath;

    bool operator==(const Facts &) const = default;
};

/// The macro called \a name, or null.
const Macro *findMacro(const MacroFacts &macros, const QByteArray &name);

/// The \a name of a macro without its parameter list.
QByteArray bareName(const QByteArray &name);

/// Whether \a name is among the keywords, in whatever form.
bool hasKeyword(const Facts &facts, const QByteArray &name);

/// The bytes of the basic type \a name; 0 if not known.
int sizeOf(const TypeFacts &types, const QByteArray &name);

/// The bytes of a type that is \a name, a basic one, or like it with another sign; 0 if not known.
int sizeOfLike(const TypeFacts &types, QByteArray name);

/// The first of the basic types with that size and kind; empty when there is none.
QByteArray typeLike(const TypeFacts &types, int size, bool isFloating, bool isUnsigned);

/// Whether \a name has no definition that could be passed on, though a compiler may list it as a
/// macro: its value is another each time, or it is an operator such as "__has_include".
bool isBuiltIntoThePreprocessor(const QByteArray &name);
