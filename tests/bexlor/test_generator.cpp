#include "row.h"

#include <QDir>
#include <QProcess>
#include <QTemporaryDir>
#include <QTest>

class TestGenerator : public QObject
{
    Q_OBJECT

private:
    struct Output
    {
        int exitCode;
        QString output;
        QByteArray errors;
    };

    static Output run(const QString &folder, const QString &program, const QStringList &arguments)
    {
        QProcess process;
        process.setWorkingDirectory(folder);
        process.setStandardInputFile(QProcess::nullDevice());
        process.start(program, arguments);
        process.waitForFinished();
        return {process.exitStatus() == QProcess::NormalExit ? process.exitCode() : -1,
                QString::fromLocal8Bit(process.readAllStandardOutput()),
                process.readAllStandardError()};
    }

    static Output generate(const QString &folder, const QString &product, const QString &command,
                           const QStringList &more = {}, const QStringList &directories = {})
    {
        const QStringList order {"-o", "-c", "-D", ".o", "%c %o%e %d%j %s "};
        return run(folder, GENERATOR,
                   QStringList {product, "cmp", command} + order + directories
                       + QStringList {"-op", "sub folder\\mine.p_c"} + more);
    }

    static QString read(const QString &path)
    {
        QFile file(path);
        return file.open(QIODevice::ReadOnly) ? QString::fromLocal8Bit(file.readAll()) : QString();
    }

    static QStringList sortedLines(const QString &text)
    {
        QStringList lines = text.split('\n', Qt::SkipEmptyParts);
        lines.sort();
        return lines;
    }

private slots:
    void makesClangSeeWhatTheCompilerSees_data()
    {
        QTest::addColumn<QString>("product");
        QTest::addColumn<QString>("compiler");
        row("gcc", "kov", "gcc");
        row("gcc for 32 bits", "kov", "\"gcc -m32 -std=c99\"");
        row("g++", "kovpp", "g++");
        row("clang", "kov", "clang");
        row("clang++", "kovpp", "clang++");
        row("cross compiler", "kov", "arm-none-eabi-gcc");
    }
    // Needs gcc -m32.
    void makesClangSeeWhatTheCompilerSees()
    {
        QFETCH(QString, product);
        QFETCH(QString, compiler);
        const QTemporaryDir folder;
        QDir(folder.path()).mkdir("sub folder");
        const QString source = product == "kov" ? "x.c" : "x.cpp";
        QVERIFY(QFile(folder.filePath(source)).open(QIODevice::WriteOnly));
        const Output generated =
            generate(folder.path(), product, compiler, {"-xd", "A=1,F(a,b)=a \"q\" b"});
        QVERIFY2(generated.exitCode == 0, qPrintable(generated.output));

        QStringList words = QString(compiler).remove('"').split(' ');
        const QStringList list {"-dM", "-E", source};
        const QString program = words.takeFirst();
        const Output own =
            run(folder.path(), program, words + QStringList {"-DA=1", "-DF(a,b)=a \"q\" b"} + list);
        const QStringList config {"--config", folder.filePath("sub folder/mine.p_c")};
        const Output seen = run(folder.path(), "clang", config + list);
        QCOMPARE(seen.exitCode, 0);
        const QString personality = read(folder.filePath("sub folder/mine.p_c"));
        QStringList more;
        for (const QString &line : sortedLines(seen.output)) {
            // What clang lacks is defined away, in addition to what the compiler defines.
            const QString name = line.section(' ', 1, 1).section('(', 0, 0);
            if (name != "__malloc__" && !personality.contains("#: keyword " + name + ' '))
                more << line;
        }
        QVERIFY(more.size() > 300);
        QCOMPARE(more, sortedLines(own.output));
    }

