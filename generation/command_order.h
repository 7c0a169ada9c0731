#pragma once

#include "answers.h"

/// The six order items in the order that suits most compilers.
QStringList defaultOrder();

/// The compile command as a person reads it, see visibleText(), with the order items "<exe file>"
/// and "<src file>" standing for the files and "XXX" for a define. A row that is no order item
/// stands for itself. Every part is followed by one space, the two flags only where the answers say
/// so.
QString commandPreview(const Answers &answers);

/// The order string of the answers. A row that is no order item has no token.
QString commandOrderString(const Answers &answers);

/// Takes the order from an order string. What follows the two flags stays as it was where the
/// string does not mention them.
void applyOrderString(Answers &answers, const QString &order);
