#include "generation/command_order.h"

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
        QTest::newRow("default") << defaultOrder() << false << false
                                 << "cc -o<exe file> -DXXX -c <src file> "
                                 << "%c %o%e %d%j %s ";
        QTest::newRow("spaces after both flags")
            << defaultOrder() << true << true
            << QString("cc -o <exe file> -D %1 -c <src file> ").arg("XXX") << "%c %o %e %d %j %s ";
        QTest::newRow("space after the output flag only")
            << defaultOrder() << true << false << "cc -o <exe file> -DXXX -c <src file> "
            << "%c %o %e %d%j %s ";
        QTest::newRow("empty") << QStringList() << true << true << ""
                               << "";
        QTest::newRow("a row that is no item") << QStringList {"exe command", "<src file>"} << false
                                               << false << "exe command <src file> "
                                               << "%s ";
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
        QTest::newRow("two items") << "%s %c " << QStringList {"<src file>", "Exe Command"};
        QTest::newRow("no token") << "" << QStringList();
        QTest::newRow("text without a percent sign") << "code" << QStringList {"Exe Command"};
        QTest::newRow("more than one letter")
            << "%es%jo" << QStringList {"<exe file>", "Object Flag"};
        QTest::newRow("an eighth section")
            << "%s%s%s%s%s%s%c" << QStringList(6, QStringLiteral("<src file>"));
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
        QTest::newRow("an empty line") << "A\nB\n\nC"
                                       << "A,B,C";
        QTest::newRow("a trailing line feed") << "A\n"
                                              << "A,";
        QTest::newRow("two empty lines") << "A\n\n\nB"
                                         << "A,,B";
    }
    void joinsLinesWithCommas()
    {
        QFETCH(QString, lines);
        QTEST(toCommaList(lines), "list");
    }
};

QTEST_APPLESS_MAIN(TestCommandOrder)
#include "test_command_order.moc"
