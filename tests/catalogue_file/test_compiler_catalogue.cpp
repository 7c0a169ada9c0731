#include "catalogue_file.h"
#include "download.h"
#include "row.h"

class TestCompilerCatalogue : public QObject
{
    Q_OBJECT

private slots:
    void readsFields_data()
    {
        const Columns<QString, QString> row("line", "name");
        row("indented", "   <Name>cc - C</Name>", "cc - C");
        row("tab, carriage return", "\t<Name>cc - C</Name>\r", "cc - C");
        row("space inside the tags", "<Name> cc </Name>", " cc ");
        row("text after the closing tag", "<Name>cc</Name> - C", "cc - C");
        row("runs of white space", "<Name>c  \t c</Name>", "c c");
        row("repeated tags", "<Name><Name>cc</Name></Name>", "cc");
        row("no closing tag", "<Name>cc", "cc");
        row("other case", "<name>cc</name>", "");
        row("tag not at the start", "x <Name>cc</Name>", "");
        row("replaced later", "<Name>a</Name>\n<Name>b</Name>", "b");
    }
    void readsFields()
    {
        QFETCH(QString, line);
        const CompilerCatalogue read =
            parseCatalogue("<Compiler>\n" + line.toUtf8() + "\n</Compiler>\n");
        QCOMPARE(read.compilers.size(), 1);
        QTEST(read.compilers[0].Name, "name");
    }

    void keepsToItsBlocks_data()
    {
        const Columns<QByteArray, QStringList, QStringList> row("text", "families", "names");
        row("nothing", "", {}, {});
        row("noise", "x\n<Name>n</Name>\n</Compiler>\n<compiler>", {}, {});
        row("families, one twice",
            "<CompilerFamily>B</CompilerFamily>\n <CompilerFamily> A\n<CompilerFamily>B",
            {"B", " A", "B"}, {});
        row("text behind a block's start and end",
            "<Compiler> x\n<Name>a</Name>\n</Compiler> x\n<Name>b</Name>\n </Compiler> \n", {},
            {"b"});
        row("a family and a start inside a block",
            "<Compiler>\n<CompilerFamily>F\n<Compiler>\n<Name>a</Name>\n</Compiler>", {}, {"a"});
        row("cut short", "<Compiler>\n<Name>a</Name>\n</Compiler>\n<Compiler>\n<Name>b", {},
            {"a", "b"});
    }
    void keepsToItsBlocks()
    {
        QFETCH(QByteArray, text);
        const CompilerCatalogue read = parseCatalogue(text);
        QTEST(read.families, "families");
        QStringList names;
        for (const CompilerRecord &record : read.compilers)
            names << record.Name;
        QTEST(names, "names");
    }

    void writesWhatItReads()
    {
        QCOMPARE(catalogueText({}), "\n");
        const CompilerRecord record {.Name = "cc - C", .Family = "F1", .SubHeaders = "s & <b>"};
        const CompilerCatalogue catalogue {{"F1", "F2"}, {record, {}}};
        const QByteArray text = catalogueText(catalogue);
        QVERIFY(text.startsWith(
            "<CompilerFamily>F1</CompilerFamily>\n<CompilerFamily>F2</CompilerFamily>\n\n"
            " <Compiler>\n  <Name>cc - C</Name>\n  <Family>F1</Family>\n"));
        QVERIFY(text.contains("  <SubHeaders>s & <b></SubHeaders>\n </Compiler>\n\n <Compiler>\n"));
        QCOMPARE(parseCatalogue(text), catalogue);
    }

