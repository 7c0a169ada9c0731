#include "command_line.h"

#include <QRegularExpression>

using namespace Qt::StringLiterals;

namespace platform {

QString commandLine(const QStringList &command)
{
    // All that a command is split at, or that the command interpreter finds something in.
    static const QRegularExpression special(u"[\\s&|<>^()\"']"_s,
                                            QRegularExpression::UseUnicodePropertiesOption);
    static const QRegularExpression beforeQuote(u"(\\\\*)\""_s);
    static const QRegularExpression atEnd(u"(\\\\+)\\z"_s);
    QStringList words = command;
    for (QString &word : words) {
        if (!word.isEmpty() && !word.contains(special))
            continue;
        word.replace(beforeQuote, u"\\1\\1\\\""_s);
        word.replace(atEnd, u"\\1\\1"_s);
        word = u'"' + word + u'"';
    }
    return words.join(u' ');
}

} // namespace platform
