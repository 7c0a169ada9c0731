#include "messages.h"

#include <QRegularExpression>
#include <optional>

using namespace Qt::StringLiterals;

namespace {

/// The line number that \a message, one line, gives for \a source; nothing if it gives none, or
/// \a ofErrors is set and it is no error.
std::optional<int> namedLine(const QByteArray &message, const QByteArray &source, bool ofErrors)
{
    static const QRegularExpression lineBefore(u"\\bline ([0-9]+)\\D*$"_s,
                                               QRegularExpression::CaseInsensitiveOption);
    static const QRegularExpression number(u"^[^0-9\\n]{1,10}?(?<![A-Za-z_])([0-9]+)"_s);
    static const QRegularExpression isError(u"error|fatal"_s,
                                            QRegularExpression::CaseInsensitiveOption);
    const qsizetype name = message.indexOf(source);
    if (name < 0)
        return {};
    const QString before = QString::fromLatin1(message.first(name));
    const QString behind = QString::fromLatin1(message.mid(name + source.size()));
    QRegularExpressionMatch match = lineBefore.match(before);
    const QString &description = match.hasMatch() ? before : behind;
    if (!match.hasMatch())
        match = number.match(behind);
    if (!match.hasMatch() || (ofErrors && !isError.match(description).hasMatch()))
        return {};
    return match.captured(1).toInt();
}

} // namespace

QSet<int> namedLines(const QByteArray &messages, const QByteArray &source, bool ofErrors)
{
    QSet<int> lines;
    for (const QByteArray &message : messages.split('\n')) {
        if (const std::optional<int> line = namedLine(message, source, ofErrors))
            lines << *line;
    }
    return lines;
}

QHash<int, int> messagesOnLines(const QByteArray &messages, const QByteArray &source)
{
    QHash<int, int> counts;
    for (const QByteArray &message : messages.split('\n')) {
        if (const std::optional<int> line = namedLine(message, source, false))
            ++counts[*line];
    }
    return counts;
}
