#include "command_line.h"

namespace platform {

QStringList shellWords(const QString &text)
{
    QStringList words;
    bool isInWord = false;
    QChar quote;
    for (qsizetype i = 0; i < text.size(); ++i) {
        const QChar character = text[i];
        if (quote.isNull() && character.isSpace()) {
            isInWord = false;
            continue;
        }
        if (!isInWord)
            words << QString();
        isInWord = true;
        if (character == quote) {
            quote = QChar();
            continue;
        }
        if (quote.isNull() && (character == u'"' || character == u'\'')) {
            quote = character;
            continue;
        }
        const bool isLiteral = character == u'\\' && quote != u'\'' && i + 1 < text.size()
                            && QStringView(u"\\\"' ").contains(text[i + 1]);
        words.last() += isLiteral ? text[++i] : character;
    }
    return words;
}

} // namespace platform
