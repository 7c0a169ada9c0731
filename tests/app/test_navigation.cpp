#include "log_browser.h"
#include "row.h"
#include "wizard_test.h"

#include <QAbstractButton>
#include <QApplication>
#include <QEnterEvent>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QSignalSpy>
#include <QTest>

using Way = std::function<void(const WizardUser &)>;

class TestNavigation : public QObject
{
    Q_OBJECT

private slots:
    void followsTheSideBar_data()
    {
        QTest::addColumn<bool>("answered"); // Page0
        QTest::addColumn<bool>("valid");    // the command
        QTest::addColumn<int>("from");
        QTest::addColumn<QString>("reachable"); // the pages, each a digit
        row("nothing answered", false, false, 0, "0");
        row("a valid command only", false, true, 0, "0");
        row("the first page answered", true, false, 0, "01");
        row("both answered", true, true, 0, "01234");
        row("command missing", true, false, 1, "01");
        row("command given", true, true, 1, "01234");
        for (int from = 2; from < SideBar::steps; ++from)
            QTest::addRow("page %d checks nothing", from) << false << false << from << "01234";
    }
    void followsTheSideBar()
    {
        QFETCH(bool, answered);
        QFETCH(bool, valid);
        QFETCH(int, from);
        QFETCH(QString, reachable);
        const ProgramFolder folder;
        const WizardUser user;
        user->PersonDestEdit->setText(answered ? "..\\out" : "..\\nowhere");
        user->PersonNameEdit->setText("mine");
        user->CmpExeEdit->setText(valid ? "cc" : "no-such-compiler");
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
        QCOMPARE(reached, reachable);
        const bool isReviewed = from != 4 && reached.contains('4');
        QCOMPARE(user.finishIsEnabled() && !user->DetailsText->toPlainText().isEmpty(), isReviewed);
    }

    void putsTheFocusOnTheNewPage_data()
    {
        QTest::addColumn<QByteArray>("settings");
        QTest::addColumn<Way>("change");
        QTest::addColumn<QString>("focused"); // object name; the wizard's own buttons by their text
        const QByteArray answered = "Compiler:\ncc\n";
        const QByteArray locked = "Product:*\nkov\n\nPersonality Destination Directory:*\n..\\out"
                                  "\n\nPersonality Name:*\nmine\n";
        const auto answer = [](const WizardUser &user) {
            user.type(user->PersonDestEdit, "..\\out");
            user.type(user->PersonNameEdit, "mine");
        };
        const Way nothing = [](const WizardUser &) {};
        const Way enter = [answer](const WizardUser &user) {
            answer(user);
            QTest::keyClick(user->PersonNameEdit, Qt::Key_Return);
        };
        const Way next = [answer](const WizardUser &user) {
            answer(user);
            user.press(QWizard::NextButton);
        };
        const Way back = [next](const WizardUser &user) {
            next(user);
            user.press(QWizard::BackButton);
        };
        const Way sideBar = [answer](const WizardUser &user) {
            answer(user);
            user.click(user->P0_DefBtn);
        };
        const Way enterOnSideBar = [answer](const WizardUser &user) {
            answer(user);
            user->P0_SrchBtn->setFocus();
            QTest::keyClick(user->P0_SrchBtn, Qt::Key_Return);
        };
        const Way last = [](const WizardUser &user) {
            user->showPage(user->Page3);
            user.press(QWizard::NextButton);
        };
        const Way finish = [](const WizardUser &user) {
            user->showPage(user->Page3);
            user.press(QWizard::NextButton);
            user->button(QWizard::FinishButton)->setFocus();
            user.finish();
        };
        row("Enter", QByteArray(), enter, "ExeCommandBtn");
        row("Enter, the next page answered", answered, enter, "ExeCommandBtn");
        row("Next", QByteArray(), next, "ExeCommandBtn");
        row("Next, the next page answered", answered, next, "&Next >");
        row("Back", answered, back, "KOVRadioButton");
        row("side bar", answered, sideBar, "CmpSwtchEdit");
        row("Enter in the side bar", answered, enterOnSideBar, "CmpHdrDirListBox");
        row("Next to the last page", answered, last, "DetailsText");
        row("Finish", answered, finish, "DetailsText");
        row("start", QByteArray(), nothing, "KOVRadioButton");
        row("start with a locked product", locked.left(16), nothing, "PersonDestEdit");
        row("start on the second page", locked, nothing, "ExeCommandBtn");
    }
    void putsTheFocusOnTheNewPage()
    {
        QFETCH(QByteArray, settings);
        QFETCH(Way, change);
        QFETCH(QString, focused);
        const ProgramFolder folder;
        folder.write("bin/settings.txt", settings);
        const WizardUser user;
        change(user);
        const QWidget *holder = user->focusWidget();
        QVERIFY(holder->isVisible() && holder->isEnabled());
        const auto *ownButton = qobject_cast<const QPushButton *>(holder);
        QCOMPARE(user->currentPage()->isAncestorOf(holder) ? holder->objectName()
                                                           : ownButton->text(),
                 focused);
    }

