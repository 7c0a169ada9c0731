#include "learning.h"

#include "dialects.h"
#include "files.h"
#include "row.h"

using platform::ProgramRun;

// Compilers that list their macros are asked for them by probes alone, and the two answers are
// compared.
class TestLearning : public QObject
{
    Q_OBJECT

private:
    QTemporaryDir m_folder;

    /// Something that must be asked, with all that it needs.
    struct Subject
    {
        QTemporaryDir folder;
        ProbeRunner runner;
        Questions questions;

        explicit Subject(const QStringList &command, bool isSmall = false)
            : runner(compiler(command), folder.path(), isSmall), questions(runner)
        { }

        static Compiler compiler(const QStringList &command)
        {
            Compiler compiler;
            compiler.command = command;
            compiler.command.first() = QStandardPaths::findExecutable(command.first());
            compiler.isCross = command.first() != "gcc" && command.first() != "tcc";
            compiler.layout = {"-o", "-c", "-D", command.first() == "sdcc" ? ".rel" : ".o",
                               parseOrderString("%c %o %e %d%j %s ")};
            return compiler;
        }
    };

    ProgramRun run(const QStringList &command) const
    {
        return platform::runProgram(command, m_folder.path(), 60'000);
    }

private slots:
    void findsMacrosAsTheyAre_data()
    {
        // mayMiss: names that stand in its own headers and programs only
        const Columns<QStringList, bool, int> row("command", "isSmall", "mayMiss");
        row("gcc", {"gcc"}, false, 3);
        row("object files without bytes", {"gcc", "-flto"}, false, 3);
        row("another character set", {"gcc", "-fexec-charset=IBM1047"}, false, 3);
        row("stops at the first error", {"tcc"}, false, 5);
        row("objects of text, small probes", {"sdcc", "-mz80"}, true, 0);
    }
    void findsMacrosAsTheyAre()
    {
        QFETCH(QStringList, command);
        QFETCH(bool, isSmall);
        QFETCH(int, mayMiss);
        writeTestFile(m_folder.filePath("x.c"), "\n");
        // Some that no list knows: nested, empty, with a comma, like functions, hidden by a paste.
        QStringList own {"QQ_VALUE=QQ_INNER", "QQ_INNER=(1 + 2)", "QQ_EMPTY=", "QQ_COMMA=1,2",
                         "QQ_STRING=\"a \\\"b\\\"\""};
        if (command.first() == "gcc")
            own << "QQ_FUNCTION(x)=x ## U"
                << "QQ_TWO(a,b)=(a) + #b";
        QList<ScannedName> names {{"QQ_ABSENT", InBinary}};
        for (const QString &define : own) {
            command << "-D" + define;
            names.append({bareName(define.section('=', 0, 0).toLatin1()), DefinedByOption});
        }
        const QList<Macro> truth = macrosIn(run(command + QStringList {"-dM", "-E", "x.c"}).output);
        QVERIFY(truth.size() > 20);

        const Subject subject(command, isSmall);
        QVERIFY(subject.questions.readsTexts());
        const MacroFacts macros = learnMacros(subject.questions, macroCandidates(names));
        QVERIFY(findMacro(macros, "QQ_INNER") && !findMacro(macros, "QQ_ABSENT"));
        QList<QByteArray> missing;
        for (const Macro &macro : truth) {
            if (const Macro *known = findMacro(macros, macro.name))
                QCOMPARE(macro.name + ' ' + known->value, macro.name + ' ' + macro.value);
            else if (macro.name.startsWith("QQ_"))
                QFAIL(macro.name);
            else if (!macros.undetermined.contains(bareName(macro.name)))
                missing << macro.name;
        }
        QVERIFY2(missing.size() <= mayMiss, missing.join(' '));
    }

    void findsIntegersWithoutObjects()
    {
        // It leaves nothing of what it has compiled, and makes no programs.
        const QStringList hidden {
            "sh", "-c",
            "gcc \"$@\" || exit\n"
            "case \" $* \" in *\" -c \"*) echo >probe.o ;; *\" -E \"*) ;; *) exit 1 ;; esac",
            "sh"};
        QStringList own;
        for (const char *define :
             {"SUM=(1 + 2)", "ALL=~0", "TEXT=\"a\"", "EMPTY=", "LEAST=(-9223372036854775807L - 1)",
              "LAST=18446744073709551615UL", "FLOAT=2.5", "CAST=((char)3)", "OTHERS=int *"})
            own << QString("-DQQ_") + define;
        const Subject subject(hidden + own);
        QVERIFY(subject.questions.readsNumbers() && !subject.questions.readsTexts());
        writeTestFile(m_folder.filePath("x.c"), "\n");
        const QList<Macro> truth =
            macrosIn(run(hidden + own + QStringList {"-dM", "-E", "x.c"}).output);
        QVERIFY(truth.size() > 300);
        QList<ScannedName> names;
        for (const Macro &macro : truth)
            names.append({bareName(macro.name), InBinary});
        const MacroFacts macros = learnMacros(subject.questions, macroCandidates(names));
        const QRegularExpression open("[.\"]|[0-9]E|^\\(\\(|\\*$");
        for (const Macro &macro : truth) {
            const Macro *known = findMacro(macros, macro.name);
            const QByteArray value = known ? known->value : "?";
            if (macro.name == "QQ_SUM" || macro.name == "QQ_ALL")
                QCOMPARE(value, macro.name == "QQ_SUM" ? "3" : "(-1)");
            else if (open.match(macro.value).hasMatch())
                QVERIFY2(macros.undetermined.contains(macro.name), macro.name);
            else
                QCOMPARE(macro.name + ' ' + value, macro.name + ' ' + macro.value);
        }
        QCOMPARE(learnTypes(subject.questions), learnTypes(Subject({"gcc"}).questions));
    }

    void findsKeywords_data()
    {
        // found: the numbers of the forms, and what stands in for a type or ends a block
        // starts: at most
        const Columns<QStringList, int, QStringList, QStringList> row("command", "starts", "found",
                                                                      "missing");
        row("forms of an 8-bit compiler", {"sdcc", "-mmcs51"}, 31,
            {"__near: 1", "__at: 2 4", "__interrupt: 2 4 1", "__using: 2 4", "__naked: 1",
             "__asm: 5 __endasm", "__sfr: 3 volatile unsigned char", "__bit: 3 _Bool",
             "__sbit: 3 volatile _Bool"},
            {"ordinary", "__xdata", "__idata", "_Bool"});
        row("at file scope only", {"sdcc", "-mz80"}, 28, {"__at: 2 4"}, {"__near"});
        row("kinds of numbers", {"avr-gcc"}, 26,
            {"_Accum: 3", "_Fract: 3", "__int24: 3", "__builtin_va_list: 3"}, {"_Bool"});
        row("no truth values", {"cl65", "-t", "none"}, 52, {"_Bool: 6"}, {});
        row("decimal numbers, and what no list knows", {"gcc", "-fgnu-tm"}, 21,
            {"_Decimal32: 3 float", "_Float32: 3 float", "__transaction_atomic: 0"},
            {"_Bool", "__transaction_cancel", "__builtin_has_attribute"});
    }
    void findsKeywords()
    {
        QFETCH(QStringList, command);
        QFETCH(int, starts);
        QFETCH(QStringList, found);
        QFETCH(QStringList, missing);
        Subject subject(command);
        QVERIFY(subject.runner.learnControls(subject.runner.ask(acceptedProbe)));
        const int before = subject.runner.compilersStarted();
        TypeFacts types;
        types.basic = {{"char", 1, 1}, {"int", 2, 1}, {"float", 4, 1}};
        QMap<QByteArray, QByteArray> forms;
        for (const Keyword &keyword : learnKeywords(subject.questions,
                                                    {{"__transaction_atomic", UsedInHeader},
                                                     {"__transaction_cancel", InBinary},
                                                     {"__builtin_has_attribute", UsedInHeader},
                                                     {"ordinary", UsedInHeader}},
                                                    {{{"__xdata", ""}}, {"__idata"}}, types)) {
            const QByteArray standIn = keyword.standIn.isEmpty() ? "" : ' ' + keyword.standIn;
            forms[keyword.name] += ' ' + QByteArray::number(keyword.form) + standIn;
        }
        const int started = subject.runner.compilersStarted() - before;
        QVERIFY2(started <= starts, qPrintable(QString::number(started)));
        for (const QString &expected : found) {
            const QByteArray name = expected.section(':', 0, 0).toLatin1();
            QCOMPARE(name + ':' + forms.value(name), expected);
        }
        for (const QString &other : missing)
            QVERIFY2(!forms.contains(other.toLatin1()), qPrintable(other));
    }

    void findsTheSearchPath_data()
    {
        const Columns<QStringList, bool> row("command", "isBeside");
        row("tells what it has", {"gcc"}, false);
        row("must include", {"tcc"}, false);
        row("lies beside what is searched", {"gcc"}, true);
    }
    void findsTheSearchPath()
    {
        QFETCH(QStringList, command);
        QFETCH(bool, isBeside);
        const QString top = QDir(m_folder.path()).canonicalPath() + "/path/";
        writeTestFile(top + "behind/common.h", "#define FROM_BEHIND 1\n");
        writeTestFile(top + "behind/only_behind.h", "int broken(;\n");
        writeTestFile(top + "first/common.h", "#define FROM_FIRST 1\n");
        writeTestFile(top + "behind/below/not_searched.h", "\n");
        writeTestFile(top + "other/common.h", "#define FROM_OTHER 1\n");
        for (const char *unsearched : {"other", "another"})
            writeTestFile(top + unsearched + "/broken.h", "#define FROM_OTHER 1\n");
        writeTestFile(top + "last/common.h", "#define FROM_LAST 1\n");
        writeTestFile(top + "last/broken.h", "int broken(;\n");
        writeTestFile(top + "hollow/bits/deep.h", "\n");
        for (const char *searched : {"first", "behind", "hollow", "last"})
            command << "-I" + top + searched;
        const Subject subject(command);
        ScanProgress progress;
        const QStringList found =
            learnSearchPath(subject.questions, isBeside ? headersNear({top, top + "hollow"})
                                                        : scanHeaders({top}, progress).headers);
        QCOMPARE(found.size(), 4);
        QVERIFY(!found.contains(top + "other") && !found.contains(top + "another"));
        QVERIFY(found.indexOf(top + "first") < found.indexOf(top + "behind"));
    }
};

QTEST_GUILESS_MAIN(TestLearning)
#include "test_learning.moc"
