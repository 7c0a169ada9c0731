#include "generation/command_order.h"

namespace {

struct OrderItem
{
    const char *text;
    char letter;                        ///< of its token
    QString CompileCommand::*value;     ///< null: the item's own text stands for it
    bool CompileCommand::*spaceFollows; ///< null: always
    const char *example;                ///< what the preview shows behind the value
};

const OrderItem orderItems[] = {
    {"Exe Command", 'c', &CompileCommand::command, nullptr, ""},
    {"Output Flag", 'o', &CompileCommand::outputFlag, &CompileCommand::spaceAfterOutputFlag, ""},
    {"<exe file>", 'e', nullptr, nullptr, ""},
    {"Define Flag", 'd', &CompileCommand::defineFlag, &CompileCommand::spaceAfterDefineFlag,
     "XXX "},
    {"Object Flag", 'j', &CompileCommand::objectFlag, nullptr, ""},
    {"<src file>", 's', nullptr, nullptr, ""},
};

// Where a token holds more than one letter, the first of these counts.
const char lettersInOrderOfReading[] = "cjdoes";
const int sectionsRead = 7;

const OrderItem *findItem(const QString &text)
{
    for (const OrderItem &item : orderItems) {
        if (text == QLatin1String(item.text))
            return &item;
    }
    return nullptr;
}

const OrderItem *findItem(char letter)
{
    for (const OrderItem &item : orderItems) {
        if (item.letter == letter)
            return &item;
    }
    return nullptr;
}

QLatin1String space(const OrderItem &item, const CompileCommand &command)
{
    return QLatin1String(!item.spaceFollows || command.*item.spaceFollows ? " " : "");
}

} // namespace

QStringList defaultOrder()
{
    QStringList order;
    for (const OrderItem &item : orderItems)
        order << QLatin1String(item.text);
    return order;
}

QString commandPreview(const CompileCommand &command)
{
    QString preview;
    for (const QString &row : command.order) {
        const OrderItem *item = findItem(row);
        if (!item) {
            preview += row + QLatin1Char(' ');
            continue;
        }
        preview += item->value ? command.*item->value : row;
        preview += space(*item, command) + QLatin1String(item->example);
    }
    return preview;
}

QString commandOrderString(const CompileCommand &command)
{
    QString tokens;
    for (const QString &row : command.order) {
        if (const OrderItem *item = findItem(row))
            tokens += QStringLiteral("%") + QLatin1Char(item->letter) + space(*item, command);
    }
    return tokens;
}

StoredOrder parseOrderString(const QString &tokens)
{
    StoredOrder stored;
    for (int index = 0; index < sectionsRead; ++index) {
        const QString section = tokens.section(QLatin1Char('%'), index, index);
        const OrderItem *item = nullptr;
        for (const char *letter = lettersInOrderOfReading; *letter && !item; ++letter) {
            if (section.contains(QLatin1Char(*letter)))
                item = findItem(*letter);
        }
        if (!item)
            continue;
        stored.order << QLatin1String(item->text);
        const bool spaceFollows = section.endsWith(QLatin1Char(' '));
        if (item->letter == 'o')
            stored.spaceAfterOutputFlag = spaceFollows;
        else if (item->letter == 'd')
            stored.spaceAfterDefineFlag = spaceFollows;
    }
    return stored;
}

QString toCommaList(QString lines)
{
    return lines.replace(QLatin1Char('\n'), QLatin1Char(','))
        .replace(QLatin1String(",,"), QLatin1String(","));
}
