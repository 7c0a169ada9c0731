#include "personality.h"
#include "template_options.h"

#include "clang.h"
#include "dialects.h"
#include "files.h"
#include "row.h"

namespace {

QList<Macro> sorted(QList<Macro> macros)
{
    std::sort(macros.begin(), macros.end(),
              [](const Macro &a, const Macro &b) { return a.name < b.name; });
    return macros;
}

/// Everything that a personality may hold, with characters that need care.
Personality fullPersonality()
{
    Arguments arguments;
    arguments.command = "\"/odd folder/cc\" -DX=\\ ";
    arguments.switches = QStringList {"-a b", "-c"};
    arguments.forceIncludeFile = "/first \"one\".h";
    arguments.substituteHeaders = QString::fromUtf8("/gr\303\266\303\237e \\x");
    arguments.headerDirectories = QStringList {"/usr/include"};
    arguments.answers = {"/x", {"", "a\nb \\ \"c\"", QString::fromUtf8("\303\274\t")}};
    Facts facts;
    facts.versionLine = "cc \377 1.2, size 3";
    facts.macros.known = {{"A", "\"a \\\"b\\\" \\\\\" = 1"},
                          {"F(a,b)", "a##b #a"},
                          {"EMPTY", ""},
                          {"D", "<CFGDIR>"}}; // which clang cannot be told
    facts.macros.undetermined = {"B", "C"};
    facts.types.basic = {{"int", 2, 1}, {"void (*)(void)", 4, 2}};
    facts.types.sizeType = "unsigned int";
    facts.types.pointerDifferenceType = "long long";
    facts.types.wideCharacterType = "signed char";
    facts.types.charIsUnsigned = true;
    facts.types.smallEnumSize = 1;
    facts.types.bitFieldSize = 7;
    facts.types.byteOrder = ByteOrder::BigEndian;
    facts.keywords = {{"__a", Keyword::Qualifier, {}},
                      {"__b", Keyword::QualifierWithArgument, {}},
                      {"__c", Keyword::TypeName, "unsigned long int"},
                      {"__d", Keyword::TypeName, {}},
                      {"__e", Keyword::Undetermined, {}},
                      {"__f", Keyword::QualifierWithBareArgument, {}},
                      {"__g", Keyword::AssemblerBlock, "__h"},
                      {"_Bool", Keyword::OrdinaryName, {}}};
    facts.attributes = {"h", "i"};
    facts.leniencies = {"return-type", "implicit-int"};
    facts.searchPath = {{"/a b", "/c"}, {"/q"}};
    const CommandParts parts {{"cc", "-fcond-mismatch", "/Zc:wchar_t-"},
                              {},
                              {{"-include", "x.h"}, {"-imacros", "y z.h"}}};
    return composePersonality(arguments, facts, parts,
                              "-DFROM_TEMPLATE=1\n# Search path\n#: keyword __f qualifier");
}

} // namespace

class TestPersonality : public QObject
{
    Q_OBJECT

private slots:
    void isReadAsItWasWritten()
    {
        const Personality full = fullPersonality();
        QVERIFY(full.keywordDefinitions.size() == 4 && full.includedFirst.size() == 3);
        QCOMPARE(full.searchPath.size(), 6);
        QCOMPARE(full.facts.macros.undetermined, QList<QByteArray>({"B", "C", "D"}));
        QCOMPARE(full.lacking, QStringList {"-fcond-mismatch"});
        QVERIFY(!full.typesOfClang.basic.isEmpty()
                && !full.typesOfClang.pointerDifferenceType.isEmpty());
        QVERIFY(full.language.contains(Option {"-Xclang", "-fno-wchar"}));
        Personality byHand;
        byHand.keywordDefinitions = {{"\"$"}, {"a b\\"}};
        QCOMPARE(parsePersonality(personalityText(byHand)), byHand);
        QCOMPARE(full.includedFirst.first(), Option({"-include", "/first \"one\".h"}));
        Personality bare;
        Personality little = full;
        little.facts.types.byteOrder = ByteOrder::LittleEndian;
        little.facts.types.charIsUnsigned = false;
        little.templateText.clear();
        Personality nested = full; // one whose template has been a personality
        nested.templateText = personalityText(full);
        for (const Personality &personality : {full, bare, little, nested}) {
            const QByteArray text = personalityText(personality);
            const Personality read = parsePersonality(text);
            QCOMPARE(personalityText(read), text);
            QVERIFY(read == personality);
        }
    }

