#pragma once

#include <QList>
#include <QString>

/// A part of a compile command. The value is the letter of its token.
enum class CommandPart : char {
    Command = 'c',
    OutputFlag = 'o',
    OutputFile = 'e',
    DefineFlag = 'd', ///< together with the define that follows it
    ObjectFlag = 'j',
    Source = 's',
};

/// One part in its place, and whether a space separates it from the next. The two flags alone may
/// do without: "-oprobe.o", "-DNAME".
struct OrderToken
{
    CommandPart part;
    bool spaceFollows = true;

    bool operator==(const OrderToken &) const = default;
};

/// The tokens as the catalogue and the generator's arguments hold them: each "%", its letter, and
/// the space if one follows.
QString orderString(const QList<OrderToken> &tokens);

/// Reads an order string: the text before the first "%" and the six sections behind it. A section
/// with more than one of the letters counts as the first of c, j, d, o, e and s that it holds, one
/// with none of them is passed over.
QList<OrderToken> parseOrderString(const QString &order);

/// The first of \a tokens that stands for \a part, or null.
const OrderToken *findPart(const QList<OrderToken> &tokens, CommandPart part);
