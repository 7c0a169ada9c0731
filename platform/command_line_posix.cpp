#include "command_line.h"

#include <QRegularExpression>

using namespace Qt::StringLiterals;

namespace platform {

QString commandLine(const QStringList &command)
{
    // All others mean something to some shell, if only in some place.
    static const QRegularExpression special(u"[^\\w@%+=:,./-]"_s,
                                            QRegularExpression::UseUnicodePropertiesOption);
    QStringList words = command;
    for (QString &word : words) {
        if (word.isEmpty() || word.contains(special))
            word = u'\'' + word.replace(u'\'', "'\\''"_L1) + u'\'';
    }
    return words.join(u' ');
}

QString commandFileLine(const QStringList &command)
{
    return commandLine(command);
}

QStringList splitCommandLine(const QString &line)
{
    return shellWords(line);
}

} // namespace platform
