#include "wizard_test.h"

namespace {

const QString initial = "Initialising Compiler Personality Generation ...\n";
const QString success = "Personality Generated Successfully!";
const QString failure =
    "Personality Generation Failed!\nPlease check the details on screen and try again.";

QString details(const WizardUser &user)
{
    return user->DetailsText->toPlainText();
}

} // namespace

class TestRun : public QObject
{
    Q_OBJECT

private slots:
    void goesFromAnswersToAPersonality()
    {
        const ProgramFolder folder;
        const WizardUser user;
        user.click(user->KOVPPRadioButton);
        user.answerFirstPages();
        user.type(user->CmpExeEdit, "cc   -m32 ");
        user.type(user->CmpExeFlagEdit, " -o");
        user.type(user->CmpDefFlagEdit, "-D");
        user.type(user->CmpObjExtFlagEdit, "o ");
        QCOMPARE(user->toCommaList("A\nB=1"), "A,B=1");
        const QString order = user->commandOrderString();
        user->applyOrderString("%s %c ");
        QCOMPARE(user->commandOrderString(), "%s %c ");
        user->applyOrderString(order);
        user.press(QWizard::NextButton);
        user->CmpHdrDirListBox->addItems({"\\inc one", "\\größe"});
        user.press(QWizard::NextButton);
        user.type(user->CmpDefEdit, "A=\"<b>\\\"");
        QTest::keyClick(user->CmpDefEdit, Qt::Key_Return);
        QTest::keyClicks(user->CmpDefEdit, "B");
        user.press(QWizard::NextButton);
        QCOMPARE(user->CmpExeEdit->text(), "cc -m32");
        const QString review = details(user);
        QVERIFY(
            review.startsWith("Product:\nkovpp\n\nPersonality Destination Directory:\n..\\out"));
        QVERIFY(review.endsWith(
            "Compiler Header Directories:\n\\inc one\n\\größe\n\nCompiler "
            "Defines:\nA=\"<b>\\\"\nB\n\nCompiler Switches:\n\n\n"
            "Compiler Command Order:\ncc -m32 -o<exe file> -DXXX  <src file> \n\n"));

        user.press(QWizard::FinishButton);
        QVERIFY(!user.finishIsEnabled());
        user.waitForTheEnd();
        QCOMPARE(
            folder.generatorArguments(),
            "kovpp\ncmp\n\"cc -m32\"\n-o\n\n-D\n.o\n%c %o%e %d%j %s \n-i\n\\inc one\n-i\n\\größe\n"
            "-op\n..\\out\\mine.p_c\n-xd\nA=\"<b>\\\",B\n");
        QVERIFY(!user.finishIsEnabled());
        user.press(QWizard::BackButton);
        user.press(QWizard::NextButton);
        QVERIFY(user.finishIsEnabled());

        // The next start has the same answers; lines that were typed may get an empty one behind
        // them.
        const WizardUser next;
        QVERIFY(next.nextIsEnabled());
        next->showPage(next->Page3);
        next.press(QWizard::NextButton);
        QCOMPARE(details(next).simplified(), review.simplified());
    }

