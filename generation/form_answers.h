#pragma once

#include "answer_table.h"

/// \a known with what the fields of \a form hold in place of what they show; of answers with one of
/// the \a roles only.
Answers answersOn(const CalyxBase &form, Answers known, unsigned roles = ~0U);

/// Shows the answers with one of the \a roles in their fields.
void showAnswers(const Answers &answers, CalyxBase &form, unsigned roles);
