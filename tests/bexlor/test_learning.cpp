#include "learning.h"
#include "row.h"

#include <QDir>
#include <QFile>
#include <QMap>
#include <QProcess>
#include <QStandardPaths>
#include <QTemporaryDir>
#include <QTest>
#include <algorithm>

// Compilers that understand the GNU driver's options are asked for what they would answer to them
// by probes alone, and the two answers are compared.
class TestLearning : public QObject
{
    Q_OBJECT

private:
    QTemporaryDir m_folder;

    Compiler compiler(const QStringList &command, bool isCross = false) const
    {
        Compiler compiler;
        compiler.command = command;
        compiler.command.first() = QStandardPaths::findExecutable(command.first());
        compiler.outputFlag = "-o";
        compiler.objectFlag = "-c";
        compiler.defineFlag = "-D";
        compiler.objectExtension = command.first() == "sdcc" ? ".rel" : ".o";
        compiler.order = "%c %o %e %d%j %s ";
        compiler.isCross = isCross;
        return compiler;
    }

    static QByteArray output(const QStringList &command)
    {
        QProcess process;
        process.setStandardInputFile(QProcess::nullDevice());
        process.start(command.first(), command.mid(1));
        process.waitForFinished();
        return process.readAllStandardOutput();
    }

    void write(const QString &name, const QByteArray &content) const
    {
        QDir(m_folder.path()).mkpath(QFileInfo(name).path());
        QFile file(m_folder.filePath(name));
        QVERIFY(file.open(QIODevice::WriteOnly));
        file.write(content);
    }

    static QMap<QByteArray, QByteArray> mapOf(const QList<Macro> &macros)
    {
        QMap<QByteArray, QByteArray> map;
        for (const Macro &macro : macros)
            map[macro.name] = macro.value;
        return map;
    }

private slots:
    void findsMacrosAsTheyAre_data()
    {
        QTest::addColumn<QStringList>("command");
        QTest::addColumn<bool>("isSmall");
        QTest::addColumn<int>("mayMiss"); // names that stand in its own headers and programs only
        row("gcc", QStringList {"gcc"}, false, 3);
        row("object files without bytes", QStringList {"gcc", "-flto"}, false, 3);
        row("another character set", QStringList {"gcc", "-fexec-charset=IBM1047"}, false, 3);
        row("cross compiler", QStringList {"arm-none-eabi-gcc"}, false, 3);
        row("stops at the first error", QStringList {"tcc"}, false, 5);
        row("objects of text, small probes", QStringList {"sdcc", "-mz80"}, true, 0);
    }
    void findsMacrosAsTheyAre()
    {
        QFETCH(QStringList, command);
        QFETCH(bool, isSmall);
        QFETCH(int, mayMiss);
        write("x.c", "\n");
        // Some that no list knows: nested, empty, with a comma, like functions, hidden by a paste.
        const QStringList own {
            "-DQQ_VALUE=QQ_INNER",   "-DQQ_INNER=(1 + 2)",          "-DQQ_EMPTY=",
            "-DQQ_COMMA=1,2",        "-DQQ_STRING=\"a \\\"b\\\"\"", "-DQQ_FUNCTION(x)=x ## U",
            "-DQQ_TWO(a,b)=(a) + #b"};
        write("names.h",
              "#if QQ_VALUE + QQ_INNER + QQ_EMPTY + QQ_COMMA + QQ_STRING + QQ_FUNCTION + "
              "QQ_TWO + QQ_ABSENT\n#endif\n");
        const bool takesFunctions = command.first() != "tcc" && command.first() != "sdcc";
        QStringList withOwn = command;
        for (const QString &define : own) {
            if (takesFunctions || !(define.contains("(x)") || define.contains("(a,b)")))
                withOwn << define;
        }
        const QMap<QByteArray, QByteArray> truth = mapOf(
            parseMacros(output(withOwn + QStringList {"-dM", "-E", m_folder.filePath("x.c")})));
        QVERIFY(truth.size() > 20);

        const QTemporaryDir workshop;
        const Prober prober(compiler(withOwn), workshop.path(), isSmall);
        const Experiment experiment(prober, true);
        QVERIFY(experiment.readsConstants());
        Facts facts;
        learnMacros(experiment, readTree({m_folder.path()}).names, facts);
        const QMap<QByteArray, QByteArray> learned = mapOf(facts.macros);
        QByteArray wrong, missing;
        for (auto macro = truth.begin(); macro != truth.end(); ++macro) {
            const QByteArray name = macro.key().split('(').first();
            if (!learned.contains(macro.key())) {
                if (!facts.undeterminedMacros.contains(name))
                    missing += macro.key() + ' ';
            } else if (learned[macro.key()] != macro.value()) {
                wrong +=
                    macro.key() + " is " + macro.value() + ", not " + learned[macro.key()] + '\n';
            }
        }
        QCOMPARE(wrong, QByteArray());
        QVERIFY2(missing.count(' ') <= mayMiss, missing);
        QVERIFY(learned.contains("QQ_INNER") && !learned.contains("QQ_ABSENT"));
        QCOMPARE(learned.contains("QQ_TWO(a,b)"), takesFunctions);
    }

