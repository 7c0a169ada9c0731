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
#include <functional>

using Road = std::function<void(const WizardUser &)>;
Q_DECLARE_METATYPE(Road)

namespace {

const char *const steps[] = {"PrdctBtn", "CmpBtn", "SrchBtn", "DefBtn", "RevBtn"};
const char *const prefixes[] = {"P0_", "P1_", "P3_", "P2_", "P4_"}; // in the order of the pages

QPushButton *sideBarButton(const WizardUser &user, int page, int step)
{
    return user->findChild<QPushButton *>(QLatin1String(prefixes[page])
                                          + QLatin1String(steps[step]));
}

} // namespace

class TestNavigation : public QObject
{
    Q_OBJECT

private slots:
    void opensWithoutComplaint()
    {
        const ProgramFolder folder;
        const WizardUser user;
        QCOMPARE(user->currentPage(), user->Page0);
        QVERIFY(!user.nextIsEnabled());
        QVERIFY(user->DestErrorLabel->text().isEmpty()
                && user->CmpPathErrorLabel->text().isEmpty());
        QVERIFY(!user->button(QWizard::HelpButton)->isVisible());
    }

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
        for (int from = 2; from < 5; ++from)
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
        for (int step = 0; step < 5; ++step) {
            user->showPage(pages[from]);
            user.click(sideBarButton(user, from, step));
            const bool reached = reachable.contains(QString::number(step));
            QCOMPARE(user->currentPage(), pages[reached ? step : from]);
            if (step == 4 && reached && from != 4) {
                QVERIFY(user.finishIsEnabled());
                QVERIFY(!user->DetailsText->toPlainText().isEmpty());
            }
        }
    }

    void leavesByEveryRoad_data()
    {
        QTest::addColumn<Road>("leave");
        const auto row = [](const char *name, const Road &road) { QTest::newRow(name) << road; };
        row("button", [](const WizardUser &user) { user.press(QWizard::CancelButton); });
        row("escape",
            [](const WizardUser &user) { QTest::keyClick(user.wizard(), Qt::Key_Escape); });
        row("close box", [](const WizardUser &user) { user->close(); });
        row("slot", [](const WizardUser &user) { user->reject(); });
    }
    void leavesByEveryRoad()
    {
        QFETCH(Road, leave);
        for (const bool translated : {false, true}) {
            const Language language(translated ? "de" : "en");
            for (const int exitCode : {1, 0}) {
                const ProgramFolder folder;
                const WizardUser user;
                QCOMPARE(user->buttonText(QWizard::CancelButton),
                         translated ? "Abbrechen" : "Cancel");
                if (exitCode == 0) {
                    user.walkToReview();
                    user.press(QWizard::FinishButton);
                    QTRY_COMPARE(user->buttonText(QWizard::CancelButton),
                                 translated ? QString::fromUtf8("Schlie\303\237en") : "Close");
                }
                QSignalSpy rejected(user.wizard(), &QDialog::rejected);
                leave(user);
                QCOMPARE(rejected.count(), 1);
                QVERIFY(!user->isVisible());
                QCOMPARE(user->exitCode, exitCode);
            }
        }
    }

    void highlightsTheButtonUnderThePointer()
    {
        const ProgramFolder folder;
        const WizardUser user;
        const auto shows = [&](const QPushButton *button, const char *file) {
            const QImage expected(folder.path(QString("images/%1.bmp").arg(file)));
            return button->icon().pixmap(175, 23).toImage().convertToFormat(expected.format())
                == expected;
        };
        const auto leaveAndEnter = [](QPushButton *button, bool enter) {
            QEnterEvent entering({}, {}, {});
            QEvent leaving(QEvent::Leave);
            QApplication::sendEvent(button, enter ? &entering : &leaving);
        };
        leaveAndEnter(user->P0_SrchBtn, true);
        QVERIFY(shows(user->P0_SrchBtn, "search_directories_shd"));
        leaveAndEnter(user->P0_SrchBtn, false);
        QVERIFY(shows(user->P0_SrchBtn, "search_directories"));
        leaveAndEnter(user->P0_PrdctBtn, false);
        QVERIFY(shows(user->P0_PrdctBtn, "product_output_shd"));

        QFile::remove(folder.path("images/search_directories_shd.bmp"));
        const WizardUser withoutImage;
        leaveAndEnter(withoutImage->P0_SrchBtn, true);
        QVERIFY(withoutImage->P0_SrchBtn->icon().isNull());
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
