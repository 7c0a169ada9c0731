#include "request.h"

#include "host_path.h"
#include "row.h"

#include <QRegularExpression>
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
        const Request request = parseRequest(
            {"kovpp",  "ccmp",         "\"cc -m32\"", "",         "-c",   "",      "",
             "%c %s ", "-i",           "..\\a b",     "-i",       "-op",  "-op",   "x.p_c",
             "-xd",    "A, B=(1,2) ,", "-xs",         "-x -y,-z", "-tpl", "..\\t", "-fi",
             "f",      "-sub",         "s",           "-rfs"});
        const auto *arguments = std::get_if<Arguments>(&request);
        QVERIFY(arguments);
        QVERIFY(arguments->isCpp && arguments->crossCompiler && arguments->reduceFileSize);
        QCOMPARE(arguments->headerDirectories, QStringList({platform::hostPath("..\\a b"), "-op"}));
        QCOMPARE(arguments->personality, "x.p_c");
        QCOMPARE(arguments->defines, QStringList({"A", "B=(1,2)"}));
        QCOMPARE(arguments->switches, QStringList({"-x -y", "-z"}));
        QCOMPARE(arguments->templateFile, platform::hostPath("..\\t"));
        QCOMPARE(arguments->forceIncludeFile + arguments->substituteHeaders, "fs");
    }

    void namesTheWrongArgument_data()
    {
        QTest::addColumn<QStringList>("list");
        QTest::addColumn<QString>("says");
        row("none", QStringList(), "no arguments");
        row("too short", plain().mid(0, 9), "missing behind the last one: -op");
        row("no output", plain().mid(0, 8), "missing behind the last one: %c %s ");
        row("unknown product", QStringList("-i") + plain().mid(1), "Argument 1 is not.*: -i$");
        row("unknown option", plain() + QStringList {"-x", "y"}, "Argument 11 is not.*: -x$");
        row("option without a value", plain() + QStringList {"-xd"}, "last one: -xd$");
        row("wrong order", plain() + QStringList {"-rfs", "-xd", "A"}, "Argument 12 .*: -xd$");
        row("no personality", QStringList {"again"}, "last one: again$");
        row("nothing to check", QStringList {"check", "x"}, "last one: x$");
        row("no file", QStringList {"check", "x", "y", "--json"}, "last one: --json$");
        row("unknown flag", QStringList {"again", "x", "--x"}, "Argument 3 .*: --x$");
        row("more than a word", QStringList {"--help", "me"}, "Argument 2 .*: me$");
    }
    void namesTheWrongArgument()
    {
        QVERIFY(std::holds_alternative<Arguments>(parseRequest(plain())));
        QFETCH(QStringList, list);
        QFETCH(QString, says);
        const Request request = parseRequest(list);
        const auto *error = std::get_if<UsageError>(&request);
        QVERIFY(error);
        QVERIFY2(error->sentence.contains(QRegularExpression(says)), qPrintable(error->sentence));
    }
};

QTEST_APPLESS_MAIN(TestArguments)
#include "test_arguments.moc"
