#pragma once

#include "answer_table.h"

#include <QList>

/// An answer that a settings file holds, and whether it asks for it to be locked.
struct StoredAnswer
{
    const AnswerField *field;
    bool isLocked;
};

/// Reads the text of a settings file into \a answers: entries of a key line, which is one of the
/// answers' keys, an asterisk behind it for a lock, and one value line, or the lines up to the
/// first empty one. Lines may end with a line feed, a carriage return or both. Whatever else there
/// is is passed over, and what is not there stays as it was. Returns what has been read, in its
/// order.
QList<StoredAnswer> parseSettings(const QString &text, Answers &answers);

/// The text of a settings file: \a review, which is the kept one, and the answers that it lacks.
QString settingsText(const QString &review, const Answers &answers);
