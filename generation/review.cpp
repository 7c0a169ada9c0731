#include "review.h"

#include "visible_text.h"

#include <algorithm>

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
        if (field.roles & role)
            text += reviewBlock(field.key, field.lines(answers));
    }
    return role == AnswerField::Shown ? visibleLines(text) : text;
}

QString shownOrder(const QString &preview)
{
    const auto fields = answerTable();
    const auto order = std::find_if(fields.begin(), fields.end(), [](const AnswerField &field) {
        return (field.roles & AnswerField::Kept) && !(field.roles & AnswerField::Shown);
    });
    return reviewBlock(order->key, {preview});
}

QString reviewBlock(QLatin1StringView heading, const QStringList &values)
{
    QString text = heading + u'\n';
    for (const QString &value : values)
        text += value + u'\n';
    return text + u'\n';
}
