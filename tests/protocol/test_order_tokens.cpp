#include "order_tokens.h"
#include "row.h"

#include <QTest>

class TestOrderTokens : public QObject
{
    Q_OBJECT

private slots:
    void readsOrders_data()
    {
        QTest::addColumn<QString>("order");
        QTest::addColumn<QString>("tokens"); // a letter each, upper case where a space follows
        row("all, flags joined", "%c %o%e %d%j %s ", "CoEdJS");
        row("all, flags apart", "%c %o %e %d %j %s ", "COEDJS");
        row("two", "%s %c ", "SC");
        row("none", "", "");
        row("text without a percent sign", "code", "c");
        row("more than one letter", "%es%jo", "ej");
        row("an unknown letter", "%x%c ", "C");
        row("an eighth section", "%s%s%s%s%s%s%c", "ssssss");
    }
    void readsOrders()
    {
        QFETCH(QString, order);
        QString tokens;
        for (const OrderToken &token : parseOrderString(order)) {
            const QChar letter = QLatin1Char(static_cast<char>(token.part));
            tokens += token.spaceFollows ? letter.toUpper() : letter;
        }
        QTEST(tokens, "tokens");
    }
};

QTEST_APPLESS_MAIN(TestOrderTokens)
#include "test_order_tokens.moc"
