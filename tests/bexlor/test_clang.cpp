#include "clang.h"
#include "program_run.h"
#include "target_layouts.h"
#include "type_assertions.h"

#include "files.h"
#include "row.h"

namespace {

QList<Macro> macros(const QByteArray &names)
{
    QList<Macro> macros;
    for (const QByteArray &name : names.split(' '))
        macros.append({name.split('=').first(), name.contains('=') ? name.split('=')[1] : "1"});
    return macros;
}

/// Types with these sizes of int, long, a pointer, double and long double, each aligned to its size
/// but no further than to \a alignment; 0 for one that is missing.
TypeFacts types(const QList<int> &sizes, int alignment = 16)
{
    const QByteArray names[] = {"int", "long", "void *", "double", "long double"};
    TypeFacts types;
    for (int i = 0; i < sizes.size(); ++i) {
        if (sizes[i] != 0)
            types.basic.append({names[i], sizes[i], std::min(sizes[i], alignment)});
    }
    return types;
}

/// What clang says against \a code with \a options.
QByteArray clangAnswer(const QList<QByteArray> &options, bool isCpp, const QByteArray &code,
                       const QString &program = "clang")
{
    const QTemporaryDir folder;
    const QString source = folder.filePath(isCpp ? "x.cpp" : "x.c");
    writeTestFile(source, code);
    QStringList command {program, source, "-fsyntax-only", "-nostdlibinc",
                         "-Werror=incompatible-library-redeclaration"};
    for (const QByteArray &option : options)
        command << option;
    const platform::ProgramRun clang = platform::runProgram(command, folder.path(), 60'000);
    return clang.succeeded() ? QByteArray() : clang.errors + "failed";
}

/// The first target that has the types of \a target and can be laid out otherwise by \a option.
QByteArray firstLike(const QByteArray &target, const QByteArray &option)
{
    const QList<QByteArray> targets = targetNames();
    return *std::find_if(targets.begin(), targets.end(), [&](const QByteArray &other) {
        return typesOfTarget(other, {}).basic == typesOfTarget(target, {}).basic
            && other.contains("-windows-") == target.contains("-windows-")
            && layoutOptions(other).contains(option);
    });
}

} // namespace

class TestClang : public QObject
{
    Q_OBJECT

private slots:
    void findsTheTarget_data()
    {
        // target: with the options that it needs and, behind a colon, the types that still differ
        const Columns<QByteArray, TypeFacts, ByteOrder, QByteArray> row("defined", "types", "order",
                                                                        "target");
        const ByteOrder little = ByteOrder::LittleEndian, big = ByteOrder::BigEndian;
        row("Linux", "__x86_64__ __linux__", {}, little, "x86_64-unknown-linux-gnu");
        row("x32", "__x86_64__ __ILP32__ __linux__", {}, little, "x86_64-unknown-linux-gnux32");
        row("MinGW", "__x86_64__ _WIN32", {}, little, "x86_64-w64-windows-gnu");
        row("Microsoft", "_M_X64 _WIN32 _MSC_VER=1929", types({4, 4, 8, 8, 8}), little,
            "x86_64-pc-windows-msvc");
        row("bare Arm", "__arm__ __ELF__", {}, little, "arm-unknown-none-eabi");
        row("hard float", "__arm__ __linux__ __ARM_PCS_VFP", {}, little,
            "arm-unknown-linux-gnueabihf");
        row("big-endian Arm", "__arm__ __ELF__", {}, big, "armeb-unknown-none-eabi");
        row("MIPS", "__mips__ __ELF__", {}, big, "mips-unknown-none-elf");
        row("little-endian MIPS", "__mips64 __mips__ __ELF__", {}, little,
            "mips64el-unknown-none-elf");
        row("little-endian MIPS of 32 bits", "__mips__ __ELF__", {}, little,
            "mipsel-unknown-none-elf");
        row("RISC-V", "__riscv_xlen=32 __ELF__", {}, little, "riscv32-unknown-none-elf");
        row("LoongArch", "__loongarch_grlen=64 __linux__", {}, little,
            "loongarch64-unknown-linux-gnu");
        row("short pointers", "__aarch64__ __ILP32__ __ELF__", types({4, 4, 4, 8, 16}), little,
            "aarch64_32-apple-watchos: long double 8/8");
        row("n32", "__mips64 __mips__ __ELF__", types({4, 4, 4, 8, 16}), big,
            "mips64-unknown-linux-gnuabin32");
        row("aligned to 2", "__m68k__ __ELF__", types({4, 4, 4, 8, 8}, 2), big,
            "m68k-unknown-none-elf -fpack-struct=2");
        row("aligned double", "__i386__ __linux__", types({4, 4, 4, 8, 8}), little,
            "i386-unknown-linux-gnu -malign-double -mlong-double-64");
        row("double of 64 bits", "__AVR__", types({2, 4, 2, 8, 8}, 1), little,
            "avr-unknown-none -mdouble=64");
        row("double of 32 bits", "__arm__ __ELF__", types({4, 4, 4, 4, 8}), little,
            "arm-unknown-none-eabi: double 8/8");
        row("8 bits", "SDCC", types({2, 4, 3, 4, 0}, 1), little, "avr-unknown-unknown: void * 2/1");
        row("8 bits, few types", "__CC65__", types({2, 4, 2, 0, 0}, 1), little,
            "avr-unknown-unknown");
        row("16 bits", "ACC", types({2, 4, 2, 8, 8}, 2), little, "msp430-unknown-none-elf");
        row("32 bits", "ACC", types({4, 4, 4, 8, 8}), little, "arm-unknown-none-eabi");
        row("32 bits, big-endian", "ACC", types({4, 4, 4, 8, 8}), big, "armeb-unknown-none-eabi");
        row("32 bits, aligned to 4", "ACC", types({4, 4, 4, 8, 8}, 4), little,
            "i386-unknown-none-elf -mlong-double-64");
        row("32 bits, double too", "ACC", types({4, 4, 4, 4, 4}), little, "tcele-unknown-none");
        row("64 bits", "ACC", types({4, 8, 8, 8, 16}), ByteOrder::Unknown,
            "x86_64-unknown-none-elf");
        row("64 bits, short long", "ACC", types({4, 4, 8, 8, 16}), little,
            "x86_64-w64-windows-gnu");
        row("nothing known", "ACC", {}, ByteOrder::Unknown, "");
    }
    void findsTheTarget()
    {
        QFETCH(QByteArray, defined);
        QFETCH(TypeFacts, types);
        QFETCH(ByteOrder, order);
        Facts facts;
        facts.macros.known = macros(defined);
        facts.types = types;
        facts.types.byteOrder = order;
        const TargetChoice choice = chooseTarget(facts, {});
        QByteArray found = (QList {choice.name} + choice.options).join(' ');
        for (const Type &type : languageOf(facts, {}, false).differingTypes.basic) {
            found += ": " + type.name + ' ' + QByteArray::number(type.size) + '/'
                   + QByteArray::number(type.alignment);
        }
        QTEST(found, "target");
    }

