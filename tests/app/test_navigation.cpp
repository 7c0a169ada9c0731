#include "wizard_test.h"

using Way = std::function<void(const WizardUser &)>;

class TestNavigation : public QObject
{
    Q_OBJECT

private slots:
    void followsTheSideBar_data()
    {
        const Columns<bool, bool, int, QString> row("answered", "valid", "from", "reachable");
        row("nothing answered", false, false, 0, "0");
        row("a valid command only", false, true, 0, "0");
        row("the first page answered", true, false, 0, "01");
        row("both answered", true, true, 0, "01234");
        row("command missing", true, false, 1, "01");
        row("command given", true, true, 1, "01234");
        for (const char *from : {"2", "3", "4"})
            row(from, false, false, from[0] - '0', "01234");
    }
    void followsTheSideBar()
    {
        QFETCH(bool, answered);
        QFETCH(bool, valid);
        QFETCH(int, from);
        const ProgramFolder folder;
        const WizardUser user;
        user->PersonDestEdit->setText(answered ? "..\\out" : "..\\nowhere");
        user->PersonNameEdit->setText("mine");
        user->CmpExeEdit->setText(valid ? "cc" : "");
        const QList<WizardPage *> pages {user->Page0, user->Page1, user->Page2, user->Page3,
                                         user->Page4};
        QString reached;
        for (int step = 0; step < SideBar::steps; ++step) {
            user->showPage(pages[from]);
            user.click(user->sideBar.button(from, step));
            if (user->currentPage() == pages[step])
                reached += QString::number(step);
            else
                QCOMPARE(user->currentPage(), pages[from]);
        }
        QVERIFY(user->updatesEnabled());
        QTEST(reached, "reachable");
        const bool isReviewed = from != 4 && reached.contains('4');
        QCOMPARE(user.finishIsEnabled() && !user->DetailsText->toPlainText().isEmpty(), isReviewed);
    }

    void putsTheFocusOnTheNewPage_data()
    {
        // The object's name, or the text of a button of the wizard's own.
        const Columns<QByteArray, Way, QString> row("settings", "change", "focused");
        const QByteArray product = "Product:\nkov\n";
        const QByteArray first = "Personality Destination Directory:\n..\\out\n\nPersonality Name:"
                                 "\nmine\n";
        const QByteArray both = first + "Compiler:\ncc\n";
        const auto locked = [](QByteArray settings) { return settings.replace(":\n", ":*\n"); };
        const Way nothing = [](const WizardUser &) {};
        const Way enter = [](const WizardUser &user) {
            user->PersonNameEdit->setFocus();
            QTest::keyClick(user->PersonNameEdit, Qt::Key_Return);
        };
        const Way next = [](const WizardUser &user) { user.press(QWizard::NextButton); };
        const Way back = [](const WizardUser &user) {
            user.press(QWizard::NextButton);
            user.press(QWizard::BackButton);
        };
        const Way sideBar = [](const WizardUser &user) { user.click(user->P0_DefBtn); };
        const Way enterOnSideBar = [](const WizardUser &user) {
            user->P0_SrchBtn->setFocus();
            QTest::keyClick(user->P0_SrchBtn, Qt::Key_Return);
        };
        const Way last = [](const WizardUser &user) {
            user->showPage(user->Page3);
            user.press(QWizard::NextButton);
        };
        const Way finish = [last](const WizardUser &user) {
            last(user);
            user->button(QWizard::FinishButton)->setFocus();
            user.finish();
        };
        const Way tab = [](const WizardUser &user) {
            user.click(user->KOVPPRadioButton);
            QTest::keyClick(user->KOVPPRadioButton, Qt::Key_Tab);
        };
        row("Enter", first, enter, "ExeCommandBtn");
        row("Enter, the next page answered", both, enter, "ExeCommandBtn");
        row("Next", first, next, "ExeCommandBtn");
        row("Next, the next page answered", both, next, "&Next >");
        row("Back", both, back, "KOVRadioButton");
        row("side bar", both, sideBar, "CmpSwtchEdit");
        row("Enter in the side bar", both, enterOnSideBar, "CmpHdrDirListBox");
        row("Next to the last page", both, last, "DetailsText");
        row("Finish", both, finish, "DetailsText");
        row("start", "", nothing, "KOVRadioButton");
        row("start with KOV++", "Product:\nkovpp\n", nothing, "KOVPPRadioButton");
        row("Tab from KOV++", "", tab, "PersonDestEdit");
        row("start with a locked product", locked(product), nothing, "PersonDestEdit");
        row("start on the second page", locked(product + first), nothing, "ExeCommandBtn");
    }
    void putsTheFocusOnTheNewPage()
    {
        QFETCH(QByteArray, settings);
        QFETCH(Way, change);
        const ProgramFolder folder;
        folder.write("bin/settings.txt", settings);
        const WizardUser user;
        change(user);
        const QWidget *holder = user->focusWidget();
        QVERIFY(holder->isVisible() && holder->isEnabled());
        const bool isOnPage = user->currentPage()->isAncestorOf(holder);
        QTEST(isOnPage ? holder->objectName() : holder->property("text").toString(), "focused");
    }

