#include "command_order.h"
#include "row.h"

#include <QTest>
#include <algorithm>

class TestCommandOrder : public QObject
{
    Q_OBJECT

private:
    static Answers command()
    {
        Answers answers;
        answers.order = defaultOrder();
        answers.command = "cc";
        answers.outputFlag = "-o";
        answers.defineFlag = "-D";
        answers.objectFlag = "-c";
        return answers;
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
        Answers shown = command();
        shown.order = order;
        shown.spaceAfterOutputFlag = outputSpace;
        shown.spaceAfterDefineFlag = defineSpace;
        QTEST(commandPreview(shown), "preview");
        QTEST(commandOrderString(shown), "tokens");
    }

    void readsBackEveryOrder()
    {
        Answers written = command();
        std::sort(written.order.begin(), written.order.end());
        int orders = 0;
        do {
            written.spaceAfterOutputFlag = orders % 2;
            written.spaceAfterDefineFlag = orders % 3;
            Answers read;
            applyOrderString(read, commandOrderString(written));
            QCOMPARE(read.order, written.order);
            QCOMPARE(read.spaceAfterOutputFlag, written.spaceAfterOutputFlag);
            QCOMPARE(read.spaceAfterDefineFlag, written.spaceAfterDefineFlag);
            ++orders;
        } while (std::next_permutation(written.order.begin(), written.order.end()));
        QCOMPARE(orders, 720);
    }

    void keepsTheSpacesThatAnOrderLacks()
    {
        Answers answers = command();
        answers.spaceAfterDefineFlag = true;
        applyOrderString(answers, "%s %c ");
        QCOMPARE(answers.order, QStringList({"<src file>", "Exe Command"}));
        QVERIFY(answers.spaceAfterDefineFlag && !answers.spaceAfterOutputFlag);
    }
};

QTEST_APPLESS_MAIN(TestCommandOrder)
#include "test_command_order.moc"
