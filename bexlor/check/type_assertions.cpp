#include "type_assertions.h"

#include "type_measures.h"

namespace {

const QByteArray start =
    R"(/* A compiler accepts this file where its types are those that a personality holds. */

#if defined __cplusplus && __cplusplus >= 201103L
#define CALYX_HOLDS(name, condition) static_assert(condition, #name)
#else
#define CALYX_HOLDS(name, condition) extern char name[1 - 2 * !(condition)]
#endif

)";

const QByteArray byteOrderMacro = "__BYTE_ORDER__";

QByteArray assertion(const QByteArray &name, const QByteArray &condition)
{
    return "CALYX_HOLDS(calyx_" + name + ", " + condition + ");\n";
}

QByteArray sizeAssertion(const QByteArray &name, const QByteArray &type, int size)
{
    return assertion("size_of_" + name, "sizeof(" + type + ") == " + QByteArray::number(size));
}

/// The name of \a type as a part of others.
QByteArray nameOf(QByteArray type)
{
    return type.replace("void (*)(void)", "function_pointer")
        .replace("void *", "pointer")
        .replace(' ', '_');
}

QByteArray basicAssertions(const Type &type)
{
    const QByteArray name = nameOf(type.name), structure = "calyx_behind_char_" + name;
    return structureBehindChar(structure, type.name) + sizeAssertion(name, type.name, type.size)
         + assertion("alignment_of_" + name, alignmentIn(structure, type.name)
                                                 + " == " + QByteArray::number(type.alignment));
}

QByteArray signAssertion(const QByteArray &type, bool isUnsigned)
{
    return assertion("sign_of_" + type,
                     '(' + type + (isUnsigned ? ")-1 > (" : ")-1 < (") + type + ")0");
}

/// That \a name stands for \a type: an object can be declared again only with the same type.
QByteArray sameType(const QByteArray &name, const QByteArray &type)
{
    if (type.isEmpty())
        return {};
    return "extern " + name + " calyx_object_of_" + name + ";\nextern " + type + " calyx_object_of_"
         + name + ";\n";
}

/// What can be said of wchar_t: in C++ it is a type of its own, like \a type.
QByteArray wideCharacterAssertions(const QByteArray &type, bool isCpp)
{
    if (type.isEmpty() || !isCpp)
        return sameType("wchar_t", type);
    return assertion("size_of_wchar_t", "sizeof(wchar_t) == sizeof(" + type + ')')
         + signAssertion("wchar_t", type.startsWith("unsigned "));
}

QByteArray byteOrderAssertion(const Facts &facts)
{
    if (facts.types.byteOrder == ByteOrder::Unknown || !findMacro(facts.macros, byteOrderMacro))
        return {};
    const bool isLittle = facts.types.byteOrder == ByteOrder::LittleEndian;
    return "#if " + byteOrderMacro + " != __ORDER_" + (isLittle ? "LITTLE" : "BIG")
         + "_ENDIAN__\n#error \"The byte order is another.\"\n#endif\n";
}

} // namespace

QByteArray typeAssertions(const Facts &facts, bool isCpp)
{
    const TypeFacts &types = facts.types;
    QByteArray source = start;
    for (const Type &type : types.basic)
        source += basicAssertions(type);
    if (types.charIsUnsigned)
        source += signAssertion("char", *types.charIsUnsigned);
    if (types.smallEnumSize != 0) {
        source += smallEnumeration("calyx_enumeration")
                + sizeAssertion("enumeration", "enum calyx_enumeration", types.smallEnumSize);
    }
    if (types.bitFieldSize != 0) {
        source += bitFieldStructure("calyx_bit_field")
                + sizeAssertion("bit_field", "struct calyx_bit_field", types.bitFieldSize);
    }
    source += byteOrderAssertion(facts);
    QByteArray named =
        sameType("size_t", types.sizeType) + sameType("ptrdiff_t", types.pointerDifferenceType);
    QByteArray &withWideCharacters = isCpp ? source : named;
    withWideCharacters += wideCharacterAssertions(types.wideCharacterType, isCpp);
    // That there is this header shows where they have been found.
    return named.isEmpty() ? source : source + "#include <stddef.h>\n" + named;
}