    void savesWhatHasChanged_data()
    {
        // "@" stands for the block of the saved record.
        const Columns<QByteArray, QByteArray> row("file", "saved");
        const QByteArray old = "<Compiler>\n<Name>n</Name>\n<Family>F</Family>\n</Compiler>";
        row("an empty file", "", "<CompilerFamily>F</CompilerFamily>\n@\n");
        row("an empty catalogue", "\n", "<CompilerFamily>F</CompilerFamily>\n\n@\n");
        row("behind the others", "<CompilerFamily>E\n\n<Compiler>\n</Compiler>\n\n",
            "<CompilerFamily>E\n<CompilerFamily>F</CompilerFamily>\n\n<Compiler>\n</"
            "Compiler>\n\n@\n");
        row("in the place of the old one, between what is no entry and no text",
            "# \xff\r\n<CompilerFamily>F\r\n" + old + " \r\n# after\r\n",
            "# \xff\r\n<CompilerFamily>F\r\n@# after\r\n");
        row("in the place of the first", "<CompilerFamily>F\n" + old + "\n\n" + old,
            "<CompilerFamily>F\n@\n" + old);
        row("without a line end", "<CompilerFamily>E",
            "<CompilerFamily>E\n<CompilerFamily>F</CompilerFamily>\n@\n");
        row("behind one that is cut short", "<CompilerFamily>F\n<Compiler>\n<Name>a",
            "<CompilerFamily>F\n<Compiler>\n<Name>a\n </Compiler>\n\n@\n");
    }
    void savesWhatHasChanged()
    {
        QFETCH(QByteArray, file);
        QFETCH(QByteArray, saved);
        const CompilerRecord record {.Name = "n", .Family = "F", .ExeCommand = "cc"};
        const CompilerRecord known {.Name = "known"};
        const QByteArray block = catalogueText({{}, {record}}).mid(1).chopped(1);
        // Others have taken the known ones out of the file, and they stay out.
        QCOMPARE(withChanges(file, {{"K"}, {known}}, {{"K", "F"}, {known, record}}),
                 saved.replace("@", block));
    }

    void bringsWhatIsShipped_data()
    {
        // A record's command, or "" where it is missing.
        const Columns<QString, QString, QString, QString> row("own", "before", "shipped", "result");
        row("new", "", "", "new", "new");
        row("new, and the user's own", "own", "", "new", "own");
        row("newer", "old", "old", "new", "new");
        row("changed by both", "own", "old", "new", "own");
        row("removed by the user", "", "old", "new", "");
        row("no longer shipped", "old", "old", "", "old");
    }
    void bringsWhatIsShipped()
    {
        const auto catalogue = [](const char *column) -> CompilerCatalogue {
            const QString command =
                *static_cast<QString *>(QTest::qData(column, QMetaType::QString));
            if (command.isEmpty())
                return {};
            return {{"F"}, {{.Name = "n", .Family = "F", .ExeCommand = command}}};
        };
        const QByteArray file = "# kept\n" + catalogueText(catalogue("own"));
        const QByteArray made = withShipped(file, catalogue("before"), catalogue("shipped"));
        QCOMPARE(parseCatalogue(made), catalogue("result"));
        QVERIFY(made.contains("# kept\n"));
        QCOMPARE(withShipped(made, catalogue("shipped"), catalogue("shipped")), made);
    }

    void makesAddresses_data()
    {
        const Columns<QString, QString> row("package", "address");
        row("plain", "a/b-1.0_x~.exe", "a/b-1.0_x~.exe");
        row("spaces and commands", "a b&del \"x\"|^$(x)`y`;<>\n#\\.exe",
            "a%20b%26del%20%22x%22%7C%5E%24%28x%29%60y%60%3B%3C%3E%0A%23%5C.exe");
        row("a variable", "%PATH%", "%25PATH%25");
        row("encoded already", "My%20Package%2541.exe", "My%20Package%2541.exe");
        row("query", "x.exe?from=a/b&to=%c3%a9+1", "x.exe?from=a/b&to=%c3%a9+1");
        row("commands in a query", "x.exe?\"|^<>`$(x)'", "x.exe?%22%7C%5E%3C%3E%60%24%28x%29%27");
    }
    void makesAddresses()
    {
        QFETCH(QString, package);
        QFETCH(QString, address);
        QVERIFY(isDownload("Integration - " + package) && !isDownload("integration - " + package));
        QCOMPARE(packageName("Integration - " + package), package);
        QCOMPARE(downloadAddress(package), downloadBaseAddress + address);
    }
};

QTEST_APPLESS_MAIN(TestCompilerCatalogue)
#include "test_compiler_catalogue.moc"
