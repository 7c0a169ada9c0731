#include "log_browser.h"
#include "row.h"
#include "wizard_test.h"

#include <QAbstractButton>
#include <QCheckBox>
#include <QLineEdit>
#include <QListWidget>
#include <QMessageBox>
#include <QProcess>
#include <QPushButton>
#include <QRadioButton>
#include <QTest>
#include <QTextEdit>

namespace {

const QString initial = "Initialising Compiler Personality Generation ...\n";
const QString success = "Personality Generated Successfully!";

QString details(const WizardUser &user)
{
    return user->DetailsText->toPlainText();
}

/// Starts a run and waits for the message of its failure, which is closed.
void finishAndSeeItFail(const WizardUser &user)
{
    QString message;
    QVERIFY(withDialog(
        [&] {
            user.press(QWizard::FinishButton);
            QTRY_VERIFY(!message.isEmpty());
        },
        [&](QWidget *widget) {
            auto *box = qobject_cast<QMessageBox *>(widget);
            message = box->windowTitle() + ": " + box->text();
            box->done(QMessageBox::Ok);
        }));
    QCOMPARE(message,
             "Calyx: Personality Generation Failed!\nPlease check the details on screen and try "
             "again.");
}

} // namespace

class TestRun : public QObject
{
    Q_OBJECT

private slots:
    void goesFromAnswersToAPersonality()
    {
        const ProgramFolder folder;
        ProgramFolder::instruct("print working\nexit 0");
        const WizardUser user;
        user.click(user->KOVPPRadioButton);
        user.type(user->PersonDestEdit, "..\\out");
        user.type(user->PersonNameEdit, "mine");
        user.press(QWizard::NextButton);
        user.type(user->CmpExeEdit, "cc   -m32 ");
        user.type(user->CmpExeFlagEdit, " -o");
        user.type(user->CmpDefFlagEdit, "-D ");
        user.type(user->CmpCmpFlagEdit, " -c");
        user.type(user->CmpObjExtFlagEdit, "o ");
        user.press(QWizard::NextButton);
        user->CmpHdrDirListBox->addItems({"\\inc one", "\\inc"});
        user.press(QWizard::NextButton);
        user.type(user->CmpDefEdit, "A=\"<b>\\\"");
        user->CmpDefEdit->insertPlainText("é");
        QTest::keyClick(user->CmpDefEdit, Qt::Key_Return);
        QTest::keyClicks(user->CmpDefEdit, "B");
        user.press(QWizard::NextButton);

        QCOMPARE(user->CmpExeEdit->text(), "cc -m32");
        const QString review = details(user);
        QVERIFY(
            review.startsWith("Product:\nkovpp\n\nPersonality Destination Directory:\n..\\out\n\n"
                              "Personality Name:\nmine\n\nCompiler:\ncc -m32\n\n"
                              "Cross Compiler:\nNo\n\nCompiler Output Flag:\n-o\n\n"));
        QVERIFY(review.endsWith(
            "Reduce File Size:\nNo\n\nCompiler Header Directories:\n\\inc one\n\\inc\n\n"
            "Compiler Defines:\nA=\"<b>\\\"é\nB\n\nCompiler Switches:\n\n\n"
            "Compiler Command Order:\ncc -m32 -o<exe file> -DXXX -c <src file> \n\n"));

        user.press(QWizard::FinishButton);
        QVERIFY(!user.finishIsEnabled());
        QTRY_COMPARE(details(user), initial + "working\n" + success);
        QCOMPARE(folder.generatorArguments(),
                 "kovpp\ncmp\n\"cc -m32\"\n-o\n-c\n-D\n.o\n%c %o%e %d%j %s \n-i\n\\inc one\n-i\n"
                 "\\inc\n-op\n..\\out\\mine.p_c\n-xd\nA=\"<b>\\\"é,B\n");
        QCOMPARE(user->buttonText(QWizard::CancelButton), "Close");
        QVERIFY(user->SaveLogBtn->isEnabled() && user->AddCompilerBtn->isEnabled());
        QVERIFY(!user.finishIsEnabled());
        user.press(QWizard::BackButton);
        user.press(QWizard::NextButton);
        QVERIFY(user.finishIsEnabled());
    }

