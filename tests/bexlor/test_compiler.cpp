#include "compiler.h"
#include "files.h"
#include "row.h"

namespace {

Compiler compilerCalledWith(const QString &options)
{
    Arguments arguments;
    arguments.command = "\"cc " + options + '"';
    arguments.layout.outputFlag = "-o";
    return findCompiler(arguments);
}

} // namespace

class TestCompiler : public QObject
{
    Q_OBJECT

private slots:
    void makesRelativePathsAbsolute_data()
    {
        // "$" stands for the current folder.
        const Columns<QString, QString> row("typed", "absolute");
        row("behind no option", "run.py odd", "$/run.py $/odd");
        row("behind a letter", "-undef -Iinc -Linc /Iinc", "-undef -I$/inc -L$/inc /I$/inc");
        row("apart", "-I inc -isystem inc --dlib_config odd",
            "-I $/inc -isystem $/inc --dlib_config $/odd");
        row("behind a sign", "--sysroot=inc -fi=odd --sysroot inc",
            "--sysroot=$/inc -fi=$/odd --sysroot $/inc");
        row("prefixes", "-iprefix inc/ -iwithprefix inc -iwithprefixbefore inc -iwithprefixinc",
            "-iprefix $/inc/ -iwithprefix inc -iwithprefixbefore inc -iwithprefixinc");
        row("no file", "-Inowhere -O2", "-Inowhere -O2");
        row("absolute", "-I/usr /usr", "-I/usr /usr");
        row("what looks like a path", "-DX=odd -D odd -Uodd /Dodd --define=odd -x odd -mtune=odd",
            "-DX=odd -D odd -Uodd /Dodd --define=odd -x odd -mtune=odd");
        row("what may be written", "-oodd -oddodd --odd odd --odd=odd",
            "-oodd -oddodd --odd odd --odd=odd");
        row("response file", "@words.rsp -g", "-I$/inc -DA=b c.h -g");
        row("response file of a GNU compiler", "@gnu.rsp", "-Id\\e -DA=b c -DC=\"x\"");
        row("response file without a mark", "@half.rsp", "@$/half.rsp");
        row("response files without an end", "@loop.rsp",
            QString("@$/loop.rsp ").repeated(200 * 3 + 1).trimmed());
    }
    void makesRelativePathsAbsolute()
    {
        QFETCH(QString, typed);
        QFETCH(QString, absolute);
        const QTemporaryDir folder;
        QDir(folder.path()).mkdir("inc");
        for (const char *name : {"run.py", "odd", "c.h"})
            writeTestFile(folder.filePath(name));
        writeTestFile(folder.filePath("words.rsp"), "-Iinc\n\"-DA=b c.h\" -MF d");
        writeTestFile(folder.filePath("gnu.rsp"), "-Id\\e '-DA=b c' -DC=\\\"x\\\"");
        writeTestFile(folder.filePath("loop.rsp"), "@loop.rsp @loop.rsp @loop.rsp @loop.rsp");
        writeTestFile(folder.filePath("half.rsp"), "\"-DA");
        QDir::setCurrent(folder.path());
        const QStringList made = compilerCalledWith(typed).command.mid(1);
        QCOMPARE(made.join(' '), absolute.replace("$", QDir::currentPath()));
        QDir::setCurrent(QDir::rootPath());
    }

    void leavesOutWhatIsNoQuestion_data()
    {
        const Columns<QString, QString> row("options", "kept");
        row("errors of warnings",
            "-Wall -Werror=x -W error -Werror --Werror -pedantic-errors /WX -W x", "-Wall -W x");
        row("outputs", "-o x -oa/x -MF d -MFd -MT t -MMD -MP -aux-info a -Map m -I i", "-I i");
        row("outputs of other compilers", "/Fox /Fd\\x --create-dep d -l list /showIncludes /O2",
            "/O2");
        row("outputs behind others",
            "-Wp,-MD,d -Wl,-Map,m -Wa,-mx,-adhln=l -Wp,-DA,-MMD,d -save-temps=obj",
            "-Wa,-mx -Wp,-DA");
        row("outputs handed on apart",
            "-Xpreprocessor -MD -Xpreprocessor d -Xclang -dependency-file -Xclang d -Xclang -x "
            "-Xassembler -al=l",
            "-Xclang -x");
        row("another maker's library", "/nologo -MT -MD /MDd -Fdx /doc x.c",
            "/nologo -MT -MD /MDd x.c");
        row("no outputs", "-Os -mz80 -m32 -ox -MISRA -lm -O", "-Os -mz80 -m32 -ox -MISRA -lm -O");
        row("fewer messages", "-Wfatal-errors -fdiagnostics-format=json -fmax-errors=1 -g", "-g");
        row("code that is made later", "-flto -fshort-enums -flto=auto", "-fshort-enums");
        row("the end is missing", "-g -MF", "-g");
    }
    void leavesOutWhatIsNoQuestion()
    {
        QFETCH(QString, options);
        const Compiler compiler = compilerCalledWith(options);
        QTEST(compiler.command.mid(1).join(' '), "kept");
    }