    void saysWhereTypesDiffer()
    {
        Facts facts;
        facts.macros.known = macros("__i386__ __linux__ __WCHAR_TYPE__=long");
        facts.types = types({4, 4, 8, 8, 12}, 4);
        facts.types.basic[3].alignment = 2;
        facts.types.wideCharacterType = "long";
        facts.types.sizeType = "unsigned long";
        facts.types.smallEnumSize = 8;
        facts.types.bitFieldSize = 6;
        facts.types.byteOrder = ByteOrder::BigEndian;
        const Language language = languageOf(facts, {}, false);
        QCOMPARE(differenceSentences(facts.types, language.differingTypes),
                 QStringList({"For clang double is aligned to 4, for the compiler to 2.",
                              "For clang void * has 4 bytes, for the compiler 8.",
                              "For clang a small enumeration has 4 bytes, for the compiler 8.",
                              "For clang a structure of a char and a bit-field has 4 bytes, for "
                              "the compiler 6.",
                              "For clang integers are little-endian, for the compiler big-endian.",
                              "For clang size_t is unsigned int, for the compiler unsigned long.",
                              "For clang wchar_t is int, for the compiler long."}));
        // Wide literals must fit the headers.
        QCOMPARE(language.redefinitions, QList<Macro>({{"__WCHAR_TYPE__", "int"}}));
        QVERIFY(languageOf(facts, {}, true).differingTypes.wideCharacterType.isEmpty());
    }

