#include "one_line_validator.h"

#include <QRegularExpression>

using namespace Qt::StringLiterals;

namespace {

QString oneLine(QString text)
{
    static const QRegularExpression atAnEnd(
        u"\\A[\\p{Cc}\\p{Zl}\\p{Zp}]+|[\\p{Cc}\\p{Zl}\\p{Zp}]+\\z"_s);
    static const QRegularExpression anywhere(u"[\\p{Cc}\\p{Zl}\\p{Zp}]+"_s);
    return text.remove(atAnEnd).replace(anywhere, u" "_s);
}

} // namespace

QValidator::State OneLineValidator::validate(QString &text, int &cursor) const
{
    // What has been pasted ends at the cursor.
    const QString before = oneLine(text.left(cursor));
    text = before + oneLine(text.mid(cursor));
    cursor = int(before.size());
    return Acceptable;
}