    void findsWhatIsIncludedFirst_data()
    {
        const Columns<QString, QString, QString> row("options", "kept", "included");
        row("apart", "-include a.h -m32 -imacros b.h --include c.h --preinclude d.h /FI e.h",
            "-m32",
            "-include a.h=-include a.h|-imacros b.h=-imacros b.h|--include c.h=-include c.h|"
            "--preinclude d.h=-include d.h|/FI e.h=-include e.h");
        row("joined",
            "-includea.h -imacrosb.h --include=imacros.h --imacros=d.h -preinclude=e.h /FIf.h", "",
            "-includea.h=-include a.h|-imacrosb.h=-imacros b.h|--include=imacros.h=-include "
            "imacros.h|"
            "--imacros=d.h=-imacros d.h|-preinclude=e.h=-include e.h|/FIf.h=-include f.h");
        row("others", "-include-pch a --include-dir b --include-directory=c -include",
            "-include-pch a --include-dir b --include-directory=c -include", "");
    }
    void findsWhatIsIncludedFirst()
    {
        QFETCH(QString, options);
        const Compiler compiler = compilerCalledWith(options);
        QTEST(compiler.command.mid(1).join(' '), "kept");
        QStringList included;
        for (const IncludedFile &file : compiler.includedFirst)
            included << file.words.join(' ') + '=' + file.option + ' ' + file.file;
        QTEST(included.join('|'), "included");
    }

    void namesDefines()
    {
        Arguments arguments;
        arguments.command = "cc";
        arguments.defines = QStringList {"A=1", "-DB=2", "/DC"};
        arguments.layout.order = parseOrderString("%c %d%s ");
        QCOMPARE(unnamedDefines(arguments), QStringList {"A=1"});
        const Compiler compiler = findCompiler(arguments);
        QCOMPARE(probeCommand(compiler, "x.c", {}).mid(1).join(' '), "-DB=2 /DC x.c");
        QCOMPARE(commandWithDefines(compiler).mid(1).join(' '), "-DB=2 /DC");
        arguments.layout.defineFlag = "-d";
        arguments.defines = QStringList {"A=1"};
        QVERIFY(unnamedDefines(arguments).isEmpty());
        QCOMPARE(commandWithDefines(findCompiler(arguments)).mid(1).join(' '), "-DA=1");
    }

    void ordersTheCommand_data()
    {
        // The words of both commands are joined by "|".
        const Columns<QString, QString, QString, QString, QString> row(
            "order", "outputFlag", "objectFlag", "toObject", "toProgram");
        row("joined flags", "%c %o%e %d%j %s ", "-o", "-c", "cc|-m32|-oout.o|-DA|-DB=1 2|-c|in.c",
            "cc|-m32|-oout.o|-DA|-DB=1 2|in.c");
        row("flags apart", "%c %o %e %d %j %s ", "-o", "-c",
            "cc|-m32|-o|out.o|-D|A|-D|B=1 2|-c|in.c", "cc|-m32|-o|out.o|-D|A|-D|B=1 2|in.c");
        row("source first", "%s %c ", "-o", "-c", "in.c|cc|-m32", "in.c|cc|-m32");
        row("no output flag", "%c %o%e %j %s ", "", "-c", "cc|-m32|-c|in.c", "cc|-m32|in.c");
        row("output without a flag", "%c %e %s ", "", "-c", "cc|-m32|out.o|in.c",
            "cc|-m32|out.o|in.c");
        row("joined to no object flag", "%c %o%j %e %s ", "-o", "", "cc|-m32|-o|out.o|in.c",
            "cc|-m32|-o|out.o|in.c");
        row("joined to nothing", "%c %s %o", "-o", "", "cc|-m32|in.c|-o", "cc|-m32|in.c|-o");
    }
    void ordersTheCommand()
    {
        QFETCH(QString, order);
        QFETCH(QString, outputFlag);
        QFETCH(QString, objectFlag);
        Compiler compiler;
        compiler.command = QStringList {"cc", "-m32"};
        compiler.layout = {outputFlag, objectFlag, "-D", ".o", parseOrderString(order)};
        compiler.defines = QStringList {"A", "B=1 2"};
        QTEST(probeCommand(compiler, "in.c", "out.o").join('|'), "toObject");
        QTEST(probeCommand(compiler, "in.c", "out.o", CompileTo::Program).join('|'), "toProgram");
    }
};

QTEST_APPLESS_MAIN(TestCompiler)
#include "test_compiler.moc"
