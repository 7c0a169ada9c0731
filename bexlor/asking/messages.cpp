#include "messages.h"

#include <QRegularExpression>
#include <optional>

using namespace Qt::StringLiterals;

namespace {

/// Whether a message with that \a text is about an error. Names that it quotes may be called so,
/// and a warning may speak of errors.
bool isError(const QString &text)
{
    static const QRegularExpression error(
        u"^((?!\\b(warning|remark|note)\\b)[^'\"`])*\\b(error|fatal)\\b"_s,
        QRegularExpression::CaseInsensitiveOption);
    return error.match(text).hasMatch();
}

/// The line number that a message gives for a source that it names: \a before is what stands before
/// that name, \a behind the rest. Nothing if it gives none, or \a ofErrors is set and it is no
/// error.
std::optional<int> lineIn(const QString &before, const QString &behind, bool ofErrors)
{
    static const QRegularExpression lineBefore(u"\\bline ([0-9]+)\\D*$"_s,
                                               QRegularExpression::CaseInsensitiveOption);
    static const QRegularExpression number(u"^[^0-9\\n]{1,10}?(?<![A-Za-z_])([0-9]+)"_s);
    QRegularExpressionMatch match = lineBefore.match(before);
    QString text = before;
    if (!match.hasMatch()) {
        match = number.match(behind);
        text = behind.mid(match.capturedEnd());
    }
    if (!match.hasMatch() || (ofErrors && !isError(text)))
        return {};
    return match.captured(1).toInt();
}

/// The line number of each of \a messages, one a line, that gives one for \a source.
QList<int> allLines(const QByteArray &messages, const QByteArray &source, bool ofErrors)
{
    QList<int> lines;
    // Only what names the source is looked at: a compiler may print millions of other lines.
    for (qsizetype name = messages.indexOf(source), end; name >= 0;
         name = messages.indexOf(source, end)) {
        const qsizetype start = messages.lastIndexOf('\n', name) + 1;
        const qsizetype lineFeed = messages.indexOf('\n', name);
        end = lineFeed < 0 ? messages.size() : lineFeed;
        const qsizetype behind = name + source.size();
        const QString textBefore = QString::fromLatin1(messages.mid(start, name - start));
        const QString textBehind = QString::fromLatin1(messages.mid(behind, end - behind));
        if (const std::optional<int> line = lineIn(textBefore, textBehind, ofErrors))
            lines << *line;
    }
    return lines;
}

} // namespace

QSet<int> namedLines(const QByteArray &messages, const QByteArray &source, bool ofErrors)
{
    const QList<int> lines = allLines(messages, source, ofErrors);
    return {lines.begin(), lines.end()};
}

QHash<int, int> messagesOnLines(const QByteArray &messages, const QByteArray &source)
{
    QHash<int, int> counts;
    for (const int line : allLines(messages, source, false))
        ++counts[line];
    return counts;
}