    void tellsHowItEnds_data()
    {
        const Columns<QByteArray, QString, QString, bool> row("instructions", "message", "shown",
                                                              "canSaveLog");
        const auto succeeds = [&row](const char *name, const QByteArray &instructions,
                                     const QString &output) {
            row(name, instructions, "", output + success, true);
        };
        succeeds("markup", "print <b>bold</b> &amp;", "<b>bold</b> &amp;\n");
        succeeds("a character split over two reads", "bytes caf\\xc3\nbytes \\xa9 au lait",
                 QString::fromLocal8Bit("café au lait\n"));
        succeeds("a line split over two reads", "bytes one \nbytes line\nbytes \\x0a\nprint two",
                 "one line\ntwo\n");
        succeeds("a line end split over two reads", "bytes one\\x0d\nbytes \\x0atwo\\x0d\\x0a",
                 "one\ntwo\n");
        succeeds("questions that nobody answers", "input\nprint on", "on\n");
        succeeds("no line end", "bytes three", "three\n");
        succeeds("a flood of lines", "lines 20000\nexit 0",
                 QString("one of many\n").repeated(20'000));
        row("failure with logs",
            "file compile.bat cc -c x.c\nfile stdout.log first\\x0asecond\n"
            "file stderr.log <i>no</i> such caf\\xc3\\xa9\\x0a\nexit 1",
            failure,
            "\n\nCommand Attempted:\ncc -c x.c\n\n\n ---- stdout details ----\n"
            "first\n\nsecond\n\n\n ---- stderr details ----\n<i>no</i> such café\n\n",
            true);
        row("failure without logs", "exit 3", failure,
            "\n\nCommand Attempted:\n\n ---- stdout details ----\n\n ---- stderr details ----\n",
            true);
        row("crash", "print here\ncrash", "", "here\n", false);
        row("no generator", "missing", "",
            "Compiler Personality Generation could not be executed: Please ensure Bexlor is set on "
            "the path.\n",
            false);
        // "?" stands for the system's own words.
        row("no program", "no program", "",
            "Compiler Personality Generation could not be executed: Please ensure Bexlor is set on "
            "the path.\n?\n",
            false);
    }
    void tellsHowItEnds()
    {
        QFETCH(QByteArray, instructions);
        QFETCH(QString, shown);
        const ProgramFolder folder;
        ProgramFolder::instruct(instructions);
        if (instructions == "missing")
            QFile::remove(folder.path("tools/Bexlor.exe"));
        if (instructions == "no program")
            folder.write("tools/Bexlor.exe", instructions);
        const WizardUser user;
        user.walkToReview();
        QTEST(user.finish(), "message");
        static const QRegularExpression reason("(?<=the path\\.\n).+");
        QCOMPARE(details(user).replace(reason, "?"), initial + shown);
        QTEST(user->SaveLogBtn->isEnabled(), "canSaveLog");
        const bool isSuccess = shown.endsWith(success);
        QCOMPARE(user->DetailsText->viewport()->cursor().shape(), Qt::ArrowCursor);
        QCOMPARE(user->AddCompilerBtn->isEnabled(), isSuccess);
        QCOMPARE(user->buttonText(QWizard::CancelButton), isSuccess ? "Close" : "Cancel");
        QVERIFY(!user.finishIsEnabled());
        user->reject();
        QCOMPARE(user->exitCode, isSuccess ? 0 : 1);
        QCOMPARE(QFile::exists("settings.txt"), !shown.contains("could not be executed"));
    }

    void endsARunningGenerator_data()
    {
        const Columns<std::function<void(WizardUser &)>> row("end");
        row("with the wizard's end", [](WizardUser &user) {
            user->reject();
            QVERIFY(QFile::exists("settings.txt"));
        });
        row("with the wizard itself", [](WizardUser &user) { user.destroy(); });
        row("before the next run begins", [](WizardUser &user) {
            ProgramFolder::instruct("print second");
            user.press(QWizard::BackButton);
            user.press(QWizard::NextButton);
            QVERIFY(user.finish().isEmpty());
            QCOMPARE(details(user), initial + "second\n" + success);
        });
    }
    void endsARunningGenerator()
    {
        QFETCH(std::function<void(WizardUser &)>, end);
        const ProgramFolder folder;
        ProgramFolder::instruct("print started\nchild ../child\nbeat beat");
        WizardUser user;
        user.walkToReview();
        user.press(QWizard::FinishButton);
        for (const char *beat : {"bin/beat", "child"})
            QTRY_VERIFY_WITH_TIMEOUT(!folder.read(beat).isEmpty(), patience);
        for (const QWidget *widget : {user->DetailsText->viewport(), (QWidget *)user->Page4})
            QCOMPARE(widget->cursor().shape(), Qt::BusyCursor);
        end(user);
        for (const char *beat : {"bin/beat", "child"})
            QTRY_VERIFY_WITH_TIMEOUT(folder.hasStopped(beat), patience);
    }

    void canBeLeftWhileAFailureIsShown_data()
    {
        const Columns<bool> row("leaves");
        row("the wizard", true);
        row("the page", false);
    }
    void canBeLeftWhileAFailureIsShown()
    {
        QFETCH(bool, leaves);
        const ProgramFolder folder;
        ProgramFolder::instruct("exit 1");
        const WizardUser user;
        user.walkToReview();
        withDialog([&user] { user.press(QWizard::FinishButton), user.waitForTheEnd(); },
                   [&](QWidget *box) {
                       if (leaves)
                           user->reject();
                       user->showPage(user->Page0);
                       box->close();
                   });
        QCOMPARE(user->isVisible(), !leaves);
        QVERIFY(leaves || user->currentPage() == user->Page4); // where the details can be read
        QCOMPARE(user->exitCode, leaves ? 1 : 0);
        QVERIFY(details(user).contains("Command Attempted:"));
    }

    void savesTheLog()
    {
        const ProgramFolder folder;
        const WizardUser user;
        ProgramFolder::instruct(QString("print Größe").toLocal8Bit());
        user.walkToReview();
        user.finish();
        const QString output = initial + "Größe\n" + success;
        for (const QString &path : {QString(), folder.path("out/run")})
            QCOMPARE(withFileDialog([&] { user.click(user->SaveLogBtn); }, path),
                     folder.path("out"));
        const QString log = folder.read("out/run.log");
        QVERIFY(log.startsWith("Product:\nkov\n\n"));
        QVERIFY(log.endsWith("\nObject Flag\n<src file>\n\n\n" + output));
        QCOMPARE(details(user),
                 output + "\nLog Saved: " + folder.path("out/run.log").replace('/', '\\'));

        withDialog([&] { user.click(user->SaveLogBtn); },
                   [](QWidget *dialog) {
                       QCOMPARE(dialog->windowTitle(), "Save Log File as ..");
                       qobject_cast<QDialog *>(dialog)->accept();
                   });
        QVERIFY(folder.read("out/mine.log").contains("Log Saved: "));
    }
};

QTEST_MAIN(TestRun)
#include "test_run.moc"