    void heedsNoDoubleClick()
    {
        const ProgramFolder folder;
        const WizardUser user;
        user.answerFirstPages();
        user->showPage(user->Page3);
        const auto click = [&user](QWizard::WizardButton which, quint64 time) {
            for (const auto type : {QEvent::MouseButtonPress, QEvent::MouseButtonRelease}) {
                QMouseEvent event(type, {1, 1}, {1, 1}, Qt::LeftButton, Qt::LeftButton, {});
                event.setTimestamp(time);
                QApplication::sendEvent(user->button(which), &event);
            }
        };
        const quint64 clicked = 1'000, second = clicked + QApplication::doubleClickInterval();
        click(QWizard::NextButton, clicked);
        QCOMPARE(user->currentPage(), user->Page4);
        click(QWizard::FinishButton, second - 1);
        QVERIFY(user.finishIsEnabled());
        click(QWizard::FinishButton, second);
        QVERIFY(!user.finishIsEnabled());
    }

    void leavesByEveryWay_data()
    {
        const Columns<Way, QString> row("leave", "cancelText"); // at the end
        const Way press = [](const WizardUser &user) { user.press(QWizard::CancelButton); };
        const Way escape = [](const WizardUser &user) {
            QTest::keyClick(user.wizard(), Qt::Key_Escape);
        };
        const Way close = [](const WizardUser &user) { user->close(); };
        const Way enter = [](const WizardUser &user) {
            QTest::keyClick(user->focusWidget(), Qt::Key_Return);
        };
        row("button", press, "Cancel");
        row("escape", escape, "Cancel");
        row("close box", close, "Cancel");
        row("German", close, "Abbrechen");
        row("button after success", press, "Close");
        row("enter after success", enter, "Close");
        row("German after success", close, "Schließen");
    }
    void leavesByEveryWay()
    {
        QFETCH(Way, leave);
        QFETCH(QString, cancelText);
        const bool succeeds = !QStringList {"Cancel", "Abbrechen"}.contains(cancelText);
        const Language language(cancelText.startsWith('C') ? "en" : "de");
        const ProgramFolder folder;
        const WizardUser user;
        user.walkToReview();
        if (succeeds)
            user.finish();
        QCOMPARE(user->buttonText(QWizard::CancelButton), cancelText);
        QSignalSpy rejected(user.wizard(), &QDialog::rejected);
        leave(user);
        QCOMPARE(rejected.count(), 1);
        QVERIFY(!user->isVisible());
        QCOMPARE(user->exitCode, succeeds ? 0 : 1);
        QCOMPARE(QFile::exists("settings.txt"), succeeds);
    }

    void highlightsTheButtonUnderThePointer()
    {
        const ProgramFolder folder;
        QFile::remove(folder.path("images/review_shd.bmp"));
        const WizardUser user;
        QEnterEvent enter({}, {}, {});
        QEvent leave(QEvent::Leave);
        const auto shows = [&folder](QPushButton *button, QEvent &event, const QString &bitmap) {
            QApplication::sendEvent(button, &event);
            return button->icon().pixmap(175, 23).toImage().convertToFormat(QImage::Format_RGB32)
                == QImage(folder.path(bitmap)).convertToFormat(QImage::Format_RGB32);
        };
        for (const auto &[button, name] : {std::pair(user->P0_CmpBtn, "images/compiler_command"),
                                           {user->P0_SrchBtn, "images/search_directories"},
                                           {user->P0_DefBtn, "images/defines_switches"}}) {
            QVERIFY(shows(button, enter, QString(name) + "_shd.bmp"));
            QVERIFY(shows(button, leave, QString(name) + ".bmp"));
        }
        QVERIFY(shows(user->P0_PrdctBtn, leave, "images/product_output_shd.bmp"));
        QVERIFY(shows(user->P0_RevBtn, enter, "no picture"));
    }

    void restsWhenNothingHappens()
    {
        // The event filter changes what it watches: that must come to an end.
        const ProgramFolder folder;
        const WizardUser user;
        user->showPage(user->Page1);
        int rounds = 0;
        while (rounds < 1000
               && QAbstractEventDispatcher::instance()->processEvents(QEventLoop::AllEvents))
            ++rounds;
        QVERIFY(rounds < 1000);
    }
};

QTEST_MAIN(TestNavigation)
#include "test_navigation.moc"
