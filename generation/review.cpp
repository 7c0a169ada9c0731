#include "review.h"

#include "visible_text.h"

using namespace Qt::StringLiterals;

namespace {

QString visibleLines(const QString &text)
{
    QStringList lines = text.split(u'\n');
    for (QString &line : lines)
        line = visibleText(line);
    return lines.join(u'\n');
}

} // namespace

void tidy(Answers &answers)
{
    for (const AnswerField &field : answerTable()) {
        if (field.roles & AnswerField::Tidied)
            field.setLines(answers, {field.lines(answers).first().simplified()});
    }
}

QString reviewText(const Answers &answers, AnswerField::Role role)
{
    QString text;
    for (const AnswerField &field : answerTable()) {
        const bool isShown = role == AnswerField::Shown && field.shownLines;
        if (field.roles & role)
            text += reviewBlock(field.key, (isShown ? field.shownLines : field.lines)(answers));
    }
    return role == AnswerField::Shown ? visibleLines(text) : text;
}

QString reviewBlock(QLatin1StringView heading, const QStringList &values)
{
    QString text = heading + u'\n';
    for (const QString &value : values)
        text += value + u'\n';
    return text + u'\n';
}
