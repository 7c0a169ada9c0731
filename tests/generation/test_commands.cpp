#include "argument_texts.h"
#include "comma_list.h"
#include "command_check.h"
#include "command_order.h"
#include "row.h"

class TestCommands : public QObject
{
    Q_OBJECT

private slots:
    void putsTextsIntoForm_data()
    {
        const Columns<QString, QString> row("made", "expected");
        row("word of a bare command", commandWord("cc"), "cc");
        row("word before options", commandWord("cc -m32 \"x\""), "cc");
        row("word before a space", commandWord(" cc"), "");
        row("quoted word", commandWord("\"C:\\a b\\cc\" -m32"), "C:\\a b\\cc");
        row("word without a closing quote", commandWord("\"C:\\a b\\cc -m"), "C:\\a b\\cc -m");
        row("word that goes on behind the quote", commandWord("\"gcc\"evil -x"), "gccevil");
        row("lines, some empty", toCommaList("A\nB\n\nC\n\n\nD\n"), "A,B,C,,D,");
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
        const Columns<QStringList, bool, bool, QString, QString> row(
            "order", "outputSpace", "defineSpace", "preview", "tokens");
        row("default", defaultOrder(), false, false, "cc -o<exe file> -DXXX -c <src file> ",
            "%c %o%e %d%j %s ");
        row("spaces after both flags", defaultOrder(), true, true,
            QString("cc -o <exe file> -D %1 -c <src file> ").arg("XXX"), "%c %o %e %d %j %s ");
        row("space after the output flag only", defaultOrder(), true, false,
            "cc -o <exe file> -DXXX -c <src file> ", "%c %o %e %d%j %s ");
        row("what would not be seen", {"x\u202e\u200b\u3164\u00a0\n\tx", "<src file>"}, false,
            false, "x\\u202E\\u200B\\u3164\\u00A0\\u000A\tx <src file> ", "%s ");
        row("empty", {}, true, true, "", "");
        row("a row that is no item", {"exe command", "<src file>"}, false, false,
            "exe command <src file> ", "%s ");
    }
    void showsAndEncodesTheOrder()
    {
        QFETCH(QStringList, order);
        QFETCH(bool, outputSpace);
        QFETCH(bool, defineSpace);
        const Answers answers {.command = "cc",
                               .outputFlag = "-o",
                               .objectFlag = "-c",
                               .defineFlag = "-D",
                               .order = order,
                               .spaceAfterOutputFlag = outputSpace,
                               .spaceAfterDefineFlag = defineSpace};
        QTEST(commandPreview(answers), "preview");
        QTEST(commandOrderString(answers), "tokens");
    }

    void keepsTheSpacesThatAnOrderDoesNotMention()
    {
        Answers answers {.spaceAfterOutputFlag = true, .spaceAfterDefineFlag = true};
        applyOrderString(answers, "%s %c %o");
        QCOMPARE(answers.order, QStringList({"<src file>", "Exe Command", "Output Flag"}));
        QVERIFY(!answers.spaceAfterOutputFlag && answers.spaceAfterDefineFlag);
    }
};

QTEST_APPLESS_MAIN(TestCommands)
#include "test_commands.moc"
