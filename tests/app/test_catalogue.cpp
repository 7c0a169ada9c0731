#include "compiler_catalogue.h"
#include "files.h"
#include "save_compiler_details.h"
#include "wizard_test.h"

namespace {

CompilerRecord compiler(const QString &name, const QString &isCross, const QString &templateValue,
                        const QString &order = "%c %s %o%e ")
{
    return {.Name = name,
            .Family = "Family",
            .ExeCommand = "cc -m32",
            .CrossCompiler = isCross,
            .OutputFlag = "-o",
            .Order = order,
            .ReduceFileSize = "yes",
            .CompilerDefines = "A=1,B",
            .Template = templateValue};
}

/// A program folder with a catalogue.
struct CatalogueFolder : ProgramFolder
{
    CatalogueFolder()
    {
        write("bin/compilers.txt",
              catalogueText(
                  {{"Family"},
                   {compiler("a - C", "no", "t"), compiler("b&c - C++", "yes", "", "%c %s "),
                    compiler("get", "no", "Integration - g&t.exe")}}));
    }
};

/// Opens the Exe Command menu, walks into the family's sub-menu and chooses a compiler with Enter.
void choose(const WizardUser &user, int item)
{
    QTimer::singleShot(50, user.wizard(), [item, &user] {
        QMenu *families = user->ExeCommandBtn->menu();
        families->setActiveAction(families->actions().at(0));
        QTest::keyClick(families, Qt::Key_Right);
        QMenu *names = families->actions().at(0)->menu();
        QVERIFY(names->activeAction()->isEnabled());
        names->setActiveAction(names->actions().at(item));
        QTest::keyClick(names, Qt::Key_Return);
    });
    user.click(user->ExeCommandBtn);
}

QList<QAction *> itemsOf(const WizardUser &user, int family)
{
    return user->ExeCommandBtn->menu()->actions().at(family)->menu()->actions();
}

} // namespace

class TestCatalogue : public QObject
{
    Q_OBJECT

private slots:
    void fillsThePages()
    {
        const CatalogueFolder folder;
        const WizardUser user;
        user->showPage(user->Page1);
        user->CmpExeFlagChkBox->setChecked(true);
        choose(user, 0);
        QCOMPARE(user->CmpCmdOrder->text(), "cc -m32 <src file> -o<exe file> ");
        QVERIFY(!user->CmpExeFlagChkBox->isChecked() && user->CmpExeFlagEdit->isEnabled());
        QCOMPARE(user->CmpDefEdit->toPlainText(), "A=1,B");
        QVERIFY(user.nextIsEnabled());

        messageOf([&] { user.click(user->KOVPPRadioButton); });
        user->CmpExeFlagChkBox->setChecked(true);
        choose(user, 1);
        QVERIFY(user->CrossCmpCheckBox->isChecked() && !user->CmpExeFlagEdit->isEnabled());
        QVERIFY(!user->CmpExeFlagChkBox->isChecked()); // of which the order says nothing
        QCOMPARE(user->CmpExeFlagEdit->text(), "-o");
    }

    void resetsAConflictingCompiler()
    {
        const CatalogueFolder folder;
        const WizardUser user;
        user->applyCatalogueCompiler("Family", "a - C");
        user->CmpSwtchEdit->setPlainText("-x");
        QCOMPARE(messageOf([&] { user.click(user->KOVRadioButton); }), "");
        QCOMPARE(messageOf([&] { user.click(user->KOVPPRadioButton); }),
                 "You have selected KOV++ for a currently selected C execution command.\nPlease "
                 "reselect the Exe Command below.");
        QCOMPARE(user->CmpExeEdit->text() + user->CmpExeFlagEdit->text(), "");
        QCOMPARE(rows(user->CmpOrderListBox).size(), 6);
        QCOMPARE(user->CmpSwtchEdit->toPlainText(), "-x");
        QVERIFY(!itemsOf(user, 0).at(0)->isEnabled() && itemsOf(user, 0).at(1)->isEnabled());
        QCOMPARE(messageOf([&] { user.click(user->KOVPPRadioButton); }), "");
        user->applyCatalogueCompiler("Family", "b&c - C++");
        QCOMPARE(messageOf([&] { user.click(user->KOVRadioButton); }),
                 "You have selected KOV for a currently selected C++ execution command.\nPlease "
                 "reselect the Exe Command below.");
        const Language german("de");
        user->applyCatalogueCompiler("Family", "b&c - C++");
        QVERIFY(messageOf([&] { user.click(user->KOVRadioButton); }).startsWith("Sie haben KOV "));
    }

