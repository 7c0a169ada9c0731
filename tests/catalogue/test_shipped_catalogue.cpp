#include "catalogue_answers.h"
#include "compiler_catalogue.h"
#include "files.h"
#include "generator_arguments.h"
#include "order_tokens.h"
#include "program_run.h"
#include "record_answers.h"
#include "review.h"
#include "row.h"

// Most compilers are not for sale here: a stand-in of their name takes what the generator passes.
class TestShippedCatalogue : public QObject
{
    Q_OBJECT

private:
    const CompilerCatalogue m_shipped = parseCatalogue(readTestFile(SHIPPED_CATALOGUE));

private slots:
    // As the makers' manuals show them.
    void compilesAsTheManualsSay_data()
    {
        const Columns<QString> row("command");
        row("gcc - C", "-o probe.o -DA=1 -c probe.c");
        row("cl - C", "/nologo /c /Foprobe.obj /DA=1 probe.c");
        row("clang-cl - C++", "/nologo /c /Foprobe.obj /DA=1 probe.cpp");
        row("iccrx - C", "--core=X probe.c -DA=1 -o probe.o");
        row("iccavr - C", "--cpu=X probe.c -DA=1 -o probe.r90");
        row("cl2000 - C", "--silicon_version=28 --compile_only --define=A=1 "
                          "--output_file=probe.obj probe.c");
        row("ccrx - C", "-isa=X -nologo -output=obj=probe.obj "
                        "-define=A=1 probe.c");
        row("ccrl - C", "-cpu=X -c -DA=1 -o probe.obj probe.c");
        row("xc8-cc - C", "-mcpu=X -c -DA=1 -o probe.p1 probe.c");
        row("cctc, TASKING - C", "-CX -co -DA=1 -o probe.o probe.c");
        row("chc12 - C", "-CpuX -DA=1 -ObjN=probe.o probe.c");
        row("cxstm8 - C", "+mods0 -dA=1 probe.c");
        row("c51 - C", "probe.c");
        row("wcc386 - C", "-zq -dA=1 -fo=probe.obj probe.c");
        row("sdcc, Z80 - C", "-mz80 -o probe.rel -DA=1 -c probe.c");
    }
    void compilesAsTheManualsSay()
    {
        const QString name = QTest::currentDataTag();
        const auto record =
            std::find_if(m_shipped.compilers.begin(), m_shipped.compilers.end(),
                         [&name](const CompilerRecord &known) { return known.Name == name; });
        QVERIFY(record != m_shipped.compilers.end());
        Answers answers;
        applyRecord(*record, answers);
        answers.command.replace(QRegularExpression("<specify [^>]*>"), "X");
        answers.defines = "A=1";
        answers.productCode = name.endsWith("++") ? generator::productCpp : generator::productC;
        answers.destination = ".";
        answers.name = "mine";

        const QTemporaryDir folder;
        const QString program = folder.filePath(answers.command.section(' ', 0, 0) + ".exe");
        QVERIFY(QFile::copy(STAND_IN, program));
        answers.command.replace(QRegularExpression("^[^ ]+"), '"' + program + '"');
        QStringList call = generatorArguments(answers);
        call.first() = GENERATOR;
        platform::runProgram(call, folder.path(), patience);
        const QString attempted =
            QString::fromLocal8Bit(readTestFile(folder.filePath("compile.bat"))).trimmed();
        QTEST(attempted.section(QRegularExpression("\\.exe[\"']? "), 1), "command");
    }

    // The generator makes the arguments of an entry itself when no wizard does.
    void isGeneratedAsByTheWizard()
    {
        const CompilerRecord spaced {.Name = "cc - C++",
                                     .ExeCommand = " cc  -x",
                                     .OutputFlag = " -o ",
                                     .DefineFlag = " -D ",
                                     .ObjectFlag = " -c ",
                                     .ObjectFileExtension = " o "};
        for (const CompilerRecord &record : m_shipped.compilers + QList {spaced}) {
            Answers answers;
            applyRecord(record, answers);
            tidy(answers);
            answers.productCode =
                record.Name.endsWith("++") ? generator::productCpp : generator::productC;
            answers.destination = "folder";
            answers.name = "mine";
            const QStringList ofWizard = generatorArguments(answers).sliced(1);
            const QString personality = ofWizard[ofWizard.indexOf(generator::personality) + 1];
            QCOMPARE(argumentsFor(record, personality), ofWizard);
        }
    }

    void isWellFormed()
    {
        QStringList seen;
        for (const CompilerRecord &record : m_shipped.compilers) {
            seen << record.Family + '|' + record.Name;
            const bool namesLanguage =
                record.Name.endsWith(" - C") || record.Name.endsWith(" - C++");
            QVERIFY2(namesLanguage && m_shipped.families.contains(record.Family)
                         && !record.ExeCommand.isEmpty()
                         && parseOrderString(record.Order).size() == 6,
                     qPrintable(record.Name));
        }
        QVERIFY2(seen.size() > 100, qPrintable(QString::number(seen.size())));
        QCOMPARE(seen.removeDuplicates(), 0);
    }
};

QTEST_GUILESS_MAIN(TestShippedCatalogue)
#include "test_shipped_catalogue.moc"
