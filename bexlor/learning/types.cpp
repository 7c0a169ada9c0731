#include "learning.h"

#include "integer_types.h"
#include "probe_line.h"
#include "type_measures.h"

namespace {

const QList<QByteArray> basicTypes {"char",  "short",  "int",         "long",   "long long",
                                    "float", "double", "long double", "void *", "void (*)(void)"};

QList<QByteArray> namesOfIntegerTypes()
{
    QList<QByteArray> names;
    for (const IntegerType &type : integerTypes())
        names << type.name;
    return names;
}

/// What has been read back of an integer type.
struct Shape
{
    std::optional<int> size; ///< in bytes
    std::optional<bool> isUnsigned;
};

bool areAlike(const Shape &first, const Shape &second)
{
    return first.size && first.size == second.size && first.isUnsigned == second.isUnsigned;
}

/// The shapes of \a names behind \a prelude.
QList<Shape> shapesOf(const Questions &questions, const QByteArray &prelude,
                      const QList<QByteArray> &names)
{
    QList<QByteArray> expressions;
    for (const QByteArray &name : names)
        expressions << "sizeof(" + name + ')' << '(' + name + ")-1<0?1:2";
    const QList<std::optional<int>> values = questions.numbers(prelude, expressions);
    QList<Shape> shapes;
    for (qsizetype i = 0; i < names.size(); ++i) {
        const std::optional<int> sign = values[2 * i + 1];
        shapes.append({values[2 * i], sign ? std::optional(*sign == 2) : std::nullopt});
    }
    return shapes;
}

/// What \a index is paired with in \a pairs; empty when that is not one.
QByteArray onlyPartner(qsizetype index, const QList<std::pair<qsizetype, QByteArray>> &pairs)
{
    QList<QByteArray> partners;
    for (const auto &[first, second] : pairs) {
        if (first == index)
            partners << second;
    }
    return partners.size() == 1 ? partners.first() : QByteArray();
}

/// The integer types that the standard headers' \a names of \a shapes stand for: an object can be
/// declared again only with the same type. Empty where that is none of those with the same shape,
/// or when the compiler does not mind and there are several of them.
QList<QByteArray> typesBehind(const Questions &questions, const QList<QByteArray> &names,
                              const QList<Shape> &shapes, const QList<Shape> &shapesOfTypes)
{
    const QList<QByteArray> integers = namesOfIntegerTypes();
    QList<std::pair<qsizetype, QByteArray>> pairs; // name and type
    QList<QByteArray> declarations;
    for (qsizetype name = 0; name < names.size(); ++name) {
        for (qsizetype type = 0; type < integers.size(); ++type) {
            if (!areAlike(shapes[name], shapesOfTypes[type]))
                continue;
            declarations << probeLine("extern @ %; extern " + integers[type] + " %;\n", names[name],
                                      pairs.size());
            pairs << std::pair(name, integers[type]);
        }
    }
    if (questions.rejects(ErrorKind::ConflictingDeclaration))
        pairs = selected(pairs, questions.accepted("#include <stddef.h>\n", declarations));
    QList<QByteArray> types;
    for (qsizetype name = 0; name < names.size(); ++name)
        types << onlyPartner(name, pairs);
    return types;
}

/// The types behind the names of the standard headers, from the \a shapes of the integer types. In
/// C++ wchar_t is a type of its own.
void learnNamedTypes(const Questions &questions, const QList<Shape> &shapes, TypeFacts &types)
{
    QList<NamedType> named(std::begin(namedTypes), std::end(namedTypes));
    if (questions.isCpp())
        named.removeIf(
            [](const NamedType &row) { return row.type == &TypeFacts::wideCharacterType; });
    QList<QByteArray> names;
    for (const NamedType &row : named)
        names << row.name;
    const QList<QByteArray> behind =
        typesBehind(questions, names, shapesOf(questions, "#include <stddef.h>\n", names), shapes);
    for (qsizetype i = 0; i < named.size(); ++i)
        types.*named[i].type = behind[i];
    if (!questions.isCpp())
        return;
    const Shape wide = shapesOf(questions, {}, {"wchar_t"}).first();
    if (wide.size && wide.isUnsigned)
        types.wideCharacterType = typeLike(types, *wide.size, false, *wide.isUnsigned);
}

ByteOrder byteOrder(const Questions &questions)
{
    // 16 bits are the least that every compiler's short has. Read as characters they begin and end
    // the mark of a text in either order. A compiler that knows no constants keeps the last one.
    const QByteArray start = "unsigned short calyx_order[]";
    const QByteArray list = " = {0x4361, 0x6c79, 0x7842, 0x6f75};\n";
    for (const QByteArray &source :
         {"extern const " + start + ";\nconst " + start + list, start + list}) {
        const QByteArray bytes = questions.eachAlone({source}).first().bytes;
        if (bytes.contains("aCylBxuo"))
            return ByteOrder::LittleEndian;
        if (bytes.contains("CalyxBou"))
            return ByteOrder::BigEndian;
    }
    // Those that many compilers define for this, according to the manuals of GCC and clang.
    const QList<bool> isDefined = questions.conditions(
        {"defined __ORDER_LITTLE_ENDIAN__ && __BYTE_ORDER__ == __ORDER_LITTLE_ENDIAN__",
         "defined __ORDER_BIG_ENDIAN__ && __BYTE_ORDER__ == __ORDER_BIG_ENDIAN__"});
    if (isDefined[0] == isDefined[1])
        return ByteOrder::Unknown;
    return isDefined[0] ? ByteOrder::LittleEndian : ByteOrder::BigEndian;
}

/// Whether char has no sign: by its value in \a shapes, those of the integer types, or, where that
/// cannot be read back, by the type that the compiler takes it for; some do, though it differs from
/// both.
std::optional<bool> charIsUnsigned(const Questions &questions, const QList<Shape> &shapes)
{
    if (const auto isUnsigned = shapes[namesOfIntegerTypes().indexOf("char")].isUnsigned)
        return isUnsigned;
    if (!questions.rejects(ErrorKind::ConflictingDeclaration))
        return {};
    const QList<bool> isSame =
        questions.accepted({}, {"extern char calyx_u; extern unsigned char calyx_u;\n",
                                "extern char calyx_s; extern signed char calyx_s;\n"});
    return isSame[0] != isSame[1] ? std::optional(isSame[0]) : std::nullopt;
}

/// The name of the structure whose only members are a character and a basic type.
QByteArray structureOf(const QByteArray &type)
{
    return "calyx_" + QByteArray::number(basicTypes.indexOf(type)) + 's';
}

/// Rejected, with a \a name of its own, if \a expression is not \a value.
QByteArray assertion(const QByteArray &name, const QByteArray &expression, int value)
{
    return "extern char calyx_" + name + "[1-2*(" + expression + "!=" + QByteArray::number(value)
         + ")];\n";
}

/// Those of \a types of which the compiler knows the same as has been read back: it rejects an
/// array of negative size.
QList<Type> confirmed(const Questions &questions, const QByteArray &prelude,
                      const QList<Type> &types)
{
    if (!questions.rejects(ErrorKind::NegativeArraySize))
        return types;
    QList<QByteArray> assertions;
    for (const Type &type : types) {
        const QByteArray number = QByteArray::number(assertions.size());
        assertions << assertion(number + 'a', "sizeof(" + type.name + ')', type.size)
                          + assertion(number + 'b', alignmentIn(structureOf(type.name), type.name),
                                      type.alignment);
    }
    const QList<bool> isConfirmed = questions.accepted(prelude, assertions);
    // That a char has one byte is true everywhere; what rejects it tells nothing of the others.
    return isConfirmed.value(0) ? selected(types, isConfirmed) : types;
}

/// Measures those of the basic types that the compiler has, and what it makes of a bit-field.
void measureTypes(const Questions &questions, TypeFacts &types)
{
    const QByteArray bitFields = bitFieldStructure("calyx_b");
    QList<QByteArray> structures;
    for (const QByteArray &type : basicTypes)
        structures << structureBehindChar(structureOf(type), type);
    const QList<bool> isKnown = questions.accepted({}, structures + QList {bitFields});
    QByteArray prelude;
    QList<QByteArray> names, expressions;
    for (qsizetype i = 0; i < basicTypes.size(); ++i) {
        if (!isKnown[i])
            continue;
        prelude += structures[i];
        names << basicTypes[i];
        expressions << "sizeof(" + basicTypes[i] + ')'
                    << alignmentIn(structureOf(basicTypes[i]), basicTypes[i]);
    }
    if (isKnown.last()) {
        prelude += bitFields;
        expressions << "sizeof(struct calyx_b)";
    }
    const QList<std::optional<int>> values = questions.numbers(prelude, expressions);
    QList<Type> measured;
    for (qsizetype i = 0; i < names.size(); ++i) {
        if (values[2 * i] && values[2 * i + 1])
            measured.append({names[i], *values[2 * i], *values[2 * i + 1]});
    }
    types.basic = confirmed(questions, prelude, measured);
    if (isKnown.last())
        types.bitFieldSize = values.last().value_or(0);
}

} // namespace

TypeFacts learnTypes(const Questions &questions)
{
    TypeFacts types;
    measureTypes(questions, types);
    const QList<Shape> shapes = shapesOf(questions, {}, namesOfIntegerTypes());
    types.charIsUnsigned = charIsUnsigned(questions, shapes);
    types.smallEnumSize =
        questions.numbers(smallEnumeration("calyx_enum"), {"sizeof(enum calyx_enum)"})
            .first()
            .value_or(0);
    types.byteOrder = byteOrder(questions);
    learnNamedTypes(questions, shapes, types);
    return types;
}
