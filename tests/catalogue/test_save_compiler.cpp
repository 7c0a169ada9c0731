#include "row.h"
#include "save_compiler_details.h"

#include <QtWidgets>
#include <functional>

using Use = std::function<void(SaveCompilerDetails &)>;

namespace {

const QString bothEmpty = "Compiler Family and Compiler Name cannot be empty.";
const QString overwrite = "Compiler Family and Compiler Name match an existing compiler, do you "
                          "want to overwrite this?";
const QString noName = "Compiler Name cannot be empty if language: Both is selected.";
const QString otherLanguage = "Compiler Name provided does not match";

/// The dialog on the screen, which knows four compilers; one of them is chosen.
struct ShownDialog : SaveCompilerDetails
{
    ShownDialog()
    {
        families = QStringList {"Alpha", "Beta"};
        compilers = {{"b - C", "Beta"}, {"a - C", "Alpha"}, {"C++", "Beta"}, {"e", "Beta"}};
        currentRecord = {"C++", "Beta"};
        show();
    }
};

void type(QLineEdit *edit, const QString &text)
{
    edit->selectAll();
    QTest::keyClick(edit, Qt::Key_Delete);
    QTest::keyClicks(edit, text);
}

void choose(QComboBox *list, const QString &text)
{
    list->setCurrentIndex(list->findText(text));
    emit list->activated(list->currentIndex());
}

/// Asks for a new entry of that family and name, typed.
Use newEntry(const QString &family, const QString &name,
             QRadioButton *SaveCompilerDetails::*language)
{
    return [=](SaveCompilerDetails &dialog) {
        dialog.NewSaveRadioButton->click();
        type(dialog.NewCmpFamEdit, family);
        type(dialog.NewCmpNameEdit, name);
        (dialog.*language)->click();
    };
}

/// Closes \a box with the answer that stands before the text in \a expected. Returns what it says
/// if that is not what is expected, or Enter would not answer No.
QString answer(QMessageBox *box, const QString &expected)
{
    const bool isYes = expected.startsWith("Yes");
    const bool isQuestion = box->standardButtons().testFlag(QMessageBox::No);
    const QString said = (isYes ? "Yes" : isQuestion ? "No" : "") + box->text();
    const bool isExpected = !expected.isEmpty() && said.startsWith(expected)
                         && box->windowTitle() == "Save Compiler Details"
                         && (!isQuestion || box->defaultButton() == box->button(QMessageBox::No));
    box->button(isYes ? QMessageBox::Yes : isQuestion ? QMessageBox::No : QMessageBox::Ok)->click();
    return isExpected ? QString() : said;
}

} // namespace

class TestSaveCompiler : public QObject
{
    Q_OBJECT

private slots:
    void asksAndAnswers_data()
    {
        // A question's answer stands before it. Without a result the dialog stays open.
        const Columns<Use, QStringList, QString> row("use", "messages", "result");
        const auto c = &SaveCompilerDetails::CRadioButton;
        const auto cpp = &SaveCompilerDetails::CPPRadioButton;
        const auto both = &SaveCompilerDetails::BothRadioButton;
        const Use preselected = [](SaveCompilerDetails &) {};
        const Use another = [](SaveCompilerDetails &dialog) {
            choose(dialog.ExstCmpFamComboBox, "Alpha");
        };
        const Use existing = [](SaveCompilerDetails &dialog) {
            dialog.ExstSaveRadioButton->click();
        };
        const Use newOne = [](SaveCompilerDetails &dialog) { dialog.NewSaveRadioButton->click(); };
        const Use twice = [newOne, newC = newEntry("Fam", "cc", c)](SaveCompilerDetails &dialog) {
            newC(dialog);
            newOne(dialog);
        };
        const Use fromTheList = [newOne](SaveCompilerDetails &dialog) {
            newOne(dialog);
            choose(dialog.NewCmpFamComboBox, "Alpha");
            choose(dialog.NewCmpNameComboBox, "a - C");
        };
        const Use typedInto = [newOne](SaveCompilerDetails &dialog) {
            newOne(dialog);
            QTest::keyClick(dialog.NewCmpNameEdit, Qt::Key_End);
            QTest::keyClick(dialog.NewCmpNameEdit, Qt::Key_X);
            QTest::keyClick(dialog.NewCmpFamEdit, Qt::Key_End);
            for (const QComboBox *list : {dialog.NewCmpNameComboBox, dialog.NewCmpFamComboBox})
                QCOMPARE(list->currentIndex(), 0);
        };
        row("the preselected entry", preselected, {}, "Beta/C++");
        row("another entry", another, {}, "Alpha/a - C");
        row("the mode chosen again", existing, {}, "Beta/C++");
        row("new, the mode chosen again", twice, {}, "Fam/cc - C");
        row("new C", newEntry("Fam", "cc", c), {}, "Fam/cc - C");
        row("new C++", newEntry("Beta", "cc", cpp), {}, "Beta/cc - C++");
        row("new, both languages", newEntry("Fam", "cc", both), {}, "Fam/cc");
        row("no name, C++", newEntry("Fam", "", cpp), {}, "Fam/C++");
        row("no name, both", newEntry("Fam", "", both), {noName}, "");
        row("nothing", newEntry("", "", c), {bothEmpty}, "");
        row("no family", newEntry("", "cc", c), {}, "/cc - C");
        row("other language, insisted", newEntry("Fam", "Cpp", c), {"Yes" + otherLanguage},
            "Fam/Cpp - C");
        row("other language, declined", newEntry("Fam", "C", cpp), {"No" + otherLanguage}, "");
        row("a language for both", newEntry("Fam", "CPP", both), {"No" + otherLanguage}, "");
        row("typed, exists with its suffix", newEntry("Beta", "b", c), {"Yes" + overwrite},
            "Beta/b - C");
        row("typed, exists, declined", newEntry("Beta", "", cpp), {"No" + overwrite}, "");
        row("typed as it exists", newEntry("Alpha", "a - C", cpp), {"Yes" + overwrite},
            "Alpha/a - C");
        row("typed like one for both", newEntry("Beta", "e", c), {}, "Beta/e - C");
        row("typed with more than a space", newEntry("My  Fam", "c  c ", both), {}, "My Fam/c c ");
        row("from the list, confirmed", fromTheList, {"Yes" + overwrite}, "Alpha/a - C");
        row("from the list, then typed into", typedInto, {}, "Beta/C++x - C");
        row("preselected as new, its language declined", newOne,
            {"Yes" + overwrite, "No" + otherLanguage}, "");
    }
    void asksAndAnswers()
    {
        QFETCH(Use, use);
        QFETCH(QStringList, messages);
        QFETCH(QString, result);
        ShownDialog dialog;
        use(dialog);
        QTimer answerer;
        QString unexpected;
        connect(&answerer, &QTimer::timeout, [&] {
            if (auto *box = qobject_cast<QMessageBox *>(QApplication::activeModalWidget()))
                unexpected += answer(box, messages.isEmpty() ? QString() : messages.takeFirst());
        });
        answerer.start(10);
        dialog.buttonOk->click();
        QCOMPARE(unexpected, "");
        QCOMPARE(messages, QStringList());
        QCOMPARE(dialog.isVisible(), result.isEmpty());
        if (result.isEmpty()) {
            dialog.buttonCancel->click();
            QVERIFY(dialog.resultFamily.isEmpty() && dialog.resultName.isEmpty());
        } else {
            QCOMPARE(dialog.resultFamily + '/' + dialog.resultName, result);
        }
    }

