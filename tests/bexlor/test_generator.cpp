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
                           const QStringList &more = {})
    {
        return run(folder, GENERATOR,
                   QStringList {product, "cmp", command, "-o", "-c", "-D", ".o", "%c %o%e %d%j %s ",
                                "-op", "sub folder\\mine.p_c"}
                       + more);
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
        QTest::newRow("gcc") << "kov"
                             << "gcc";
        QTest::newRow("gcc for 32 bits") << "kov"
                                         << "\"gcc -m32 -std=c99\"";
        QTest::newRow("g++") << "kovpp"
                             << "g++";
        QTest::newRow("clang") << "kov"
                               << "clang";
        QTest::newRow("clang++") << "kovpp"
                                 << "clang++";
        QTest::newRow("cross compiler") << "kov"
                                        << "arm-none-eabi-gcc";
    }
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
        QVERIFY(sortedLines(own.output).size() > 300);
        QCOMPARE(sortedLines(seen.output), sortedLines(own.output));
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
        const Output generated = generate(
            folder.path(), "kov", "gcc",
            {"-xs", "-std=c99", "-tpl", "template.p_c", "-fi", "first.h", "-sub", "stand-ins"});
        QVERIFY2(generated.exitCode == 0, qPrintable(generated.output));
        const Output checked = run(folder.path(), "clang",
                                   {"--config", folder.filePath("sub folder/mine.p_c"), "-isystem",
                                    "headers", "-fsyntax-only", "x.c"});
        QVERIFY2(checked.exitCode == 0, checked.errors);
        QVERIFY(read(folder.filePath("sub folder/mine.p_c")).contains("\n-std=c99\n"));
    }

    void leavesTheFailedCommandAndItsOutput()
    {
        const QTemporaryDir folder;
        QDir(folder.path()).mkdir("sub folder");
        const Output failed = generate(folder.path(), "kov", "\"gcc --no-such-option\"");
        QCOMPARE(failed.exitCode, 1);
        QVERIFY(
            failed.output.contains("Compiling the first probe failed: the compiler returned 1."));
        QVERIFY(
            read(folder.filePath("compile.bat")).contains("--no-such-option -oprobe.o -c probe.c"));
        QVERIFY(read(folder.filePath("stderr.log")).contains("no-such-option"));
        QVERIFY(!QFile::exists(folder.filePath("sub folder/mine.p_c")));

        const Output missing = generate(folder.path(), "kov", "no-such-compiler");
        QCOMPARE(missing.exitCode, 1);
        QVERIFY(missing.output.contains("could not be started"));
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
#include "test_generator.moc"