    void makesClangSeeTheListedMacros_data()
    {
        const Columns<QString> row("command");
        row("gcc for 32 bits", "gcc -m32 -std=c99 -x c");
        row("cross compiler", "arm-none-eabi-gcc -x c");
        row("clang", "clang -x c");
        row("clang++", "clang++ -x c++");
        row("Microsoft's", "clang --target=x86_64-pc-windows-msvc -x c");
    }
    void makesClangSeeTheListedMacros()
    {
        QFETCH(QString, command);
        const QTemporaryDir folder;
        Arguments arguments;
        arguments.command = "cc\\";
        arguments.isCpp = command.endsWith('+');
        const QString source = folder.filePath(arguments.isCpp ? "x.cpp" : "x.c");
        writeTestFile(source);
        QStringList words = command.split(' ') + QStringList {"-dM", "-E", source};
        // What has a meaning in a file of options, or looks as if it had.
        for (const char *value : {"a \"b\\\" c\"", "'x' \\", "# no comment", "$HOME `id` %PATH%",
                                  "@file", "((char)-1)", "", "-include x"})
            words << QString("-DM%1=%2").arg(words.size()).arg(value);
        words << "-DF(a,b)=a \"q\" b"
              << "-DOVERRIDDEN=1"
              << "-DALSO(a)=1";
        Facts facts;
        facts.macros.known = macrosIn(platform::runProgram(words, folder.path(), 60'000).output);
        QVERIFY(facts.macros.known.size() > 200);
        writeTestFile(folder.filePath("first/x.h"), "#define X 1\n");
        writeTestFile(folder.filePath("own/x.h"), "#error\n");
        facts.searchPath.directories = QStringList {folder.filePath("own")};
        const QByteArray overriding =
            "# -DNONE\n-DOTHER -D OVERRIDDEN=2 -UM9\n \"-DALSO=2 -DM5\"\n-isystem \""
            + folder.filePath("first").toLocal8Bit() + "\"\n-include x.h";
        const QString path = folder.filePath("odd \"name\".p_c");
        const Personality made = composePersonality(arguments, facts, {}, overriding);
        writeTestFile(path, personalityText(made));
        const platform::ProgramRun seen = platform::runProgram(
            {"clang", "--config", path, "-dM", "-E", source}, folder.path(), 60'000);
        QCOMPARE(seen.errors, QByteArray());
        QList<Macro> macros = macrosIn(seen.output);
        const QList<Macro> added = keywordDefinitions(facts);
        macros.removeIf([&added](const Macro &macro) { return added.contains(macro); });
        QCOMPARE(sorted(macros),
                 sorted(changedMacros(facts.macros.known, overriding) + QList<Macro> {{"X", "1"}}));
        const QStringList options = personalityFacts(made)["options"].toVariant().toStringList()
                                 << "-dM"
                                 << "-E" << source;
        QCOMPARE(platform::runProgram(QStringList("clang") + options, folder.path(), 60'000).output,
                 seen.output);
    }

    void searchesInOrder()
    {
        const QTemporaryDir folder;
        const auto at = [&folder](const char *name) {
            return QDir(folder.path()).canonicalPath() + '/' + name;
        };
        for (const char *file :
             {"intrinsics/immintrin.h", "user/a.hpp", "dos/A.H", "searched/a.h", "stand-in/a.h"})
            writeTestFile(at(file));
        QDir(folder.path()).mkdir("empty");
        Arguments arguments;
        arguments.isCpp = true;
        arguments.substituteHeaders = at("stand-in");
        arguments.headerDirectories =
            QStringList {at("searched"), at("user"), at("dos"), at("empty")};
        Facts facts;
        facts.searchPath = {{at("own"), at("intrinsics"), at("searched")}, {at("quoted")}};
        CommandParts parts;
        const auto shown = [&] {
            QStringList lines;
            for (const Option &option : composePersonality(arguments, facts, parts, {}).searchPath)
                lines << option.join(' ');
            return lines.join('\n').replace(at(""), "");
        };
        QCOMPARE(
            shown(),
            "-nostdlibinc\n-D_GCC_NEXT_LIMITS_H=\n-isystem stand-in\n-iquote quoted\n-isystem own\n"
            "-idirafter intrinsics\n-idirafter searched\n-idirafter user\n-idirafter dos");
        // What the command names by -I, but for what the compiler has kept in its own path.
        parts.includeDirectories = QStringList {at("user"), at("own"), at("searched")};
        QCOMPARE(shown(),
                 "-nostdlibinc\n-D_GCC_NEXT_LIMITS_H=\n-I stand-in\n-iquote quoted\n-I own\n"
                 "-idirafter intrinsics\n-idirafter searched\n-idirafter user\n-idirafter dos");
        facts.macros.known = {{"__clang__", "1"}};
        QVERIFY(shown().startsWith("-nostdinc\n") && shown().contains("-isystem intrinsics"));
        arguments.isCpp = false;
        QVERIFY(!shown().contains("user") && shown().contains("dos"));
    }
};

QTEST_GUILESS_MAIN(TestPersonality)
#include "test_personality.moc"
