#include "program_run.h"

#include "files.h"
#include "row.h"

#include <QJsonDocument>

using platform::ProgramRun;

// Whole runs of the generator. One takes half the time where it finds no clang that could try a
// sample of the headers, or no headers.
class TestGenerator : public QObject
{
    Q_OBJECT

private:
    /// A working directory of its own.
    struct Workshop
    {
        QTemporaryDir folder;
        const QString personality = folder.filePath("sub folder/mine.p_c");
        const bool triesHeaders;

        explicit Workshop(bool hasClang = false) : triesHeaders(hasClang)
        {
            QDir(folder.path()).mkdir("sub folder");
            write("no clang/clang", "not a program");
            makeRunnable("no clang/clang");
        }

        void makeRunnable(const QString &name) const
        {
            QFile::setPermissions(folder.filePath(name),
                                  QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
        }

        ProgramRun run(const QStringList &command) const
        {
            return platform::runProgram(command, folder.path(), 600'000);
        }

        [[nodiscard]] ProgramRun generate(const QString &product, const QString &command,
                                          const QStringList &more = {},
                                          const QStringList &directories = {}) const
        {
            QStringList words {GENERATOR, product, "cmp", '"' + command + '"', "-o", "-c"};
            words += QStringList {"-D", ".o", "%c %o%e %d%j %s "} + directories
                   + QStringList {"-op", "sub folder\\mine.p_c"} + more;
            const QString path = folder.filePath("no clang") + ':' + qEnvironmentVariable("PATH");
            if (!triesHeaders)
                words = QStringList {"env", "PATH=" + path} + words;
            return run(words);
        }

        QString read(const QString &name) const
        {
            return QString::fromLocal8Bit(readTestFile(folder.filePath(name)));
        }

        void write(const QString &name, const QByteArray &content) const
        {
            writeTestFile(folder.filePath(name), content);
        }

        /// A compiler that the shell runs.
        QString compiler(const QByteArray &script) const
        {
            write("odd compiler", "#!/bin/sh\n" + script + '\n');
            makeRunnable("odd compiler");
            return folder.filePath("odd compiler");
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
        for (const char *variable : {"TMPDIR", "LC_ALL", "BEXLOR_LEARN_ONLY", "BEXLOR_TIME_LIMIT"})
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
        const QString own = "gcc -include stdint.h -iquote quoted -x c -DMODE=c -std=c99 -DFOO=1 ";
        QVERIFY(workshop.run((own + "-c x.c").split(' ')).succeeded());
        workshop.checkClangTakes("x.c");
        workshop.write("y.c", "#include <limits.h>\n#include <time.h>\n#include <mine.h>\n"
                              "char c[MB_LEN_MAX > 1 ? 1 : -1]; /* the C library's */\n"
                              "int f(void) { return from_mine + from_first + not_the_real_one; }\n"
                              "int FROM_TEMPLATE;\n");
        workshop.checkClangTakes("y.c");
        const QString text = workshop.read("sub folder/mine.p_c");
        for (const char *line :
             {"\n#: command gcc -include ", "\n-std=c99\n", "\n#: switch -std=c99\n",
              "\n#: version gcc", "\n#: size_t unsigned long\n", "\n#: keyword __int128 type ",
              "\n#: search-path /usr/include\n"})
            QVERIFY2(text.contains(line), line);
        const ProgramRun properties =
            workshop.run({GENERATOR, "export", workshop.personality, "vscode"});
        for (const char *path : {"/stand-ins\"", "/quoted\"", "/headers\"", "/first.h\""})
            QVERIFY2(properties.output.contains(path), properties.output);
    }

    void isQuietInEveryClang_data()
    {
        // attributes: those that clang does not have
        const Columns<QString, QString> row("product", "attributes");
        const QString gnu = "externally_visible no_icf no_reorder noclone ";
        const QString ofGcc = gnu + "noipa nonstring noplt optimize stack_protect symver";
        for (const char *compiler : {"gcc -nostdinc", "x86_64-w64-mingw32-gcc -nostdinc"})
            row(compiler, "kov", ofGcc);
        row("avr-gcc -nostdinc", "kov",
            "OS_main OS_task address " + gnu + "optimize progmem stack_protect");
        row("sdcc --nostdinc", "kov", "");
        row("tcc -nostdinc", "kov", "");
        row("g++ -std=c++17 -fchar8_t -fshort-wchar", "kovpp", ofGcc);
    }
    void isQuietInEveryClang()
    {
        QFETCH(QString, product);
        const Workshop workshop;
        const ProgramRun generated = workshop.generate(product, QTest::currentDataTag());
        QVERIFY2(generated.succeeded(), generated.output);
        const QStringList lines = workshop.read("sub folder/mine.p_c").split('\n');
        QTEST(lines.filter("#: attribute ").replaceInStrings("#: attribute ", "").join(' '),
              "attributes");
        QCOMPARE(lines.filter("#: search-path ").isEmpty(),
                 QByteArray(QTest::currentDataTag()).endsWith("-nostdinc"));
        const QString source = product == "kovpp" ? "x.cpp" : "x.c";
        workshop.write(source, "int main(void) { return 0; }\n");
        for (const char *clang : {"clang-14", "clang-19"}) {
            const ProgramRun seen = workshop.run(
                {clang, "--config", workshop.personality, "-Werror", "-fsyntax-only", source});
            QVERIFY2(seen.succeeded() && seen.errors.isEmpty(), seen.errors);
        }
        // What newer clang does not accept by itself, and these compilers do.
        workshop.write(source, product == "kovpp"
                                   ? "#include <vector>\nstd::vector<char8_t> a {u8'a'};\n"
                                     "int f(double a) { int b[] = {a}; return b[0]; }\n"
                                     "char c[sizeof(wchar_t)==2?1:-1]; __int128 d;\n"
                                   : "int f(void) { return undeclared(); }\n");
        const ProgramRun seen =
            workshop.run({"clang-19", "--config", workshop.personality, "-fsyntax-only", source});
        QVERIFY2(seen.succeeded(), seen.errors);
    }

    void generatesOnceMore()
    {
        const Workshop workshop(true);
        workshop.write("-op/a.h", "#if AA\n#endif\n");
        workshop.write("-op/tried.h", "");
        workshop.write("b.h", "");
        workshop.write("t.p_c", "-DTEMPLATE=1\n");
        const ProgramRun generated = workshop.generate(
            "kov",
            "gcc -nostdinc -isystem ./-op -DODD=\\\"x\\\" -DMARK='\"' -include b.h -fcond-mismatch",
            {"-xd", "AA=\"1,2\",BB", "-xs", "-std=c99", "-tpl", "t.p_c", "-fi", "b.h", "-sub",
             "-op"},
            {"-i", "-op"});
        QVERIFY2(generated.succeeded(), generated.output);
        // Without what lines have grown by, and which numbers they tell.
        QString said = generated.output;
        said.replace(QDir(workshop.folder.path()).canonicalPath(), "$")
            .remove(QRegularExpression("(?<=\\.\\.\\.)( [.0-9]+| of| files?)+"))
            .replace(QRegularExpression("\\d+ "), "N ");
        QCOMPARE(said, "Uses the template: t.p_c\nUses the force-include file: b.h\n"
                       "Uses the folder of substitute headers: -op\n"
                       "Compiling a first probe ...\n"
                       "Compiling what the command includes first ...\n"
                       "Compiling control probes ...\n"
                       "Asking the compiler for what it lists ...\n"
                       "Looking for a way to read constants back ...\n"
                       "Reading the search directories ...\nFound N name in N files.\n"
                       "Found N predefined macros.\nMeasuring types ...\n"
                       "Looking for keywords ...\nFound N keywords.\n"
                       "Looking for attributes ...\n"
                       "Looking for what newer clang would reject ...\n"
                       "Found N directory on the search path.\n"
                       "Compiling the first probe again ...\nThe compiler was started N times.\n"
                       "Clang has no option like the compiler's -fcond-mismatch.\n"
                       "Wrote sub folder/mine.p_c\n"
                       "  clang --config '$/sub folder/mine.p_c' -fsyntax-only FILE\n"
                       "  clang-tidy FILE -- --config '$/sub folder/mine.p_c'\n"
                       "Trying the headers of the search path ...\n"
                       "clang N accepts N of the N headers that the compiler accepts. "
                       "A sample: N of the N found were tried.\n");
        const QByteArray text = readTestFile(workshop.personality);
        const QString elsewhere = workshop.folder.filePath("elsewhere");
        QDir().mkdir(elsewhere);
        QFile::remove(workshop.personality);
        writeTestFile(elsewhere + "/moved.p_c", QByteArray(text).replace("\n", "\r\n"));
        QFile::remove(workshop.folder.filePath("compile.bat"));
        const auto again = [&elsewhere](const QStringList &more) {
            return platform::runProgram(QStringList {GENERATOR, "again", "moved.p_c"} + more,
                                        elsewhere, 600'000);
        };
        const ProgramRun same = again({"--verify"});
        QVERIFY2(same.succeeded() && same.output.endsWith("\nNothing has changed.\n"), same.output);
        QVERIFY(!QFile::exists(workshop.folder.filePath("compile.bat")));

        QByteArray changed = text;
        changed.replace("\"-DBB=1\"\n", "").replace(" int, size 4", " int, size 5");
        writeTestFile(elsewhere + "/moved.p_c", changed);
        const ProgramRun differs = again({"--verify"});
        QCOMPARE(differs.exitCode, 3);
        QVERIFY2(differs.output.endsWith("\ntype: - int, size 5, alignment 4\n"
                                         "type: + int, size 4, alignment 4\n"
                                         "Predefined macros: + \"-DBB=1\"\n"),
                 differs.output);
        QCOMPARE(readTestFile(elsewhere + "/moved.p_c"), changed);

        const ProgramRun once = again({});
        QVERIFY2(once.succeeded() && once.output.contains("\nReplaced "), once.output);
        QCOMPARE(readTestFile(elsewhere + "/moved.p_c"), text);

        writeTestFile(elsewhere + "/moved.p_c", "-DX=1\n");
        QCOMPARE(again({}).exitCode, 1);
        QCOMPARE(readTestFile(elsewhere + "/moved.p_c"), "-DX=1\n");
    }

    void generatesWhatTheCatalogueHas()
    {
        const Workshop workshop;
        const auto entry = [](const QByteArray &name, const QByteArray &command) {
            return "<Compiler>\n<Name>" + name + "</Name>\n<Family>F</Family>\n<ExeCommand>"
                 + command
                 + "</ExeCommand>\n<CrossCompiler>no</CrossCompiler>\n<OutputFlag>-o</OutputFlag>\n"
                   "<DefineFlag>-D</DefineFlag>\n<ObjectFlag>-c</ObjectFlag>\n"
                   "<ObjectFileExtension>o</ObjectFileExtension>\n"
                   "<Order>%c %o %e %d%j %s </Order>\n<CompilerDefines>A,B=2</CompilerDefines>\n"
                   "</Compiler>\n";
        };
        workshop.write("compilers.txt", entry("plain - C", "tcc -nostdinc")
                                            + entry("open - C", "tcc --target=<specify target>")
                                            + entry("two - C", "tcc") + entry("two - C", "gcc"));
        const auto generate = [&workshop](const QString &name) {
            return workshop.run({GENERATOR, "entry", name, "-op", "sub folder/mine.p_c"});
        };
        const ProgramRun open = generate("open - C");
        QVERIFY2(open.exitCode == 1
                     && open.output.endsWith("\n  ExeCommand: tcc --target=<specify target>\n"),
                 open.output);
        const ProgramRun unknown = generate("odd");
        QVERIFY2(unknown.exitCode == 1
                     && unknown.output.contains(". It has:\n  F/plain - C\n  F/open - C\n"),
                 unknown.output);
        const ProgramRun twice = generate("two - C");
        QVERIFY2(twice.exitCode == 1
                     && twice.output.endsWith("its family:\n  F/two - C\n  F/two - C\n"),
                 twice.output);
        const ProgramRun lost = workshop.run({GENERATOR, "entry", "plain - C", "-op", "none/x"});
        QVERIFY2(lost.output.startsWith("The folder of the personality does not exist: "),
                 lost.output);
        const ProgramRun generated = generate("F/plain - C");
        QVERIFY2(generated.succeeded(), generated.output);
        const QString text = workshop.read("sub folder/mine.p_c");
        QVERIFY2(text.contains("\"-DA=1\"") && text.contains("\"-DB=2\""), qPrintable(text));
    }

    void saysThatItFindsNoClang()
    {
        QCOMPARE(Workshop().generate("kov", "tcc -nostdinc", {"-check"}).exitCode, 3);
    }

    void checksWhetherClangSeesTheSame()
    {
        const Workshop workshop;
        const ProgramRun generated = workshop.generate("kov", "gcc -I include");
        QVERIFY2(generated.succeeded(), generated.output);
        workshop.write("same.c", "#include <stdarg.h>\n#include <stdio.h>\n#include \"x.h\"\n"
                                 "int f(FILE *a, ...) { va_list b; va_start(b, a); return X; }\n"
                                 "#if __has_attribute(optimize) && !defined __is_identifier\n"
                                 "int g;\n#endif\n");
        workshop.write("include/x.h", "#define X Y\n");
        workshop.write("other.c", "#ifdef __building_module\nint a;\n#else\nint b;\n#endif\n");
        workshop.write("nested.c", "void f(void) { void g(void) { } }\n");
        workshop.write("wrong.c", "int int;\n");
        const QString folder = QDir(workshop.folder.path()).canonicalPath();
        workshop.write("all.json", ("[{\"directory\": \"" + folder
                                    + "\", \"file\": \"same.c\", \"command\": "
                                      "\"gcc --include-directory include -Wp,-DY=1 -MD "
                                      "-o same.o -c same.c\"}]")
                                       .toUtf8());
        workshop.write("gone.json", "[{\"file\": \"same.c\", \"arguments\": [\"no-such-cc\"]},"
                                    "{\"file\": \"b.c\", \"arguments\": [\"gcc\", \"b.c\"]},"
                                    "{\"directory\": \"gone\", \"file\": \"c.c\","
                                    " \"arguments\": [\"gcc\", \"c.c\"]}]");
        const QStringList before = QDir(folder).entryList();
        const auto check = [&](const QStringList &sources) {
            return workshop.run(QStringList {GENERATOR, "check", workshop.personality} + sources);
        };

        const ProgramRun all = check({"other.c", "nested.c", "wrong.c", "--json", "out.json"});
        QCOMPARE(all.exitCode, 1);
        for (const QByteArray line :
             {"/other.c:4, where the compiler has \"b\" and clang has \"a\"\n",
              "/nested.c: other: ", "/wrong.c: rejected by the compiler: ",
              "clang 14 accepts 1 of the 2 sources", "Why clang rejects them:\n      1  other\n"})
            QVERIFY2(all.output.contains(line), all.output);
        // Without the compilers' own words.
        QString json = QJsonDocument::fromJson(readTestFile(workshop.folder.filePath("out.json")))
                           .toJson(QJsonDocument::Compact);
        json.replace(folder, "$").replace('"', '\'');
        json.remove(QRegularExpression("(?<='message':')[^']*"));
        QCOMPARE(json, "{'clang':'clang 14','counts':{'different':1,'missing':0,'not-compared':0,"
                       "'not-started':0,'rejected-by-clang':1,'rejected-by-compiler':1,'same':0},"
                       "'files':[{'difference':{'clang':'a','compiler':'b','file':'$/other.c',"
                       "'line':4},'file':'$/other.c','result':'different'},"
                       "{'file':'$/nested.c','kind':'other','message':'','result':"
                       "'rejected-by-clang'},{'file':'$/wrong.c','message':'','result':"
                       "'rejected-by-compiler'}],'personality':'$/sub folder/mine.p_c'}");
        QFile::remove(workshop.folder.filePath("out.json"));

        const ProgramRun gone = check({"gone.json"});
        for (const QString &line :
             {QString("same.c: cannot be started: no-such-cc\n"),
              "b.c: missing: the file " + folder + "/b.c\n",
              "c.c: missing: the directory " + folder + "/gone\n",
              QString("clang 14 accepts 0 of the 0 sources"), QString("\n      2  are missing")})
            QVERIFY2(gone.output.contains(line.toUtf8()), gone.output);
        QCOMPARE(gone.exitCode, 3);
        for (const char *source : {"nowhere.c", "nowhere.json", "wrong.c"})
            QCOMPARE(check({source}).exitCode, 3);
        const ProgramRun unkept = check({"same.c", "--json", "no/x.json"});
        QVERIFY2(unkept.exitCode == 3
                     && unkept.output.startsWith("The folder of the verdicts does not exist: "),
                 unkept.output);
        const ProgramRun listed = check({"all.json"});
        QVERIFY2(listed.succeeded() && listed.output.contains("same.c: same\n"), listed.output);
        QCOMPARE(QDir(folder).entryList(), before);
        const ProgramRun blind = check({"other.c", "--preprocess", "--no-such"});
        QVERIFY2(blind.succeeded() && blind.output.contains("not compared: gcc: error: unrec"),
                 blind.output);
        const ProgramRun silent = check({"other.c", "--preprocess", "-fsyntax-only"});
        QVERIFY2(silent.output.contains("compared: the compiler preprocesses it to nothing\n"),
                 silent.output);
        // Its <stddef.h>, which clang has its own instead of, includes others.
        QVERIFY(workshop.generate("kov", "x86_64-w64-mingw32-gcc").succeeded());
        workshop.write("order.c",
                       "#include <stddef.h>\n#include <stdlib.h>\nsize_t a = RAND_MAX;\n");
        const ProgramRun cross = check({"order.c", "other.c"});
        QVERIFY2(cross.output.contains("order.c: same\n") && cross.output.contains("other.c:4, "),
                 cross.output);
        // Clang has its own of this header, too, and asks for a macro that gcc has not got.
        workshop.write("t.p_c", "-DX -DNEW=2\n"); // which stays in the place of the compiler's
        const ProgramRun made = workshop.generate("kov", "arm-none-eabi-gcc -mcpu=cortex-m33",
                                                  {"-xd", "NEW=1", "-tpl", "t.p_c"});
        QVERIFY2(made.succeeded(), made.output);
        workshop.write("acle.c", "#include <arm_acle.h>\nvoid f(void) { __asm__(\"nop\"); }\n");
        workshop.write("new.c", "\n\nint a = NEW;\n");
        const ProgramRun arm = check({"acle.c", "new.c"});
        QVERIFY2(arm.output.contains("acle.c: same\n") && arm.output.contains("new.c:3, "),
                 arm.output);
        // One that is clang itself reads the same headers as clang.
        QVERIFY(workshop.generate("kov", "clang-14").succeeded());
        const ProgramRun alike = check({"order.c"});
        QVERIFY2(alike.output.contains("order.c: same\n"), alike.output);
        QCOMPARE(workshop.run({"env", "PATH=", GENERATOR, "check", workshop.personality, "same.c"})
                     .exitCode,
                 3);
    }

    void tellsClangWhatOptionsOfEntriesChange()
    {
        const Workshop workshop;
        const QString compiler = workshop.compiler("case \" $* \" in *\" -O0 \"*-dM*) exit 1 "
                                                   ";; *\" -dM \"*) echo >> \"$0.asked\" ;; esac\n"
                                                   "exec gcc \"$@\"");
        workshop.write("t.p_c", "-D__pic__=7\n");
        const ProgramRun made =
            workshop.generate("kov", '"' + compiler + "\" -O1 -ansi",
                              {"-xd", "N=1", "-xs", "-pthread,-MMD", "-tpl", "t.p_c"});
        QVERIFY2(made.succeeded(), made.output);
        QFile::remove(compiler + ".asked");
        QByteArray json;
        for (const auto &[options, condition] : {
                 std::pair("-Wall -U linux", "!defined linux && !defined __OPTIMIZE__"),
                 {"-std=c99", "__STDC_VERSION__ == 199901 && __STRICT_ANSI__ && !defined unix"},
                 {"-std=c99 -DX", "__STDC_VERSION__ == 199901 && N == 1 && X"},
                 {"-O2 -U__OPTIMIZE__", "!defined __OPTIMIZE__ && N == 1 && defined _REENTRANT"},
                 {"-O0", "N == 1"},
                 {"-O1 -ansi", "defined __OPTIMIZE__"},
                 {"-m32", "__SIZEOF_POINTER__ == 4 && defined __i386__ && !defined __x86_64__"},
                 {"-fPIC --sysroot /Users/x", "__PIC__ == 2"},
             }) {
            const QByteArray name = QByteArray::number(json.size()) + ".c";
            workshop.write(name, QByteArray("#if !(") + condition + ")\n#error\n#endif\n");
            json += ",{'file': '" + name + "', 'command': '$ " + options
                  + " -DN=1 -D_REENTRANT=1 -c " + name + "'}";
        }
        json.replace('\'', '"').replace("$", "'" + compiler.toUtf8() + "'");
        workshop.write("all.json", '[' + json.sliced(1) + ']');
        const ProgramRun all = workshop.run({GENERATOR, "check", workshop.personality, "all.json"});
        QVERIFY2(all.output.contains("accepts 8 of the 8 ")
                     && all.output.contains("with their options: 1 (odd compiler -m32)"),
                 all.output);
        // Once, and under five sets of options.
        QCOMPARE(workshop.read("odd compiler.asked"), "\n\n\n\n\n\n");
        const ProgramRun exported =
            workshop.run({GENERATOR, "export", workshop.personality, "compile-commands", "all.json",
                          "-o", "for_clang.json"});
        QVERIFY2(exported.output.contains("with their options: 1 (odd compiler -m32)"),
                 exported.output);
        const QString database = workshop.read("for_clang.json");
        QVERIFY2(database.contains("\"-U__PIE__\"") && database.contains("\"-std=gnu17\"")
                     && !database.contains("__pic__"), // which the template settles
                 qPrintable(database));
    }

    void writesNothingBesideSources_data()
    {
        // script: of a compiler that cannot be told what to call an object
        const Columns<QByteArray, QString, QString> row("script", "outputFlag", "order");
        row("writes beside the source",
            "case \" $* \" in *\" -E \"*) exec tcc -nostdinc \"$@\" ;; esac\n"
            "for source; do :; done\nexec tcc -nostdinc \"$@\" -o \"${source%.c}.o\"",
            "", "%c %d%j %s ");
        row("takes names for programs only",
            "case \" $* \" in *\" -c \"*) case \" $* \" in *\" -o \"*) exit 1 ;; esac ;; esac\n"
            "exec tcc -nostdinc \"$@\"",
            "-o", "%c %o %e %d%j %s ");
    }
    void writesNothingBesideSources()
    {
        QFETCH(QByteArray, script);
        QFETCH(QString, outputFlag);
        QFETCH(QString, order);
        const Workshop workshop;
        const QString compiler = workshop.compiler(script);
        const ProgramRun made =
            workshop.run({GENERATOR, "kov", "cmp", '"' + compiler + '"', outputFlag, "-c", "-D",
                          ".o", order, "-op", "mine.p_c", "-check"});
        QVERIFY2(made.succeeded() && made.output.contains("The compiler and clang "), made.output);
        for (const QString name : {"x", "a/x", "b/x"}) {
            workshop.write(name + ".c", "#include \"x.h\"\nint a = X;\n");
            workshop.write(name + ".h", "#define X " + QByteArray::number(name.size()) + '\n');
            workshop.write(name + ".o", "mine");
        }
        workshop.write("all.json",
                       QByteArray("[{'directory': 'a', 'file': 'x.c', 'command': '$ -c x.c'},"
                                  "{'directory': 'b', 'file': 'x.c', 'command': '$ -c x.c'},"
                                  "{'directory': 'a', 'file': 'x.h', 'command': '@../empty.rsp'}]")
                           .replace('\'', '"')
                           .replace("$", ("'" + compiler + "'").toLocal8Bit()));
        workshop.write("empty.rsp", "");
        const ProgramRun checked =
            workshop.run({GENERATOR, "check", "mine.p_c", "x.c", "all.json"});
        QVERIFY2(checked.output.count("x.c: same\n") == 3
                     && checked.output.contains("x.h: cannot be started: "),
                 checked.output);
        QCOMPARE(workshop.read("x.o") + workshop.read("a/x.o") + workshop.read("b/x.o"),
                 "mineminemine");
        QVERIFY(!QFile::exists(workshop.folder.filePath("mine.check.o")));
    }

    void assertsTheTypes_data()
    {
        const Columns<QString, QString, bool> row("product", "command", "clangHasThem");
        row("C++ of 1998 with a long wchar_t", "kovpp", "g++ -std=c++98 -m32 -nostdinc", true);
        row("C of 8 bits", "kov", "avr-gcc -nostdinc", true);
        row("pointers of 3 bytes", "kov", "sdcc -mmcs51 --nostdinc", false);
        row("other options", "kov",
            "gcc -nostdinc -I include -m32 -funsigned-char -fshort-wchar -fshort-enums "
            "-mlong-double-64 -mms-bitfields",
            true);
    }
    void assertsTheTypes()
    {
        QFETCH(QString, product);
        QFETCH(QString, command);
        QFETCH(bool, clangHasThem);
        const Workshop workshop(true);
        workshop.write("include/stddef.h", "typedef __SIZE_TYPE__ size_t;\n"
                                           "typedef __PTRDIFF_TYPE__ ptrdiff_t;\n"
                                           "typedef __WCHAR_TYPE__ wchar_t;\n");
        const ProgramRun run = workshop.generate(product, command, {"-check"});
        const QString file = QDir(workshop.folder.path()).canonicalPath()
                           + "/sub folder/mine.check." + (product == "kov" ? "c" : "cpp");
        const QString says = clangHasThem ? "The compiler and clang 14 accept %1.\n"
                                          : "The compiler accepts %1, and clang 14 rejects it: %1:";
        QVERIFY2(run.output.contains(says.arg(file).toLocal8Bit()), run.output);
        QCOMPARE(run.succeeded(), clangHasThem);
        for (const char *end : {"read assembler between __asm and __endasm.\n",
                                " behind __at, __interrupt, __using.\n"})
            QCOMPARE(run.output.contains(end), command.contains("mcs51"));
        QStringList facts {"type void *,", "char ", "byte-order little", "small-enum ",
                           "bit-field "};
        if (command.contains("include"))
            facts << QStringList {"size_t ", "ptrdiff_t ", "wchar_t "};
        for (const QString &fact : facts)
            QVERIFY2(workshop.read("sub folder/mine.p_c").contains("\n#: " + fact),
                     qPrintable(fact));
        // Another compiler does not accept the same.
        const ProgramRun other = workshop.run({"arm-none-eabi-gcc", "-fsyntax-only", file});
        QVERIFY(other.exitCode == 1 && other.errors.contains("calyx_size_of_"));
    }

    void neverSucceedsWithWrongFacts_data()
    {
        // What is open is not known though else it would be.
        const Columns<QByteArray, QByteArray, QString> add("script", "says", "open");
        const auto row = [&add](const char *name, const QByteArray &script,
                                const QByteArray &says = "Wrote ",
                                const QString &open = "$^") { add(name, script, says, open); };
        const QByteArray good = "tcc -nostdinc \"$@\"";
        // "n" is how often it has been started.
        const QByteArray counting =
            "echo >>\"$0 count\"; n=0; while read x; do n=$((n + 1)); done <\"$0 count\"\n";
        row("waits for input, leaves a program behind and its object somewhere",
            "cat >/dev/null; sleep 600 & tcc -nostdinc \"$@\" && mkdir -p made && "
            "{ [ ! -f probe.o ] || mv probe.o made/thing.xyz; }");
        row("kills the guardian of what it starts",
            counting
                + "[ $n != 1 ] || for process in /proc/[0-9]*; do\n"
                  "read -r id name state parent rest <$process/stat\n"
                  "[ \"$parent\" != $PPID ] || [ $id = $$ ] || kill -KILL $id\ndone\n"
                + good);
        row("speaks the user's language", "[ \"$LC_ALL\" = C ] || exit 1\n" + good);
        row("hangs", "sleep 600", "did not end within its time");
        row("crashes", "kill -SEGV $$", "the compiler crashed");
        row("leaves nothing", "exit 0", "returned 0 and left no object file");
        row("leaves nothing that tells", "echo >probe.o", "accepts a syntax error");
        row("has one licence", "mkdir \"$0 seat\" || exit 1\n" + good
                                   + "\nstatus=$?\nrmdir \"$0 seat\"\nexit $status");
        row("has no licence twice in a row once in a while",
            counting + "[ $((n % 20)) -gt 1 ] || [ $n = 1 ] || { echo no licence >&2; exit 1; }\n"
                + good);
        row("crashes once in a while", counting + "[ $((n % 20)) != 0 ] || kill -SEGV $$\n" + good);
        row("loses the source once in a while",
            counting + "[ $((n % 5)) != 4 ] || : >probe.c\n" + good);
        row("sees no end of some sources",
            "! grep -q typedef probe.c || sed -i '/calyx_source_end/d' probe.c\n" + good);
        row("loses the status", good + " 2>&1 | cat");
        row("has much to say",
            "awk '{ print \"probe.c:\" NR \": warning: seen\" }' probe.c\n" + good);
        row("names no object",
            "case \"$*\" in *probe.o*) echo no name >&2; exit 1 ;; esac\n" + good,
            "takes no name for an object file");
        const QByteArray errors = " | sed 's/:.*//; s/.*/probe.c:&: error: no/' | grep . ";
        row("knows no constants",
            "! grep -n '^[^#]*\\<const\\>' probe.c" + errors + "|| exit 1\n" + good);
        const QByteArray arrays = "char calyx_[0-9]*\\)\\[\\] = .*;/\\1[9];/' probe.c\n";
        row("drops constant arrays", "sed -i 's/\\(const " + arrays + good);
        row("drops all arrays", "sed -i 's/\\(" + arrays + good);
        row("leaves records of text and makes no programs",
            "case \" $* \" in *\" -c \"*) ;; *) exit 1 ;; esac\n" + good
                + " && od -v -tx1 probe.o >x && mv x probe.o",
            "no file that holds the bytes");
        row("hides its objects and takes what would tell numbers",
            "case \" $* \" in *\" -c \"*) ;; *) exit 1 ;; esac\n"
            "sed -i -e '/^#error/d' -e 's/\\[1-2[^]]*\\]/[1]/' probe.c\n"
                + good + " && echo >probe.o",
            "overlooks errors that would tell");
        row("takes everything", good + "\necho >>probe.o; exit 0", "accepts a syntax error");
        row("takes conflicting declarations",
            "sed -i -e '/^extern signed char calyx_object/d' "
            "-e 's/; extern [a-z ]* calyx_[a-z0-9]*; *$/;/' probe.c\n"
                + good,
            "accepts a conflicting declaration", "^#: (size_t|ptrdiff_t|wchar_t) ");
        row("answers otherwise each time", counting + "[ $n -lt 2 ] || exit $n\n" + good,
            "otherwise each time");
        row("loses its licence",
            counting + "[ $n -lt 50 ] || { echo \"probe.c: no licence\" >&2; exit 1; }\n" + good,
            "no longer answers as it did: the compiler returned 1.");
        row("breaks down", counting + "[ $n -lt 50 ] || kill -KILL $$\n" + good,
            "no longer answers as it did: the compiler crashed.");
        row("stops midway", counting + "[ $n -lt 50 ] || exit 0\n" + good,
            "no longer answers as it did: the compiler returned 0 and left no object file.");
        const QByteArray lacking = "returned 0 and left out something of a probe";
        row("drops constants", counting + "[ $n -lt 40 ] || sed -i 's/\\(const " + arrays + good,
            lacking);
        row("drops all", counting + good + " || exit\n[ $n -lt 40 ] || echo nothing >probe.o",
            lacking);
        row("takes the temporary folder away",
            counting + "[ $n -lt 50 ] || rm -r \"${0%/*}\"/temp*/*\n" + good,
            "the probe could not be written to the temporary folder.");
    }
    void neverSucceedsWithWrongFacts()
    {
        QFETCH(QByteArray, script);
        QFETCH(QByteArray, says);
        QFETCH(QString, open);
        const Workshop workshop;
        const QString temporary = workshop.folder.filePath("temporär ' \"x\"");
        QDir().mkdir(temporary);
        qputenv("TMPDIR", temporary.toLocal8Bit());
        qputenv("BEXLOR_LEARN_ONLY", "1");
        qputenv("LC_ALL", "C.UTF-8");
        const QRegularExpression mayDiffer("^#: (command|answers) |" + open);
        static QStringList right; // of the same compiler when nothing ails it
        if (right.isEmpty()) {
            const QString well = workshop.compiler("tcc -nostdinc \"$@\"");
            QVERIFY(workshop.generate("kov", well).succeeded());
            right = workshop.read("sub folder/mine.p_c").split('\n');
            QVERIFY(QFile::remove(workshop.personality));
        }
        qputenv("BEXLOR_TIME_LIMIT", says.contains("its time") ? "300" : "60000");
        const ProgramRun run = workshop.generate("kov", workshop.compiler(script));
        QVERIFY2(run.output.contains(says), run.output);
        for (const char *log : {"compile.bat", "stdout.log", "stderr.log"})
            QVERIFY2(QFile::exists(workshop.folder.filePath(log)), log);
        QVERIFY(workshop.read("compile.bat").contains("odd compiler"));
        QCOMPARE(QDir(temporary).entryList(QDir::AllEntries | QDir::NoDotAndDotDot), QStringList());
        QCOMPARE(run.succeeded(), QFile::exists(workshop.personality));
        if (!run.succeeded())
            return;
        const QByteArray starts = readTestFile(workshop.folder.filePath("odd compiler count"));
        const QByteArray said = "was started " + QByteArray::number(starts.size()) + " times.";
        QVERIFY2(starts.isEmpty() || run.output.contains(said), run.output);
        QStringList lines = workshop.read("sub folder/mine.p_c").split('\n'), expected = right;
        for (QStringList *list : {&lines, &expected})
            list->removeIf([&](const QString &line) { return mayDiffer.match(line).hasMatch(); });
        QCOMPARE(lines, expected);
    }

    void saysWhatIsMissing_data()
    {
        const Columns<QString, QStringList, QByteArray> row("command", "more", "says");
        for (const char *option : {"-tpl", "-fi", "-sub"})
            row(option, "tcc", {option, "nowhere"}, " does not exist: nowhere");
        row("a file for a folder", "tcc", {"-sub", "nowhere.txt"}, " is no folder: nowhere.txt");
        row("a define that is a path", "tcc", {"-xd", "/nowhere"},
            "not begin with a name: /nowhere");
        row("no compiler", "no-such-compiler", {}, "could not be started");
        row("no file to include", "gcc -include nowhere.h", {}, "includes first failed: the comp");
        row("unknown option", "gcc --no-such-option", {"-xd", "A=\"x\\\"\""},
            "Compiling the first probe failed: the compiler returned 1.");
        row("compiles C++", "g++", {}, "Name its C compiler on the page");
        row("preprocesses", "tcc -E", {}, "With the option -E ");
        row("checks", "tcc -fsyntax-only", {}, "With the option -fsyntax-only ");
        row("searches what is not known", "odd", {}, "Name them on the page Search Directories.");
    }
    void saysWhatIsMissing()
    {
        QFETCH(QString, command);
        QFETCH(QStringList, more);
        QFETCH(QByteArray, says);
        const Workshop workshop;
        workshop.write("compile.bat", "of an earlier run");
        workshop.write("nowhere.txt", "");
        qputenv("BEXLOR_LEARN_ONLY", "1");
        const QString odd = workshop.compiler("exec tcc \"$@\"");
        const ProgramRun run = workshop.generate("kov", command == "odd" ? odd : command, more);
        QCOMPARE(run.exitCode, 1);
        QVERIFY2(run.output.contains(says), run.output);
        QVERIFY(!QFile::exists(workshop.personality));
        const bool isStarted = !says.contains("nowhere");
        const QString attempted = workshop.read("compile.bat");
        QCOMPARE(attempted.contains(command), isStarted);
        QCOMPARE(QFile::exists(workshop.folder.filePath("compile.bat")), isStarted);
        if (says.contains("returned")) {
            QVERIFY(attempted.contains("-oprobe.o '-DA=\"x\\\"\"' -c probe.c"));
            QVERIFY(workshop.read("stderr.log").contains("no-such-option"));
        }
    }

    void findsWhatLiesBesideTheCompiler()
    {
        // Headers where a compiler of its name has them, where its file says, and where they are
        // not searched; macros that only these and its file name.
        const Workshop workshop;
        const QString top = QDir(workshop.folder.path()).canonicalPath();
        workshop.write("share/acc/include/acc.h", "#if IN_HEADER\n#endif\n");
        workshop.write("elsewhere/include/more.h", "#define MORE\n");
        workshop.write("include/other.h", "#define OTHER\n");
        workshop.write("bin/acc", "#!/bin/sh\nexec tcc -nostdinc -DIN_HEADER=3 -D IN_PROGRAM=4 "
                                  "-I \"${0%/*}/../share/acc/include\" -I "
                                      + top.toUtf8() + "/elsewhere/include \"$@\"\n");
        workshop.makeRunnable("bin/acc");
        qputenv("BEXLOR_LEARN_ONLY", "1");
        const ProgramRun run = workshop.generate("kov", top + "/bin/acc");
        QVERIFY2(run.succeeded(), run.output);
        const QByteArray found =
            (top + "/share/acc/include, " + top + "/elsewhere/include").toUtf8();
        QVERIFY2(run.output.contains("are searched: " + found + '\n'), run.output);
        const QString text = workshop.read("sub folder/mine.p_c");
        for (const char *line : {"\"-DIN_HEADER=3\"", "\"-DIN_PROGRAM=4\""})
            QVERIFY2(text.contains(line), line);
        QCOMPARE(text.count("\n#: search-path "), 2);
    }

    void writesNothingOfTheUsers_data()
    {
        // "$" stands for the folder of the user's files.
        const Columns<QString, QList<QByteArray>> row("command", "variables");
        row("in its own words and in the environment",
            "gcc -nostdinc -isystem include -MD -MF a.d -aux-info c.i -o f.o -og.o -save-temps",
            {"DEPENDENCIES_OUTPUT=$/a.d", "SUNPRO_DEPENDENCIES=$/b.d x"});
        row("handed on and in a response file",
            "gcc -nostdinc -Wp,-MMD,$/b.d,-DA -Wl,-Map,$/d.map -Wa,-adhln=$/e.lst "
            "-Xpreprocessor -MD -Xpreprocessor $/a.d @words.rsp",
            {});
        row("of clang",
            "clang-19 -nostdinc -isystem include -Xclang -dependency-file -Xclang $/a.d -MJ b.d "
            "-ftime-trace=c.i",
            {"CC_PRINT_OPTIONS=1", "CC_PRINT_OPTIONS_FILE=$/e.lst", "CC_PRINT_HEADERS=1",
             "CC_PRINT_HEADERS_FILE=$/d.map", "CC_LOG_DIAGNOSTICS=1",
             "CC_LOG_DIAGNOSTICS_FILE=$/f.o", "CC_PRINT_PROC_STAT=1",
             "CC_PRINT_PROC_STAT_FILE=$/g.o", "CC_PRINT_INTERNAL_STAT=1",
             "CC_PRINT_INTERNAL_STAT_FILE=$/probe.d"});
    }
    void writesNothingOfTheUsers()
    {
        QFETCH(QString, command);
        QFETCH(QList<QByteArray>, variables);
        const Workshop workshop(true);
        const QString top = QDir(workshop.folder.path()).canonicalPath();
        const QStringList mine {"a.d", "b.d", "c.i", "d.map", "e.lst", "f.o", "g.o", "probe.d"};
        for (const QString &name : mine)
            workshop.write(name, "mine");
        workshop.write("include/tried.h", "");
        workshop.write("words.rsp", "-MD -MF " + top.toLocal8Bit() + "/c.i");
        for (QByteArray &variable : variables)
            qputenv(variable.split('=').first(),
                    variable.replace("$", top.toLocal8Bit()).split('=').last());
        const QStringList before = QDir(top).entryList(QDir::Files);
        const ProgramRun run =
            workshop.generate("kov", command.replace("$", top) + " -fshort-enums -Wfatal-errors");
        for (const QByteArray &variable : variables)
            qunsetenv(variable.split('=').first());
        QVERIFY2(run.succeeded(), run.output);
        for (const QString &name : mine)
            QCOMPARE(workshop.read(name), "mine");
        QStringList after = QDir(top).entryList(QDir::Files);
        for (const char *log : {"compile.bat", "stderr.log", "stdout.log"})
            QVERIFY(after.removeOne(log));
        QCOMPARE(after, before);
        QCOMPARE(QDir(top + "/sub folder").entryList(QDir::Files), QStringList {"mine.p_c"});
        QVERIFY(workshop.read("sub folder/mine.p_c").contains("\n#: small-enum 1\n"));
    }

    void keepsControlCharactersOutOfThePersonality()
    {
        const Workshop workshop;
        const QString compiler = workshop.compiler(
            "case \" $* \" in\n"
            "*\" --version \"*) printf 'odd \\033[31mcc\\000 1.2\\n'; exit ;;\n"
            "*\" -dM \"*) printf '#define ODD a\\001b\\n#define EVEN 1\\n'; exit ;;\n"
            "esac\nexec tcc \"$@\"");
        workshop.write("one\n-DEVIL=1/x.h", "__one\n");
        workshop.write("headers/two\n-DEVIL=2/y.h", "__two\n");
        workshop.write("headers/z\n-DEVIL=3.h", "__three\n");
        const ProgramRun run =
            workshop.generate("kov", compiler, {}, {"-i", "one\n-DEVIL=1", "-i", "headers"});
        QVERIFY2(run.succeeded(), run.output);
        QCOMPARE(run.output.count("it has a control character in its name"), 3);
        const QString text = workshop.read("sub folder/mine.p_c");
        QVERIFY2(!text.contains("\n-DEVIL") && text.contains("\"-DEVEN=1\""), qPrintable(text));
        QVERIFY(text.contains("\n#: macro ODD undetermined\n"));
        QVERIFY(text.contains("\n#: version odd [31mcc 1.2\n"));
        for (const QChar character : text)
            QVERIFY(character >= ' ' || character == '\n');
    }

    void letsTheLineOfAStepGrow()
    {
        // Each probe is compiled only after the line of its step has grown.
        const Workshop workshop;
        const QString compiler = workshop.compiler(
            "size() { wc -c <'" + workshop.folder.path().toLocal8Bit()
            + "/said'; }\nold=$(size)\nuntil [ $(size) -gt $old ]; do sleep 0.1; done\nexec false");
        workshop.run({"sh", "-c", "exec \"$@\" >said", "sh", GENERATOR, "kov", "cmp",
                      '"' + compiler + '"', "-o", "-c", "-D", ".o", "%c %o%e %d%j %s ", "-op",
                      "mine.p_c"});
        const QString said = workshop.read("said");
        QVERIFY2(said.startsWith("Compiling a first probe ... ..."), qPrintable(said));
    }

    void saysHowItIsCalled_data()
    {
        const Columns<QString, int, QByteArray> row("word", "exitCode", "says");
        row("a wrong list", "kov", 2, "last one: kov\nusage: Bexlor.exe kov|kovpp ");
        row("help", "--help", 0, "\n       Bexlor.exe again PERSONALITY [--verify]\n");
        row("version", "--version", 0, "Bexlor 2.");
    }
    void saysHowItIsCalled()
    {
        QFETCH(QString, word);
        QFETCH(QByteArray, says);
        const ProgramRun run = Workshop().run({GENERATOR, word});
        QTEST(run.exitCode, "exitCode");
        const QByteArray &used = run.exitCode == 0 ? run.output : run.errors;
        QVERIFY2(used.contains(says) && run.output.size() + run.errors.size() == used.size(), used);
    }
};

QTEST_GUILESS_MAIN(TestGenerator)
#include "test_generator.moc"
