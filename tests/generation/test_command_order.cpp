#include "generation/command_order.h"
#include "tests/support/row.h"

#include <QTest>
#include <algorithm>

class TestCommandOrder : public QObject
{
    Q_OBJECT

private:
    static CompileCommand command()
    {
        return {defaultOrder(), "cc", "-o", false, "-D", false, "-c"};
    }

private slots:
    void showsAndEncodesTheOrder_data()
    {
        QTest::addColumn<QStringList>("order");
        QTest::addColumn<bool>("outputSpace");
        QTest::addColumn<bool>("defineSpace");
        QTest::addColumn<QString>("preview");
        QTest::addColumn<QString>("tokens");
        row("default", defaultOrder(), false, false, "cc -o<exe file> -DXXX -c <src file> ",
            "%c %o%e %d%j %s ");
        row("spaces after both flags", defaultOrder(), true, true,
            QString("cc -o <exe file> -D %1 -c <src file> ").arg("XXX"), "%c %o %e %d %j %s ");
        row("space after the output flag only", defaultOrder(), true, false,
            "cc -o <exe file> -DXXX -c <src file> ", "%c %o %e %d%j %s ");
        row("empty", QStringList(), true, true, "", "");
        row("a row that is no item", QStringList {"exe command", "<src file>"}, false, false,
            "exe command <src file> ", "%s ");
    }
    void showsAndEncodesTheOrder()
    {
        QFETCH(QStringList, order);
        QFETCH(bool, outputSpace);
        QFETCH(bool, defineSpace);
        CompileCommand shown = command();
        shown.order = order;
        shown.spaceAfterOutputFlag = outputSpace;
        shown.spaceAfterDefineFlag = defineSpace;
        QTEST(commandPreview(shown), "preview");
        QTEST(commandOrderString(shown), "tokens");
    }

    void readsBackEveryOrder()
    {
        CompileCommand written = command();
        std::sort(written.order.begin(), written.order.end());
        int orders = 0;
        do {
            written.spaceAfterOutputFlag = orders % 2;
            written.spaceAfterDefineFlag = orders % 3;
            const StoredOrder read = parseOrderString(commandOrderString(written));
            QCOMPARE(read.order, written.order);
            QCOMPARE(read.spaceAfterOutputFlag.value(), written.spaceAfterOutputFlag);
            QCOMPARE(read.spaceAfterDefineFlag.value(), written.spaceAfterDefineFlag);
            ++orders;
        } while (std::next_permutation(written.order.begin(), written.order.end()));
        QCOMPARE(orders, 720);
    }

    void readsForeignOrders_data()
    {
        QTest::addColumn<QString>("tokens");
        QTest::addColumn<QStringList>("order");
        row("two items", "%s %c ", QStringList {"<src file>", "Exe Command"});
        row("no token", "", QStringList());
        row("text without a percent sign", "code", QStringList {"Exe Command"});
        row("more than one letter", "%es%jo", QStringList {"<exe file>", "Object Flag"});
        row("an eighth section", "%s%s%s%s%s%s%c", QStringList(6, QStringLiteral("<src file>")));
    }
    void readsForeignOrders()
    {
        QFETCH(QString, tokens);
        const StoredOrder read = parseOrderString(tokens);
        QTEST(read.order, "order");
        QVERIFY(!read.spaceAfterOutputFlag && !read.spaceAfterDefineFlag);
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
};

QTEST_APPLESS_MAIN(TestCommandOrder)
#include "test_command_order.moc"
