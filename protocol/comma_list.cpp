#include "comma_list.h"

#include "quoting.h"

#include <QRegularExpression>
#include <QSet>

using namespace Qt::StringLiterals;

namespace {

bool isCharacter(const QuotedPiece &piece, QChar character)
{
    return piece.kind == QuotedPiece::Character && piece.text == character;
}

/// The indices of the parentheses in \a pieces that have their counterparts there. One that has
/// none must not take the rest of the list with it.
QSet<qsizetype> pairedParentheses(const QList<QuotedPiece> &pieces)
{
    QSet<qsizetype> paired;
    QList<qsizetype> open;
    for (qsizetype i = 0; i < pieces.size(); ++i) {
        if (isCharacter(pieces[i], u'('))
            open << i;
        else if (isCharacter(pieces[i], u')') && !open.isEmpty())
            paired << open.takeLast() << i;
    }
    return paired;
}

/// Whether a comma between \a item, as far as it has been read, and \a next belongs to the item.
bool goesOn(const QString &item, QChar next)
{
    static const QRegularExpression handsOn(u"^\\s*-W[a-z]$"_s);
    static const QRegularExpression hasValue(u"^\\s*-(W[a-z],|[^=]*=)"_s);
    if (next.isNull() || next.isSpace() || next == u',')
        return false;
    return item.contains(handsOn) || (next != u'-' && item.contains(hasValue));
}

} // namespace

QString toCommaList(QString lines)
{
    return lines.replace(u'\n', u',').replace(",,"_L1, ","_L1);
}

QStringList splitCommaList(const QString &list)
{
    const QList<QuotedPiece> pieces = quotedPieces(list);
    const QSet<qsizetype> parentheses = pairedParentheses(pieces);
    QStringList items {QString()};
    int depth = 0;
    for (qsizetype i = 0; i < pieces.size(); ++i) {
        // An option may stand in marks, too.
        const QString next = i + 1 < pieces.size() ? withoutMarks(pieces[i + 1].text) : QString();
        if (parentheses.contains(i))
            depth += pieces[i].text == u'(' ? 1 : -1;
        if (depth == 0 && isCharacter(pieces[i], u',')
            && !goesOn(items.last(), next.isEmpty() ? QChar() : next.front()))
            items << QString();
        else
            items.last() += pieces[i].text;
    }
    for (QString &item : items)
        item = item.trimmed();
    items.removeAll(QString());
    return items;
}
