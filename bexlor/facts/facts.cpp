#include "facts.h"

#include <algorithm>

namespace {

template <typename Item>
const Item *itemCalled(const QList<Item> &items, const QByteArray &name)
{
    const auto found = std::find_if(items.begin(), items.end(),
                                    [&name](const Item &item) { return item.name == name; });
    return found == items.end() ? nullptr : &*found;
}

} // namespace

const Macro *findMacro(const MacroFacts &macros, const QByteArray &name)
{
    return itemCalled(macros.known, name);
}

QByteArray bareName(const QByteArray &name)
{
    return name.split('(').first();
}

bool hasKeyword(const Facts &facts, const QByteArray &name)
{
    return itemCalled(facts.keywords, name);
}

int sizeOf(const TypeFacts &types, const QByteArray &name)
{
    const Type *type = itemCalled(types.basic, name);
    return type ? type->size : 0;
}

int sizeOfLike(const TypeFacts &types, QByteArray name)
{
    return sizeOf(types, name.replace("unsigned ", "").replace("signed ", ""));
}

QByteArray typeLike(const TypeFacts &types, int size, bool isFloating, bool isUnsigned)
{
    for (const Type &type : types.basic) {
        const bool typeIsFloating = type.name.contains("float") || type.name.contains("double");
        if (type.size != size || typeIsFloating != isFloating || type.name.contains('*'))
            continue;
        if (isFloating)
            return type.name;
        if (isUnsigned)
            return "unsigned " + type.name;
        return type.name == "char" ? "signed char" : type.name;
    }
    return {};
}

bool isBuiltIntoThePreprocessor(const QByteArray &name)
{
    static const QList<QByteArray> changing {
        "__FILE__",    "__LINE__",          "__DATE__",      "__TIME__",      "__TIMESTAMP__",
        "__COUNTER__", "__INCLUDE_LEVEL__", "__BASE_FILE__", "__FILE_NAME__",
    };
    return changing.contains(name) || name.startsWith("__has_");
}
