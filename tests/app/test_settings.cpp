#include "log_browser.h"
#include "row.h"
#include "wizard_test.h"

#include <QCheckBox>
#include <QLabel>
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
        const auto run = [&folder](const WizardUser &user) {
            user->showPage(user->Page3);
            user.press(QWizard::NextButton);
            user.finish();
            return folder.read("bin/settings.txt");
        };
        QString written;
        {
            const WizardUser user;
            user.answerFirstPages();
            user->CmpExeEdit->setText("cc  -a");
            user->CmpHdrDirListBox->addItems({"\\inc", QString::fromUtf8("\\größe")});
            user->CrossCmpCheckBox->setChecked(true);
            written = run(user);
        }
        QVERIFY(written.startsWith("Product:\nkov\n\nPersonality Destination Directory:\n..\\out"));
        QVERIFY(written.contains("Compiler:\ncc -a\n\n"));
        QVERIFY(written.endsWith("Force Include File:\n\n\nSubstitute Headers:\n\n"));
        const WizardUser user;
        QVERIFY(user.nextIsEnabled() && user->CmpExeFlagEdit->isEnabled());
        QCOMPARE(run(user), written);
    }

    void areWrittenAfterEveryRun_data()
    {
        QTest::addColumn<QByteArray>("instructions");
        row("success", QByteArray("exit 0"));
        row("crash", QByteArray("crash"));
        row("left while it goes on", QByteArray("print started\nhang"));
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
        if (instructions.endsWith("hang")) {
            user.press(QWizard::FinishButton);
            QTRY_VERIFY_WITH_TIMEOUT(user->DetailsText->toPlainText().contains("started"),
                                     patience);
            user->close();
        } else {
            user.finish();
        }
        QVERIFY(folder.read("bin/settings.txt").startsWith("Product:\nkov\n"));
        QVERIFY(!folder.read("bin/settings.txt").contains('*'));
    }

    void lockTheFirstPage_data()
    {
        QTest::addColumn<QByteArray>("lineEnd");
        QTest::addColumn<QByteArray>("destination");
        QTest::addColumn<QByteArray>("lockedName");
        QTest::addColumn<bool>("opensOnPage1");
        const QByteArray name = "Personality Name:*";
        row("line feeds", QByteArray("\n"), QByteArray("..\\out"), name, true);
        row("both", QByteArray("\r\n"), QByteArray("..\\out"), name, true);
        row("carriage returns", QByteArray("\r"), QByteArray("..\\out"), name, true);
        row("missing folder", QByteArray("\n"), QByteArray("..\\oat"), name, false);
        row("a key in lower case", QByteArray("\n"), QByteArray("..\\out"), name.toLower(), false);
    }
    void lockTheFirstPage()
    {
        QFETCH(QByteArray, lineEnd);
        QFETCH(QByteArray, destination);
        QFETCH(QByteArray, lockedName);
        QFETCH(bool, opensOnPage1);
        const ProgramFolder folder;
        folder.write("bin/settings.txt",
                     QByteArray("Product:*\nkovpp\n\nPersonality Destination Directory:*\n"
                                + destination + "\n\n" + lockedName
                                + "\nmine\n\nCompiler:\nmissing\n")
                         .replace("\n", lineEnd));
        const WizardUser user;
        QCOMPARE(user->currentPage(), opensOnPage1 ? user->Page1 : user->Page0);
        QVERIFY(user->KOVPPRadioButton->isChecked());
        QVERIFY(!user->KOVRadioButton->isEnabled() && !user->KOVPPRadioButton->isEnabled());
        QVERIFY(!user->PersonDestEdit->isEnabled() && !user->PersonDestBrowseBtn->isEnabled());
        QCOMPARE(user->PersonNameEdit->isEnabled(), user->PersonNameEdit->text().isEmpty());
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
        QCOMPARE(rows(user->CmpOrderListBox), QStringList({"<src file>", "unknown"}));
        QCOMPARE(user->CmpCmdOrder->text(), "<src file> unknown ");
        QCOMPARE(user->CmpDefEdit->toPlainText(), "A\n");
        QCOMPARE(rows(user->CmpHdrDirListBox), QStringList({"Compiler:", "last"}));
        QCOMPARE(user->CmpExeEdit->text() + user->PersonNameEdit->text(), "");
    }
};

QTEST_MAIN(TestSettings)
#include "test_settings.moc"
