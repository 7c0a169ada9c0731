#include "checked_source.h"
#include "rejection.h"
#include "token_stream.h"

#include "files.h"
#include "row.h"

#include <QTemporaryDir>

class TestCheck : public QObject
{
    Q_OBJECT

private slots:
    void comparesTokens_data()
    {
        // difference: FILE:LINE and both tokens, or empty
        const Columns<QByteArray, QByteArray, QString> row("ofCompiler", "ofClang", "difference");
        row("white space and markers", "# 1 \"x.c\"\nint  a;\n# 9 \"y.h\" 2\n b", "int a ;\n\nb\n",
            "");
        row("place", "# 1 \"x.c\"\na\n#line 7 \"odd \\\\ y.h\"\nb\nc\n", "a b d",
            QDir::fromNativeSeparators("odd \\ y.h") + ":8 c d");
        row("an end", "# 1 \"x.c\"\na\nb", "a", "x.c:2 b ");
        row("the other end", "a", "# 5 \"x.c\"\na b", "x.c:5  b");
        row("glued signs", "# 1 \"x.c\"\na # 7 + +b", "a # 7 ++b", "x.c:1 + ++");
        row("numbers", "1.5e+3+x 0x1p-2 1'000", "1.5e+3 +x 0x1p-2 1'000", "");
        row("literals", "\"a  b\" L'\\'' /", "\"a  b\" L'\\'' /", "");
        row("space in a literal", "# 1 \"x.c\"\n\"a  b\"", "\"a b\"", "x.c:1 \"a  b\" \"a b\"");
        row("raw literal", "# 1 \"x.c\"\nR\"(\"\n#)\" a\nb", "R\"(\"\n#)\"  a c", "x.c:3 b c");
        row("literals that do not end", "'\na R\"x \\", "'\na R\"x \\", "");
        row("pragmas", "#pragma GCC system_header\n#pragma pack(1)\na",
            "#pragma pack(1)\n#pragma GCC diagnostic pop\na", "");
        row("pragmas of cc65", "a\n_Pragma (\"b(\\\"c\\\")\")\n_Pragma (\"once\")\n_Pragma (\")",
            "a\n#pragma b (\"c\")\n_Pragma (\")", "");
        row("a pragma for the compiler", "# 1 \"x.c\"\n#pragma pack(1)\na", "a", "x.c:1 # a");
        row("definitions", "# 0 \"x.c\"\n#define A \"\n#undef A\na\n#define B\n", "a", "");
        row("repeated declarations", "a typedef int va_list; b",
            "a typedef __gnuc_va_list va_list; typedef int va_list; typedef __size_t size_t; b",
            "");
        row("the line of a call", "# 7 \"x.c\"\nf(7)", "# 7 \"x.c\"\nf(9)", "");
        row("code behind a call", "# 7 \"x.c\"\nf(7);\n# 9 \"x.c\"\na", "# 7 \"x.c\"\nf(9);\n\na",
            "");
        row("a number like the line", "# 7 \"x.c\"\nf(7);\na", "# 7 \"x.c\"\nf(9);\na",
            "x.c:7 7 9");
        row("pasted to a name", "# 17 \"x.c\"\nl_17", "# 17 \"x.c\"\nl_19", "");
        row("a number", "# 7 \"x.c\"\nf(6)", "# 7 \"x.c\"\nf(9)", "x.c:7 6 9");
        row("headers of its own", "# 1 \"/own/stddef.h\" 1\na b\n# 2 \"x.c\" 2\nc",
            "# 1 \"/clang/stddef.h\" 1\nz\n# 2 \"x.c\" 2\nc", "");
    }
    void comparesTokens()
    {
        QFETCH(QByteArray, ofCompiler);
        QFETCH(QByteArray, ofClang);
        const auto found = firstDifference({ofCompiler, {"/own"}}, {ofClang, {"/clang"}});
        QString shown;
        if (found)
            shown = found->file + ':' + QString::number(found->line) + ' ' + found->ofCompiler + ' '
                  + found->ofClang;
        QTEST(shown, "difference");
    }

