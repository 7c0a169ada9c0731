#include "compiler.h"
#include "compiler_catalogue.h"
#include "files.h"
#include "order_tokens.h"
#include "row.h"

namespace {

/// The command by which Bexlor compiles a probe with \a record, as one line.
QString commandOf(const CompilerRecord &record)
{
    Compiler compiler;
    compiler.command = record.ExeCommand.split(' ');
    compiler.layout = {record.OutputFlag, record.ObjectFlag, record.DefineFlag,
                       record.ObjectFileExtension, record.Order};
    compiler.defines = QStringList {"A=1"};
    return probeCommand(compiler, "probe.c", "probe" + record.ObjectFileExtension).join(' ');
}

} // namespace

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
        row("gcc - C", "gcc -o probe.o -DA=1 -c probe.c");
        row("cl - C", "cl /nologo /c /Foprobe.obj /DA=1 probe.c");
        row("clang-cl - C++", "clang-cl /nologo /c /Foprobe.obj /DA=1 probe.c");
        row("iccrx - C", "iccrx --core=<specify core> probe.c -DA=1 -o probe.o");
        row("iccavr - C", "iccavr --cpu=<specify device> probe.c -DA=1 -o probe.r90");
        row("cl2000 - C", "cl2000 --silicon_version=28 --compile_only --define=A=1 "
                          "--output_file=probe.obj probe.c");
        row("ccrx - C", "ccrx -isa=<specify instruction set> -nologo -output=obj=probe.obj "
                        "-define=A=1 probe.c");
        row("ccrl - C", "ccrl -cpu=<specify core> -c -DA=1 -o probe.obj probe.c");
        row("xc8-cc - C", "xc8-cc -mcpu=<specify device> -c -DA=1 -o probe.p1 probe.c");
        row("cctc, TASKING - C", "cctc -C<specify processor> -co -DA=1 -o probe.o probe.c");
        row("chc12 - C", "chc12 -Cpu<specify core> -DA=1 -ObjN=probe.o probe.c");
        row("cxstm8 - C", "cxstm8 +mods0 -dA=1 probe.c");
        row("c51 - C", "c51 probe.c");
        row("wcc386 - C", "wcc386 -zq -dA=1 -fo=probe.obj probe.c");
        row("sdcc, Z80 - C", "sdcc -mz80 -o probe.rel -DA=1 -c probe.c");
    }
    void compilesAsTheManualsSay()
    {
        const CompilerRecord *found = nullptr;
        for (const CompilerRecord &record : m_shipped.compilers) {
            if (record.Name == QTest::currentDataTag())
                found = &record;
        }
        QVERIFY(found);
        QTEST(commandOf(*found), "command");
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

QTEST_APPLESS_MAIN(TestShippedCatalogue)
#include "test_shipped_catalogue.moc"
