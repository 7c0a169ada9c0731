#include "personality.h"

#include <QProcess>
#include <QTemporaryDir>
#include <QTest>
#include <algorithm>

class TestPersonality : public QObject
{
    Q_OBJECT

private slots:
    void readsMacroListings()
    {
        const QList<Macro> macros = parseMacros("#define A 1\n#define EMPTY\n#define E2 \r\n"
                                                "#define F(a, b) (a) b\n#define G (x)\n"
                                                "#define H() \nnoise\n#define V(...) \"#define\"");
        QStringList read;
        for (const Macro &macro : macros)
            read << macro.name + "|" + macro.value;
        QCOMPARE(read, QStringList({"A|1", "EMPTY|", "E2|", "F(a, b)|(a) b", "G|(x)", "H()|",
                                    "V(...)|\"#define\""}));
    }

    void readsSearchPaths()
    {
        Facts facts;
        parseSearchPath("noise\n#include \"...\" search starts here:\n /quoted\n"
                        "#include <...> search starts here:\n /a b/../c\n /d\n /d\n"
                        "End of search list.\n /not",
                        facts);
        parseSearchPath("no listing", facts);
        QCOMPARE(facts.quotedSearchPath, QStringList {"/quoted"});
        QCOMPARE(facts.searchPath, QStringList({"/a b/../c", "/d"}));
    }

    void survivesClangsReader()
    {
        Facts facts;
        const QList<QByteArray> values {"a \"b\\\" c\"",     "'x' \\",  "# no comment",
                                        "$HOME `id` %PATH%", "a  b\tc", "@file",
                                        "((char)-1)",        ""};
        for (const QByteArray &value : values) {
            const QByteArray name = "M" + QByteArray::number(facts.macros.size());
            facts.macros << Macro {name, value};
        }
        facts.macros << Macro {"F(a,b)", "a##b #a"};
        const QTemporaryDir folder;
        const QString path = folder.filePath("odd name.p_c");
        QFile file(path);
        QVERIFY(file.open(QIODevice::WriteOnly));
        Arguments arguments;
        arguments.command = "cc\\";
        file.write(personalityText(arguments, facts, "-DFROM_TEMPLATE=1"));
        file.close();

        QProcess clang;
        clang.setStandardInputFile(QProcess::nullDevice());
        clang.start("clang", {"--config", path, "-x", "c", "-dM", "-E", "-"});
        QVERIFY(clang.waitForFinished());
        QCOMPARE(clang.readAllStandardError(), QByteArray());
        facts.macros << Macro {"FROM_TEMPLATE", "1"};
        const QList<Macro> read = parseMacros(clang.readAllStandardOutput());
        for (const Macro &macro : facts.macros) {
            const auto found = std::find_if(read.begin(), read.end(),
                                            [&](const Macro &m) { return m.name == macro.name; });
            QVERIFY2(found != read.end(), macro.name);
            QCOMPARE(found->value.simplified(), macro.value.simplified());
        }
    }
};

QTEST_GUILESS_MAIN(TestPersonality)
#include "test_personality.moc"
