#include "form_answers.h"

Answers answersOn(const CalyxBase &form, Answers known, unsigned roles)
{
    for (const AnswerField &field : answerTable()) {
        if (field.take && (field.roles & roles))
            field.take(known, form);
    }
    return known;
}

void showAnswers(const Answers &answers, CalyxBase &form, unsigned roles)
{
    for (const AnswerField &field : answerTable()) {
        if (field.show && (field.roles & roles))
            field.show(answers, form);
    }
}
