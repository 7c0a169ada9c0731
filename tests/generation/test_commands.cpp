#include "command_check.h"
#include "command_order.h"
#include "generator_arguments.h"
#include "row.h"

#include <QTest>
#include <algorithm>

class TestCommands : public QObject
{
    Q_OBJECT

private slots:
    void putsTextsIntoForm_data()
    {
        QTest::addColumn<QString>("made");
        QTest::addColumn<QString>("expected");
        row("word of a bare command", commandWord("cc"), "cc");
        row("word before options", commandWord("cc -m32 \"x\""), "cc");
        row("word before a space", commandWord(" cc"), "");
        row("quoted word", commandWord("\"C:\\a b\\cc\" -m32"), "C:\\a b\\cc");
        row("word without a closing quote", commandWord("\"C:\\a b\\cc -m"), "C:\\a b\\cc -m");
        row("word that goes on behind the quote", commandWord("\"gcc\"evil -x"), "gccevil");
        row("command without a space", quotedCommand("cc"), "cc");
        row("command with a space", quotedCommand("cc -m32"), "\"cc -m32\"");
        row("command that begins with a quote", quotedCommand("\"c c\" -m"), "\"c c\" -m");
        row("command that ends with a quote", quotedCommand("cc -D\"a b\""), "cc -D\"a b\"");
        row("extension without a dot", withDot("obj"), ".obj");
        row("extension with a dot", withDot(".obj"), ".obj");
        row("no extension", withDot(""), "");
        row("name", personalityPath("\\d", "n"), "\\d\\n.p_c");
        row("name with the extension", personalityPath("\\d", "n.p_c"), "\\d\\n.p_c");
        const QLatin1StringView folder("Files");
        row("bare catalogue file", inFolder(folder, "t"), "..\\Files\\t");
        row("catalogue file with a path", inFolder(folder, "\\x\\t"), "\\x\\t");
        row("no catalogue file", inFolder(folder, ""), "");
    }
    void putsTextsIntoForm()
    {
        QFETCH(QString, made);
        QTEST(made, "expected");
    }

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
        row("what would not be seen", QStringList {"x\u202e\u200b\u3164\u00a0\n\tx", "<src file>"},
            false, false, "x\\u202E\\u200B\\u3164\\u00A0\\u000A\tx <src file> ", "%s ");
        row("empty", QStringList(), true, true, "", "");
        row("a row that is no item", QStringList {"exe command", "<src file>"}, false, false,
            "exe command <src file> ", "%s ");
    }
    void showsAndEncodesTheOrder()
    {
        Answers answers;
        answers.command = "cc";
        answers.outputFlag = "-o";
        answers.defineFlag = "-D";
        answers.objectFlag = "-c";
        QFETCH(QStringList, order);
        QFETCH(bool, outputSpace);
        QFETCH(bool, defineSpace);
        answers.order = order;
        answers.spaceAfterOutputFlag = outputSpace;
        answers.spaceAfterDefineFlag = defineSpace;
        QTEST(commandPreview(answers), "preview");
        QTEST(commandOrderString(answers), "tokens");
    }

    void readsBackEveryOrder()
    {
        Answers written;
        written.order = defaultOrder();
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
        written.spaceAfterDefineFlag = true;
        applyOrderString(written, "%s %c ");
        QCOMPARE(written.order, QStringList({"<src file>", "Exe Command"}));
        QVERIFY2(written.spaceAfterDefineFlag, "what an order does not mention stays");
    }
};

QTEST_APPLESS_MAIN(TestCommands)
#include "test_commands.moc"
