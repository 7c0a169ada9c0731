#include "compiler_catalogue.h"
#include "files.h"
#include "generator_arguments.h"
#include "program_run.h"
#include "record_answers.h"
#include "row.h"

#include <QDir>
#include <QRegularExpression>
#include <QSet>
#include <QTemporaryDir>
#include <QTest>

// The compilers that are shipped with the wizard. Most are not for sale here, so that a stand-in of
// their name takes what the generator passes to them.
class TestShippedCatalogue : public QObject
{
    Q_OBJECT

private:
    const CompilerCatalogue m_catalogue = parseCatalogue(readTestFile(CATALOGUE));

private slots:
    void isWellFormed()
    {
        QVERIFY(m_catalogue.compilers.size() > 100);
        QSet<QStringList> seen;
        static const QRegularExpression name("^[^,]+(, .+)? - (C|C\\+\\+)$");
        static const QRegularExpression yesOrNo("^(yes|no)$");
        for (const CompilerRecord &record : m_catalogue.compilers) {
            const auto holds = [&record](bool condition) {
                if (!condition)
                    qWarning("in %s", qPrintable(record.Name));
                return condition;
            };
            QVERIFY(holds(!seen.contains({record.Family, record.Name})));
            seen << QStringList {record.Family, record.Name};
            QVERIFY(holds(m_catalogue.families.count(record.Family) == 1));
            QVERIFY(holds(record.Name.contains(name)));
            QVERIFY(holds(record.CrossCompiler.contains(yesOrNo)));
            QVERIFY(holds(record.Order.contains("%c ") && record.Order.contains("%s ")));
            QCOMPARE(record.OutputFlag.isEmpty(), !record.Order.contains("%o"));
            QCOMPARE(record.DefineFlag.isEmpty(), !record.Order.contains("%d"));
            QCOMPARE(record.ObjectFlag.isEmpty(), !record.Order.contains("%j"));
            // Folders differ between systems and installations.
            QVERIFY(holds(!record.ExeCommand.contains(" /usr")
                          && !record.CompilerSwitches.contains("-isystem")));
        }
    }

    void isCalledAsItsManualSays_data()
    {
        QTest::addColumn<QString>("name");
        // Behind the program; what the user fills in is X, and the define is A=1.
        QTest::addColumn<QString>("command");
        row("flags and values apart", "gcc - C", "-o probe.o -DA=1 -c probe.c");
        row("C++", "g++ - C++", "-o probe.o -DA=1 -c probe.cpp");
        row("a core", "arm-none-eabi-gcc, Cortex-M33 - C",
            "-mcpu=cortex-m33 -mthumb -o probe.o -DA=1 -c probe.c");
        row("Microsoft", "cl - C", "/nologo /Foprobe.obj /DA=1 /c probe.c");
        row("Microsoft C++", "clang-cl - C++", "/nologo /Foprobe.obj /DA=1 /c probe.cpp");
        row("Arm", "armclang, version 6 - C++",
            "--target=arm-arm-none-eabi -mcpu=X -o probe.o -DA=1 -c probe.cpp");
        row("IAR, which makes nothing but objects", "iccarm - C++",
            "--c++ --cpu=X -o probe.o -DA=1 probe.cpp");
        row("IAR, another extension", "iccavr - C", "--cpu=X -o probe.r90 -DA=1 probe.c");
        row("Texas Instruments", "cl2000 - C",
            "--silicon_version=28 -fe=probe.obj -DA=1 -c probe.c");
        row("Renesas RX", "ccrx - C++",
            "-lang=cpp -isa=X -output=obj=probe.obj -define=A=1 probe.cpp");
        row("Renesas RL", "ccrl - C", "-cpu=X -oprobe.obj -DA=1 -c probe.c");
        row("Microchip", "xc8-cc - C", "-mcpu=X -o probe.p1 -DA=1 -c probe.c");
        row("Diab", "dplus - C++", "-tX -o probe.o -DA=1 -c probe.cpp");
        row("TASKING", "cctc - C", "--cpu=X -o probe.o -DA=1 -co probe.c");
        row("CodeWarrior, S12", "chc12 - C++", "-C++f -ObjN=probe.o -DA=1 probe.cpp");
        row("CodeWarrior, defines apart", "mwcceppc - C", "-proc X -o probe.o -d A=1 -c probe.c");
        row("Cosmic, which names its output itself", "cxstm8 - C", "-dA=1 probe.c");
        row("Keil, with directives behind the source", "C51 - C", "probe.c OBJECT");
        row("Open Watcom", "wpp386 - C++", "-zq -fo=probe.obj -dA=1 probe.cpp");
        row("Intel with options of Windows", "icx, Windows options - C",
            "/nologo /Foprobe.obj /DA=1 /c probe.c");
    }
    void isCalledAsItsManualSays()
    {
        QFETCH(QString, name);
        QFETCH(QString, command);
        const auto record =
            std::find_if(m_catalogue.compilers.begin(), m_catalogue.compilers.end(),
                         [&name](const CompilerRecord &known) { return known.Name == name; });
        QVERIFY(record != m_catalogue.compilers.end());
        Answers answers;
        applyRecord(*record, answers);
        static const QRegularExpression gap("<specify [^>]*>");
        answers.command.replace(gap, "X");
        answers.defines = "A=1";
        answers.productCode = name.endsWith("++") ? "kovpp" : "kov";
        answers.destination = ".";
        answers.name = "mine";

        const QTemporaryDir folder;
        const QString program = answers.command.section(' ', 0, 0);
        QVERIFY(QFile::copy(STAND_IN, folder.filePath(program + ".exe")));
        const QByteArray path = qgetenv("PATH");
        qputenv("PATH", folder.path().toLocal8Bit() + QDir::listSeparator().toLatin1() + path);
        QStringList call = generatorArguments(answers);
        call.first() = GENERATOR;
        platform::runProgram(call, folder.path(), patience);
        qputenv("PATH", path);
        const QString attempted =
            QString::fromLocal8Bit(readTestFile(folder.filePath("compile.bat"))).trimmed();
        QVERIFY2(attempted.section(".exe ", 0, 0).endsWith(program), qPrintable(attempted));
        QCOMPARE(attempted.section(".exe ", 1), command);
        QCOMPARE(readTestFile(folder.filePath("stderr.log")), QByteArray());
    }
};

QTEST_GUILESS_MAIN(TestShippedCatalogue)
#include "test_shipped_catalogue.moc"
