#include "wizard_test.h"

namespace {

const QString missing = "Destination folder does not exist please select a different folder.";
const QString notOnPath = "Command specified is not on the path, please amend the path or fully "
                          "qualify this command.";
const QString specify = "Please complete the command as per the <specify> entries.";

QColor textColour(const QLineEdit *edit)
{
    return edit->palette().color(QPalette::Text);
}

} // namespace

class TestPageChecks : public QObject
{
    Q_OBJECT

private slots:
    void checksTheDestination_data()
    {
        const Columns<QString, QString, bool, bool> row("destination", "name", "exists", "next");
        row("folder", "..\\out", "mine", true, true);
        row("file", "..\\tools\\cc", "mine", true, true);
        row("no name", "..\\out", "", true, false);
        row("name of spaces", "..\\out", "  ", true, true);
        row("missing", "..\\oat", "mine", false, false);
        row("not trimmed", "..\\out ", "mine", false, false);
        row("empty", "", "mine", false, false);
        row("called like a picture in the program", ":\\images\\icon.png", "mine", false, false);
    }
    void checksTheDestination()
    {
        QFETCH(QString, destination);
        QFETCH(QString, name);
        QFETCH(bool, exists);
        const ProgramFolder folder;
        const WizardUser user;
        user.type(user->PersonDestEdit, destination);
        user.type(user->PersonNameEdit, name);
        QTEST(user.nextIsEnabled(), "next");
        QCOMPARE(textColour(user->PersonDestEdit), QColor(exists ? Qt::black : Qt::red));
        QCOMPARE(user->DestErrorLabel->text(), exists ? QString() : missing);
        QCOMPARE(user->PersonDestEdit->toolTip(),
                 exists ? "Destination folder for the Personality." : missing);
    }

    void checksTheCommand_data()
    {
        const Columns<QString, QString> row("command", "problem");
        row("found", "cc -c", "");
        row("not found", "dd -c", notOnPath);
        row("placeholder", "cc <specify device>", specify);
        row("not found, placeholder", "dd <specify device>", notOnPath);
    }
    void checksTheCommand()
    {
        QFETCH(QString, command);
        QFETCH(QString, problem);
        const ProgramFolder folder;
        const WizardUser user;
        user->showPage(user->Page1);
        user.type(user->CmpExeEdit, command);
        QCOMPARE(user.nextIsEnabled(), problem.isEmpty());
        QCOMPARE(user->CmpPathErrorLabel->text(), problem);
        QCOMPARE(textColour(user->CmpExeEdit), QColor(problem.isEmpty() ? Qt::black : Qt::red));
        QCOMPARE(user->CmpExeEdit->toolTip(),
                 problem.isEmpty() ? "Specify the command required to invoke the compiler from the "
                                     "command line."
                                   : problem);
        // An emptied field keeps its marking, but is no command. What was one while it was typed
        // has opened the later pages for good.
        user->CmpExeEdit->clear();
        QVERIFY(!user.nextIsEnabled());
        QCOMPARE(user->CmpPathErrorLabel->text(), problem);
        for (WizardPage *page : {user->Page2, user->Page3}) {
            user->showPage(page);
            QCOMPARE(user.nextIsEnabled(), command.startsWith("cc"));
        }
    }

    void checksAgainOnEveryKey()
    {
        const ProgramFolder folder;
        const WizardUser user;
        user.answerFirstPages();
        QFile::remove("../tools/cc");
        QTest::keyRelease(user->CmpExeEdit, Qt::Key_Shift);
        QVERIFY(!user.nextIsEnabled());
        user->showPage(user->Page0);
        QVERIFY(QDir().rmdir("../out"));
        QTest::keyRelease(user->PersonNameEdit, Qt::Key_Shift);
        QVERIFY(!user.nextIsEnabled());
    }

