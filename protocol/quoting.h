#pragma once

#include <QString>
#include <QStringList>

/// How the texts that a user types are taken apart: a command and the switches into words, and the
/// lists of defines and switches into items. What belongs together, be there white space or a comma
/// in it, and what becomes of its marks in a word:
///
///     "one text"      the marks vanish
///     \"one text\"    the marks stay, without their backslashes
///     ',' '"' '\0'    a character constant; its marks stay
///
/// Before a quotation mark two backslashes stand for one, as on the command line of Windows.
/// Everywhere else a backslash is a character like any other, and so is an apostrophe.

/// A stretch of a text that belongs together.
struct QuotedPiece
{
    enum Kind {
        Character, ///< a single one
        Constant,  ///< a character constant
        Text,      ///< in quotation marks that vanish
        Marked,    ///< in quotation marks that stay
        Unreadable ///< the rest of the text, in which something is not closed
    };
    Kind kind;
    QString text; ///< as it was typed
};

/// \a text in pieces, which joined give it again.
QList<QuotedPiece> quotedPieces(const QString &text);

/// \a text, of one or more pieces, without its marks: those of a word that vanish, and the
/// backslashes of those that stay.
QString withoutMarks(const QString &text);

/// The words of \a command, which are separated by white space. One that cannot be read is its
/// whole rest.
QStringList splitCommand(const QString &command);

/// Why \a text cannot be read, behind "since"; empty when it can be.
QString quotingProblem(const QString &text);
