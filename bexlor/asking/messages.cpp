#include "messages.h"

#include <QRegularExpression>

using namespace Qt::StringLiterals;

QSet<int> namedLines(const QByteArray &messages, const QByteArray &source, bool ofErrors)
{
    static const QRegularExpression lineBefore(u"\\bline ([0-9]+)\\D*$"_s,
                                               QRegularExpression::CaseInsensitiveOption);
    static const QRegularExpression number(u"^[^0-9\\n]{1,10}?(?<![A-Za-z_])([0-9]+)"_s);
    static const QRegularExpression isError(u"error|fatal"_s,
                                            QRegularExpression::CaseInsensitiveOption);
    QSet<int> lines;
    for (const QByteArray &message : messages.split('\n')) {
        const qsizetype name = message.indexOf(source);
        if (name < 0)
            continue;
        const QString before = QString::fromLatin1(message.first(name));
        const QString behind = QString::fromLatin1(message.mid(name + source.size()));
        QRegularExpressionMatch match = lineBefore.match(before);
        const QString &description = match.hasMatch() ? before : behind;
        if (!match.hasMatch())
            match = number.match(behind);
        if (match.hasMatch() && (!ofErrors || isError.match(description).hasMatch()))
            lines << match.captured(1).toInt();
    }
    return lines;
}
