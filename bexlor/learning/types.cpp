#include "learning.h"

namespace {

const QList<QByteArray> basicTypes {"char",  "short",  "int",         "long",   "long long",
                                    "float", "double", "long double", "void *", "void (*)(void)"};

const QList<QByteArray> integerTypes {
    "signed char", "unsigned char", "short",     "unsigned short",     "int", "unsigned int",
    "long",        "unsigned long", "long long", "unsigned long long", "char"};

const QByteArray smallEnum = "enum calyx_enum";
const QByteArray enumDefinition = "enum calyx_enum { CALYX_A };\n";

/// A member of type \a type and the given name.
QByteArray declared(const QByteArray &type, const QByteArray &name)
{
    return type.endsWith("(*)(void)") ? "void (*" + name + ")(void)" : type + ' ' + name;
}

/// 1 for a type with a sign, 2 for one without.
QByteArray signOf(const QByteArray &type)
{
    return '(' + type + ")-1<0?1:2";
}

/// Which of \a values, those of \a expressions behind \a prelude, are known and not contradicted by
/// a second observation: a declaration that is valid only with that value. A compiler that accepts
/// any declaration contradicts nothing.
QList<bool> seenTwice(const Questions &questions, const QByteArray &prelude,
                      const QList<QByteArray> &expressions, const QList<std::optional<int>> &values)
{
    const auto arrayIf = [](const QByteArray &claim, qsizetype number) {
        return "extern char calyx_claim" + QByteArray::number(number) + "[(" + claim + ")?1:-1];\n";
    };
    QList<bool> isSeen;
    QList<qsizetype> claimed;
    QList<QByteArray> declarations;
    for (qsizetype i = 0; i < values.size(); ++i) {
        isSeen << values[i].has_value();
        if (!values[i])
            continue;
        claimed << i;
        declarations << arrayIf('(' + expressions[i] + ")==" + QByteArray::number(*values[i]), i);
    }
    if (!questions.controls().rejects(Fault::NegativeSize))
        return isSeen;
    // What is true in any case shows that the compiler can take such a declaration at all.
    declarations << arrayIf("sizeof(char)==1", values.size());
    const QList<bool> isAccepted = questions.accepted(prelude, declarations, true);
    for (qsizetype i = 0; isAccepted.last() && i < claimed.size(); ++i)
        isSeen[claimed[i]] = isAccepted[i];
    return isSeen;
}

/// The values, from 0 to 65535, of \a expressions that have been seen twice behind \a prelude.
QList<std::optional<int>> measured(const Questions &questions, const QByteArray &prelude,
                                   const QList<QByteArray> &expressions)
{
    QList<std::optional<int>> values = questions.numbers(prelude, expressions);
    const QList<bool> isSeen = seenTwice(questions, prelude, expressions, values);
    for (qsizetype i = 0; i < values.size(); ++i) {
        if (!isSeen[i])
            values[i] = std::nullopt;
    }
    return values;
}

/// The integer types with the size and the sign that \a size and \a sign tell; with either, if
/// there is no sign.
QList<QByteArray> typesLike(const TypeFacts &types, std::optional<int> size,
                            std::optional<int> sign)
{
    QList<QByteArray> alike;
    for (const QByteArray &type : integerTypes) {
        QByteArray name = type;
        const bool isUnsigned = type.startsWith("unsigned ")
                             || (type == "char" && types.charIsUnsigned.value_or(false));
        name.replace("unsigned ", "").replace("signed ", "");
        if (size && sizeOf(types, name) == *size && (!sign || isUnsigned == (*sign == 2)))
            alike << type;
    }
    return alike;
}

/// The one of \a types that the standard headers' \a name stands for: an object can be declared
/// again only with the same type. Empty when it is none of them, or when the compiler does not
/// mind.
QByteArray typeBehind(const Questions &questions, const QByteArray &name,
                      const QList<QByteArray> &types)
{
    QList<QByteArray> sources;
    for (const QByteArray &type : types) {
        sources << "#include <stddef.h>\nextern " + name + " calyx_object;\nextern " + type
                       + " calyx_object;\n";
    }
    const QList<bool> isSame = questions.acceptedAlone(sources);
    return isSame.count(true) == 1 ? types[isSame.indexOf(true)] : QByteArray();
}

/// Finds out what the types behind the standard headers' names are.
void learnNamedTypes(const Questions &questions, TypeFacts &types)
{
    const struct
    {
        QByteArray name;
        QByteArray TypeFacts::*type;
    } named[] = {{"size_t", &TypeFacts::sizeType},
                 {"ptrdiff_t", &TypeFacts::pointerDifferenceType},
                 {"wchar_t", &TypeFacts::wideCharacterType}};
    QList<QByteArray> expressions;
    for (const auto &row : named)
        expressions << "sizeof(" + row.name + ')' << signOf(row.name);
    const QList<std::optional<int>> values =
        questions.numbers("#include <stddef.h>\n", expressions);
    const bool tellsTypes = questions.controls().rejects(Fault::ConflictingDeclarations);
    auto value = values.begin();
    for (const auto &row : named) {
        const std::optional<int> size = value[0], sign = value[1];
        value += 2;
        // In C++ the wide character is a type of its own; what can be known is what it is like.
        const bool isLikeOnly = row.name == "wchar_t" && (questions.isCpp() || !tellsTypes);
        if (isLikeOnly && size)
            types.*row.type = typeLike(types, *size, false, sign == 2);
        else if (tellsTypes)
            types.*row.type = typeBehind(questions, row.name, typesLike(types, size, sign));
    }
}

/// Whether char has no sign, by the type that it may be declared again with, which some compilers
/// take for the same.
std::optional<bool> declaredUnsigned(const Questions &questions)
{
    if (!questions.controls().rejects(Fault::ConflictingDeclarations))
        return {};
    const QList<bool> isSame =
        questions.accepted({}, {"extern char calyx_u; extern unsigned char calyx_u;\n",
                                "extern char calyx_s; extern signed char calyx_s;\n"});
    return isSame[0] != isSame[1] ? std::optional(isSame[0]) : std::nullopt;
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

/// Measures those of the basic types that the compiler has, an enumeration, and the sign of char.
void measureBasicTypes(const Questions &questions, TypeFacts &types)
{
    const QList<QByteArray> candidates = basicTypes + QList<QByteArray> {smallEnum};
    // Where a member lies behind a single character tells its alignment.
    QList<QByteArray> structures;
    for (qsizetype i = 0; i < candidates.size(); ++i) {
        structures << "struct calyx_" + QByteArray::number(i) + "s { char c; "
                          + declared(candidates[i], "t") + "; };\n";
    }
    const QList<bool> isKnown = questions.accepted(enumDefinition, structures);
    QByteArray prelude = enumDefinition;
    QList<QByteArray> names, expressions {signOf("char")};
    for (qsizetype i = 0; i < candidates.size(); ++i) {
        if (!isKnown[i])
            continue;
        const QByteArray size = "sizeof(" + candidates[i] + ')';
        prelude += structures[i];
        names << candidates[i];
        expressions << size << "sizeof(struct calyx_" + QByteArray::number(i) + "s)-" + size;
    }
    const QList<std::optional<int>> values = measured(questions, prelude, expressions);
    // Not every compiler takes the comparison of an unsigned value with 0 for a constant.
    types.charIsUnsigned =
        values.first() ? std::optional(values.first() == 2) : declaredUnsigned(questions);
    for (qsizetype i = 0; i < names.size(); ++i) {
        const std::optional<int> size = values[2 * i + 1], alignment = values[2 * i + 2];
        if (names[i] == smallEnum)
            types.smallEnumSize = size.value_or(0);
        else if (size && alignment)
            types.basic.append({names[i], *size, *alignment});
    }
}

} // namespace

TypeFacts learnTypes(const Questions &questions)
{
    TypeFacts types;
    measureBasicTypes(questions, types);
    types.byteOrder = byteOrder(questions);
    learnNamedTypes(questions, types);
    return types;
}
