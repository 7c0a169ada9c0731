#pragma once

#include <QString>
#include <QStringList>

/// \a lines as one line with commas between them; an empty line leaves no second comma, a trailing
/// line feed leaves a trailing comma.
QString toCommaList(QString lines);

/// The items of a comma list without the white space around them, empty ones left out. A comma
/// belongs to its item
///
///   - in what belongs together, see quotedPieces(), and between parentheses;
///   - behind "-Wa", "-Wl" and their kin, and then, as behind "-NAME=", where something else than
///     another option or white space follows: "-Wl,-Map,x.map", "-fsanitize=address,undefined".
QStringList splitCommaList(const QString &list);
