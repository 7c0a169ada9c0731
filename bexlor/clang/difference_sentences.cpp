#include "clang.h"

#include <algorithm>

using namespace Qt::StringLiterals;

namespace {

QString sentence(const Type &type, const Type &ofClang)
{
    const QString name = QString::fromUtf8(type.name);
    if (type.size != ofClang.size) {
        return u"For clang %1 has %2 bytes, for the compiler %3."_s.arg(name)
            .arg(ofClang.size)
            .arg(type.size);
    }
    return u"For clang %1 is aligned to %2, for the compiler to %3."_s.arg(name)
        .arg(ofClang.alignment)
        .arg(type.alignment);
}

QString nameOf(ByteOrder order)
{
    return order == ByteOrder::LittleEndian ? u"little-endian"_s : u"big-endian"_s;
}

} // namespace

QStringList differenceSentences(const TypeFacts &types, const TypeFacts &ofClang)
{
    QStringList sentences;
    for (const Type &differing : ofClang.basic) {
        const auto measured =
            std::find_if(types.basic.begin(), types.basic.end(),
                         [&differing](const Type &type) { return type.name == differing.name; });
        sentences << sentence(*measured, differing);
    }
    if (ofClang.smallEnumSize != 0)
        sentences << sentence({"a small enumeration", types.smallEnumSize},
                              {"a small enumeration", ofClang.smallEnumSize});
    if (ofClang.bitFieldSize != 0)
        sentences << sentence({"a structure of a char and a bit-field", types.bitFieldSize},
                              {"a structure of a char and a bit-field", ofClang.bitFieldSize});
    if (ofClang.byteOrder != ByteOrder::Unknown) {
        sentences << u"For clang integers are %1, for the compiler %2."_s.arg(
            nameOf(ofClang.byteOrder), nameOf(types.byteOrder));
    }
    for (const NamedType &row : namedTypes) {
        if (!(ofClang.*row.type).isEmpty()) {
            sentences << u"For clang %1 is %2, for the compiler %3."_s.arg(
                QLatin1StringView(row.name), QString::fromUtf8(ofClang.*row.type),
                QString::fromUtf8(types.*row.type));
        }
    }
    return sentences;
}
