#include "record_answers.h"

#include "answer_table.h"

void applyRecord(const CompilerRecord &record, Answers &answers)
{
    for (const AnswerField &field : answerTable()) {
        if (field.record)
            field.setRecordText(answers, record.*field.record);
    }
}

void updateRecord(CompilerRecord &record, const Answers &answers)
{
    for (const AnswerField &field : answerTable()) {
        if (field.record && field.show)
            record.*field.record = field.recordText(answers);
    }
}

CompilerRecord recordFrom(const Answers &answers)
{
    CompilerRecord record;
    for (const AnswerField &field : answerTable()) {
        if (field.record)
            record.*field.record = field.recordText(answers);
    }
    return record;
}

void resetCompiler(Answers &answers)
{
    for (const AnswerField &field : answerTable()) {
        if (field.roles & AnswerField::Reset)
            field.reset(answers);
    }
}
