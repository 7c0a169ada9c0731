#include "messages.h"

#include <QRegularExpression>

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

/// Adds the line number that a message gives for a source that it names: \a before is what stands
/// before that name, \a behind the rest.
void addLine(const QString &before, const QString &behind, NamedLines &lines)
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
    if (!match.hasMatch())
        return;
    const int line = match.captured(1).toInt();
    ++lines.all[line];
    if (isError(text))
        lines.ofErrors << line;
}

/// Adds the line number of each of \a messages, one a line, that gives one for \a source.
void addLines(const QByteArray &messages, const QByteArray &source, NamedLines &lines)
{
    // Only what names the source is looked at: a compiler may print millions of other lines.
    for (qsizetype name = messages.indexOf(source), end; name >= 0;
         name = messages.indexOf(source, end)) {
        const qsizetype start = messages.lastIndexOf('\n', name) + 1;
        const qsizetype lineFeed = messages.indexOf('\n', name);
        end = lineFeed < 0 ? messages.size() : lineFeed;
        const qsizetype behind = name + source.size();
        addLine(QString::fromLatin1(messages.mid(start, name - start)),
                QString::fromLatin1(messages.mid(behind, end - behind)), lines);
    }
}

} // namespace

NamedLines namedLines(const QByteArray &messages, const QByteArray &source)
{
    NamedLines lines;
    for (const QByteArray &name : {source, source.toUpper()})
        addLines(messages, name, lines);
    return lines;
}