    void followsEveryEdit()
    {
        const ProgramFolder folder;
        const WizardUser user;
        user->showPage(user->Page1);
        user.type(user->CmpExeEdit, "cc");
        user.type(user->CmpExeFlagEdit, "-o");
        user.type(user->CmpDefFlagEdit, "-D");
        user.type(user->CmpCmpFlagEdit, "<b>");
        user.click(user->CmpExeFlagChkBox);
        QCOMPARE(user->CmpCmdOrder->text(), "cc -o <exe file> -DXXX <b> <src file> ");
        user->CmpOrderListBox->setCurrentRow(5);
        for (QPushButton *button : {user->CmdOrderUpBtn, user->CmdOrderDwnBtn, user->CmdOrderDwnBtn,
                                    user->CmdOrderUpBtn, user->CmdOrderUpBtn})
            user.click(button);
        QCOMPARE(user->CmpOrderListBox->currentRow(), 3);
        user.click(user->CmpDefFlagChkBox);
        const QString preview = QString("cc -o <exe file> <src file> -D %1 <b> ").arg("XXX");
        QCOMPARE(user->CmpCmdOrder->text(), preview);
        QCOMPARE(user->SearchCompileCmdTxt->text(), "Compile Command - " + preview);
        QCOMPARE(user->DefSwitchCompileCmdTxt->text(), user->SearchCompileCmdTxt->text());

        for (const auto &[from, button, to] : {std::tuple(1, user->CmdOrderUpBtn, 0),
                                               {0, user->CmdOrderUpBtn, 0},
                                               {0, user->CmdOrderDwnBtn, 1},
                                               {-1, user->CmdOrderDwnBtn, -1}}) {
            user->CmpOrderListBox->setCurrentRow(from);
            user.click(button);
            QCOMPARE(user->CmpOrderListBox->currentRow(), to);
        }
        // A cross compiler gets no output flag.
        for (const bool isEnabled : {false, true}) {
            user.click(user->CrossCmpCheckBox);
            QVERIFY(user->CmpExeFlagEdit->text().isEmpty() && !user->CmpExeFlagChkBox->isChecked());
            QCOMPARE(user->CmpExeFlagEdit->isEnabled(), isEnabled);
            QCOMPARE(user->CmpExeFlagChkBox->isEnabled(), isEnabled);
        }
    }

    void asksForFolders()
    {
        const ProgramFolder folder;
        const WizardUser user;
        const QString out = folder.path("out").replace('/', '\\');
        const QString tools = folder.path("tools").replace('/', '\\');
        // Returns the folder that the dialog opens in.
        const auto pick = [&](QPushButton *button, const QString &name) {
            const QString path = name.isEmpty() ? QString() : folder.path(name);
            return withFileDialog([&] { user.click(button); }, path).section('/', -1);
        };
        user.type(user->PersonNameEdit, "mine");
        pick(user->PersonDestBrowseBtn, "out");
        QCOMPARE(user->PersonDestEdit->text(), out);
        QVERIFY(user.nextIsEnabled());
        QCOMPARE(pick(user->PersonDestBrowseBtn, ""), "out");
        QCOMPARE(user->PersonDestEdit->text(), "");

        QListWidget *list = user->CmpHdrDirListBox;
        user->showPage(user->Page2);
        pick(user->CmpHdrDirAddBtn, "out");
        pick(user->CmpHdrDirAddBtn, "tools");
        QCOMPARE(pick(user->CmpHdrDirAddBtn, ""), "tools");
        list->setCurrentRow(-1);
        pick(user->CmpHdrDirEditBtn, "out");
        QCOMPARE(pick(user->CmpHdrDirAddBtn, ""), "out");
        user.click(user->CmpHdrDirDeleteBtn);
        QCOMPARE(rows(list), QStringList({out, tools}));
        list->setCurrentRow(0);
        QCOMPARE(pick(user->CmpHdrDirEditBtn, "tools"), "out");
        QCOMPARE(rows(list), QStringList({tools, tools}));
        user.click(user->CmpHdrDirDeleteBtn);
        QCOMPARE(rows(list), QStringList {tools});
    }
};

QTEST_MAIN(TestPageChecks)
#include "test_page_checks.moc"