    void heedsNoDoubleClick_data()
    {
        QTest::addColumn<int>("pause"); // between the clicks, in milliseconds
        QTest::addColumn<bool>("starts");
        row("double click", QApplication::doubleClickInterval() - 1, false);
        row("two clicks", QApplication::doubleClickInterval(), true);
    }
    void heedsNoDoubleClick()
    {
        QFETCH(int, pause);
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
        click(QWizard::NextButton, 1'000);
        QCOMPARE(user->currentPage(), user->Page4);
        click(QWizard::FinishButton, 1'000 + quint64(pause));
        QTEST(!user.finishIsEnabled(), "starts");
    }

    void leavesByEveryWay_data()
    {
        QTest::addColumn<Way>("leave");
        QTest::addColumn<QString>("cancelText"); // at the end
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
        row("escape after success", escape, "Close");
        row("enter after success", enter, "Close");
        row("German after success", close, QString::fromUtf8("Schlie\303\237en"));
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
        const auto shown = [](QPushButton *button, bool enter) {
            QEnterEvent entering({}, {}, {});
            QEvent leaving(QEvent::Leave);
            QApplication::sendEvent(button, enter ? &entering : &leaving);
            return button->icon().pixmap(175, 23).toImage().convertToFormat(QImage::Format_RGB32);
        };
        const auto bitmap = [&folder](const QString &name) {
            return QImage(folder.path("images/" + name + ".bmp"))
                .convertToFormat(QImage::Format_RGB32);
        };
        QCOMPARE(shown(user->P0_SrchBtn, true), bitmap("search_directories_shd"));
        QCOMPARE(shown(user->P0_SrchBtn, false), bitmap("search_directories"));
        QCOMPARE(shown(user->P0_PrdctBtn, false), bitmap("product_output_shd"));
        QVERIFY(shown(user->P0_RevBtn, true).isNull());
    }

    void restsWhenNothingHappens()
    {
        // The event filter changes what it watches: that must come to an end.
        class PaintCounter : public QObject
        {
        public:
            int paints = 0;
            bool eventFilter(QObject *, QEvent *event) override
            {
                paints += event->type() == QEvent::Paint;
                return false;
            }
        };
        const ProgramFolder folder;
        const WizardUser user;
        user->showPage(user->Page1);
        QTest::qWait(100);
        PaintCounter counter;
        user->P1_CmpBtn->installEventFilter(&counter);
        user->CmpCmdOrder->installEventFilter(&counter);
        QTest::qWait(300);
        QVERIFY2(counter.paints < 5, qPrintable(QString::number(counter.paints)));
    }
};

QTEST_MAIN(TestNavigation)
#include "test_navigation.moc"
