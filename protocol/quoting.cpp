#include "quoting.h"

#include <QRegularExpression>
#include <algorithm>
#include <optional>

using namespace Qt::StringLiterals;

namespace {

const QChar quotationMark(u'"');

/// A quotation mark with the backslashes before it.
struct Mark
{
    qsizetype start;
    qsizetype end; ///< behind the mark
    qsizetype backslashes() const { return end - start - 1; }
    /// Whether it stands for itself.
    bool isEscaped() const { return backslashes() % 2 == 1; }
};

/// The first mark in \a text from \a from on; behind the text when there is none.
Mark nextMark(const QString &text, qsizetype from)
{
    const qsizetype mark = text.indexOf(quotationMark, from);
    if (mark < 0)
        return {text.size(), text.size() + 1};
    qsizetype start = mark;
    while (start > from && text[start - 1] == u'\\')
        --start;
    return {start, mark + 1};
}

/// The mark that starts at \a start.
std::optional<Mark> markAt(const QString &text, qsizetype start)
{
    qsizetype end = start;
    while (end < text.size() && text[end] == u'\\')
        ++end;
    if (end == text.size() || text[end] != quotationMark)
        return {};
    return Mark {start, end + 1};
}

/// The end of the text whose mark \a first stands at its start, or nothing. One that stays is read
/// by the compiler once more, for which the marks within are escaped again.
std::optional<qsizetype> endOfText(const QString &text, const Mark &first)
{
    for (Mark mark = nextMark(text, first.end); mark.start < text.size();
         mark = nextMark(text, mark.end)) {
        if (mark.isEscaped() != first.isEscaped()) {
            if (!first.isEscaped())
                continue;
            return {};
        }
        if (!first.isEscaped() || mark.backslashes() / 2 % 2 == 0)
            return mark.end;
    }
    return {};
}

/// The size of the character constant, of up to four characters, at \a from; 0 if there is none.
qsizetype sizeOfConstant(const QString &text, qsizetype from)
{
    // An apostrophe is a part of many a folder's name, so that what goes on without an end is none.
    static const QRegularExpression constant(
        u"'(?:\\\\.[0-9A-Fa-f]*|[^'\\\\]|(?:\\\\\\S|[^'\"\\\\\\s]){2,4})'"_s);
    return constant
        .match(text, from, QRegularExpression::NormalMatch,
               QRegularExpression::AnchorAtOffsetMatchOption)
        .capturedLength();
}

QuotedPiece pieceAt(const QString &text, qsizetype from)
{
    if (text[from] == u'\'') {
        if (const qsizetype size = sizeOfConstant(text, from); size > 0)
            return {QuotedPiece::Constant, text.mid(from, size)};
        // Shells that know apostrophes would let this mark stay.
        if (text.mid(from + 1).startsWith(quotationMark))
            return {QuotedPiece::Unreadable, text.mid(from)};
    }
    const std::optional<Mark> mark = markAt(text, from);
    if (!mark)
        return {QuotedPiece::Character, text.mid(from, 1)};
    const std::optional<qsizetype> end = endOfText(text, *mark);
    if (!end)
        return {QuotedPiece::Unreadable, text.mid(from)};
    return {mark->isEscaped() ? QuotedPiece::Marked : QuotedPiece::Text,
            text.mid(from, *end - from)};
}

bool isUnreadable(const QuotedPiece &piece)
{
    return piece.kind == QuotedPiece::Unreadable;
}

} // namespace

QList<QuotedPiece> quotedPieces(const QString &text)
{
    QList<QuotedPiece> pieces;
    for (qsizetype at = 0; at < text.size(); at += pieces.last().text.size())
        pieces << pieceAt(text, at);
    return pieces;
}

QString withoutMarks(const QString &text)
{
    QString read;
    qsizetype at = 0;
    for (Mark mark = nextMark(text, at); mark.start < text.size(); mark = nextMark(text, at)) {
        read += text.mid(at, mark.start - at) + QString(mark.backslashes() / 2, u'\\');
        if (mark.isEscaped())
            read += quotationMark;
        at = mark.end;
    }
    return read + text.mid(at);
}

QStringList splitCommand(const QString &command)
{
    QStringList words;
    bool isInWord = false;
    for (const QuotedPiece &piece : quotedPieces(command)) {
        if (piece.kind == QuotedPiece::Character && piece.text.front().isSpace()) {
            isInWord = false;
            continue;
        }
        if (!isInWord)
            words << QString();
        isInWord = true;
        const bool hasMarks = piece.kind == QuotedPiece::Text || piece.kind == QuotedPiece::Marked;
        words.last() += hasMarks ? withoutMarks(piece.text) : piece.text;
    }
    return words;
}

QString quotingProblem(const QString &text)
{
    const QList<QuotedPiece> pieces = quotedPieces(text);
    const auto piece = std::find_if(pieces.begin(), pieces.end(), &isUnreadable);
    if (piece == pieces.end())
        return QString();
    return piece->text.startsWith(u'\'')
             ? u"there is an apostrophe before a quotation mark; a mark that stays is written \\\""_s
             : u"a quotation mark is not closed"_s;
}
