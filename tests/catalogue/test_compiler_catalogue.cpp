#include "compiler_catalogue.h"
#include "download.h"
#include "row.h"

#include <QTest>

class TestCompilerCatalogue : public QObject
{
    Q_OBJECT

private slots:
    void readsFields_data()
    {
        QTest::addColumn<QString>("line");
        QTest::addColumn<QString>("name");
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
        const CompilerCatalogue read = parseCatalogue("<Compiler>\n" + line + "\n</Compiler>\n");
        QCOMPARE(read.compilers.size(), 1);
        QTEST(read.compilers[0].Name, "name");
    }

    void keepsToItsBlocks_data()
    {
        QTest::addColumn<QString>("text");
        QTest::addColumn<QStringList>("families");
        QTest::addColumn<QStringList>("names");
        row("nothing", "", QStringList(), QStringList());
        row("noise", "x\n<Name>n</Name>\n</Compiler>\n<compiler>", QStringList(), QStringList());
        row("families, one twice",
            "<CompilerFamily>B</CompilerFamily>\n <CompilerFamily> A\n<CompilerFamily>B",
            QStringList {"B", " A", "B"}, QStringList());
        row("text behind a block's start and end",
            "<Compiler> x\n<Name>a</Name>\n</Compiler> x\n<Name>b</Name>\n </Compiler> \n",
            QStringList(), QStringList {"b"});
        row("a family and a start inside a block",
            "<Compiler>\n<CompilerFamily>F\n<Compiler>\n<Name>a</Name>\n</Compiler>", QStringList(),
            QStringList {"a"});
        row("cut short", "<Compiler>\n<Name>a</Name>\n</Compiler>\n<Compiler>\n<Name>b",
            QStringList(), QStringList {"a", "b"});
    }
    void keepsToItsBlocks()
    {
        QFETCH(QString, text);
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
        CompilerRecord record;
        record.Name = "cc - C";
        record.Family = "F1";
        record.CrossCompiler = "no";
        record.Order = "%c %o%e ";
        record.SubHeaders = "s & <b>";
        const CompilerCatalogue catalogue {{"F1", "F2"}, {record, CompilerRecord()}};
        const QString text = catalogueText(catalogue);
        QVERIFY(text.startsWith(
            "<CompilerFamily>F1</CompilerFamily>\n<CompilerFamily>F2</CompilerFamily>\n\n"
            " <Compiler>\n  <Name>cc - C</Name>\n  <Family>F1</Family>\n"
            "  <ExeCommand></ExeCommand>\n  <CrossCompiler>no</CrossCompiler>\n"
            "  <OutputFlag></OutputFlag>\n  <DefineFlag></DefineFlag>\n"
            "  <ObjectFlag></ObjectFlag>\n  <ObjectFileExtension></ObjectFileExtension>\n"
            "  <Order>%c %o%e </Order>\n  <ReduceFileSize></ReduceFileSize>\n"
            "  <CompilerDefines></CompilerDefines>\n  <CompilerSwitches></CompilerSwitches>\n"
            "  <Template></Template>\n  <ForceIncludeFile></ForceIncludeFile>\n"
            "  <SubHeaders>s & <b></SubHeaders>\n </Compiler>\n\n <Compiler>\n"));
        QCOMPARE(parseCatalogue(text), catalogue);
        QCOMPARE(catalogueText(parseCatalogue(text)), text);
    }

    void makesAddresses_data()
    {
        QTest::addColumn<QString>("package");
        QTest::addColumn<QString>("address");
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
