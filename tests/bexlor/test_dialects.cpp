#include "dialects.h"

#include "files.h"
#include "row.h"

using platform::ProgramRun;

namespace {

ProgramRun answer(const QByteArray &output, const QByteArray &errors = {}, int exitCode = 0)
{
    return {ProgramRun::Exited, exitCode, output, errors};
}

} // namespace

class TestDialects : public QObject
{
    Q_OBJECT

private slots:
    void readsMacroListings()
    {
        const QList<Macro> macros = macrosIn("#define A 1\n#define EMPTY\n#define E2 \r\n"
                                             "#define F(a, b) (a) b\n#define G (x)\n"
                                             "#define H() \nnoise\n#define V(...) \"#define\"\n"
                                             "#define U 1\n#define W(x) 1\n#undef U\n#undef W\n"
                                             "#define E2 2\n#undef A\n#define A 3\n#undef N");
        QStringList read;
        for (const Macro &macro : macros)
            read << macro.name + "|" + macro.value;
        QCOMPARE(read, QStringList({"EMPTY|", "F(a, b)|(a) b", "G|(x)", "H()|",
                                    "V(...)|\"#define\"", "E2|2", "A|3"}));
    }

    void findsTheSearchPath_data()
    {
        // question: that the compiler understands
        // onErrors: whether it answers there
        // listing: "$" stands for a folder
        const Columns<QString, bool, QString, QString, QString> row(
            "question", "onErrors", "listing", "directories", "quoted");
        const QString gnu = "Target: none\nignoring nonexistent directory \"$/x\"\n"
                            "#include \"...\" search starts here:\n $/own\n"
                            "#include <...> search starts here:\n $/a/../b c\n $/a\n $/a\n"
                            "End of search list.\nCOMPILER_PATH=$/own:$/a:\n";
        row("GNU", "* -v -E probe.c", true, gnu, "$/b c|$/a", "$/own");
        row("sdcc's preprocessor", "* -Wp-v -E probe.c", true, gnu, "$/b c|$/a", "$/own");
        row("tcc", "cc -print-search-dirs", false,
            "install: $/own\ninclude:\n  $/a\n  $/missing\n  $/b c\nlibraries:\n  $/own\n",
            "$/inc|$/long|$/s y s|$/a|$/b c", "");
        row("sdcc", "* --print-search-dirs", false,
            "programs:\n$/own\nincludedir:\n$/own/../b c\n$/b c\n$/missing\n$/a\nlibdir:\n$/own\n",
            "$/inc|$/long|$/s y s|$/b c|$/a", "");
        row("cc65", "* --print-target-path", false, "$/target\n", "$/inc|$/long|$/s y s|$/include",
            "");
        row("files elsewhere", "* -v -E probe.c", true,
            "#include <...> search starts here:\n /calyx/missing/../x\nEnd of search list.\n",
            "/calyx/missing/../x", "");
        row("nowhere", "* -v -E probe.c", true,
            "#include <...> search starts here:\nEnd of search list.\n", "", "");
        row("nowhere, of clang", "* -v -E probe.c", true,
            "#include \"...\" search starts here:\nEnd of search list.\n", "", "");
        row("nothing of the kind", "* -v -E probe.c", false, "No input files\n", "not told", "");
    }
    void findsTheSearchPath()
    {
        QFETCH(QString, question);
        QFETCH(bool, onErrors);
        QFETCH(QString, listing);
        const QTemporaryDir folder;
        const QString top = QDir(folder.path()).canonicalPath();
        for (const char *name : {"a", "b c", "own", "target", "include", "inc", "long", "s y s"})
            QDir(top).mkdir(name);
        const QByteArray output = listing.replace("$", top).toLocal8Bit();
        QStringList asked;
        const QStringList command {
            "cc",          "-isystem" + top + "/s y s", "-I", top + "/inc", "--include-dir",
            top + "/long", "-I" + top + "/none",        "-I"};
        const RunCommand run = [&](const QStringList &words) {
            asked << words.join(' ').replace(command.join(' '), "*");
            // At first something goes wrong.
            if (asked.last() != question || asked.count(question) == 1)
                return answer({}, "include:\n/usr\n", 1);
            return onErrors ? answer({}, output) : answer(output);
        };
        const DialectAnswers answers = askInDialects(run, command, "probe.c");
        const SearchPath path = answers.searchPath.value_or(SearchPath {{"not told"}, {}});
        QTEST(path.directories.join('|').replace(top, "$"), "directories");
        QTEST(path.forQuotedNames.join('|').replace(top, "$"), "quoted");
        QVERIFY(asked.contains("* -dM -E probe.c") && asked.contains("* --version"));
        const qsizetype again = asked.removeDuplicates();
        QCOMPARE(again, asked.size());
    }

    void asksForNothingTwice()
    {
        QStringList asked;
        const RunCommand run = [&asked](const QStringList &words) {
            asked << words.join(' ');
            return answer("#define A 1\n#define __FILE__ x\n#define __has_include 1\n"
                          "made by\x7f hand, cc 1.2\n");
        };
        const DialectAnswers known {{}, SearchPath {{"/a"}, {}}, {}};
        const DialectAnswers answers = askInDialects(run, {"cc"}, "probe.c", known);
        QCOMPARE(asked, QStringList({"cc -dM -E probe.c", "cc --version"}));
        QCOMPARE(answers.macros, QList<Macro>({{"A", "1"}}));
        QCOMPARE(answers.versionLine, "made by hand, cc 1.2");
    }
};

QTEST_APPLESS_MAIN(TestDialects)
#include "test_dialects.moc"