    void switchesBetweenItsGroups()
    {
        ShownDialog dialog;
        QCOMPARE(dialog.size(), QSize(547, 463));
        QCOMPARE(dialog.ExstCmpNameComboBox->currentText(), "C++");
        QVERIFY(dialog.NewCmpNameEdit->text().isEmpty());
        dialog.NewSaveRadioButton->click();
        QVERIFY(!dialog.ExstSaveRadioButton->isChecked()
                && !dialog.ExstCmpFamComboBox->isEnabled());
        QVERIFY(dialog.CRadioButton->isEnabled());
        QCOMPARE(dialog.NewCmpFamEdit->text(), "Beta");
        QCOMPARE(dialog.NewCmpNameEdit->text(), "C++");
        QCOMPARE(dialog.NewCmpNameEdit->cursorPosition(), 0);
        choose(dialog.NewCmpFamComboBox, "Alpha");
        QCOMPARE(dialog.NewCmpFamComboBox->count(), 3);
        QCOMPARE(dialog.NewCmpNameComboBox->count(), 2);
        QCOMPARE(dialog.NewCmpNameComboBox->itemText(1), "a - C");
        QCOMPARE(dialog.NewCmpNameEdit->text(), "");
        dialog.buttonCancel->setFocus();
        QTest::keyClick(dialog.buttonCancel, Qt::Key_Return);
        QVERIFY(!dialog.isVisible() && dialog.resultName.isEmpty());
    }

    void canBeUsedByKeysAlone()
    {
        ShownDialog dialog;
        QVERIFY(QTest::qWaitForWindowActive(&dialog, patience));
        QCOMPARE(dialog.focusWidget(), dialog.ExstSaveRadioButton);
        const auto press = [&dialog](Qt::Key key) { QTest::keyClick(dialog.focusWidget(), key); };
        const auto tabTo = [&](const QWidget *widget) {
            for (int stop = 0; stop < 11 && dialog.focusWidget() != widget; ++stop)
                press(Qt::Key_Tab);
            QCOMPARE(dialog.focusWidget(), widget);
        };
        tabTo(dialog.NewSaveRadioButton);
        press(Qt::Key_Space);
        QVERIFY(!dialog.ExstSaveRadioButton->isChecked());
        tabTo(dialog.CRadioButton);
        press(Qt::Key_Right);
        QVERIFY(dialog.CPPRadioButton->isChecked() && dialog.NewSaveRadioButton->isChecked());
        tabTo(dialog.ExstSaveRadioButton);
        press(Qt::Key_Space);
        QVERIFY(!dialog.NewSaveRadioButton->isChecked() && !dialog.CRadioButton->isEnabled());
        press(Qt::Key_Return);
        QCOMPARE(dialog.resultName, "C++");
    }
};

QTEST_MAIN(TestSaveCompiler)
#include "test_save_compiler.moc"