    void knowsTheTypesOfClangsTargets_data()
    {
        const Columns<QString, QByteArray> row("clang", "target");
        for (const char *clang : {"clang-14", "clang-19"}) {
            for (const QByteArray &target : targetNames())
                row(clang + (' ' + target), clang, target);
        }
    }
    void knowsTheTypesOfClangsTargets()
    {
        QFETCH(QString, clang);
        QFETCH(QByteArray, target);
        QList<QList<QByteArray>> variants {{}};
        for (const QByteArray &option : layoutOptions(target)) {
            // Options are the same in both, do the same to the same layout, and all are packed
            // alike.
            const bool isPacked = option.startsWith("-fpack-struct");
            const QByteArray first = isPacked ? targetNames().first() : firstLike(target, option);
            if (clang != "clang-14" && target == first)
                variants << QList {option};
        }
        for (const QList<QByteArray> &variant : variants) {
            const QByteArray answer = clangAnswer(
                QList<QByteArray> {"--target=" + target, "-Wno-incompatible-ms-struct"} + variant,
                false,
                typeAssertions({.macros = {macros("__BYTE_ORDER__"), {}},
                                .types = typesOfTarget(target, variant)},
                               false),
                clang);
            // Clang 14 does not have all of them.
            const bool isUnknown = clang == "clang-14" && answer.contains("unknown target triple");
            QVERIFY2(answer.isEmpty() || isUnknown, target + variant.join(' ') + ": " + answer);
        }
    }

    void passesOptionsOn_data()
    {
        const Columns<QString, bool, QByteArray> row("options", "isCpp", "code");
        row("trigraphs", "-trigraphs", false, "int a?\?(2?\?);");
        row("Microsoft's trigraphs", "/Zc:trigraphs", false, "int a?\?(2?\?);");
        row("no asm", "-fno-asm", false, "int asm; int typeof;");
        row("unnamed members", "-fplan9-extensions", false,
            "struct a { int b; }; struct c { struct a; } d; int *e = &d.b;");
        row("float constants", "-fsingle-precision-constant", false,
            "char a[sizeof(1.0) == 4 ? 1 : -1];");
        row("packed", "-fpack-struct", false,
            "struct { char a; int b; } c; char d[sizeof c == 5 ? 1 : -1];");
        row("packed, the last counts", "-fpack-struct=1 /Zp2 -fcond-mismatch", false,
            "struct { char a; int b; } c; char d[sizeof c == 6 ? 1 : -1];");
        row("bit-fields", "-mms-bitfields", false,
            "struct { char a : 4; int b : 4; } c; char d[sizeof c == 8 ? 1 : -1];");
        row("aligned", "-malign-double", false,
            "struct { char a; double b; } c; char d[sizeof c == 16 ? 1 : -1];");
        row("a function of that name", "-ffreestanding -fno-builtin-printf", false,
            "char *printf(void);\n#if __STDC_HOSTED__\n#error\n#endif");
        row("old inline", "-fgnu89-inline", false, "#ifndef __GNUC_GNU_INLINE__\n#error\n#endif");
        row("constant literals", "-Wwrite-strings", false,
            "char *a; int b[_Generic(&\"c\", const char (*)[2]: 1, default: -1)];");
        row("wchar_t of a header", "/Zc:wchar_t-", true, "typedef short wchar_t;");
        // Clang ends at the first option that it does not know.
        const QString many =
            "-fno-ms-extensions -fasm -fbuiltin -fno-builtin-abs -flax-vector-conversions -fwrapv "
            "-fno-pack-struct -ftrapv -fno-strict-overflow -fdelete-null-pointer-checks -fblocks "
            "-fno-gnu-keywords -fdollars-in-identifiers -fopenmp -fdeclspec -fborland-extensions "
            "-fasm-blocks -fms-compatibility -fdelayed-template-parsing -fhosted -fpack-struct=4 "
            "-ftemplate-depth=9 -fconstexpr-depth=9 -Wno-write-strings -mno-ms-bitfields "
            "--no_trigraphs /Zc:trigraphs- -fconstexpr-ops-limit=9 -ftemplate-depth-9 --no_dollar "
            "--fdollars-in-identifiers --dollar -Zp /Zp4 /Zc:twoPhase- /permissive- /Za /J "
            "/openmp /openmp:llvm --trigraphs";
        row("many of C", many + " -fno-gnu89-inline", false, "int a?\?(2?\?);");
        row("many of C++", many + " -faccess-control", true, "int a?\?(2?\?);");
        row("words for operators", "-fno-operator-names -fno-access-control", true,
            "class a { int and; } b; int c = b.and;");
    }
    void passesOptionsOn()
    {
        QFETCH(QString, options);
        QFETCH(bool, isCpp);
        QFETCH(QByteArray, code);
        const auto takes = [&](const QStringList &words) {
            QList<QByteArray> forClang {"--target=i386-unknown-none-elf"};
            const PassedOptions passed = passedOptions(words, isCpp);
            for (const QByteArray &option : passed.forClang)
                forClang << option.split(' ');
            return passed.forClang.size() + passed.lacking.size() == words.size() - 1
                && clangAnswer(forClang, isCpp, code).isEmpty();
        };
        QVERIFY(!takes({"cc"}));
        QVERIFY(takes(("cc " + options).split(' ')));
    }

