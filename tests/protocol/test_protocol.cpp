#include "comma_list.h"
#include "order_tokens.h"
#include "row.h"

#include <QTest>

class TestProtocol : public QObject
{
    Q_OBJECT

private slots:
    void readsOrders_data()
    {
        QTest::addColumn<QString>("order");
        QTest::addColumn<QString>("tokens"); // a letter each, upper case where a space follows
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

    void joinsLinesWithCommas_data()
    {
        QTest::addColumn<QString>("lines");
        QTest::addColumn<QString>("list");
        row("an empty line", "A\nB\n\nC", "A,B,C");
        row("a trailing line feed", "A\n", "A,");
        row("two empty lines", "A\n\n\nB", "A,,B");
    }
    void joinsLinesWithCommas()
    {
        QFETCH(QString, lines);
        QTEST(toCommaList(lines), "list");
    }

    void splitsLists_data()
    {
        QTest::addColumn<QString>("list");
        QTest::addColumn<QStringList>("items");
        row("spaces", " ONE,TWO=2, THREE=3 ", QStringList {"ONE", "TWO=2", "THREE=3"});
        row("parameters", "F(a,b)=a,G", QStringList {"F(a,b)=a", "G"});
        row("string", "S=\"a,(b\",G", QStringList {"S=\"a,(b\"", "G"});
        row("stray parenthesis", "A=),B", QStringList {"A=)", "B"});
        row("nothing", ",, ,", QStringList());
    }
    void splitsLists()
    {
        QFETCH(QString, list);
        QTEST(splitCommaList(list), "items");
    }
};

QTEST_APPLESS_MAIN(TestProtocol)
#include "test_protocol.moc"
