#include "settings_text.h"

#include "review.h"

#include <optional>

using namespace Qt::StringLiterals;

namespace {

std::optional<StoredAnswer> answerOf(const QString &line)
{
    for (const AnswerField &field : answerTable()) {
        if (line == field.key)
            return StoredAnswer {&field, false};
        if (field.lock && line == field.key + u'*')
            return StoredAnswer {&field, true};
    }
    return {};
}

} // namespace

QList<StoredAnswer> parseSettings(const QString &text, Answers &answers)
{
    const QStringList lines =
        QString(text).replace("\r\n"_L1, "\n"_L1).replace(u'\r', u'\n').split(u'\n');
    QList<StoredAnswer> found;
    for (qsizetype next = 0; next < lines.size();) {
        const std::optional<StoredAnswer> answer = answerOf(lines[next++]);
        if (!answer)
            continue;
        QStringList values;
        if (answer->field->isList) {
            while (next < lines.size() && !lines[next].isEmpty())
                values << lines[next++];
        } else {
            values << lines.value(next++);
        }
        answer->field->setLines(answers, values);
        found << *answer;
    }
    return found;
}

QString settingsText(const QString &review, const Answers &answers)
{
    QString text = review;
    for (const AnswerField &field : answerTable()) {
        if (!(field.roles & (AnswerField::Kept | AnswerField::ReadOnly)))
            text += reviewBlock(field.key, field.lines(answers));
    }
    text.chop(1); // the last entry ends with its value
    return text;
}
