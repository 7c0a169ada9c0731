#include "wizard_test.h"

#include <QCheckBox>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QMenu>
#include <QMessageBox>
#include <QPushButton>
#include <QRadioButton>
#include <QTest>
#include <QTextEdit>
#include <QTimer>

namespace {

const QByteArray record = R"( <Compiler>
  <Name>%1</Name>
  <Family>%2</Family>
  <ExeCommand>cc -m32</ExeCommand>
  <CrossCompiler>%3</CrossCompiler>
  <OutputFlag>-o</OutputFlag>
  <DefineFlag>-D</DefineFlag>
  <ObjectFlag>-c</ObjectFlag>
  <ObjectFileExtension>.o</ObjectFileExtension>
  <Order>%c %s %d %o%e </Order>
  <ReduceFileSize>yes</ReduceFileSize>
  <CompilerDefines>A=1,B</CompilerDefines>
  <CompilerSwitches>-x,-y</CompilerSwitches>
  <Template>%4</Template>
 </Compiler>
)";

QByteArray compiler(const QByteArray &name, const QByteArray &family, const QByteArray &cross,
                    const QByteArray &templateValue = "t")
{
    return QByteArray(record)
        .replace("%1", name)
        .replace("%2", family)
        .replace("%3", cross)
        .replace("%4", templateValue);
}

QByteArray catalogue()
{
    return "<CompilerFamily>Alpha & Co</CompilerFamily>\n<CompilerFamily>Beta</CompilerFamily>\n"
           "<CompilerFamily>Empty</CompilerFamily>\n"
         + compiler("a - C", "Alpha & Co", "no") + compiler("a&b - C++", "Alpha & Co", "yes")
         + compiler("XC", "Beta", "no") + compiler("get", "Beta", "no", "Integration - g&t.exe")
         + compiler("orphan", "Gamma", "no");
}

QMenu *familyMenu(const WizardUser &user, int family)
{
    return user->ExeCommandBtn->menu()->actions().at(family)->menu();
}

/// Opens the Exe Command menu, walks into a family's sub-menu and chooses a compiler with Enter.
void choose(const WizardUser &user, int family, int item)
{
    QTimer::singleShot(50, user.wizard(), [=, &user] {
        QMenu *families = user->ExeCommandBtn->menu();
        families->setActiveAction(families->actions().at(family));
        QTest::keyClick(families, Qt::Key_Right);
        QMenu *names = familyMenu(user, family);
        names->setActiveAction(names->actions().at(item));
        QTest::keyClick(names, Qt::Key_Return);
    });
    user.click(user->ExeCommandBtn);
}

/// The text of the message box that \a action opens; empty when it opens none.
QString messageOf(const std::function<void()> &action)
{
    QString text;
    withDialog(action, [&text](QWidget *widget) {
        auto *box = qobject_cast<QMessageBox *>(widget);
        text = box->text();
        box->done(QMessageBox::Ok);
    });
    return text;
}

QString shownAnswers(const WizardUser &user)
{
    const QStringList shown {user->CmpExeEdit->text(),         user->CmpExeFlagEdit->text(),
                             user->CmpCmpFlagEdit->text(),     user->CmpDefFlagEdit->text(),
                             user->CmpObjExtFlagEdit->text(),  user->CmpDefEdit->toPlainText(),
                             user->CmpSwtchEdit->toPlainText()};
    return (shown + rows(user->CmpOrderListBox)).join('|');
}

const QString defaultOrderShown =
    "Exe Command|Output Flag|<exe file>|Define Flag|Object Flag|<src file>";

} // namespace