    void leavesForADownload()
    {
        const CatalogueFolder folder;
        QFile::copy(folder.path("tools/Bexlor.exe"), folder.path("tools/xdg-open"));
        const WizardUser user;
        user->showPage(user->Page1);
        QCOMPARE(messageOf([&] { choose(user, 2); }),
                 "The generator will now close and take you to the download site for the latest "
                 "integration package to be installed.\n"
                 "(https://www.vantor.example/downloads/Windows/g&t.exe)");
        QVERIFY(!user->isVisible());
        QCOMPARE(user->exitCode, 1);
        QCOMPARE(user->CmpExeEdit->text(), "");
        if (QDir::separator() == '/')
            QTRY_COMPARE_WITH_TIMEOUT(folder.generatorArguments(),
                                      "https://www.vantor.example/downloads/Windows/g%26t.exe\n",
                                      patience);
    }

    void keepsWhatIsSaved()
    {
        const CatalogueFolder folder;
        const QString file = folder.path("bin/compilers.txt");
        const WizardUser user;
        user.walkToReview();
        user.finish();
        user->applyCatalogueCompiler("Family", "a - C");
        user->CmpExeEdit->setText("cc -x");
        const auto save = [&](const std::function<void(SaveCompilerDetails &)> &use) {
            withDialog([&user] { user.click(user->AddCompilerBtn); },
                       [&use](QWidget *widget) {
                           auto *dialog = qobject_cast<SaveCompilerDetails *>(widget);
                           use(*dialog);
                           if (dialog->isVisible())
                               dialog->buttonOk->click();
                       });
            return parseCatalogue(readTestFile(file));
        };
        // Over the chosen one, whose name and files stay, as others have them by now.
        folder.write("bin/compilers.txt", readTestFile(file).replace(">t<", ">theirs<"));
        CompilerCatalogue saved = save([](SaveCompilerDetails &) {});
        CompilerRecord expected = compiler("a - C", "no", "theirs");
        expected.ExeCommand = "cc -x";
        QCOMPARE(saved.compilers.size(), 3);
        QCOMPARE(saved.compilers.first(), expected);

        saved = save([](SaveCompilerDetails &dialog) {
            dialog.NewSaveRadioButton->click();
            dialog.NewCmpFamEdit->setText("Fam & Co");
            dialog.NewCmpNameEdit->setText("dd");
            dialog.CPPRadioButton->click();
        });
        expected.Template = "t"; // what was chosen
        expected.Name = "dd - C++";
        expected.Family = "Fam & Co";
        QCOMPARE(saved.families, QStringList({"Family", "Fam & Co"}));
        QCOMPARE(saved.compilers.size(), 4);
        QCOMPARE(saved.compilers.last(), expected);
        QVERIFY(!itemsOf(user, 1).at(0)->isEnabled());
        QVERIFY(user->DetailsText->toPlainText().endsWith(
            "\nCompiler Saved: a - C\nCompiler Saved: dd - C++"));

        // Another wizard's family shows although nothing is saved.
        saved.families << "Theirs";
        folder.write("bin/compilers.txt", catalogueText(saved));
        const CompilerCatalogue before = saved;
        saved = save([](SaveCompilerDetails &dialog) {
            QCOMPARE(dialog.ExstCmpNameComboBox->currentText(), "dd - C++");
            dialog.buttonCancel->click();
        });
        QCOMPARE(saved, before);
        QCOMPARE(user->ExeCommandBtn->menu()->actions().size(), 3);
        // It is the chosen one now, and does not go with the product.
        QVERIFY(!messageOf([&] { user->KOVRadioButton->click(); }).isEmpty());

        const QByteArray inUtf16("\xff\xfe<\0C\0", 6);
        folder.write("bin/compilers.txt", inUtf16);
        QVERIFY(
            messageOf([&] { QVERIFY(!user->saveCatalogue()); }).contains("cannot be read whole"));
        QCOMPARE(readTestFile(file), inUtf16);
    }
};

QTEST_MAIN(TestCatalogue)
#include "test_catalogue.moc"
