#include "arguments.h"

#include "host_path.h"
#include "row.h"

#include <QTest>

class TestArguments : public QObject
{
    Q_OBJECT

private:
    static QStringList plain()
    {
        return {"kov", "cmp", "cc", "-o", "-c", "-D", ".o", "%c %s ", "-op", "out\\x.p_c"};
    }

private slots:
    void takesTheWholeList()
    {
        const std::optional<Arguments> arguments = parseArguments(
            {"kovpp",  "ccmp",         "\"cc -m32\"", "",         "-c",   "",      "",
             "%c %s ", "-i",           "..\\a b",     "-i",       "-op",  "-op",   "x.p_c",
             "-xd",    "A, B=(1,2) ,", "-xs",         "-x -y,-z", "-tpl", "..\\t", "-fi",
             "f",      "-sub",         "s",           "-rfs"});
        QVERIFY(arguments);
        QVERIFY(arguments->isCpp && arguments->crossCompiler && arguments->reduceFileSize);
        QCOMPARE(arguments->headerDirectories, QStringList({platform::hostPath("..\\a b"), "-op"}));
        QCOMPARE(arguments->personality, "x.p_c");
        QCOMPARE(arguments->defines, QStringList({"A", "B=(1,2)"}));
        QCOMPARE(arguments->switches, QStringList({"-x -y", "-z"}));
        QCOMPARE(arguments->templateFile, platform::hostPath("..\\t"));
        QCOMPARE(arguments->forceIncludeFile + arguments->substituteHeaders, "fs");
    }

    void refusesOtherLists_data()
    {
        QTest::addColumn<QStringList>("list");
        row("none", QStringList());
        row("too short", plain().mid(0, 9));
        row("no output", plain().mid(0, 8));
        row("unknown product", QStringList("c") + plain().mid(1));
        row("unknown option", plain() + QStringList {"-x", "y"});
        row("option without a value", plain() + QStringList {"-xd"});
        row("wrong order", plain() + QStringList {"-rfs", "-xd", "A"});
    }
    void refusesOtherLists()
    {
        QVERIFY(parseArguments(plain()));
        QFETCH(QStringList, list);
        QVERIFY(!parseArguments(list));
    }
};

QTEST_APPLESS_MAIN(TestArguments)
#include "test_arguments.moc"