class TestMenu : public QObject
{
    Q_OBJECT

private slots:
    void listsFamiliesAndCompilers()
    {
        const ProgramFolder folder;
        folder.write("bin/compilers.txt", catalogue());
        const WizardUser user;
        QStringList texts, enabled;
        for (int family = 0; family < user->ExeCommandBtn->menu()->actions().size(); ++family) {
            texts << user->ExeCommandBtn->menu()->actions().at(family)->text();
            for (const QAction *action : familyMenu(user, family)->actions())
                (action->isEnabled() ? enabled : texts) << action->text();
        }
        QCOMPARE(texts, QStringList({"Alpha && Co", "a&&b - C++", "Beta", "Empty"}));
        QCOMPARE(enabled, QStringList({"a - C", "XC", "get"}));
    }

    void limitsTheFamilies()
    {
        const ProgramFolder folder;
        folder.write("bin/compilers.txt", catalogue());
        folder.write("bin/settings.txt", "Compiler Family Set:*\nx;Empty;beta;Alpha & Co\n");
        const WizardUser user;
        QStringList families;
        for (const QAction *action : user->ExeCommandBtn->menu()->actions())
            families << action->text();
        QCOMPARE(families, QStringList({"Alpha && Co", "Empty"}));
    }

    void fillsThePages()
    {
        const ProgramFolder folder;
        folder.write("bin/compilers.txt", catalogue());
        const WizardUser user;
        user->showPage(user->Page1);
        user->CmpExeFlagChkBox->setChecked(true);
        choose(user, 0, 0);
        QCOMPARE(shownAnswers(user),
                 "cc -m32|-o|-c|-D|.o|A=1,B|-x,-y|Exe Command|<src file>|Define Flag|Output Flag|"
                 "<exe file>");
        QVERIFY(user->CmpDefFlagChkBox->isChecked() && !user->CmpExeFlagChkBox->isChecked());
        QVERIFY(user->ReduceFileSizeCheckBox->isChecked() && user->CmpExeFlagEdit->isEnabled());
        QCOMPARE(user->CmpCmdOrder->text(),
                 QString("cc -m32 <src file> -D %1 -o<exe file> ").arg("XXX"));
        QVERIFY(user.nextIsEnabled());

        messageOf([&] { user.click(user->KOVPPRadioButton); });
        choose(user, 0, 1);
        QVERIFY(user->CrossCmpCheckBox->isChecked() && !user->CmpExeFlagEdit->isEnabled());
        QCOMPARE(user->CmpExeFlagEdit->text(), "-o");
    }

    void resetsAConflictingCompiler()
    {
        const ProgramFolder folder;
        folder.write("bin/compilers.txt", catalogue());
        const WizardUser user;
        user->showPage(user->Page1);
        choose(user, 0, 0);
        user->showPage(user->Page0);
        QCOMPARE(messageOf([&] { user.click(user->KOVRadioButton); }), "");
        QCOMPARE(messageOf([&] { user.click(user->KOVPPRadioButton); }),
                 "You have selected KOV++ for a currently selected C execution command.\nPlease "
                 "reselect the Exe Command below.");
        QCOMPARE(shownAnswers(user), "||||.o|A=1,B|-x,-y|" + defaultOrderShown);
        QVERIFY(!user->ReduceFileSizeCheckBox->isChecked());
        QVERIFY(!familyMenu(user, 0)->actions().at(0)->isEnabled());
        QVERIFY(familyMenu(user, 0)->actions().at(1)->isEnabled());
        QCOMPARE(messageOf([&] { user.click(user->KOVPPRadioButton); }), "");
    }

    void leavesForADownload()
    {
        const ProgramFolder folder;
        folder.write("bin/compilers.txt", catalogue());
        const WizardUser user;
        user->showPage(user->Page1);
        const QString before = shownAnswers(user);
        QCOMPARE(messageOf([&] { choose(user, 1, 1); }),
                 "The generator will now close and take you to the download site for the latest "
                 "integration package to be installed.\n"
                 "(https://www.vantor.example/downloads/Windows/g&t.exe)");
        QVERIFY(!user->isVisible());
        QCOMPARE(user->exitCode, 1);
        QCOMPARE(shownAnswers(user), before);
    }
};

QTEST_MAIN(TestMenu)
#include "test_menu.moc"
