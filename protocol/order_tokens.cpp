#include "order_tokens.h"

#include <algorithm>

using namespace Qt::StringLiterals;

namespace {

const QLatin1StringView lettersInOrderOfReading("cjdoes");
const int sectionsRead = 7;

} // namespace

QString orderString(const QList<OrderToken> &tokens)
{
    QString order;
    for (const OrderToken &token : tokens) {
        order += u'%';
        order += QLatin1Char(static_cast<char>(token.part));
        if (token.spaceFollows)
            order += u' ';
    }
    return order;
}

QList<OrderToken> parseOrderString(const QString &order)
{
    QList<OrderToken> tokens;
    for (const QString &section : order.split(u'%').mid(0, sectionsRead)) {
        const auto letter = std::find_if(
            lettersInOrderOfReading.begin(), lettersInOrderOfReading.end(),
            [&section](char candidate) { return section.contains(QLatin1Char(candidate)); });
        if (letter != lettersInOrderOfReading.end())
            tokens.append({static_cast<CommandPart>(*letter), section.endsWith(u' ')});
    }
    return tokens;
}

const OrderToken *findPart(const QList<OrderToken> &tokens, CommandPart part)
{
    const auto found = std::find_if(tokens.begin(), tokens.end(),
                                    [part](const OrderToken &token) { return token.part == part; });
    return found == tokens.end() ? nullptr : &*found;
}
