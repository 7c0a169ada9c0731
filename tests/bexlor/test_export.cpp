#include "fact_forms.h"
#include "program_run.h"
#include "type_assertions.h"

#include "files.h"
#include "row.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QTemporaryDir>

using platform::ProgramRun;

// What other programs make of the forms that a personality is exported in.
class TestExport : public QObject
{
    Q_OBJECT

private:
    const QTemporaryDir m_folder;

    ProgramRun run(const QStringList &command) const
    {
        return platform::runProgram(command, m_folder.path(), 600'000);
    }
    ProgramRun exportTo(const QStringList &arguments) const
    {
        return run(QStringList {GENERATOR, "export", "arm.p_c"} + arguments);
    }
    QByteArray read(const char *name) const { return readTestFile(m_folder.filePath(name)); }

private slots:
    void initTestCase()
    {
        writeTestFile(m_folder.filePath("a.c"),
                      "#include <a.h>\n#include <stdint.h>\n"
                      "uint32_t f(void) { return A[0] + sizeof(long double); }\n");
        writeTestFile(m_folder.filePath("inc/a.h"), "#define B 1\n");
        writeTestFile(m_folder.filePath("more.rsp"),
                      "-DA=\\\"x\\\" -std=gnu11 -O2 --include=a.h -include b.h\n");
        writeTestFile(m_folder.filePath("b.h"), "");
        writeTestFile(m_folder.filePath("b.h.gch"), "gpch"); // precompiled, but not by clang
        writeTestFile(m_folder.filePath("b.o"), "");
        writeTestFile(m_folder.filePath("all.json"),
                      "[{\"directory\":\"" + m_folder.path().toLocal8Bit()
                          + "\",\"file\":\"a.c\",\"command\":\"env arm-none-eabi-gcc -mthumb "
                            "-fno-tree-slsr -Wlogical-op @more.rsp b.o -MD -I inc -c a.c -o "
                            "a.o\"},{\"file\":\"b.cpp\",\"command\":\"g++ b.cpp\"}]");
        const ProgramRun made =
            run({GENERATOR, "kov", "ccmp", "arm-none-eabi-gcc -fno-ipa-ra", "-o", "-c", "-D", ".o",
                 "%c %o %e %d%j %s ", "-op", "arm.p_c"});
        QVERIFY2(made.succeeded(), made.output);
    }

    void makesCompileCommandsForClang()
    {
        QVERIFY(exportTo({"compile-commands", "all.json", "-o", "for_clang.json"}).succeeded());
        const QJsonArray entries = QJsonDocument::fromJson(read("for_clang.json")).array();
        QCOMPARE(entries.size(), 1); // the other language's is left out
        const QStringList words = entries[0]["arguments"].toVariant().toStringList();
        for (const char *word :
             {"-mthumb", "-DA=\"x\"", "-std=gnu11", "-D__OPTIMIZE__=1", "-O2", "inc", "-include"})
            QVERIFY2(words.contains(word), qPrintable(words.join(' ')));
        QVERIFY(!words.contains("b.o") && !words.contains("arm-none-eabi-gcc"));
        QVERIFY(!words.contains("-fno-tree-slsr") && !words.contains("-Wlogical-op"));
        const ProgramRun clang = run(words + QStringList {"-Werror", "-fsyntax-only"});
        QVERIFY2(clang.succeeded() && clang.errors.isEmpty(), clang.errors);
        QVERIFY(!QFile::exists(m_folder.filePath("a.d")));
        // Though clang's own <stdint.h> goes on to the compiler's.
        const ProgramRun check = run({GENERATOR, "check", "arm.p_c", "all.json"});
        QVERIFY2(check.output.contains("a.c: same\n"), check.output);
    }

    void readsAnswersOfAnyKind_data()
    {
        const Columns<QByteArray> row("command");
        row("a switch taken for a value", "arm-none-eabi-gcc -MF");
        row("nothing in a response file", "@empty.rsp");
    }
    void readsAnswersOfAnyKind()
    {
        QFETCH(QByteArray, command);
        writeTestFile(m_folder.filePath("empty.rsp"), "");
        writeTestFile(m_folder.filePath("odd.p_c"),
                      read("arm.p_c")
                          .replace("\"arm-none-eabi-gcc -fno-ipa-ra\"", '"' + command + '"')
                          .replace("\"-op\",\"\"", "\"-op\",\"\",\"-xs\",\"-pthread\"")
                          .replace("\n#: answers", "\n#: switch -pthread\n#: answers"));
        const ProgramRun made =
            run({GENERATOR, "export", "odd.p_c", "compile-commands", "all.json"});
        QVERIFY2(made.succeeded() && made.output.contains("odd.p_c"), made.output);
    }

    void namesWhatClangdRemoves()
    {
        const ProgramRun made = exportTo({"clangd", "all.json"});
        QVERIFY2(made.output.contains(
                     "  Add: [\"--config\",\"" + m_folder.path().toLocal8Bit()
                     + "/arm.p_c\"]\n"
                       "  Remove: [\"-Wlogical-op\",\"-fno-ipa-ra\",\"-fno-tree-slsr\"]\n"),
                 made.output);
    }

    void refusesAnswersThatWriteElsewhere()
    {
        writeTestFile(m_folder.filePath("evil.p_c"),
                      read("arm.p_c").replace("\"-D\"", "\"-D/etc/x\""));
        for (const QStringList &request :
             {QStringList {"check", "evil.p_c", "a.c"},
              {"export", "evil.p_c", "compile-commands", "all.json"}}) {
            const ProgramRun refused = run(QStringList(GENERATOR) + request);
            QCOMPARE(refused.exitCode, 3);
            QVERIFY2(refused.output.contains("holds a path"), refused.output);
        }
    }

    void leavesAbsentTypesOut()
    {
        Facts facts;
        QVERIFY(cppcheckPlatform(facts).isEmpty());
        facts.types.basic = {{"int", 2, 1}, {"char", 1, 1}};
        facts.types.sizeType = "unsigned int";
        const QByteArray xml = cppcheckPlatform(facts);
        QVERIFY2(xml.contains("<int>2</int>") && xml.contains("<size_t>2</size_t>"), xml);
        QVERIFY2(!xml.contains("long") && !xml.contains("wchar_t") && !xml.contains("sign"), xml);
    }

    void assertsEachFact()
    {
        Facts facts;
        QVERIFY(!typeAssertions(facts, false).contains("sizeof"));
        facts.macros.known = {{"__BYTE_ORDER__", "4321"}};
        facts.types.basic = {{"int", 4, 4}, {"void (*)(void)", 8, 8}};
        facts.types.sizeType = "unsigned long";
        facts.types.wideCharacterType = "int";
        facts.types.charIsUnsigned = false;
        facts.types.smallEnumSize = 4;
        facts.types.bitFieldSize = 4;
        facts.types.byteOrder = ByteOrder::LittleEndian;
        const auto isAccepted = [this, &facts](bool isCpp) {
            const char *file = isCpp ? "types.cpp" : "types.c";
            writeTestFile(m_folder.filePath(file), typeAssertions(facts, isCpp));
            return run({"gcc", "-ansi", "-pedantic-errors", "-fsyntax-only", file}).succeeded();
        };
        QVERIFY(isAccepted(false) && isAccepted(true));
        const Facts right = facts;
        const auto isRejected = [&](auto &fact, const auto &wrong) {
            fact = wrong;
            const bool rejects = !isAccepted(false) && !isAccepted(true);
            facts = right;
            return rejects;
        };
        QVERIFY(isRejected(facts.types.basic[0].size, 2));
        QVERIFY(isRejected(facts.types.basic[1].alignment, 4));
        QVERIFY(isRejected(facts.types.sizeType, QByteArray("unsigned long long")));
        QVERIFY(isRejected(facts.types.wideCharacterType, QByteArray("unsigned int")));
        QVERIFY(isRejected(facts.types.charIsUnsigned, true));
        QVERIFY(isRejected(facts.types.smallEnumSize, 1));
        QVERIFY(isRejected(facts.types.bitFieldSize, 8));
        QVERIFY(isRejected(facts.types.byteOrder, ByteOrder::BigEndian));
    }

    void makesCppcheckSeeTypesAndMacros()
    {
        writeTestFile(m_folder.filePath("b.c"),
                      "int f(void) {\n#if defined(__arm__) && !defined(__x86_64__)\n"
                      "    int a[sizeof(void *) + sizeof(long)];\n    a[8] = 0;\n"
                      "    return a[0];\n#endif\n}\n");
        QVERIFY(exportTo({"cppcheck", "-o", "arm.xml"}).succeeded());
        const ProgramRun checked = run(
            {"cppcheck", "--platform=arm.xml", "--include=arm.xml.h", "--error-exitcode=0", "b.c"});
        QVERIFY2(checked.succeeded() && checked.errors.contains("'a[8]' accessed at index 8"),
                 checked.errors + checked.output);
    }

    void holdsAllFacts()
    {
        QVERIFY(exportTo({"json", "-o", "facts.json"}).succeeded());
        const QJsonObject facts = QJsonDocument::fromJson(read("facts.json")).object();
        QCOMPARE(facts["predefined"]["__arm__"].toString(), "1");
        QCOMPARE(facts["char"].toString() + facts["size_t"].toString(), "unsignedunsigned int");
        const QJsonObject type {{"name", "long long"}, {"size", 8}, {"alignment", 8}};
        QVERIFY(facts["type"].toArray().contains(type));
        QCOMPARE(facts["answers"]["arguments"][1].toString(), "ccmp");
        const QStringList options = facts["options"].toVariant().toStringList();
        const ProgramRun clang =
            run(QStringList {"clang", "-DA=\"\"", "-Iinc", "-fsyntax-only", "a.c"} + options);
        QVERIFY2(clang.succeeded() && clang.errors.isEmpty(), clang.errors);
        const QByteArray properties = exportTo({"vscode"}).output;
        QVERIFY2(properties.contains("\"intelliSenseMode\": \"gcc-arm\"")
                     && properties.contains("\"includePath\": ["),
                 properties);
    }

    void refusesWhatItCannotDo_data()
    {
        const Columns<QStringList, int, QByteArray> row("arguments", "exitCode", "says");
        row("missing database", {"compile-commands", "x.json"}, 3, "database cannot be read: ");
        row("no database", {"clangd", "arm.p_c"}, 3, "This is no compilation database: ");
        row("no clang", {"clangd", "--clang", "no-clang"}, 3, "can be started: no-clang\n");
        row("no folder", {"cppcheck", "-o", "no/x"}, 1, "The folder of the file does not exist: ");
        row("no file", {"json", "-o", "all.json/x"}, 1, "The file cannot be written: ");
    }
    void refusesWhatItCannotDo()
    {
        QFETCH(QStringList, arguments);
        QFETCH(QByteArray, says);
        const ProgramRun run = exportTo(arguments);
        QTEST(run.exitCode, "exitCode");
        QVERIFY2(run.output.contains(says), run.output);
    }
};

QTEST_GUILESS_MAIN(TestExport)
#include "test_export.moc"
