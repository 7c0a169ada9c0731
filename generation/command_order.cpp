#include "command_order.h"

#include "order_tokens.h"
#include "visible_text.h"

#include <algorithm>

using namespace Qt::StringLiterals;

namespace {

struct OrderItem
{
    QLatin1StringView text;
    CommandPart part;
    QString Answers::*value = nullptr;     ///< null: the item's own text stands for it
    bool Answers::*spaceFollows = nullptr; ///< null: always
    QLatin1StringView example = {};        ///< what the preview shows behind the value
};

const OrderItem orderItems[] = {
    {"Exe Command"_L1, CommandPart::Command, &Answers::command},
    {"Output Flag"_L1, CommandPart::OutputFlag, &Answers::outputFlag,
     &Answers::spaceAfterOutputFlag},
    {"<exe file>"_L1, CommandPart::OutputFile},
    {"Define Flag"_L1, CommandPart::DefineFlag, &Answers::defineFlag,
     &Answers::spaceAfterDefineFlag, "XXX "_L1},
    {"Object Flag"_L1, CommandPart::ObjectFlag, &Answers::objectFlag},
    {"<src file>"_L1, CommandPart::Source},
};

/// The item called \a text, or null.
const OrderItem *itemCalled(const QString &text)
{
    const auto found = std::find_if(std::begin(orderItems), std::end(orderItems),
                                    [&text](const OrderItem &item) { return item.text == text; });
    return found == std::end(orderItems) ? nullptr : found;
}

const OrderItem &itemOf(CommandPart part)
{
    return *std::find_if(std::begin(orderItems), std::end(orderItems),
                         [part](const OrderItem &item) { return item.part == part; });
}

bool spaceFollows(const OrderItem &item, const Answers &answers)
{
    return !item.spaceFollows || answers.*item.spaceFollows;
}

} // namespace

QStringList defaultOrder()
{
    QStringList order;
    for (const OrderItem &item : orderItems)
        order << item.text;
    return order;
}

QString commandPreview(const Answers &answers)
{
    QString preview;
    for (const QString &row : answers.order) {
        const OrderItem *item = itemCalled(row);
        preview += visibleText(item && item->value ? answers.*item->value : row);
        if (!item || spaceFollows(*item, answers))
            preview += u' ';
        if (item)
            preview += item->example;
    }
    return preview;
}

QString commandOrderString(const Answers &answers)
{
    QList<OrderToken> tokens;
    for (const QString &row : answers.order) {
        if (const OrderItem *item = itemCalled(row))
            tokens.append({item->part, spaceFollows(*item, answers)});
    }
    return orderString(tokens);
}

void applyOrderString(Answers &answers, const QString &order)
{
    answers.order.clear();
    for (const OrderToken &token : parseOrderString(order)) {
        const OrderItem &item = itemOf(token.part);
        answers.order << item.text;
        if (item.spaceFollows)
            answers.*item.spaceFollows = token.spaceFollows;
    }
}
