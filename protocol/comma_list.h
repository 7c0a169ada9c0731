#pragma once

#include <QString>
#include <QStringList>

/// \a lines as one line with commas between them; an empty line leaves no second comma, a trailing
/// line feed leaves a trailing comma.
QString toCommaList(QString lines);

/// The items of a comma list without the white space around them, empty ones left out. A comma
/// between parentheses or double quotes belongs to its item.
QStringList splitCommaList(const QString &list);
