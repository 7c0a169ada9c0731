#include "keyword_types.h"

#include "probe_line.h"

namespace {

/// What is asked of each type, "@" standing for it: its size; whether it holds
/// fractions (1), whole numbers (2) or truth values (3); whether it has a sign (1) or not (2).
const char *const traitExpressions[] = {"sizeof(@)", "(@)0.5==0?2:(@)0.5==1?3:1", "(@)-1<0?1:2"};

/// A type as it has been measured; where something is not known it has no kind.
struct Shape
{
    enum Kind { Unknown, Fractional, Whole, Truth };
    Kind kind = Unknown;
    int size = 0;
    bool isUnsigned = false;

    bool mayBeOneBit() const { return kind == Whole && size == 1; }
};

/// The shapes of \a names. A compiler without floating-point numbers has whole ones only.
QList<Shape> shapesOf(const Questions &questions, const QList<QByteArray> &names)
{
    QList<QByteArray> expressions;
    for (const QByteArray &name : names + QList<QByteArray> {"int"}) {
        for (const char *expression : traitExpressions)
            expressions << QByteArray(expression).replace('@', name);
    }
    const QList<std::optional<int>> values = questions.numbers({}, expressions);
    const bool hasFloating = values[3 * names.size() + 1].has_value();
    QList<Shape> shapes(names.size());
    for (qsizetype i = 0; i < names.size(); ++i) {
        const auto size = values[3 * i], kind = values[3 * i + 1], sign = values[3 * i + 2];
        if (size && sign && (kind || !hasFloating))
            shapes[i] = {Shape::Kind(kind.value_or(Shape::Whole)), *size, sign == 2};
    }
    return shapes;
}

/// Asks whether a type of \a shape is of a kind that the first questions do not tell from others: a
/// floating-point type, binary or decimal, holds what is too large or too small for any fixed-point
/// type of its size (ISO/IEC TR 18037 6.2.5), and a single bit loses a number of two.
QByteArray kindExpression(const QByteArray &name, const Shape &shape)
{
    const QByteArray cast = '(' + name + ')';
    if (shape.mayBeOneBit())
        return cast + "2==2?2:1";
    if (shape.kind != Shape::Fractional)
        return "2";
    // Whole numbers may be compared with decimal ones, binary floating-point numbers may not.
    return cast + (shape.size < 4 ? "1e-6>0?1:2" : "1e12/1000000>900000?1:2");
}

/// A type of the same kind and size as that of \a shape; \a kind is what kindExpression()
/// has told. Empty when there is none.
QByteArray standInFor(const Shape &shape, std::optional<int> kind, const TypeFacts &types,
                      bool isCpp)
{
    if (shape.kind == Shape::Unknown || !kind)
        return {};
    if (shape.kind == Shape::Fractional)
        return kind == 1 ? typeLike(types, shape.size, true, false) : QByteArray();
    const bool isTruth = shape.kind == Shape::Truth || kind == 1;
    if (isTruth && shape.size == 1)
        return isCpp ? "bool" : "_Bool";
    if (isTruth)
        return {};
    return typeLike(types, shape.size, false, shape.isUnsigned);
}

/// Which of the types \a names are volatile without a word: an object of one may be declared again
/// as volatile, though one of int may not.
QList<bool> areVolatile(const Questions &questions, const QList<QByteArray> &names)
{
    QList<QByteArray> declarations;
    for (const QByteArray &name : QList<QByteArray> {"int"} + names)
        declarations << probeLine("extern @ %; extern volatile @ %;\n", name, declarations.size());
    QList<bool> isVolatile = questions.accepted({}, declarations);
    const bool isCareless = isVolatile.takeFirst();
    return isCareless ? QList<bool>(names.size(), false) : isVolatile;
}

} // namespace

void addStandIns(const Questions &questions, const TypeFacts &types, QList<Keyword> &keywords)
{
    QList<Keyword *> typeNames;
    QList<QByteArray> names, expressions;
    for (Keyword &keyword : keywords) {
        if (keyword.form == Keyword::TypeName) {
            typeNames << &keyword;
            names << keyword.name;
        }
    }
    if (names.isEmpty())
        return;
    const QList<Shape> shapes = shapesOf(questions, names);
    for (qsizetype i = 0; i < names.size(); ++i)
        expressions << kindExpression(names[i], shapes[i]);
    const QList<std::optional<int>> kinds = questions.numbers({}, expressions);
    const QList<bool> isVolatile = areVolatile(questions, names);
    for (qsizetype i = 0; i < typeNames.size(); ++i) {
        const QByteArray standIn = standInFor(shapes[i], kinds[i], types, questions.isCpp());
        const bool qualifies = isVolatile[i] && !standIn.isEmpty();
        typeNames[i]->standIn = qualifies ? "volatile " + standIn : standIn;
    }
}
