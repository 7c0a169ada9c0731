#include "comma_list.h"
#include "order_tokens.h"
#include "row.h"

class TestProtocol : public QObject
{
    Q_OBJECT

private slots:
    void readsOrders_data()
    {
        // Of the tokens a letter each, upper case where a space follows.
        const Columns<QString, QString> row("order", "tokens");
        row("all, flags joined", "%c %o%e %d%j %s ", "CoEdJS");
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

    void splitsLists_data()
    {
        const Columns<QString, QStringList> row("list", "items");
        row("spaces", " ONE,TWO=2, THREE=3 ", {"ONE", "TWO=2", "THREE=3"});
        row("parameters", "F(a,b)=a,G", {"F(a,b)=a", "G"});
        row("string", "S=\"a,(b\",G", {"S=\"a,(b\"", "G"});
        row("stray parenthesis", "A=),B", {"A=)", "B"});
        row("nothing", ",, ,", {});
    }
    void splitsLists()
    {
        QFETCH(QString, list);
        QTEST(splitCommaList(list), "items");
    }
};

QTEST_APPLESS_MAIN(TestProtocol)
#include "test_protocol.moc"
