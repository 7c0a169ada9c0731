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

/// A part and what it is called where the parts are put in order. The wizard shows that translated
/// and compares it, like the settings file, as it stands here.
struct CommandPartName
{
    CommandPart part;
    const char *name;
};

/// All parts, in the order that suits most compilers.
inline constexpr CommandPartName commandPartNames[] = {
    {CommandPart::Command, QT_TRANSLATE_NOOP("CalyxBase", "Exe Command")},
    {CommandPart::OutputFlag, QT_TRANSLATE_NOOP("CalyxBase", "Output Flag")},
    {CommandPart::OutputFile, QT_TRANSLATE_NOOP("CalyxBase", "<exe file>")},
    {CommandPart::DefineFlag, QT_TRANSLATE_NOOP("CalyxBase", "Define Flag")},
    {CommandPart::ObjectFlag, QT_TRANSLATE_NOOP("CalyxBase", "Object Flag")},
    {CommandPart::Source, QT_TRANSLATE_NOOP("CalyxBase", "<src file>")},
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