    void measuresTypes_data()
    {
        QTest::addColumn<QStringList>("command");
        QTest::addColumn<QString>("types");
        row("gcc", QStringList {"gcc"},
            "short2/2 int4/4 long8/8 long double16/16 "
            "void *8/8 signed little unsigned long int");
        row("32 bits, unsigned char",
            QStringList {"gcc", "-m32", "-funsigned-char", "-fshort-wchar"},
            "short2/2 int4/4 long4/4 long double12/4 void *4/4 unsigned little unsigned int "
            "unsigned short");
        row("8-bit", QStringList {"sdcc", "-mz80"},
            "short2/1 int2/1 long4/1 void *2/1 unsigned little unsigned int "
            "unsigned long");
    }
    void measuresTypes()
    {
        QFETCH(QStringList, command);
        const QTemporaryDir workshop;
        const Prober prober(compiler(command), workshop.path(), false);
        const Experiment experiment(prober, false);
        Facts facts;
        learnTypes(experiment, facts);
        QByteArray shown;
        for (const Type &type : facts.types) {
            if (QList<QByteArray> {"short", "int", "long", "long double", "void *"}.contains(
                    type.name))
                shown += type.name + QByteArray::number(type.size) + '/'
                       + QByteArray::number(type.alignment) + ' ';
        }
        shown += facts.charIsUnsigned ? "unsigned " : "signed ";
        shown += facts.byteOrder == ByteOrder::LittleEndian ? "little " : "other ";
        QTEST(QString(shown + facts.sizeType + ' ' + facts.wideCharacterType), "types");
    }

    void findsKeywords()
    {
        const QTemporaryDir workshop;
        const Prober prober(compiler({"sdcc", "-mmcs51"}, true), workshop.path(), true);
        const Experiment experiment(prober, false);
        Facts facts;
        learnTypes(experiment, facts);
        learnKeywords(experiment, {{"__near", UsedInHeader}, {"ordinary", UsedInHeader}}, facts);
        QMap<QByteArray, QByteArray> forms;
        for (const Keyword &keyword : facts.keywords)
            forms[keyword.name] = QByteArray::number(keyword.form) + keyword.standIn;
        QCOMPARE(forms.value("__xdata"), QByteArray::number(Keyword::Qualifier));
        QCOMPARE(forms.value("__at"), QByteArray::number(Keyword::QualifierWithArgument));
        QCOMPARE(forms.value("__sfr"), QByteArray::number(Keyword::TypeName) + "unsigned char");
        QVERIFY(!forms.contains("ordinary") && !forms.contains("__attribute__"));
    }

    void findsTheSearchPath_data()
    {
        QTest::addColumn<QStringList>("command");
        row("tells what it has", QStringList {"gcc"});
        row("must include", QStringList {"tcc"});
    }
    void findsTheSearchPath()
    {
        QFETCH(QStringList, command);
        const QTemporaryDir workshop;
        const auto at = [this](const char *path) {
            return QFileInfo(m_folder.filePath(path)).canonicalFilePath();
        };
        write("path/late/common.h", "#define FROM_LATE 1\n");
        write("path/late/only_late.h", "int broken(;\n");
        write("path/early/common.h", "#define FROM_EARLY 1\n");
        write("path/late/below/not_searched.h", "\n");
        write("path/other/common.h", "#define FROM_OTHER 1\n");
        write("path/hollow/bits/deep.h", "\n");
        const Prober prober(compiler(command
                                     + QStringList {"-I" + at("path/early"), "-I" + at("path/late"),
                                                    "-I" + at("path/hollow")}),
                            workshop.path(), false);
        const Experiment experiment(prober, true);
        Facts facts;
        learnSearchPath(experiment, readTree({m_folder.filePath("path")}).headers, facts);
        QStringList found = facts.searchPath;
        QVERIFY(found.indexOf(at("path/early")) < found.indexOf(at("path/late")));
        found.sort();
        QCOMPARE(found, QStringList({at("path/early"), at("path/hollow"), at("path/late")}));
    }
};

QTEST_GUILESS_MAIN(TestLearning)
#include "test_learning.moc"