    void makesClangTakeTheSameCode_data()
    {
        QTest::addColumn<QString>("product");
        QTest::addColumn<QString>("command");
        QTest::addColumn<QByteArray>("code");
        QTest::addColumn<bool>("learnOnly");
        const auto row = [](const char *name, const QString &product, const QString &command,
                            const QByteArray &code, bool learnOnly = false) {
            QTest::newRow(name) << product << command << code << learnOnly;
        };
        row("short enumerations", "kov", "arm-none-eabi-gcc", "char a[sizeof(enum{A})==1?1:-1];");
        row("signed char", "kov", "arm-none-eabi-gcc -fsigned-char", "char a[(char)-1<0?1:-1];");
        row("fixed point", "kov", "arm-none-eabi-gcc", "long _Accum a; unsigned _Fract b = 0.5ur;");
        row("short wchar_t", "kovpp", "g++ -fshort-wchar", "char a[sizeof(wchar_t)==2?1:-1];");
        row("long double", "kov", "gcc -mlong-double-64", "char a[sizeof(long double)==8?1:-1];");
        row("x32", "kov", "gcc -mx32", "char a[sizeof(void *)==4?1:-1];");
        row("mips64", "kov", "clang --target=mips64el-unknown-elf",
            "char a[sizeof(long)==8?1:-1];");
        row("C90", "kov", "gcc -std=c90", "int restrict; int f(int inline);");
        row("char8_t", "kovpp", "g++ -std=c++17 -fchar8_t", "char8_t a = u8'a';");
        row("defines", "kov", "gcc", "int a = FOO;", true);
        row("included first", "kov", "gcc -include limits.h -include stdio.h",
            "#include <stdio.h>\nFILE *a; int b = INT_MAX;");
        row("quoted names only", "kov", "gcc -iquote quoted",
            "#include <stdio.h>\n#include \"limits.h\"\nFILE *f; int a = NOT_FROM_LIMITS;");
        row("folders named like options", "kov", "gcc -x c -DMODE=c", "int MODE;");
        row("warnings as errors", "kov", "gcc -Wall -Werror -pedantic-errors -std=c99",
            "#include <math.h>\nint a;");
        row("Microsoft's types", "kov", "clang --target=x86_64-pc-windows-msvc",
            "unsigned __int64 a; char b[sizeof(a)==8?1:-1];");
    }
    // Needs gcc -mx32.
    void makesClangTakeTheSameCode()
    {
        QFETCH(QString, product);
        QFETCH(QString, command);
        QFETCH(QByteArray, code);
        QFETCH(bool, learnOnly);
        const QTemporaryDir folder;
        QDir(folder.path()).mkdir("sub folder");
        const QString source = product == "kov" ? "x.c" : "x.cpp";
        QDir(folder.path()).mkdir("quoted");
        QDir(folder.path()).mkdir("c");
        const std::pair<QString, QByteArray> files[] = {
            {source, code},
            {"quoted/limits.h", "#define NOT_FROM_LIMITS 1\n"},
            {"quoted/stdio.h", "#error\n"}};
        for (const auto &[name, content] : files) {
            QFile file(folder.filePath(name));
            QVERIFY(file.open(QIODevice::WriteOnly));
            file.write(content);
        }
        if (learnOnly)
            qputenv("BEXLOR_LEARN_ONLY", "1");
        const Output generated =
            generate(folder.path(), product, '"' + command + '"', {"-xd", "FOO=1"});
        qunsetenv("BEXLOR_LEARN_ONLY");
        QVERIFY2(generated.exitCode == 0, qPrintable(generated.output));
        const QStringList own = command.split(' ');
        const Output taken =
            run(folder.path(), own.first(), own.mid(1) + QStringList {"-DFOO=1", "-c", source});
        QVERIFY2(taken.exitCode == 0, taken.errors);
        const Output seen =
            run(folder.path(), "clang",
                {"--config", folder.filePath("sub folder/mine.p_c"), "-fsyntax-only", source});
        QVERIFY2(seen.exitCode == 0, seen.errors);
    }

    void addsWhatTheUserGave()
    {
        const QTemporaryDir folder;
        for (const char *name : {"sub folder", "headers", "stand-ins"})
            QDir(folder.path()).mkdir(name);
        const auto write = [&folder](const QString &name, const QByteArray &content) {
            QFile file(folder.filePath(name));
            QVERIFY(file.open(QIODevice::WriteOnly));
            file.write(content);
        };
        write("headers/mine.h", "int from_mine;\n");
        write("stand-ins/stdio.h", "int not_the_real_one;\n");
        write("first.h", "int from_first;\n");
        write("template.p_c", "-DFROM_TEMPLATE=from_template");
        write("x.c", "#include <stdio.h>\n#include <mine.h>\n"
                     "int f(void) { return from_mine + from_first + not_the_real_one; }\n"
                     "int FROM_TEMPLATE;\n");
        const QStringList given {"-xs",  "-std=c99,-include first.h",
                                 "-tpl", "template.p_c",
                                 "-fi",  "first.h",
                                 "-sub", "stand-ins"};
        const QStringList directories {"-i", "headers"};
        const Output generated = generate(folder.path(), "kov", "gcc", given, directories);
        QVERIFY2(generated.exitCode == 0, qPrintable(generated.output));
        const QString personality = folder.filePath("sub folder/mine.p_c");
        const Output checked =
            run(folder.path(), "clang", {"--config", personality, "-fsyntax-only", "x.c"});
        QVERIFY2(checked.exitCode == 0, checked.errors);
        const QString text = read(personality);
        QVERIFY(text.contains("\n-std=c99\n") && text.contains("\n#: switch -std=c99\n"));

        // The same again gives the same bytes.
        generate(folder.path(), "kov", "gcc", given, directories);
        QCOMPARE(read(personality), text);
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
        const QTemporaryDir folder;
        QDir(folder.path()).mkdir("sub folder");
        QVERIFY(QFile(folder.filePath("stdout.log")).open(QIODevice::WriteOnly));
        const Output refused = generate(folder.path(), "kov", "gcc", {option, "nowhere"});
        QCOMPARE(refused.exitCode, 1);
        QVERIFY(refused.output.contains("nowhere"));
        QVERIFY(!QFile::exists(folder.filePath("stdout.log")));
    }

