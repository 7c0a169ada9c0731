#include "calyx_base.h"
#include "command_order.h"
#include "compiler_catalogue.h"
#include "form_answers.h"
#include "generator_arguments.h"
#include "record_answers.h"
#include "review.h"
#include "row.h"
#include "settings_text.h"

namespace {

/// Everything that a settings file says of \a answers, keys that it never holds included.
QString told(const Answers &answers)
{
    QString text;
    for (const AnswerField &field : answerTable())
        text += reviewBlock(field.key, field.lines(answers));
    return text;
}

QString arguments(const Answers &answers)
{
    return generatorArguments(answers).join('|') + '|';
}

Answers unanswered()
{
    return answersOn(CalyxBase(), Answers());
}

const QString noArguments = "Bexlor.exe|kov|cmp||||||%c %o%e %d%j %s |-op|\\.p_c|";

} // namespace

class TestAnswers : public QObject
{
    Q_OBJECT

private slots:
    // Each row changes one answer, and must change what belongs to it in every place and nothing
    // else.
    void goEveryWay_data()
    {
        // The lines of the settings file and of the catalogue, if there is one; all of the
        // generator's arguments; whether it is on a page, and whether a compiler of the other
        // language resets it.
        const Columns<QString, QString, QString, bool, bool> add("lines", "recordLine", "arguments",
                                                                 "isSeen", "isReset");
        enum { Unseen = 0, Seen = 1, Reset = 2 };
        const auto row = [&add](const char *key, const QString &lines, const QString &recordLine,
                                const char *argument, const char *inItsPlace, int flags) {
            add(key, lines, recordLine, QString(noArguments).replace(argument, inItsPlace),
                flags & Seen, flags & Reset);
        };
        row("Product:", "kovpp\n", "", "|kov|", "|kovpp|", Seen);
        row("Personality Destination Directory:", "D\n", "", "|\\.p_c", "|D\\.p_c", Seen);
        row("Personality Name:", "N.p_c\n", "", "\\.p_c", "\\N.p_c", Seen);
        row("Compiler:", "cc -m\n", "<ExeCommand>cc -m", "|cmp||", "|cmp|\"cc -m\"|", Seen | Reset);
        row("Cross Compiler:", "Yes\n", "<CrossCompiler>yes", "|cmp|", "|ccmp|", Seen | Reset);
        row("Compiler Output Flag:", "-o\n", "<OutputFlag>-o", "|cmp||", "|cmp||-o", Seen | Reset);
        row("Compiler Object File Generation Flag:", "-c\n", "<ObjectFlag>-c", "|cmp|||",
            "|cmp|||-c", Seen | Reset);
        row("Compiler Define Flag:", "-D\n", "<DefineFlag>-D", "|||%", "|-D||%", Seen | Reset);
        row("Object File Extension:", "o\n", "<ObjectFileExtension>o", "||%", "|.o|%", Seen);
        row("Reduce File Size:", "Yes\n", "<ReduceFileSize>yes", "p_c|", "p_c|-rfs|", Seen | Reset);
        row("Compiler Header Directories:", "\\a b\n\\a\n", "", "-op", "-i|\\a b|-i|\\a|-op", Seen);
        row("Compiler Defines:", "A\nB=1\n", "<CompilerDefines>A,B=1,", "p_c|", "p_c|-xd|A,B=1,|",
            Seen);
        row("Compiler Switches:", "-x\n", "<CompilerSwitches>-x,", "p_c|", "p_c|-xs|-x,|", Seen);
        row("Compiler Command Order:", "<src file>\nExe Command\n", "<Order>%s %c ",
            "%c %o%e %d%j %s ", "%s %c ", Seen | Reset);
        row("Exe Trailing Space:", "yes\n", "<Order>%c %o %e %d%j %s ", "%o%e", "%o %e", Seen);
        row("Def Trailing Space:", "yes\n", "<Order>%c %o%e %d %j %s ", "%d%j", "%d %j", Seen);
        row("Selected Compiler Family:", "F\n", "<Family>F", "", "", Unseen);
        row("Selected Compiler Name:", "N - C\n", "<Name>N - C", "", "", Reset);
        row("Template Personality File:", "t\n", "<Template>t", "p_c|",
            "p_c|-tpl|..\\TemplatePersonalities\\t|", Reset);
        row("Force Include File:", "f\n", "<ForceIncludeFile>f", "p_c|",
            "p_c|-fi|..\\ForceIncludeFiles\\f|", Reset);
        row("Substitute Headers:", "s\n", "<SubHeaders>s", "p_c|",
            "p_c|-sub|..\\SubstituteHeaders\\s|", Reset);
        row("Compiler Family Set:*", "F\n", "", "", "", Unseen);
    }
    void goEveryWay()
    {
        QFETCH(QString, lines);
        QFETCH(QString, recordLine);
        QFETCH(bool, isSeen);
        QFETCH(bool, isReset);
        const QString key = QTest::currentDataTag();
        const Answers none = unanswered();
        const auto isRecorded = [&recordLine](const CompilerRecord &record) {
            return catalogueText({{}, {record}}).contains("  " + recordLine.toUtf8() + "</");
        };

        CalyxBase form;
        Answers answers = none;
        parseSettings(key + '\n' + lines + '\n', answers);
        const QString all = told(answers);
        QVERIFY(all != told(none) && all.contains(key + '\n' + lines));
        showAnswers(answers, form, ~0U);
        QCOMPARE(told(answersOn(form, answers)), all);
        QCOMPARE(told(answersOn(form, none)), isSeen ? all : told(none));
        QTEST(arguments(answers), "arguments");

        Answers reread = none;
        parseSettings(settingsText(reviewText(answers, AnswerField::Kept), answers), reread);
        QCOMPARE(told(reread), key.endsWith('*') ? told(none) : all);

        const CompilerRecord record = recordFrom(answers);
        QCOMPARE(isRecorded(record), !recordLine.isEmpty());
        CompilerRecord updated;
        updateRecord(updated, answers);
        QCOMPARE(isRecorded(updated), !recordLine.isEmpty() && isSeen);
        Answers applied = none;
        applyRecord(record, applied);
        QCOMPARE(recordFrom(applied), record);

        Answers emptied = answers;
        resetCompiler(emptied);
        QCOMPARE(told(emptied), isReset ? told(none) : all);
    }

    void areShownWithEscapes()
    {
        const Answers answers {.defines = QString('A') + QChar(0x202e)};
        QVERIFY(reviewText(answers, AnswerField::Shown).contains("\nA\\u202E\n"));
        QVERIFY(!reviewText(answers, AnswerField::Kept).contains("u202E"));
    }
};

QTEST_MAIN(TestAnswers)
#include "test_answers.moc"
