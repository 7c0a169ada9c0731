#include "generator_arguments.h"

#include "argument_texts.h"
#include "record_answers.h"
#include "record_arguments.h"

QStringList generatorArguments(const Answers &answers)
{
    return QStringList(generator::program)
         + recordArguments(recordFrom(answers), answers.productCode, answers.headerDirectories,
                           personalityPath(answers.destination, answers.name));
}