    void leavesTheFailedCommandAndItsOutput()
    {
        const QTemporaryDir folder;
        QDir(folder.path()).mkdir("sub folder");
        const Output failed =
            generate(folder.path(), "kov", "\"gcc --no-such-option\"", {"-xd", "A=\"x\\\""});
        QCOMPARE(failed.exitCode, 1);
        QVERIFY(
            failed.output.contains("Compiling the first probe failed: the compiler returned 1."));
        QVERIFY(read(folder.filePath("compile.bat"))
                    .contains("--no-such-option -oprobe.o \"-DA=\\\"x\\\\\\\"\" -c probe.c"));
        QVERIFY(read(folder.filePath("stderr.log")).contains("no-such-option"));
        QVERIFY(!QFile::exists(folder.filePath("sub folder/mine.p_c")));

        const Output missing = generate(folder.path(), "kov", "no-such-compiler");
        QCOMPARE(missing.exitCode, 1);
        QVERIFY(missing.output.contains("could not be started"));
    }

    void putsUpWithOddCompilers_data()
    {
        QTest::addColumn<QByteArray>("script");
        QTest::addColumn<QString>("says"); // when it fails
        const auto row = [](const char *name, const QByteArray &script, const QString &says) {
            QTest::newRow(name) << script << says;
        };
        row("object of another name in another place",
            "gcc \"$@\" && mkdir -p made && { [ ! -f probe.o ] || mv probe.o made/thing.xyz; }",
            "");
        row("waits for input", "cat >/dev/null; exec gcc \"$@\"", "");
        row("leaves a program behind", "sleep 600 & exec gcc \"$@\"", "");
        row("prints without end", "yes >&2 & yes & wait", "did not end within its time");
        row("hangs", "sleep 600", "did not end within its time");
        row("crashes", "kill -SEGV $$", "the compiler crashed");
        row("stops working",
            "echo >>\"$0 calls\"; [ $(wc -l <\"$0 calls\") -gt 40 ] || exec gcc \"$@\"; exit 9",
            "no longer compiles: the compiler returned 9");
        row("leaves nothing", "exit 0", "leaves no file that holds the bytes");
        row("leaves something else", "echo nothing >probe.o",
            "leaves no file that holds the bytes");
    }
    void putsUpWithOddCompilers()
    {
        QFETCH(QByteArray, script);
        QFETCH(QString, says);
        const QTemporaryDir folder;
        for (const char *name : {"sub folder", "tempor\303\244r ' \"x\""})
            QDir(folder.path()).mkdir(name);
        const QString compiler = folder.filePath("odd compiler");
        QFile file(compiler);
        QVERIFY(file.open(QIODevice::WriteOnly));
        file.write("#!/bin/sh\n" + script + '\n');
        file.close();
        file.setPermissions(QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
        const QString temporary = folder.filePath("tempor\303\244r ' \"x\"");
        qputenv("TMPDIR", temporary.toLocal8Bit());
        qputenv("BEXLOR_LEARN_ONLY", "1");
        qputenv("BEXLOR_TIME_LIMIT", "1500");
        const Output output = generate(folder.path(), "kov", '"' + compiler + '"');
        for (const char *variable : {"TMPDIR", "BEXLOR_LEARN_ONLY", "BEXLOR_TIME_LIMIT"})
            qunsetenv(variable);
        QVERIFY2(output.exitCode == (says.isEmpty() ? 0 : 1), qPrintable(output.output));
        QVERIFY2(output.output.contains(says), qPrintable(output.output));
        QCOMPARE(QFile::exists(folder.filePath("sub folder/mine.p_c")), says.isEmpty());
        QVERIFY(read(folder.filePath("compile.bat")).contains("odd compiler"));
        QCOMPARE(QDir(temporary).entryList(QDir::AllEntries | QDir::NoDotAndDotDot), QStringList());
    }

    void refusesAWrongList()
    {
        const QTemporaryDir folder;
        const Output refused = run(folder.path(), GENERATOR, {"kov"});
        QCOMPARE(refused.exitCode, 2);
        QVERIFY(refused.errors.startsWith("usage: Bexlor.exe"));
        QVERIFY(refused.output.isEmpty());
    }
};

QTEST_GUILESS_MAIN(TestGenerator)
#include "row.h"
#include "test_generator.moc"
