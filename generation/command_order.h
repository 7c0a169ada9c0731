#pragma once

#include <QString>
#include <QStringList>
#include <optional>

/// How a compile command is put together: its parts, and the order items (texts such as
/// "Exe Command") in the order of the command.
struct CompileCommand
{
    QStringList order;
    QString command;
    QString outputFlag;
    bool spaceAfterOutputFlag = false;
    QString defineFlag;
    bool spaceAfterDefineFlag = false;
    QString objectFlag;
};

/// The six order items in the order that suits most compilers.
QStringList defaultOrder();

/// The command as a person reads it, with the order items "<exe file>" and "<src file>" standing
/// for the files and "XXX" for a define. A row that is no order item stands for itself. Every part
/// is followed by one space, the two flags only where the command asks for it.
QString commandPreview(const CompileCommand &command);

/// The order as tokens, each "%" and a letter: the command "%c ", the output flag "%o", the
/// executable "%e ", the define flag "%d", the object flag "%j " and the source "%s ". "%o" and
/// "%d" are followed by a space where the command asks for it. A row that is no order item has no
/// token.
QString commandOrderString(const CompileCommand &command);

/// What an order token string says. A box that the string does not mention has no value.
struct StoredOrder
{
    QStringList order;
    std::optional<bool> spaceAfterOutputFlag;
    std::optional<bool> spaceAfterDefineFlag;
};

/// Reads an order token string: the text before the first "%" and the six tokens behind it. What
/// is no token is passed over.
StoredOrder parseOrderString(const QString &tokens);

/// \a lines as one line with commas between them; an empty line leaves no second comma, a trailing
/// line feed leaves a trailing comma.
QString toCommaList(QString lines);
