#include "request.h"

#include "files.h"
#include "host_path.h"
#include "refusal.h"
#include "row.h"
#include "typed_command.h"

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
        const QString defines = "A, B=(1,2) ,V=\\\"1,2\\\",S=\"\\\"\"";
        QStringList list {"kovpp",  "ccmp",  "\"cc -m32\"", "",         "-c",    "",      "",
                          "%c %s ", "-i",    "..\\a b",     "-i",       "-op",   "-op",   "x.p_c",
                          "-xd",    defines, "-xs",         "-x -y,-z", "-tpl",  "..\\t", "-fi",
                          "f",      "-sub",  "s",           "-rfs",     "-check"};
        const Request request = parseRequest(list);
        const auto *arguments = std::get_if<Arguments>(&request);
        QVERIFY(arguments);
        QVERIFY(arguments->isCpp && arguments->crossCompiler && arguments->reduceFileSize
                && arguments->checksTypes);
        QCOMPARE(arguments->headerDirectories, QStringList({platform::hostPath("..\\a b"), "-op"}));
        QCOMPARE(arguments->personality, "x.p_c");
        QCOMPARE(arguments->defines, QStringList({"A", "B=(1,2)", "V=\"1,2\"", "S=\"\\\"\""}));
        QCOMPARE(arguments->switches, QStringList({"-x -y", "-z"}));
        QCOMPARE(arguments->templateFile, platform::hostPath("..\\t"));
        QCOMPARE(arguments->forceIncludeFile + arguments->substituteHeaders, "fs");
        list[list.indexOf("x.p_c")].clear(); // may be moved
        QCOMPARE(arguments->answers.arguments, list);
    }

    void takesTheCommandAsTyped_data()
    {
        const Columns<QString, QStringList, bool> row("command", "words", "hasQuotes");
        row("bare", "cc", {"cc"}, false);
        row("marks that stay", "cc -DV=\\\"1 2\\\"", {"cc", "-DV=\"1 2\""}, false);
        row("options", "\"cc -m32 -x\"", {"cc", "-m32", "-x"}, false);
        row("path with a space", "\"/a b/cc\"", {"/a b/cc"}, true);
        row("quoted path with options", "\"/a b/cc\" -m32 \"-D x\"", {"/a b/cc", "-m32", "-D x"},
            true);
        row("options with quotes", "\"cc -I\"a b\" -m32\"", {"cc", "-Ia b", "-m32"}, false);
        row("path with quotes", "\"/a \"b\"/cc\"", {"/a \"b\"/cc"}, true);
        row("unknown program", "\"dd -m32\"", {"dd", "-m32"}, false);
        row("empty", "", {}, false);
    }
    void takesTheCommandAsTyped()
    {
        QFETCH(QString, command);
        const auto isProgram = [](const QString &word) {
            return QStringList {"cc", "/a b/cc", "/a \"b\"/cc"}.contains(word);
        };
        QTEST(commandWords(command, isProgram), "words");
        QTEST(typedCommand(command, isProgram).startsWith('"'), "hasQuotes");
    }

    void namesTheWrongArgument_data()
    {
        const Columns<QStringList, QString> row("list", "says");
        row("none", {}, "no arguments");
        row("too short", plain().mid(0, 9), "missing behind the last one: -op");
        row("no output", plain().mid(0, 8), "missing behind the last one: %c %s ");
        row("unknown product", QStringList("-i") + plain().mid(1), "Argument 1 is not.*: -i$");
        row("unknown option", plain() + QStringList {"-x", "y"}, "Argument 11 is not.*: -x$");
        row("option without a value", plain() + QStringList {"-xd"}, "last one: -xd$");
        row("wrong order", plain() + QStringList {"-rfs", "-xd", "A"}, "Argument 12 .*: -xd$");
        row("no personality", {"again"}, "last one: again$");
        row("nothing to check", {"check", "x"}, "last one: x$");
        row("no file", {"check", "x", "y", "--json"}, "last one: --json$");
        row("unknown flag", {"again", "x", "--x"}, "Argument 3 .*: --x$");
        row("unknown format", {"export", "x", "xml"}, "Argument 3 .*: xml$");
        row("no database", {"export", "x", "compile-commands"}, "commands$");
        row("no output", {"export", "x", "cppcheck"}, "^cppcheck needs -o FILE");
        row("a database for nothing", {"export", "x", "json", "y"}, "4 .*: y$");
        row("no place for an entry", {"entry", "x"}, "last one: x$");
        row("more than a word", {"--help", "me"}, "Argument 2 .*: me$");
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

    void isDescribedByItsPackage()
    {
        const QString page = QString(readTestFile(DEBIAN "/bexlor.1")).remove('\\');
        const QString synopsis = page.section(".SH DESCRIPTION", 0, 0);
        const QString completion = readTestFile(DEBIAN "/bexlor.completion");
        const QRegularExpression words("(?<![\\w.-])-{0,2}[a-z]+(-[a-z]+)*(?![\\w:-])");
        for (const QRegularExpressionMatch &match : words.globalMatch(usage())) {
            const QString word = "(?<![\\w-])" + match.captured() + "(?![\\w-])";
            QVERIFY2(synopsis.contains(QRegularExpression(word)), qPrintable(word));
            QVERIFY2(completion.contains(QRegularExpression("-W '[^']*" + word)), qPrintable(word));
        }
    }

    void refusesWhatIsNotShown_data()
    {
        // given: in the place of what stands in plain()
        // reason: how it begins; empty: not refused
        const Columns<QString, int, QStringList, QString> row("given", "place", "more", "reason");
        const QString order = "The order of the compile command does not begin with the command";
        const QStringList none;
        row("nothing odd", "cc", 2, {"-xs", "-a\t-b", "-tpl", "..\\own\\..\\t"}, "");
        row("flags of a DOS tradition", "/Fo:", 3, none, "");
        row("nothing to start", "\" \"", 2, none, "There is no compiler command");
        row("order without the command", "odd", 7, none, order + ": odd");
        row("command behind another token", "%j %c %s ", 7, none, order);
        row("path behind a flag", "-o/etc/x", 3, none, "The output flag holds a path");
        row("drive behind a flag", "-oC:", 3, none, "The output flag holds a path");
        row("drive behind a colon", "/Fe:C:", 3, none, "The output flag holds a path");
        row("path behind a flag's space", "-o ..\\x", 4, none, "The object flag holds a path");
        row("path that is there", QDir::tempPath(), 5, none, "The define flag holds a path");
        row("path in the extension", ".o/../x", 6, none, "The object file extension holds a path");
        row("line feed in a flag", "-c\n-Dx", 4, none, "The object flag holds a control character");
        row("line feed in a command", "cc\n-Dx", 2, none, "There is a control character in");
        row("null in a define", "cc", 2, {"-xd", QString("A=") + QChar(0)},
            "There is a control character in");
        row("template outside its folder", "cc", 2,
            {"-tpl", "..\\TemplatePersonalities\\a/../../x"},
            "The template does not lie in the folder TemplatePersonalities");
        row("command in half", "\"cc -DA=\" \"", 2, none,
            "The command cannot be read, since a quotation mark is not closed: cc -DA=\"");
        row("define in half", "cc", 2, {"-xd", "A=1,B=\"x,C=2"},
            "The define cannot be read, since a quotation mark is not closed: B=\"x,C=2");
        row("define that is a path", "-o", 5, {"-xd", "A=1,/etc/x"},
            "The define does not begin with a name: /etc/x");
        row("define with its flag", "", 5, {"-xd", "-DA=1,/DB"}, "");
        row("switch in apostrophes", "cc", 2, {"-xs", "-DA='\"1\"',-c"},
            "The switch cannot be read, since there is an apostrophe before");
        row("line feed in a file's name", "cc", 2, {"-fi", "x\n-DX"},
            "The name of the force-include file holds a control character");
    }
    void refusesWhatIsNotShown()
    {
        QFETCH(QString, given);
        QFETCH(int, place);
        QFETCH(QStringList, more);
        QFETCH(QString, reason);
        QStringList list = plain() + more;
        list[place] = given;
        const QString told = refusalReason(std::get<Arguments>(parseArguments(list)));
        QVERIFY2(reason.isEmpty() ? told.isEmpty() : told.startsWith(reason), qPrintable(told));
    }
};

QTEST_APPLESS_MAIN(TestArguments)
#include "test_arguments.moc"
