#pragma once

#include <QByteArray>
#include <QString>

/// \a text with what a reader would not see, or what would change the order of the rest, as escapes
/// such as "\u202E": control and format characters, separators other than the space and the tab,
/// and letters without a shape.
QString visibleText(const QString &text);

/// The same of a text that is printed, and perhaps copied from there: spaces of all kinds stay.
QString printableText(const QString &text);

/// Whether \a text holds a control character other than a tab: it may end a line, or a text, for
/// another program that reads it.
bool hasControlCharacter(const QString &text);
/// The same for text in an encoding that leaves ASCII as it is.
bool hasControlCharacter(const QByteArray &text);
