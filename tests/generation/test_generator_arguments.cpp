#include "command_order.h"
#include "generator_arguments.h"
#include "row.h"

#include <QTest>
#include <functional>

using Change = std::function<void(Answers &)>;
Q_DECLARE_METATYPE(Change)

class TestGeneratorArguments : public QObject
{
    Q_OBJECT

private slots:
    void listsTheAnswers_data()
    {
        QTest::addColumn<Change>("change");
        QTest::addColumn<QString>("expected"); // the arguments, each followed by "|"
        const auto row = [](const char *name, const QString &expected, const Change &change) {
            QTest::newRow(name) << change << expected;
        };
        row("plain", "Bexlor.exe|kov|cmp|cc|-o|-c|-D|.obj|%c %o%e %d%j %s |-i|\\inc|-op|D\\N.p_c|",
            [](Answers &) {});
        row("nothing answered", "Bexlor.exe|kov|cmp||||||%c %o%e %d%j %s |-op|\\.p_c|",
            [](Answers &answers) {
                const QStringList order = answers.order;
                answers = Answers();
                answers.productCode = "kov";
                answers.order = order;
            });
        row("everything answered",
            "Bexlor.exe|kovpp|ccmp|\"cc -m32\"|-o|-c|-D|.o|%c %o %e %d %j %s |-i|\\b|-i|\\a|-op|"
            "D\\N.p_c|-xd|A=1,B|-xs|-x,-y,|-tpl|..\\TemplatePersonalities\\t|-fi|\\f\\f|-sub|"
            "..\\SubstituteHeaders\\s|-rfs|",
            [](Answers &answers) {
                answers.productCode = "kovpp";
                answers.crossCompiler = true;
                answers.command = "cc -m32";
                answers.spaceAfterOutputFlag = true;
                answers.spaceAfterDefineFlag = true;
                answers.objectExtension = ".o";
                answers.headerDirectories = QStringList {"\\b", "\\a"};
                answers.name = "N.p_c";
                answers.defines = "A=1\n\nB";
                answers.switches = "-x\n-y\n";
                answers.templatePersonalityFile = "t";
                answers.forceIncludeFile = "\\f\\f";
                answers.substituteHeaders = "s";
                answers.reduceFileSize = true;
            });
        row("a force-include file of the folder",
            "Bexlor.exe|kov|cmp|cc|-o|-c|-D|.obj|%c %o%e %d%j %s |-i|\\inc|-op|D\\N.p_c|-fi|"
            "..\\ForceIncludeFiles\\f|",
            [](Answers &answers) { answers.forceIncludeFile = "f"; });
    }
    void listsTheAnswers()
    {
        QFETCH(Change, change);
        Answers answers;
        answers.productCode = "kov";
        answers.destination = "D";
        answers.name = "N";
        answers.order = defaultOrder();
        answers.command = "cc";
        answers.outputFlag = "-o";
        answers.defineFlag = "-D";
        answers.objectFlag = "-c";
        answers.objectExtension = "obj";
        answers.headerDirectories = QStringList {"\\inc"};
        change(answers);
        const QStringList arguments = generatorArguments(answers);
        QTEST(arguments.join('|') + '|', "expected");
    }

    void quotesCommandsWithSpacesOnce_data()
    {
        QTest::addColumn<QString>("command");
        QTest::addColumn<QString>("argument");
        row("no space", "cc", "cc");
        row("space", "cc -m32", "\"cc -m32\"");
        row("begins with a quote", "\"c c\" -m32", "\"c c\" -m32");
        row("ends with a quote", "cc -D\"a b\"", "cc -D\"a b\"");
    }
    void quotesCommandsWithSpacesOnce()
    {
        QFETCH(QString, command);
        Answers answers;
        answers.command = command;
        QTEST(generatorArguments(answers).at(3), "argument");
    }
};

QTEST_APPLESS_MAIN(TestGeneratorArguments)
#include "test_generator_arguments.moc"
