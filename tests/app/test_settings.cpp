#include "wizard_test.h"

class TestSettings : public QObject
{
    Q_OBJECT

private slots:
    void lockTheFirstPage_data()
    {
        const Columns<QByteArray, QByteArray, QByteArray, bool> row("lineEnd", "destination",
                                                                    "nameKey", "opensOnPage1");
        row("line feeds", "\n", "..\\out", "Personality Name:*", true);
        row("both", "\r\n", "..\\out", "Personality Name:*", true);
        row("carriage returns", "\r", "..\\out", "Personality Name:*", true);
        row("missing folder", "\n", "..\\oat", "Personality Name:*", false);
        row("a key in lower case", "\n", "..\\out", "personality name:*", false);
    }
    void lockTheFirstPage()
    {
        QFETCH(QByteArray, lineEnd);
        QFETCH(QByteArray, destination);
        QFETCH(QByteArray, nameKey);
        QFETCH(bool, opensOnPage1);
        const ProgramFolder folder;
        const QByteArray settings = "Product:*\nkovpp\n\nPersonality Destination Directory:*\n"
                                  + destination + "\n\n" + nameKey
                                  + "\nmine\n\nCompiler:\nmissing\n\nCross Compiler:\nYes\n";
        folder.write("bin/settings.txt", QByteArray(settings).replace("\n", lineEnd));
        const WizardUser user;
        QCOMPARE(user->currentPage(), opensOnPage1 ? user->Page1 : user->Page0);
        QVERIFY(user->KOVPPRadioButton->isChecked());
        QVERIFY(!user->KOVRadioButton->isEnabled() && !user->KOVPPRadioButton->isEnabled());
        QVERIFY(!user->PersonDestEdit->isEnabled() && !user->PersonDestBrowseBtn->isEnabled());
        QCOMPARE(user->PersonNameEdit->isEnabled(), user->PersonNameEdit->text().isEmpty());
        QVERIFY(user->CrossCmpCheckBox->isChecked() && user->CmpExeFlagEdit->isEnabled());
        // What is wrong with them shows once somebody types.
        QCOMPARE(user->DestErrorLabel->text() + user->CmpPathErrorLabel->text(), "");
        QCOMPARE(user->CmpExeEdit->palette().color(QPalette::Text), QColor(Qt::red));
    }

    void areReadLineByLine()
    {
        const ProgramFolder folder;
        folder.write(
            "bin/settings.txt",
            "Product\nProduct:\nother\nnoise\nCross Compiler:\nyes\nReduce File Size:\nYes\n"
            "Exe Trailing Space:\nYes\nDef Trailing Space:\nyes\n"
            "Compiler Command Order:\n<src file>\nunknown\n\nExe Command\n"
            "Compiler Defines:\nA\n\nB\nCompiler Switches:\n\n"
            "Compiler Header Directories:\nfirst\n\nCompiler Header Directories:\n"
            "Compiler:\nlast\n\nPersonality Name:");
        const WizardUser user;
        QVERIFY(user->KOVPPRadioButton->isChecked());
        QVERIFY(!user->CrossCmpCheckBox->isChecked() && user->ReduceFileSizeCheckBox->isChecked());
        QVERIFY(!user->CmpExeFlagChkBox->isChecked() && user->CmpDefFlagChkBox->isChecked());
        QCOMPARE(user->CmpCmdOrder->text(), "<src file> unknown ");
        QCOMPARE(user->CmpDefEdit->toPlainText(), "A\n");
        QCOMPARE(rows(user->CmpHdrDirListBox), QStringList({"Compiler:", "last"}));
        QCOMPARE(user->CmpExeEdit->text() + user->PersonNameEdit->text(), "");
    }
};

QTEST_MAIN(TestSettings)
#include "test_settings.moc"
