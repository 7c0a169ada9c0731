#include "generator_arguments.h"

#include "answer_table.h"

#include <algorithm>

QStringList generatorArguments(const Answers &answers)
{
    QList<const AnswerField *> passed;
    for (const AnswerField &field : answerTable()) {
        if (field.arguments)
            passed << &field;
    }
    std::sort(passed.begin(), passed.end(), [](const AnswerField *a, const AnswerField *b) {
        return a->argumentPlace < b->argumentPlace;
    });
    QStringList list {generator::program};
    for (const AnswerField *field : passed)
        list << field->arguments(answers);
    return list;
}