    void namesOptionsThatClangLacks()
    {
        const PassedOptions options = passedOptions(
            {"-fgimple", "-fgnu89-inline", "-Wall", "-finput-charset=utf-8", "-fexec-charset=x y",
             "-fpack-struct=1 -fplugin=x", "-fcond-mismatch", "-fcond-mismatch", "-fconcepts"},
            true);
        QCOMPARE(options.lacking, QStringList({"-fexec-charset=x y", "-fcond-mismatch"}));
        QCOMPARE(options.forClang, QList<QByteArray>());
    }

    void takesTheSameCode_data()
    {
        const Columns<Facts, bool, QByteArray> add("facts", "isCpp", "code");
        Facts facts;
        const auto row = [&](const char *name, bool isCpp, const QByteArray &code) {
            add(name, facts, isCpp, code);
        };
        facts.macros.known = macros("__arm__ __ELF__ __STDC_VERSION__=201112L __cplusplus=201703L");
        facts.types = types({4, 4, 4, 8, 8});
        facts.types.charIsUnsigned = false;
        row("signed char, C11", false,
            "char a[(char)-1<0?1:-1]; char b[__STDC_VERSION__==201112?1:-1];");
        row("enumerations like int", false, "char a[sizeof(enum{A})==4?1:-1];");
        row("neither exceptions nor types at run time", true,
            "#if __cplusplus != 201703 || __cpp_exceptions || __cpp_rtti\n#error\n#endif\n");
        facts.types.charIsUnsigned = true;
        facts.types.smallEnumSize = 1;
        row("unsigned char, short enumerations", false,
            "char a[(char)-1>0?1:-1]; char b[sizeof(enum{A})==1?1:-1];");
        facts.types.wideCharacterType = "unsigned short";
        facts.macros.known << macros("__cpp_char8_t __EXCEPTIONS __GXX_RTTI");
        row("short wchar_t, char8_t, exceptions", true,
            "char a[sizeof(wchar_t)==2?1:-1]; char8_t b = u8'a'; void f() { throw 1; }\n"
            "#if !__cpp_rtti\n#error\n#endif\n");
        facts.macros.known = macros("__cplusplus=201703L __cpp_concepts");
        row("concepts before C++20", true,
            "template <class T> concept A = true; template <A T> void f(T); char b[] = u8\"b\";");
        facts.keywords.append({"_Accum", Keyword::Undetermined, {}});
        row("fixed point", false, "long _Accum a; unsigned _Fract b = 0.5ur;");
        facts.macros.known = macros("__arm__ __ELF__ __ARM_ARCH=7 __ARM_ARCH_7A__ __ARM_NEON "
                                    "__STDC_VERSION__=201112L __ARM_FP=12 __GNUC__=12");
        row("Arm's instructions", false,
            "#include <arm_neon.h>\n#include <arm_acle.h>\n"
            "float32x4_t f(float32x4_t x) { __dmb(15); return vaddq_f32(x, x); }");
        for (const char *name : {"4T", "5TE", "5TEJ", "6", "6K", "6KZ", "6T2", "6M", "7A", "7R",
                                 "7M", "7EM", "8A", "8R", "8M_BASE", "8M_MAIN"}) {
            const QByteArray macro = QByteArray("__ARM_ARCH_") + name + "__";
            facts.macros.known = macros("__arm__ __ELF__ " + macro);
            row(macro, false, "#ifndef " + macro + "\n#error\n#endif\nint a;");
        }
        facts.macros.known = macros("__powerpc__ __ALTIVEC__ __ELF__");
        row("AltiVec", false, "__vector float a;");
        facts.macros.known = macros("__i386__ __linux__");
        facts.keywords = {{"_Float128", Keyword::TypeName, {}},
                          {"__float128", Keyword::TypeName, {}}};
        row("_Float128", false, "char a[sizeof(_Float128)==16?1:-1];");
        facts = Facts();
        facts.macros.known = macros("__x86_64__ __linux__ __STRICT_ANSI__");
        facts.types = types({4, 8, 8, 8, 8});
        row("short long double, C90", false,
            "char a[sizeof(long double)==8?1:-1]; int restrict; int f(int inline);");
        facts.types = types({2, 4, 2, 4, 4});
        facts.macros.known = macros("SDCC");
        facts.keywords = {{"__data", Keyword::Qualifier, {}},
                          {"__at", Keyword::QualifierWithArgument, {}},
                          {"__sfr", Keyword::TypeName, "unsigned char"},
                          {"__inline", Keyword::Qualifier, {}},
                          {"__bit", Keyword::TypeName, {}},
                          {"__interrupt", Keyword::QualifierWithArgument, {}},
                          {"__interrupt", Keyword::QualifierWithBareArgument, {}},
                          {"__interrupt", Keyword::Qualifier, {}},
                          {"_Bool", Keyword::OrdinaryName, {}}};
        row("8 bits", false,
            "char a[sizeof(int)==2&&sizeof(void*)==2&&sizeof(double)==4?1:-1];"
            "__data int b; __at(0x80) __sfr c; static __inline int d(void) { return 1; }"
            "int __bit; void e(void) __interrupt(2); typedef unsigned char _Bool;"
            "char f[(_Bool)2==2?1:-1];");
        facts.keywords = {{"__declspec", Keyword::QualifierWithArgument, {}},
                          {"__try", Keyword::Undetermined, {}}};
        facts.types = types({4, 4, 8, 8, 8});
        facts.macros.known = macros("__x86_64__ __linux__ __clang__");
        row("__declspec of clang", false,
            "__declspec(align(16)) char a; char b[__alignof__(a) == 16 ? 1 : -1];");
        facts.macros.known = macros("_M_X64 _WIN32 _MSC_VER=1929 _MSVC_LANG=201703L _CPPUNWIND");
        row("Microsoft's", true,
            "struct __declspec(uuid(\"00000000-0000-0000-C000-000000000046\")) A { };\n"
            "struct _GUID { int a; }; const _GUID &g = __uuidof(A);\n"
            "void f(bool a) { __try { if (a) throw 1; } __finally { } }\n"
            "template <class T> struct B { int b; };\n"
            "template <class T> struct C : B<T> { int c() { return b; } };\n"
            "static_assert(sizeof(long double) == 8); __interface D { int d(); };\n");
        facts.macros.known = macros("__GNUC__=11");
        row("an attribute with arguments", false,
            "void f(void *); __attribute__((__malloc__(f, 1))) void *g(void);");
        row("functions for what is atomic", false,
            "_Atomic int a; volatile int b; const _Atomic long c; void f(long *d) { int v = "
            "__atomic_fetch_add(&a, 1, 5); __atomic_store(&a, &v, 5); __atomic_load(&c, d, 5); "
            "__atomic_fetch_or(&b, 1, 0); }");
        row("arguments passed on", false,
            "int g(int, ...); static inline __attribute__((always_inline)) int f(int a, ...)\n"
            "{ return __builtin_va_arg_pack_len() ? g(a, __builtin_va_arg_pack ()) : 0; }");
        row("overflow alone", false,
            "int f(int a) { return __builtin_mul_overflow_p(a, a, (short)0); }");
        facts.macros.known = macros("__AVR__ __BUILTIN_AVR_NOP __BUILTIN_AVR_SWAP");
        row("functions of AVR", false,
            "extern void __builtin_avr_nop(void); extern unsigned char __builtin_avr_swap(unsigned "
            "char a); unsigned f(void) { __builtin_avr_nop(); return __builtin_avr_swap(1); }");
    }
    void takesTheSameCode()
    {
        QFETCH(Facts, facts);
        QFETCH(bool, isCpp);
        QFETCH(QByteArray, code);
        QList<QByteArray> options = languageOf(facts, {}, isCpp).options;
        for (const Macro &macro : keywordDefinitions(facts))
            options << "-D" + macro.name + '=' + macro.value;
        const QByteArray answer = clangAnswer(options, isCpp, code);
        QVERIFY2(answer.isEmpty(), answer);
    }
};

QTEST_GUILESS_MAIN(TestClang)
#include "test_clang.moc"
