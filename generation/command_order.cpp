#include "command_order.h"

#include "order_tokens.h"
#include "visible_text.h"

#include <algorithm>

using namespace Qt::StringLiterals;

namespace {

/// What the answers hold of a part.
struct OrderItem
{
    CommandPart part;
    QString Answers::*value = nullptr;     ///< null: the part's name stands for it
    bool Answers::*spaceFollows = nullptr; ///< null: always
    QLatin1StringView example = {};        ///< what the preview shows behind the value
};

const OrderItem orderItems[] = {
    {CommandPart::Command, &Answers::command},
    {CommandPart::OutputFlag, &Answers::outputFlag, &Answers::spaceAfterOutputFlag},
    {CommandPart::OutputFile},
    {CommandPart::DefineFlag, &Answers::defineFlag, &Answers::spaceAfterDefineFlag, "XXX "_L1},
    {CommandPart::ObjectFlag, &Answers::objectFlag},
    {CommandPart::Source},
};

const OrderItem &itemOf(CommandPart part)
{
    return *std::find_if(std::begin(orderItems), std::end(orderItems),
                         [part](const OrderItem &item) { return item.part == part; });
}

/// The item called \a text, or null.
const OrderItem *itemCalled(const QString &text)
{
    for (const CommandPartName &part : commandPartNames) {
        if (text == QLatin1StringView(part.name))
            return &itemOf(part.part);
    }
    return nullptr;
}

QString nameOf(CommandPart part)
{
    const auto found =
        std::find_if(std::begin(commandPartNames), std::end(commandPartNames),
                     [part](const CommandPartName &named) { return named.part == part; });
    return QLatin1String(found->name);
}

bool spaceFollows(const OrderItem &item, const Answers &answers)
{
    return !item.spaceFollows || answers.*item.spaceFollows;
}

} // namespace

QStringList defaultOrder()
{
    QStringList order;
    for (const CommandPartName &part : commandPartNames)
        order << QLatin1String(part.name);
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
        answers.order << nameOf(token.part);
        if (item.spaceFollows)
            answers.*item.spaceFollows = token.spaceFollows;
    }
}
