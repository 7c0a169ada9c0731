#pragma once

#include "answer_table.h"

/// Simplifies the white space of the one-line answers about the compiler.
void tidy(Answers &answers);

/// The answers with that \a role as headings and values; ends with an empty line. What is shown has
/// escapes for what would not be seen, and the command's preview in place of its order.
QString reviewText(const Answers &answers, AnswerField::Role role);

/// One heading with its values, one a line, and an empty line.
QString reviewBlock(QLatin1StringView heading, const QStringList &values);
