#include "program_run.h"

#include "files.h"
#include "row.h"

#include <QDir>
#include <QRegularExpression>
#include <QTemporaryDir>
#include <QTest>

using platform::ProgramRun;

namespace {

// For compilers made of the shell's commands: counts the starts.
const QByteArray countsStarts = "echo >>\"$0 starts\"; starts() { wc -l <\"$0 starts\"; }\n";

} // namespace

// Whole runs of the generator.
class TestGenerator : public QObject
{
    Q_OBJECT

private:
    /// A working directory of its own.
    struct Workshop
    {
        QTemporaryDir folder;
        const QString personality = folder.filePath("sub folder/mine.p_c");

        Workshop() { QDir(folder.path()).mkdir("sub folder"); }

        ProgramRun run(const QStringList &command) const
        {
            return platform::runProgram(command, folder.path(), 600'000);
        }

        ProgramRun generate(const QString &product, const QString &command,
                            const QStringList &more = {}, const QStringList &directories = {}) const
        {
            return run(QStringList {GENERATOR, product, "cmp", '"' + command + '"', "-o", "-c",
                                    "-D", ".o", "%c %o%e %d%j %s "}
                       + directories + QStringList {"-op", "sub folder\\mine.p_c"} + more);
        }

        /// The path of a compiler made of the shell's commands \a script.
        QString writeCompiler(const QByteArray &script) const
        {
            const QString compiler = folder.filePath("odd compiler");
            write("odd compiler", "#!/bin/sh\n" + script + '\n');
            QFile::setPermissions(compiler, QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
            return compiler;
        }

        /// Generates with a header directory that the compiler searches.
        ProgramRun generateFromHeaders(const QString &compiler) const
        {
            write("headers/only_here.h", "#if AA\n#endif\nextern __cc dd;\n");
            return generate("kov", compiler, {"-xs", "-Iheaders"}, {"-i", "headers"});
        }

        QString read(const QString &name) const
        {
            return QString::fromLocal8Bit(readTestFile(folder.filePath(name)));
        }

        void write(const QString &name, const QByteArray &content) const
        {
            writeTestFile(folder.filePath(name), content);
        }

        /// Whether clang and the compiler both take \a source; says what they say.
        void checkBothTake(const QString &source, const QString &command,
                           const QStringList &options) const
        {
            const ProgramRun own = run(command.split(' ') + options + QStringList {"-c", source});
            QVERIFY2(own.succeeded(), own.errors);
            checkClangTakes(source);
        }

        void checkClangTakes(const QString &source) const
        {
            const ProgramRun seen =
                run({"clang", "--config", personality, "-fsyntax-only", source});
            QVERIFY2(seen.succeeded(), seen.errors);
        }
    };

private slots:
    void cleanup()
    {
        for (const char *variable : {"TMPDIR", "BEXLOR_LEARN_ONLY", "BEXLOR_TIME_LIMIT"})
            qunsetenv(variable);
    }

    void makesClangTakeTheSameC()
    {
        // Folders named like options, a header that only quoted names are looked for in, warnings
        // that are errors, files that are included first and that the user adds.
        const Workshop workshop;
        QDir(workshop.folder.path()).mkdir("c");
        workshop.write("quoted/limits.h", "#define NOT_FROM_LIMITS 1\n");
        workshop.write("quoted/stdio.h", "#error\n");
        workshop.write("headers/mine.h", "int from_mine;\n");
        workshop.write("stand-ins/time.h", "int not_the_real_one;\n");
        workshop.write("first.h", "int from_first;\n");
        workshop.write("template.p_c", "-DFROM_TEMPLATE=from_template");
        workshop.write("x.c", "#include <stdio.h>\n#include <math.h>\n#include \"limits.h\"\n"
                              "FILE *a; int32_t b = WCHAR_MAX; int c = NOT_FROM_LIMITS; int MODE;\n"
                              "int d = FOO; _Decimal64 *e; __int128 f;\n");
        const QString command =
            "gcc -include stdint.h -include wchar.h -iquote quoted -x c -DMODE=c "
            "-Wall -Werror -pedantic-errors";
        const ProgramRun generated =
            workshop.generate("kov", command,
                              {"-xd", "FOO=1", "-xs", "-std=c99,-include first.h", "-tpl",
                               "template.p_c", "-fi", "first.h", "-sub", "stand-ins"},
                              {"-i", "headers"});
        QVERIFY2(generated.succeeded(), generated.output);
        workshop.checkBothTake("x.c", "gcc -include stdint.h -iquote quoted -x c -DMODE=c -std=c99",
                               {"-DFOO=1"});
        workshop.write("y.c", "#include <time.h>\n#include <mine.h>\n"
                              "int f(void) { return from_mine + from_first + not_the_real_one; }\n"
                              "int FROM_TEMPLATE;\n");
        workshop.checkClangTakes("y.c");
        const QString text = workshop.read("sub folder/mine.p_c");
        for (const char *line : {"\n-std=c99\n", "\n#: switch -std=c99\n", "\n#: version gcc",
                                 "\n#: size_t unsigned long\n", "\n#: keyword __int128 type ",
                                 "\n#: search-path /usr/include\n"})
            QVERIFY2(text.contains(line), line);
    }

    void makesClangTakeTheSameCpp()
    {
        const Workshop workshop;
        workshop.write("x.cpp", "#include <vector>\nchar8_t a = u8'a'; std::vector<int> b {1};\n"
                                "char c[sizeof(wchar_t)==2?1:-1]; __int128 d;\n");
        const QString command = "g++ -std=c++17 -fchar8_t -fshort-wchar";
        const ProgramRun generated = workshop.generate("kovpp", command);
        QVERIFY2(generated.succeeded(), generated.output);
        workshop.checkBothTake("x.cpp", command, {});
    }

    void givesTheSameBytesForTheSameAnswers()
    {
        const Workshop workshop;
        workshop.write("headers/a.h", "#if AA + BB\n#endif\nextern __cc dd; int ee;\n");
        qputenv("BEXLOR_LEARN_ONLY", "1");
        QByteArray last = "Wrote sub folder/mine.p_c\n";
        QString texts[2];
        for (QString &text : texts) {
            const ProgramRun generated = workshop.generate(
                "kov", "tcc", {"-xd", "AA=1,CC=2", "-xs", "-Iheaders"}, {"-i", "headers"});
            QVERIFY2(generated.succeeded(), generated.output);
            text = workshop.read("sub folder/mine.p_c");
            for (const QByteArray &said :
                 {QByteArray("in 1 file.\n"), QByteArray(" predefined macros.\n"), last})
                QVERIFY2(generated.output.contains(said), generated.output);
            last = "Replaced sub folder/mine.p_c\n";
        }
        QVERIFY(texts[0].contains("\n\"-DAA=1\"\n\"-DCC=2\"\n"));
        QCOMPARE(texts[1], texts[0]);
    }

    void refusesFilesThatAreMissing_data()
    {
        QTest::addColumn<QString>("option");
        for (const char *option : {"-tpl", "-fi", "-sub"})
            QTest::newRow(option) << option;
    }
    void refusesFilesThatAreMissing()
    {
        QFETCH(QString, option);
        const Workshop workshop;
        workshop.write("stdout.log", "");
        const ProgramRun refused = workshop.generate("kov", "gcc", {option, "nowhere"});
        QCOMPARE(refused.exitCode, 1);
        QVERIFY(refused.output.contains("nowhere"));
        QVERIFY(!QFile::exists(workshop.folder.filePath("stdout.log")));
    }

    void leavesTheFailedCommandAndItsOutput()
    {
        const Workshop workshop;
        const ProgramRun failed =
            workshop.generate("kov", "gcc --no-such-option", {"-xd", "A=\"x\\\""});
        QCOMPARE(failed.exitCode, 1);
        QVERIFY(
            failed.output.contains("Compiling the first probe failed: the compiler returned 1."));
        QVERIFY(workshop.read("compile.bat")
                    .contains("--no-such-option -oprobe.o \"-DA=\\\"x\\\\\\\"\" -c probe.c"));
        QVERIFY(workshop.read("stderr.log").contains("no-such-option"));
        QVERIFY(!QFile::exists(workshop.personality));

        const ProgramRun unable = workshop.generate("kov", "gcc -fsyntax-only");
        QCOMPARE(unable.exitCode, 1);
        QVERIFY(unable.output.contains("-fsyntax-only keeps the compiler from compiling"));

        const ProgramRun missing = workshop.generate("kov", "no-such-compiler");
        QCOMPARE(missing.exitCode, 1);
        QVERIFY(missing.output.contains("could not be started"));
    }

    void putsUpWithOddCompilers_data()
    {
        QTest::addColumn<QByteArray>("script");
        QTest::addColumn<QByteArray>("says"); // when it fails
        QTest::addColumn<QByteArray>("timeLimit");
        const auto row = [](const char *name, const QByteArray &script, const QByteArray &says,
                            const QByteArray &timeLimit = "60000") {
            QTest::newRow(name) << script << says << timeLimit;
        };
        row("waits for input, leaves a program behind and its object somewhere",
            "cat >/dev/null; sleep 600 & tcc \"$@\" && mkdir -p made && "
            "{ [ ! -f probe.o ] || mv probe.o made/thing.xyz; }",
            "");
        row("prints without end", "yes >&2 & yes & wait", "did not end within its time", "300");
        row("hangs", "sleep 600", "did not end within its time", "300");
        row("crashes", "kill -SEGV $$", "the compiler crashed");
        row("stops working",
            "if grep -q calyx_probe probe.c; then\n"
            "[ ! -f \"$0 called\" ] || exit 9\n : >\"$0 called\"\nfi\nexec tcc \"$@\"",
            "as none of the first ones, and again: the compiler returned 9");
        row("stops midway, with a message",
            countsStarts + "[ $(starts) -lt 40 ] || { echo no license; exit 1; }; exec tcc \"$@\"",
            "and again: the compiler returned 1");
        row("stops midway and says that all is well",
            countsStarts + "[ $(starts) -lt 40 ] || exit 0; exec tcc \"$@\"",
            "and again: the compiler returned 0");
        row("crashes on keywords", "! grep -q near probe.c || kill -SEGV $$; exec tcc \"$@\"",
            "and again: the compiler crashed");
        row("drops constants",
            countsStarts + "tcc \"$@\" || exit; [ $(starts) -lt 40 ] || echo >probe.o",
            "has left out constants");
        row("accepts everything", "exit 0", "answers tell nothing");
        row("accepts everything and leaves something", "echo nothing >probe.o",
            "answers tell nothing");
        row("leaves nothing of use", "tcc \"$@\" && { echo nothing >probe.o; rm -f probe.exe; }",
            "leaves no file that holds the bytes");
        row("answers at random",
            countsStarts + "[ $(starts) -gt 1 ] || exec tcc \"$@\"; exit $(starts)",
            "in another way each time");
    }
    void putsUpWithOddCompilers()
    {
        QFETCH(QByteArray, script);
        QFETCH(QByteArray, says);
        QFETCH(QByteArray, timeLimit);
        const Workshop workshop;
        const QString compiler = workshop.writeCompiler(script);
        const QString temporary =
            workshop.folder.filePath(QString::fromUtf8("tempor\303\244r ' \"x\""));
        QDir().mkdir(temporary);
        qputenv("TMPDIR", temporary.toLocal8Bit());
        qputenv("BEXLOR_LEARN_ONLY", "1");
        qputenv("BEXLOR_TIME_LIMIT", timeLimit);
        const ProgramRun run = workshop.generateFromHeaders(compiler);
        QVERIFY2(run.exitCode == (says.isEmpty() ? 0 : 1), run.output);
        QVERIFY2(run.output.contains(says), run.output);
        QCOMPARE(QFile::exists(workshop.personality), says.isEmpty());
        QVERIFY(workshop.read("compile.bat").contains("odd compiler"));
        QCOMPARE(QDir(temporary).entryList(QDir::AllEntries | QDir::NoDotAndDotDot), QStringList());
    }

    void learnsTheSameOfACompilerThatFailsNowAndThen_data()
    {
        QTest::addColumn<QByteArray>("script");
        QTest::addColumn<QByteArray>("differs"); // lines that may, a pattern
        const auto row = [](const char *name, const QByteArray &script,
                            const QByteArray &differs = "^$") {
            QTest::newRow(name) << script << differs;
        };
        row("works once at a time", "mkdir \"$0 busy\" || exit 1; tcc \"$@\"; status=$?\n"
                                    "rmdir \"$0 busy\"; exit $status");
        row("crashes at one start in twenty",
            countsStarts + "[ $(($(starts) % 20)) -ne 7 ] || kill -KILL $$; exec tcc \"$@\"");
        row("has no license at one start in twenty",
            countsStarts
                + "[ $(($(starts) % 20)) -ne 3 ] || { echo no license >&2; exit 1; }\n"
                  "exec tcc \"$@\"");
        row("loses its exit status", "tcc \"$@\" | cat");
        row("has something to say of each line",
            "awk '{ print FILENAME \":\" NR \": warning: seen\" }' probe.c; exec tcc \"$@\"",
            "^.-D__BYTE_ORDER__=.*\n");
        row("accepts conflicting declarations",
            "sed -i 's/extern char .calyx_object;$//; s/ extern [a-z]* char calyx_[us];//\n"
            "/stddef/,$s/^extern .* calyx_object;$//' probe.c; exec tcc \"$@\"",
            "^#: (size_t|ptrdiff_t|wchar_t) .*\n");
    }
    void learnsTheSameOfACompilerThatFailsNowAndThen()
    {
        QFETCH(QByteArray, script);
        QFETCH(QByteArray, differs);
        const Workshop workshop;
        qputenv("BEXLOR_LEARN_ONLY", "1");
        QString texts[2];
        const QByteArray scripts[] {"exec tcc \"$@\"", script};
        for (int i = 0; i < 2; ++i) {
            const ProgramRun run = workshop.generateFromHeaders(workshop.writeCompiler(scripts[i]));
            QVERIFY2(run.succeeded(), run.output);
            texts[i] = workshop.read("sub folder/mine.p_c");
        }
        for (QString &text : texts)
            text.remove(QRegularExpression(differs, QRegularExpression::MultilineOption));
        QCOMPARE(texts[1], texts[0]);
        QVERIFY(texts[0].contains("#: search-path ") && texts[0].contains("#: char signed"));
    }

    void writesNoPersonalityOfTooFewFacts_data()
    {
        QTest::addColumn<QByteArray>("script");
        QTest::addColumn<QByteArray>("says");
        row("lists macros only, and leaves nothing of use",
            QByteArray("case \"$*\" in *-dM*) exec tcc \"$@\";; *-E* | *print*) exit 1; esac\n"
                       "tcc \"$@\" && echo nothing >probe.o && rm -f probe.exe"),
            QByteArray("types could not be measured: .*\n.*Where the compiler looks"));
        row("lists macros only",
            QByteArray("case \"$*\" in *-dM*) ;; *-E* | *print*) exit 1; esac; exec tcc \"$@\""),
            QByteArray("Where the compiler looks .*Search Directories"));
        row("has no search path", QByteArray("exec tcc -nostdinc \"$@\""), QByteArray("Wrote"));
    }
    void writesNoPersonalityOfTooFewFacts()
    {
        QFETCH(QByteArray, script);
        QFETCH(QByteArray, says);
        const Workshop workshop;
        const ProgramRun run = workshop.generate("kov", workshop.writeCompiler(script));
        QCOMPARE(run.succeeded(), says == "Wrote");
        QCOMPARE(QFile::exists(workshop.personality), says == "Wrote");
        QVERIFY2(QRegularExpression(says).match(run.output).hasMatch(), run.output);
    }

    void writesNothingElse()
    {
        // All of these files are there already, so that the words that name them are paths.
        const Workshop workshop;
        const QStringList files {"x.d", "x.o", "x.map", "x.lst", "x.i", "x.su"};
        for (const QString &file : files)
            workshop.write(file, "mine");
        const ProgramRun run = workshop.generate(
            "kov", "gcc -MMD -MF x.d -o x.o -aux-info x.i -Wl,-Map=x.map -Wa,-adhln=x.lst "
                   "-save-temps -fstack-usage -Wp,-MD,x.d -flto -fshort-enums");
        QVERIFY2(run.succeeded(), run.output);
        for (const QString &file : files)
            QCOMPARE(workshop.read(file), "mine");
        QStringList expected = files;
        expected << "compile.bat"
                 << "stderr.log"
                 << "stdout.log"
                 << "sub folder";
        expected.sort();
        QCOMPARE(QDir(workshop.folder.path()).entryList(QDir::AllEntries | QDir::NoDotAndDotDot),
                 expected);
        QVERIFY(workshop.read("sub folder/mine.p_c").contains("\n-fshort-enums\n"));
    }

    void endsWhenThereIsNoRoomForAProbe()
    {
        const Workshop workshop;
        qputenv("BEXLOR_LEARN_ONLY", "1");
        const ProgramRun run = workshop.run({"sh", "-c", "trap '' XFSZ; ulimit -f 8; exec \"$@\"",
                                             "sh", GENERATOR, "kov", "cmp", "tcc", "-o", "-c", "-D",
                                             ".o", "%c %o%e %d%j %s ", "-op", "mine.p_c"});
        QCOMPARE(run.exitCode, 1);
        QVERIFY2(run.output.contains("There is no room for a probe"), run.output);
        QVERIFY(!QFile::exists(workshop.folder.filePath("mine.p_c")));
    }

    void letsTheLineOfAStepGrow()
    {
        // Each probe is compiled only after the line of its step has grown.
        const Workshop workshop;
        const QString compiler = workshop.writeCompiler(
            "size() { wc -c <'" + workshop.folder.path().toLocal8Bit()
            + "/said'; }\nold=$(size)\nuntil [ $(size) -gt $old ]; do sleep 0.1; done\nexec false");
        workshop.run({"sh", "-c", "exec \"$@\" >said", "sh", GENERATOR, "kov", "cmp",
                      '"' + compiler + '"', "-o", "-c", "-D", ".o", "%c %o%e %d%j %s ", "-op",
                      "mine.p_c"});
        const QString said = workshop.read("said");
        QVERIFY2(
            QRegularExpression("^Compiling a first probe \\.\\.\\.( \\.\\.\\.)+\nCompiling the "
                               "first probe failed: the compiler returned 1\\.\n$")
                .match(said)
                .hasMatch(),
            qPrintable(said));
    }

    void refusesAWrongList()
    {
        const Workshop workshop;
        const ProgramRun refused = workshop.run({GENERATOR, "kov"});
        QCOMPARE(refused.exitCode, 2);
        QVERIFY(refused.errors.startsWith("usage: Bexlor.exe"));
        QVERIFY(refused.output.isEmpty());
    }
};

QTEST_GUILESS_MAIN(TestGenerator)
#include "test_generator.moc"
