#include "generation/review.h"

namespace {

QString block(const QString &key, const QString &value)
{
    return key + QLatin1Char('\n') + value + QLatin1String("\n\n");
}

QString block(const QString &key, bool value)
{
    return block(key, QLatin1String(value ? "Yes" : "No"));
}

QString block(const QString &key, const QStringList &rows)
{
    QString text = key + QLatin1Char('\n');
    for (const QString &row : rows)
        text += row + QLatin1Char('\n');
    return text + QLatin1Char('\n');
}

} // namespace

QString reviewText(const Answers &answers)
{
    const CompileCommand &compile = answers.compile;
    return block(reviewKeys::product, answers.productCode)
         + block(reviewKeys::destination, answers.destination)
         + block(reviewKeys::name, answers.name) + block(reviewKeys::command, compile.command)
         + block(reviewKeys::crossCompiler, answers.crossCompiler)
         + block(reviewKeys::outputFlag, compile.outputFlag)
         + block(reviewKeys::objectFlag, compile.objectFlag)
         + block(reviewKeys::defineFlag, compile.defineFlag)
         + block(reviewKeys::objectExtension, answers.objectExtension)
         + block(reviewKeys::reduceFileSize, answers.reduceFileSize)
         + block(reviewKeys::headerDirectories, answers.headerDirectories)
         + block(reviewKeys::defines, answers.defines)
         + block(reviewKeys::switches, answers.switches);
}

QString shownOrder(const QString &preview)
{
    return block(reviewKeys::order, preview);
}

QString keptOrder(const Answers &answers)
{
    return block(reviewKeys::order, answers.compile.order);
}
