#include "row.h"
#include "wizard_test.h"

#include <QAbstractButton>
#include <QCheckBox>
#include <QLineEdit>
#include <QListWidget>
#include <QPushButton>
#include <QRadioButton>
#include <QTest>
#include <QTextEdit>

class TestSettings : public QObject
{
    Q_OBJECT

private slots:
    void comeBackAtTheNextStart()
    {
        const ProgramFolder folder;
        {
            const WizardUser user;
            user.click(user->KOVPPRadioButton);
            user.answerFirstPages();
            user->PersonNameEdit->setText("Compiler:");
            user->CmpExeEdit->setText("cc -a -b");
            user.click(user->CmpDefFlagChkBox);
            user->CmpObjExtFlagEdit->setText("o");
            user->CmpHdrDirListBox->addItems({"\\inc", "\\größe"});
            user->CmpDefEdit->setPlainText("A\nB=1");
            user->CmpOrderListBox->setCurrentRow(0);
            user.click(user->CmdOrderDwnBtn);
            user->CrossCmpCheckBox->setChecked(true);
            user->showPage(user->Page3);
            user.press(QWizard::NextButton);
            user.press(QWizard::FinishButton);
            QTRY_VERIFY(user->SaveLogBtn->isEnabled());
        }
        const QString written = folder.read("bin/settings.txt");
        QVERIFY(
            written.startsWith("Product:\nkovpp\n\nPersonality Destination Directory:\n..\\out"));
        QVERIFY(written.endsWith(
            "Compiler Command Order:\nOutput Flag\nExe Command\n<exe file>\nDefine Flag\n"
            "Object Flag\n<src file>\n\nExe Trailing Space:\nno\n\nDef Trailing Space:\nyes\n\n"
            "Selected Compiler Family:\n\n\nSelected Compiler Name:\n\n\n"
            "Template Personality File:\n\n\nForce Include File:\n\n\nSubstitute Headers:\n\n"));

        const WizardUser user;
        QVERIFY(user->KOVPPRadioButton->isChecked() && user.nextIsEnabled());
        QCOMPARE(user->PersonNameEdit->text(), "Compiler:");
        QCOMPARE(user->CmpExeEdit->text(), "cc -a -b");
        QVERIFY(user->CmpDefFlagChkBox->isChecked() && !user->CmpExeFlagChkBox->isChecked());
        QVERIFY(user->CrossCmpCheckBox->isChecked() && user->CmpExeFlagEdit->isEnabled());
        QCOMPARE(rows(user->CmpHdrDirListBox), QStringList({"\\inc", "\\größe"}));
        QCOMPARE(user->CmpDefEdit->toPlainText(), "A\nB=1\n");
        QCOMPARE(rows(user->CmpOrderListBox).mid(0, 2),
                 QStringList({"Output Flag", "Exe Command"}));
        user->showPage(user->Page3);
        user.press(QWizard::NextButton);
        user.press(QWizard::FinishButton);
        QTRY_COMPARE(folder.read("bin/settings.txt").remove("A\nB=1\n\n"),
                     QString(written).remove("A\nB=1\n\n"));
    }

    void areWrittenAfterEveryRun_data()
    {
        QTest::addColumn<QByteArray>("instructions");
        row("success", QByteArray("exit 0"));
        row("crash", QByteArray("crash"));
    }
    void areWrittenAfterEveryRun()
    {
        QFETCH(QByteArray, instructions);
        const ProgramFolder folder;
        folder.write("bin/settings.txt", "Compiler Family Set:*\nF\n");
        ProgramFolder::instruct(instructions);
        const WizardUser user;
        user.walkToReview();
        QVERIFY(folder.read("bin/settings.txt").startsWith("Compiler Family Set:*"));
        user.press(QWizard::FinishButton);
        QTRY_VERIFY(folder.read("bin/settings.txt").startsWith("Product:\nkov\n"));
        QVERIFY(!folder.read("bin/settings.txt").contains('*'));
    }

    void lockTheFirstPage_data()
    {
        QTest::addColumn<QByteArray>("lineEnd");
        QTest::addColumn<QByteArray>("destination");
        QTest::addColumn<bool>("opensOnPage1");
        row("line feeds", QByteArray("\n"), QByteArray("..\\out"), true);
        row("both", QByteArray("\r\n"), QByteArray("..\\out"), true);
        row("carriage returns", QByteArray("\r"), QByteArray("..\\out"), true);
        row("missing folder", QByteArray("\n"), QByteArray("..\\oat"), false);
    }
    void lockTheFirstPage()
    {
        QFETCH(QByteArray, lineEnd);
        QFETCH(QByteArray, destination);
        QFETCH(bool, opensOnPage1);
        const ProgramFolder folder;
        folder.write("bin/settings.txt",
                     QByteArray("Product:*\nkovpp\n\nPersonality Destination Directory:*\n"
                                + destination + "\n\nPersonality Name:*\nmine\n")
                         .replace("\n", lineEnd));
        const WizardUser user;
        QCOMPARE(user->currentPage(), opensOnPage1 ? user->Page1 : user->Page0);
        QVERIFY(user->KOVPPRadioButton->isChecked());
        for (const QWidget *widget : std::initializer_list<const QWidget *> {
                 user->KOVRadioButton, user->KOVPPRadioButton, user->PersonDestEdit,
                 user->PersonDestBrowseBtn, user->PersonNameEdit})
            QVERIFY(!widget->isEnabled());
        if (opensOnPage1) {
            user.press(QWizard::BackButton);
            QCOMPARE(user->currentPage(), user->Page0);
        }
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
        QCOMPARE(rows(user->CmpOrderListBox), QStringList({"<src file>", "unknown"}));
        QCOMPARE(user->CmpDefEdit->toPlainText(), "A\n");
        QCOMPARE(rows(user->CmpHdrDirListBox), QStringList({"Compiler:", "last"}));
        QCOMPARE(user->CmpExeEdit->text() + user->PersonNameEdit->text(), "");
    }
};

QTEST_MAIN(TestSettings)
#include "test_settings.moc"
