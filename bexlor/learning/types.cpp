#include "learning.h"

namespace {

const QList<QByteArray> basicTypes {"char",  "short",  "int",         "long",   "long long",
                                    "float", "double", "long double", "void *", "void (*)(void)"};

const QList<QByteArray> integerTypes {
    "signed char", "unsigned char", "short",     "unsigned short",     "int", "unsigned int",
    "long",        "unsigned long", "long long", "unsigned long long", "char"};

/// A member of type \a type and the given name.
QByteArray declared(const QByteArray &type, const QByteArray &name)
{
    return type.endsWith("(*)(void)") ? "void (*" + name + ")(void)" : type + ' ' + name;
}

/// The one of the integer types that the standard headers' \a name stands for: an object can be
/// declared again only with the same type. Empty when it is none of them, or when the compiler
/// does not mind.
QByteArray typeBehind(const Questions &questions, const QByteArray &name)
{
    QList<QByteArray> sources;
    for (const QByteArray &type : integerTypes) {
        sources << "#include <stddef.h>\nextern " + name + " calyx_object;\nextern " + type
                       + " calyx_object;\n";
    }
    const QList<bool> isSame = questions.acceptedAlone(sources);
    return isSame.count(true) == 1 ? integerTypes[isSame.indexOf(true)] : QByteArray();
}

QByteArray wideCharacterType(const Questions &questions, const TypeFacts &types)
{
    if (!questions.isCpp())
        return typeBehind(questions, "wchar_t");
    // In C++ it is a type of its own.
    const QList<std::optional<int>> values =
        questions.numbers({}, {"sizeof(wchar_t)", "(wchar_t)-1<0?1:2"});
    return values[0] ? typeLike(types, *values[0], false, values[1] == 2) : QByteArray();
}

ByteOrder byteOrder(const Questions &questions)
{
    // 16 bits are the least that every compiler's short has. Read as characters they begin and end
    // the mark of a text in either order.
    const QByteArray bytes =
        questions
            .eachAlone({"extern const unsigned short calyx_order[];\n"
                        "const unsigned short calyx_order[] = {0x4361, 0x6c79, 0x7842, 0x6f75};\n"})
            .first()
            .bytes;
    if (bytes.contains("aCylBxuo"))
        return ByteOrder::LittleEndian;
    return bytes.contains("CalyxBou") ? ByteOrder::BigEndian : ByteOrder::Unknown;
}

/// Whether char has no sign. Some compilers take it for the very type that has its range, others
/// know that it differs from both and can be asked for a value.
bool charIsUnsigned(const Questions &questions)
{
    const QList<bool> isSame =
        questions.accepted({}, {"extern char calyx_u; extern unsigned char calyx_u;\n",
                                "extern char calyx_s; extern signed char calyx_s;\n"});
    if (isSame[0] != isSame[1])
        return isSame[0];
    return questions.numbers({}, {"(char)-1<0?1:2"}).first() == 2;
}

/// Those of the basic types that the compiler has, with their sizes and alignments.
QList<Type> measuredTypes(const Questions &questions)
{
    // Where a member lies behind a single character tells its alignment.
    QList<QByteArray> structures;
    for (qsizetype i = 0; i < basicTypes.size(); ++i) {
        structures << "struct calyx_" + QByteArray::number(i) + "s { char c; "
                          + declared(basicTypes[i], "t") + "; };\n";
    }
    const QList<bool> isKnown = questions.accepted({}, structures);
    QByteArray prelude;
    QList<QByteArray> names, expressions;
    for (qsizetype i = 0; i < basicTypes.size(); ++i) {
        if (!isKnown[i])
            continue;
        const QByteArray size = "sizeof(" + basicTypes[i] + ')';
        prelude += structures[i];
        names << basicTypes[i];
        expressions << size << "sizeof(struct calyx_" + QByteArray::number(i) + "s)-" + size;
    }
    const QList<std::optional<int>> values = questions.numbers(prelude, expressions);
    QList<Type> types;
    for (qsizetype i = 0; i < names.size(); ++i) {
        if (values[2 * i] && values[2 * i + 1])
            types.append({names[i], *values[2 * i], *values[2 * i + 1]});
    }
    return types;
}

} // namespace

TypeFacts learnTypes(const Questions &questions)
{
    TypeFacts types;
    types.basic = measuredTypes(questions);
    types.charIsUnsigned = charIsUnsigned(questions);
    types.smallEnumSize =
        questions.numbers("enum calyx_enum { CALYX_A };\n", {"sizeof(enum calyx_enum)"})
            .first()
            .value_or(0);
    types.byteOrder = byteOrder(questions);
    types.sizeType = typeBehind(questions, "size_t");
    types.pointerDifferenceType = typeBehind(questions, "ptrdiff_t");
    types.wideCharacterType = wideCharacterType(questions, types);
    return types;
}
