#include "comma_list.h"

using namespace Qt::StringLiterals;

QString toCommaList(QString lines)
{
    return lines.replace(u'\n', u',').replace(",,"_L1, ","_L1);
}

QStringList splitCommaList(const QString &list)
{
    QStringList items {QString()};
    int depth = 0;
    bool quoted = false;
    for (const QChar character : list) {
        if (character == u'"')
            quoted = !quoted;
        else if (!quoted && character == u'(')
            ++depth;
        else if (!quoted && character == u')')
            --depth;
        if (character == u',' && depth <= 0 && !quoted)
            items << QString();
        else
            items.last() += character;
    }
    for (QString &item : items)
        item = item.trimmed();
    items.removeAll(QString());
    return items;
}