    void tellsTheKindOfARejection_data()
    {
        const Columns<QByteArray> row("message");
        for (const auto &[message, kind] : {
                 std::pair("clang: error: unknown argument: '-mx'", "option"),
                 {"x.c:1:2: fatal error: 'a.h' file not found", "header not found"},
                 {"x.c:1:9: error: unknown type name '__far'", "keyword"},
                 {"x.c:1:9: error: invalid output constraint '=z' in asm", "inline assembler"},
                 {"x.c:1:2: error: expected 'volatile', 'goto', or '('", "inline assembler"},
                 {"x.c:1:9: error: 'weak' attribute only applies to", "attribute"},
                 {"x.c:1:9: error: use of undeclared identifier '__builtin_x'", "builtin"},
                 {"x.h:1:2: error: \"own words\"", "other"},
             })
            row(kind, QByteArray(message));
    }
    void tellsTheKindOfARejection()
    {
        QFETCH(QByteArray, message);
        const Rejection rejection =
            rejectionIn("x.c:1:1: warning: no error\n" + message + "\nx.c:2:1: error: asm\n");
        QCOMPARE(rejection.message, message);
        QCOMPARE(rejection.kind, QTest::currentDataTag());
        QCOMPARE(firstError("In file included from a.c:1:\nb.h(2): Error: no\nc"),
                 "b.h(2): Error: no");
        QCOMPARE(rejectionIn("PLEASE submit a report\nStack dump").message,
                 "PLEASE submit a report");
    }

    void readsADatabase()
    {
        Compiler compiler;
        compiler.layout = {"-o", "-c", "-D", ".o", parseOrderString("%c %o %e %d%j %s ")};
        QByteArray json =
            "[{'directory': '/p', 'file': '/p/a.c', 'arguments': ['cc', '-Iinc', '-isystem', 's', "
            "'-O2', '-include', 'f.h', '-DA=1', '-D', 'B', '-MD', '-MF', 'a.d', '-o', 'a.o', '-c', "
            "'a.c']},\n"
            "{'directory': 'q', 'file': 'b.c', 'command': "
            "'\\'c c\\' -DX=\\\\\\'y\\\\\\' \\'-DP=a b\\' --include=g.h -oprogram -- b.c'}]";
        const QString top = QDir::rootPath() + 'p';
        json.replace('\'', '"').replace("/p", top.toUtf8());
        const auto commands = parseDatabase(json, top);
        QVERIFY(commands && commands->size() == 2);
        const CheckedSource first = sourceOfEntry(commands->first(), compiler, {}, "/tmp", 4);
        const CheckedSource second = sourceOfEntry(commands->last(), compiler, {}, "/tmp", 5);
        QCOMPARE(first.command.join(' '), "cc -Iinc -isystem s -O2 -include f.h -DA=1 -D B -c -o "
                                          "/tmp/4.o a.c");
        // The file is called what the compiler calls it.
        QCOMPARE(first.clangOptions.join(' '), "a.c");
        QCOMPARE(first.directory + second.directory, top + top + "/q");
        QCOMPARE(second.command, QStringList({"c c", "-DX=\"y\"", "-DP=a b", "--include=g.h", "-o",
                                              "/tmp/5.o", "--", "b.c"}));
        QVERIFY(!parseDatabase("{}", "/p"));
        QVERIFY(!parseDatabase("[{}]", "/p"));
    }

    void compilesElsewhereWhatNamesNoOutput()
    {
        const QTemporaryDir folder;
        const QString path = folder.path();
        writeTestFile(path + "/inc/x.h", "");
        writeTestFile(path + "/a.c", "");
        const CompileCommand entry {path, "a.c", {"cc", "-Iinc", "a.c"}};
        const CheckedSource source = sourceOfEntry(entry, Compiler(), {"-Iinc"}, path + "/inc", 3);
        QCOMPARE(source.directory, path + "/inc/3");
        QCOMPARE(source.command, QStringList({"cc", "-I" + path + "/inc", path + "/inc/3/a.c"}));
        QCOMPARE(readTestFile(source.compiled), "#include \"" + path.toLocal8Bit() + "/a.c\"\n");
        QCOMPARE(source.clangOptions, QStringList({"-I" + path + "/inc", path + "/a.c"}));
    }
};

QTEST_APPLESS_MAIN(TestCheck)
#include "test_check.moc"
