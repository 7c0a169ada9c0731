#include "messages.h"
#include "object_file.h"

#include "files.h"
#include "row.h"

class TestProbeAnswers : public QObject
{
    Q_OBJECT

private slots:
    void readsLineNumbers_data()
    {
        using Lines = QList<int>;
        const Columns<QByteArray, Lines, Lines> row("messages", "lines", "errors");
        row("colons", "/t/1/x.c:12:4: error: no\n  12 | int\n", {12}, {12});
        row("parentheses", "x.c(7): Error: no", {7}, {7});
        row("capitals", "x.c\nX.C(3): error 2: no", {3}, {3});
        row("words", "\"x.c\", line 30: Fatal", {30}, {30});
        row("warnings", "x.c:5: warning: A redefined\nx.c:9: note: b", {5, 9}, {});
        row("warnings and errors", "x.c:5: warning: 1\nx.c:9: error: 2\nx.c:3: syntax error",
            {3, 5, 9}, {3, 9});
        row("names of errors",
            "x.c:5: warning: no 'error' here\nx.c:7: note: error: y\nx.c:8: fatal: z", {5, 7, 8},
            {8});
        row("included", "In file included from x.c:4:\n/i/y.h:9: error: z", {4}, {});
        row("line first", "Error C141 in line 4 of x.c: near 'calyx_3'\nx.c: near 'calyx_3'", {4},
            {4});
        row("no number near", "x.c: cannot do that in 1999", {}, {});
    }
    void readsLineNumbers()
    {
        QFETCH(QByteArray, messages);
        QFETCH(QList<int>, lines);
        QFETCH(QList<int>, errors);
        const NamedLines named = namedLines(messages, "x.c");
        QCOMPARE(QSet<int>(named.all.keyBegin(), named.all.keyEnd()),
                 QSet<int>(lines.begin(), lines.end()));
        QCOMPARE(named.ofErrors, QSet<int>(errors.begin(), errors.end()));
    }

    void readsObjectFiles_data()
    {
        const Columns<QByteArray, QByteArray> row("file", "bytes");
        row("as it is", QByteArray("\177ELF\0ab", 7), QByteArray("\177ELF\0ab", 7));
        row("relocatable text", "XL3\nH 9 areas\nT 00 00 00 61 62\nR 00 00 00\nT 02 00 00 63\n",
            "abc");
        row("relocatable text, two bytes of address", "XH2\r\nT 00 00 61\r\n", "a");
        row("one fragment for each byte",
            QByteArray("Uzna\0\1a\1\2\0\1b\1\x82\1\0\1c\2\1\1\xff", 22), "\n\n\n\nabc");
    }
    void readsObjectFiles()
    {
        QFETCH(QByteArray, file);
        QTEST(objectBytes(file), "bytes");
    }

    void takesTheObjectFirst()
    {
        const QTemporaryDir folder;
        writeTestFile(folder.filePath("probe.c"), "source");
        writeTestFile(folder.filePath("a listing"), "second");
        writeTestFile(folder.filePath("made/probe.o"), "first");
        QCOMPARE(bytesLeftIn(folder.path(), "probe.c", ".o"), QByteArray("first\nsecond\n"));
        QCOMPARE(bytesLeftIn(folder.path(), "probe.c", ""), QByteArray("second\nfirst\n"));
    }
};

QTEST_APPLESS_MAIN(TestProbeAnswers)
#include "test_probe_answers.moc"