    void showsOutputLiterallyAndWhole_data()
    {
        QTest::addColumn<QByteArray>("instructions");
        QTest::addColumn<QString>("shown");
        row("markup", QByteArray("print <b>bold</b> &amp;"), "<b>bold</b> &amp;\n");
        row("a character split over two reads", QByteArray("bytes caf\\xc3\nbytes \\xa9 au lait"),
            QString::fromLocal8Bit("café au lait\n"));
        row("a line split over two reads",
            QByteArray("bytes one \nbytes line\nbytes \\x0a\nprint two"), "one line\ntwo\n");
        row("a line end split over two reads",
            QByteArray("bytes one\\x0d\nbytes \\x0atwo\\x0d\\x0a"), "one\ntwo\n");
        row("no line end", QByteArray("bytes three"), "three\n");
    }
    void showsOutputLiterallyAndWhole()
    {
        QFETCH(QByteArray, instructions);
        QFETCH(QString, shown);
        const ProgramFolder folder;
        ProgramFolder::instruct(instructions);
        const WizardUser user;
        user.walkToReview();
        user.press(QWizard::FinishButton);
        QTRY_COMPARE(details(user), initial + shown + success);
    }

    void losesNoLineOfAFlood()
    {
        const ProgramFolder folder;
        ProgramFolder::instruct("lines 20000\nexit 0");
        const WizardUser user;
        user.walkToReview();
        user.press(QWizard::FinishButton);
        QTRY_VERIFY_WITH_TIMEOUT(user->AddCompilerBtn->isEnabled(), 30'000);
        const QStringList lines = details(user).split('\n');
        QCOMPARE(lines.size(), 20'002);
        for (int i = 0; i < 20'000; ++i)
            QVERIFY(lines[i + 1].startsWith(QString("line %1 of ").arg(i)));
    }

    void explainsAFailure()
    {
        const ProgramFolder folder;
        ProgramFolder::instruct("file compile.bat cc -c x.c\nfile stdout.log first\\x0asecond\n"
                                "file stderr.log <i>no</i> such file\\x0a\nexit 1");
        const WizardUser user;
        user.walkToReview();
        finishAndSeeItFail(user);
        QTRY_COMPARE(details(user),
                     initial
                         + "\n\nCommand Attempted:\ncc -c x.c\n\n\n ---- stdout details ----\n"
                           "first\n\nsecond\n\n\n ---- stderr details ----\n"
                           "<i>no</i> such file\n\n");
        QVERIFY(user->SaveLogBtn->isEnabled() && !user->AddCompilerBtn->isEnabled());
        QCOMPARE(user->buttonText(QWizard::CancelButton), "Cancel");
        user->reject();
        QCOMPARE(user->exitCode, 1);
    }

    void showsTheHeadingsOfMissingLogs()
    {
        const ProgramFolder folder;
        ProgramFolder::instruct("exit 3");
        const WizardUser user;
        user.walkToReview();
        finishAndSeeItFail(user);
        QTRY_COMPARE(details(user), initial
                                        + "\n\nCommand Attempted:\n\n ---- stdout details ----\n"
                                          "\n ---- stderr details ----\n");
    }

    void staysCalmWhenTheGeneratorCrashes()
    {
        const ProgramFolder folder;
        ProgramFolder::instruct("print here\ncrash");
        const WizardUser user;
        user.walkToReview();
        user.press(QWizard::FinishButton);
        const auto *process = user->findChild<QProcess *>();
        QTRY_COMPARE(process->state(), QProcess::NotRunning);
        QCOMPARE(details(user), initial + "here\n");
        QVERIFY(!user->SaveLogBtn->isEnabled() && !user.finishIsEnabled());
    }

    void saysThatTheGeneratorIsMissing()
    {
        const ProgramFolder folder;
        QFile::remove(folder.path("tools/Bexlor.exe"));
        const WizardUser user;
        user.walkToReview();
        user.press(QWizard::FinishButton);
        QTRY_COMPARE(details(user),
                     initial
                         + "Compiler Personality Generation could not be executed: Please ensure "
                           "Bexlor is set on the path.\n");
        QVERIFY(!user.finishIsEnabled() && !user->SaveLogBtn->isEnabled());
    }

    void endsARunningGeneratorWithTheWizard()
    {
        const ProgramFolder folder;
        ProgramFolder::instruct("print started\nbeat beat");
        for (const bool rejectFirst : {true, false}) {
            WizardUser user;
            user.walkToReview();
            user.press(QWizard::FinishButton);
            QTRY_COMPARE(details(user), initial + "started\n");
            const auto *process = user->findChild<QProcess *>();
            QTRY_VERIFY(!folder.read("bin/beat").isEmpty());
            if (rejectFirst) {
                user->reject();
                QTRY_COMPARE(process->state(), QProcess::NotRunning);
            }
            user.destroy();
            const QString beat = folder.read("bin/beat");
            QTest::qWait(200);
            QCOMPARE(folder.read("bin/beat"), beat);
        }
    }

    void canBeLeftWhileAFailureIsShown()
    {
        const ProgramFolder folder;
        ProgramFolder::instruct("exit 1");
        const WizardUser user;
        user.walkToReview();
        QVERIFY(withDialog(
            [&] {
                user.press(QWizard::FinishButton);
                QTRY_VERIFY(user->SaveLogBtn->isEnabled() && !user->isVisible());
            },
            [&](QWidget *widget) {
                user->reject();
                user->showPage(user->Page0);
                widget->close();
            }));
        QCOMPARE(user->exitCode, 1);
        QVERIFY(details(user).contains("Command Attempted:"));
    }

    void endsARunBeforeTheNextBegins()
    {
        const ProgramFolder folder;
        const WizardUser user;
        user.walkToReview();
        ProgramFolder::instruct("print first\nbeat beat");
        user.press(QWizard::FinishButton);
        QTRY_VERIFY(!folder.read("bin/beat").isEmpty());
        QVERIFY(!QFile::exists(folder.path("bin/settings.txt")));
        ProgramFolder::instruct("wait go\nprint second");
        user.press(QWizard::BackButton);
        user.press(QWizard::NextButton);
        user.press(QWizard::FinishButton);
        QVERIFY(folder.read("bin/settings.txt").startsWith("Product:\n"));
        QVERIFY(!user->SaveLogBtn->isEnabled());
        const QString beat = folder.read("bin/beat");
        folder.write("bin/go", "");
        QTRY_COMPARE(details(user), initial + "second\n" + success);
        QCOMPARE(folder.read("bin/beat"), beat);
    }

    void savesTheLog()
    {
        const ProgramFolder folder;
        const WizardUser user;
        ProgramFolder::instruct(QString::fromUtf8("print Größe").toLocal8Bit());
        user.walkToReview();
        user.press(QWizard::FinishButton);
        QTRY_VERIFY(user->SaveLogBtn->isEnabled());
        for (const QString &path : {QString(), folder.path("out/run.log")})
            QCOMPARE(withFileDialog([&] { user.click(user->SaveLogBtn); }, path),
                     folder.path("out"));
        const QString log = folder.read("out/run.log");
        QVERIFY(log.startsWith("Product:\nkov\n\n"));
        QVERIFY(
            log.endsWith("Compiler Command Order:\nExe Command\nOutput Flag\n<exe file>\nDefine "
                         "Flag\nObject Flag\n<src file>\n\n\n"
                         + initial + QString::fromUtf8("Größe\n") + success));
    }
};

QTEST_MAIN(TestRun)
#include "test_run.moc"
