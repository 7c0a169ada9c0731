#include "comma_list.h"
#include "row.h"

#include <QTest>

class TestCommaList : public QObject
{
    Q_OBJECT

private slots:
    void joinsLines_data()
    {
        QTest::addColumn<QString>("lines");
        QTest::addColumn<QString>("list");
        row("an empty line", "A\nB\n\nC", "A,B,C");
        row("a trailing line feed", "A\n", "A,");
        row("two empty lines", "A\n\n\nB", "A,,B");
    }
    void joinsLines()
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

QTEST_APPLESS_MAIN(TestCommaList)
#include "test_comma_list.moc"
