#include "personality.h"

#include <QDir>
#include <QFileInfo>
#include <algorithm>

using namespace Qt::StringLiterals;

namespace {

// Clang defines these by itself even under -undef, so they are taken back before the compiler's
// own definitions follow.
const char *const alwaysDefined[] = {
    "__GCC_HAVE_DWARF2_CFI_ASM",
    "__STDCPP_DEFAULT_NEW_ALIGNMENT__",
    "__STDCPP_THREADS__",
    "__STDC_HOSTED__",
    "__STDC_UTF_16__",
    "__STDC_UTF_32__",
    "__STDC_VERSION__",
    "__STDC__",
    "__cplusplus",
};

// Keywords that clang has itself, from its manual ("Language Extensions") and the GCC manual's
// alternate keywords, all of which it accepts. Those that it knows and cannot use stay out.
const char *const clangKeywords =
    "asm typeof __asm __asm__ __inline __inline__ __signed __signed__ __const __const__ __volatile "
    "__volatile__ __restrict __restrict__ __extension__ __attribute __attribute__ __alignof "
    "__alignof__ __typeof __typeof__ __auto_type __label__ __thread __real __real__ __imag "
    "__imag__ __complex __complex__ __builtin_va_list __int128 __int128_t __uint128_t __float128 "
    "_Accum _Fract _Sat __cdecl __stdcall __fastcall __thiscall __vectorcall __null __nullptr "
    "__decltype "
    "_Complex _Imaginary _Atomic _Bool _Noreturn _Static_assert _Generic _Thread_local _Alignas "
    "_Alignof";

struct Named
{
    const char *macro;
    const char *name;
};

// The first macro that is defined tells the architecture. The names of the macros are those of the
// GNU, LLVM, IAR and Microsoft compilers' manuals; what follows is the first part of clang's
// target.
const Named architectures[] = {
    {"__x86_64__", "x86_64"},
    {"_M_X64", "x86_64"},
    {"__i386__", "i386"},
    {"_M_IX86", "i386"},
    {"__aarch64__", "aarch64"},
    {"_M_ARM64", "aarch64"},
    {"__arm__", "arm"},
    {"_M_ARM", "arm"},
    {"__AVR__", "avr"},
    {"__MSP430__", "msp430"},
    {"__powerpc64__", "powerpc64"},
    {"__powerpc__", "powerpc"},
    {"__mips64", "mips64"},
    {"__mips__", "mips"},
    {"__sparc__", "sparc"},
};

// What clang calls an architecture whose bytes follow one another in the other order.
const struct
{
    const char *name;
    ByteOrder otherOrder;
    const char *otherName;
} otherByteOrders[] = {
    {"arm", ByteOrder::BigEndian, "armeb"},
    {"aarch64", ByteOrder::BigEndian, "aarch64_be"},
    {"mips", ByteOrder::LittleEndian, "mipsel"},
    {"mips64", ByteOrder::LittleEndian, "mips64el"},
    {"powerpc64", ByteOrder::LittleEndian, "powerpc64le"},
};

const Named systems[] = {
    {"_WIN32", "w64-windows-gnu"},
    {"__linux__", "unknown-linux-gnu"},
    {"__ELF__", "unknown-none-elf"},
};

struct Standard
{
    long value; ///< of __STDC_VERSION__ or __cplusplus
    const char *name;
};

// Values: ISO C and C++ standards, clause "Predefined macro names".
const Standard cStandards[] = {{0, "89"}, // which has no such macro
                               {199409, "iso9899:199409"},
                               {199901, "99"},
                               {201112, "11"},
                               {201710, "17"},
                               {202000, "2x"}};
const Standard cppStandards[] = {{199711, "98"}, {201103, "11"}, {201402, "14"},
                                 {201703, "17"}, {202002, "20"}, {202100, "2b"}};

/// What clang's targets are like, for compilers whose architecture it does not have: sizes of int,
/// long, a pointer, double and long double, and the byte order. Read off "clang -dM -E".
struct Target
{
    const char *name;
    int sizes[5];
    ByteOrder byteOrder;
};

const QByteArray measuredTypes[] = {"int", "long", "void *", "double", "long double"};

const Target targets[] = {
    {"avr-unknown-unknown", {2, 4, 2, 4, 4}, ByteOrder::LittleEndian},
    {"msp430-unknown-none-elf", {2, 4, 2, 8, 8}, ByteOrder::LittleEndian},
    {"arm-unknown-none-eabi", {4, 4, 4, 8, 8}, ByteOrder::LittleEndian},
    {"armeb-unknown-none-eabi", {4, 4, 4, 8, 8}, ByteOrder::BigEndian},
    {"i386-unknown-none-elf", {4, 4, 4, 8, 12}, ByteOrder::LittleEndian},
    {"riscv32-unknown-none-elf", {4, 4, 4, 8, 16}, ByteOrder::LittleEndian},
    {"powerpc-unknown-none-elf", {4, 4, 4, 8, 16}, ByteOrder::BigEndian},
    {"x86_64-unknown-none-elf", {4, 8, 8, 8, 16}, ByteOrder::LittleEndian},
    {"x86_64-w64-windows-gnu", {4, 4, 8, 8, 16}, ByteOrder::LittleEndian},
    {"powerpc64-unknown-none-elf", {4, 8, 8, 8, 16}, ByteOrder::BigEndian},
};

const Macro *findMacro(const Facts &facts, const QByteArray &name)
{
    const auto found = std::find_if(facts.macros.begin(), facts.macros.end(),
                                    [&name](const Macro &macro) { return macro.name == name; });
    return found == facts.macros.end() ? nullptr : &*found;
}

template <std::size_t Size>
QByteArray firstDefined(const Facts &facts, const Named (&table)[Size])
{
    for (const Named &row : table) {
        if (findMacro(facts, row.macro))
            return row.name;
    }
    return {};
}

int sizeOf(const Facts &facts, const QByteArray &name)
{
    const auto found = std::find_if(facts.types.begin(), facts.types.end(),
                                    [&name](const Type &type) { return type.name == name; });
    return found == facts.types.end() ? 0 : found->size;
}

/// The target whose types differ least from those of the compiler.
QByteArray nearestTarget(const Facts &facts)
{
    const auto differences = [&facts](const Target &target) {
        int count = facts.byteOrder != ByteOrder::Unknown && facts.byteOrder != target.byteOrder;
        for (std::size_t i = 0; i < std::size(measuredTypes); ++i) {
            const int size = sizeOf(facts, measuredTypes[i]);
            count += size != 0 && size != target.sizes[i];
        }
        return count;
    };
    const Target *nearest = std::min_element(
        std::begin(targets), std::end(targets),
        [&](const Target &a, const Target &b) { return differences(a) < differences(b); });
    return nearest->name;
}

QByteArray target(const Facts &facts)
{
    QByteArray architecture = firstDefined(facts, architectures);
    if (const Macro *width = findMacro(facts, "__riscv_xlen"))
        architecture = "riscv" + width->value;
    if (architecture.isEmpty())
        return facts.types.isEmpty() ? QByteArray() : nearestTarget(facts);
    QByteArray system = firstDefined(facts, systems);
    if (system.isEmpty())
        system = "unknown-none";
    if (architecture == "x86_64" && findMacro(facts, "__ILP32__") && system.endsWith("-gnu"))
        system += "x32";
    if (architecture == "arm") {
        // Without its binary interface clang warns each time that it has to assume one.
        if (system.endsWith("-elf"))
            system.chop(4);
        system += system.endsWith("-gnu") ? "eabi" : "-eabi";
        if (findMacro(facts, "__ARM_PCS_VFP"))
            system += "hf";
    }
    for (const auto &row : otherByteOrders) {
        if (architecture == row.name && facts.byteOrder == row.otherOrder) {
            architecture = row.otherName;
            break;
        }
    }
    return architecture + '-' + system;
}

QByteArray targetOptions(const Facts &facts)
{
    const QByteArray name = target(facts);
    if (name.isEmpty())
        return {};
    QByteArray options = "--target=" + name + '\n';
    if (name.startsWith("avr-"))
        options += "-nostdlib\n"; // or clang warns, without linking, that it cannot link
    return options;
}

/// The language version that \a macro tells, the newest one that is not newer than its value.
template <std::size_t Size>
QByteArray standardOption(const Facts &facts, const char *macro, const Standard (&table)[Size],
                          const char *isoPrefix, const char *gnuPrefix)
{
    const Macro *version = findMacro(facts, macro);
    if (!version && (facts.macros.isEmpty() || facts.undeterminedMacros.contains(macro)))
        return {};
    QByteArray digits = version ? version->value : QByteArray("0");
    while (!digits.isEmpty() && !std::isdigit(static_cast<unsigned char>(digits.back())))
        digits.chop(1);
    const long value = digits.toLong();
    const char *name = table[0].name;
    for (const Standard &row : table) {
        if (row.value <= value)
            name = row.name;
    }
    const bool strict = findMacro(facts, "__STRICT_ANSI__");
    const bool hasPrefix = !QByteArray(name).contains(':');
    return QByteArray("-std=") + (!hasPrefix ? "" : strict ? isoPrefix : gnuPrefix) + name + '\n';
}

/// Language features that a compiler announces by a macro and clang takes by an option: the option
/// where there is the macro, and where there is none.
struct Feature
{
    const char *macro;
    const char *option;
    const char *opposite;
};

const Feature cppFeatures[] = {
    {"__EXCEPTIONS", "-fexceptions\n-fcxx-exceptions\n", "-fno-exceptions\n"},
    {"__GXX_RTTI", "-frtti\n", "-fno-rtti\n"},
    {"__cpp_sized_deallocation", "-fsized-deallocation\n", "-fno-sized-deallocation\n"},
    {"__cpp_aligned_new", "-faligned-allocation\n", "-fno-aligned-allocation\n"},
    {"__cpp_char8_t", "-fchar8_t\n", "-fno-char8_t\n"},
};

QByteArray featureOptions(const Facts &facts)
{
    QByteArray text;
    for (const Feature &feature : cppFeatures)
        text += findMacro(facts, feature.macro) ? feature.option : feature.opposite;
    return text;
}

/// The options that make clang's types those of the compiler, where a target's may differ.
QByteArray typeOptions(const Facts &facts, const QByteArray &target)
{
    QByteArray text;
    const bool isUnsigned = facts.types.isEmpty() ? findMacro(facts, "__CHAR_UNSIGNED__") != nullptr
                                                  : facts.charIsUnsigned;
    if (isUnsigned)
        text += "-funsigned-char\n";
    else if (!facts.types.isEmpty())
        text += "-fsigned-char\n";
    if (facts.smallEnumSize != 0 && facts.smallEnumSize < sizeOf(facts, "int"))
        text += "-fshort-enums\n";
    if (facts.wideCharacterType == "unsigned short")
        text += "-fshort-wchar\n";
    const bool isX86 = target.startsWith("x86_64-") || target.startsWith("i386-");
    if (isX86 && sizeOf(facts, "long double") == 8)
        text += "-mlong-double-64\n";
    const auto isFixedPoint = [](const Keyword &keyword) { return keyword.name == "_Accum"; };
    if (std::any_of(facts.keywords.begin(), facts.keywords.end(), isFixedPoint))
        text += "-ffixed-point\n";
    return text;
}

QByteArray definition(const QByteArray &name, const QByteArray &value)
{
    return quotedOption("-D" + name + '=' + value) + '\n';
}

QByteArray fact(const QByteArray &text)
{
    return "#: " + text + '\n';
}

QByteArray formName(const Keyword &keyword)
{
    switch (keyword.form) {
    case Keyword::Qualifier:
        return "qualifier";
    case Keyword::QualifierWithArgument:
        return "qualifier-with-argument";
    case Keyword::TypeName:
        return "type " + (keyword.standIn.isEmpty() ? "unknown" : keyword.standIn);
    case Keyword::Undetermined:
        break;
    }
    return "undetermined";
}

/// The facts that no option carries.
QByteArray factLines(const Arguments &arguments, const Facts &facts)
{
    QByteArray text = fact("command " + arguments.command.toUtf8());
    for (const QString &item : arguments.switches)
        text += fact("switch " + item.toUtf8());
    if (!facts.versionLine.isEmpty())
        text += fact("version " + facts.versionLine);
    for (const Type &type : facts.types) {
        text += fact("type " + type.name + ", size " + QByteArray::number(type.size)
                     + ", alignment " + QByteArray::number(type.alignment));
    }
    if (!facts.types.isEmpty())
        text += fact(facts.charIsUnsigned ? "char unsigned" : "char signed");
    if (facts.byteOrder != ByteOrder::Unknown) {
        const bool isLittle = facts.byteOrder == ByteOrder::LittleEndian;
        text += fact(isLittle ? "byte-order little" : "byte-order big");
    }
    if (facts.smallEnumSize != 0)
        text += fact("small-enum " + QByteArray::number(facts.smallEnumSize));
    const std::pair<const char *, QByteArray> standardTypes[] = {
        {"size_t ", facts.sizeType},
        {"ptrdiff_t ", facts.pointerDifferenceType},
        {"wchar_t ", facts.wideCharacterType}};
    for (const auto &[name, type] : standardTypes) {
        if (!type.isEmpty())
            text += fact(name + type);
    }
    for (const QString &directory : facts.quotedSearchPath)
        text += fact("quoted-search-path " + directory.toUtf8());
    for (const QString &directory : facts.searchPath)
        text += fact("search-path " + directory.toUtf8());
    for (const Keyword &keyword : facts.keywords)
        text += fact("keyword " + keyword.name + ' ' + formName(keyword));
    for (const QByteArray &name : facts.undeterminedMacros)
        text += fact("macro " + name + " undetermined");
    return text;
}

/// Definitions under which clang reads what the keywords that it lacks are used in.
QByteArray keywordDefinitions(const Facts &facts)
{
    const QList<QByteArray> known = QByteArray(clangKeywords).split(' ');
    QByteArray text;
    // From GCC 11 on this attribute takes arguments ("Common Function Attributes"), for clang it
    // has none.
    const Macro *gnuVersion = findMacro(facts, "__GNUC__");
    if (gnuVersion && gnuVersion->value.toInt() >= 11)
        text += definition("__malloc__(...)", "__malloc__");
    for (const Keyword &keyword : facts.keywords) {
        if (known.contains(keyword.name))
            continue;
        if (keyword.form == Keyword::Qualifier)
            text += definition(keyword.name, {});
        else if (keyword.form == Keyword::QualifierWithArgument)
            text += definition(keyword.name + "(...)", {});
        else if (!keyword.standIn.isEmpty())
            text += definition(keyword.name, keyword.standIn);
    }
    return text;
}

QByteArray pathOption(const char *option, const QString &path)
{
    const QString absolute = QDir::current().absoluteFilePath(path);
    return QByteArray(option) + ' ' + quotedOption(absolute.toUtf8()) + '\n';
}

/// Whether \a directory holds a compiler's own headers for the instructions of x86 processors. They
/// consist of calls to functions that are built into that compiler and no other; clang has headers
/// of the same names and contents, made for itself.
bool holdsIntrinsics(const QString &directory)
{
    return QFileInfo::exists(directory + "/immintrin.h"_L1);
}

bool hasHeaders(const QString &directory)
{
    return !QDir(directory).entryList({u"*.h"_s}, QDir::Files).isEmpty();
}

QByteArray searchPathOptions(const Arguments &arguments, const Facts &facts)
{
    QByteArray text;
    if (!arguments.substituteHeaders.isEmpty())
        text += pathOption("-isystem", arguments.substituteHeaders);
    for (const QString &directory : facts.quotedSearchPath)
        text += pathOption("-iquote", directory);
    bool usesClangsOwn = false;
    for (const QString &directory : facts.searchPath) {
        const bool isTied = !findMacro(facts, "__clang__") && holdsIntrinsics(directory);
        usesClangsOwn |= isTied;
        text += pathOption(isTied ? "-idirafter" : "-isystem", directory);
    }
    for (const QString &directory : arguments.headerDirectories) {
        // What the user has given and the compiler does not search must not hide anything.
        if (!facts.searchPath.contains(QDir(directory).canonicalPath()) && hasHeaders(directory))
            text += pathOption("-idirafter", directory);
    }
    return (usesClangsOwn ? "-nostdlibinc\n" : "-nostdinc\n") + text;
}

} // namespace

QByteArray quotedOption(const QByteArray &text)
{
    QByteArray quoted = text;
    quoted.replace('\\', "\\\\").replace('"', "\\\"");
    return '"' + quoted + '"';
}

QByteArray personalityText(const Arguments &arguments, const Facts &facts,
                           const QByteArray &templateText)
{
    QByteArray text = "# Compiler personality generated by Bexlor\n" + factLines(arguments, facts);
    if (!templateText.isEmpty())
        text += "\n# Template\n" + templateText + (templateText.endsWith('\n') ? "" : "\n");

    text += "\n# Language\n" + targetOptions(facts)
          + (arguments.isCpp ? standardOption(facts, "__cplusplus", cppStandards, "c++", "gnu++")
                             : standardOption(facts, "__STDC_VERSION__", cStandards, "c", "gnu"));
    if (arguments.isCpp)
        text += featureOptions(facts);
    text += typeOptions(facts, target(facts));

    text += "\n# Predefined macros\n-undef\n";
    for (const char *name : alwaysDefined)
        text += QByteArray("-U") + name + '\n';
    for (const Macro &macro : facts.macros) {
        // Clang puts the file's own folder in the place of this, and has no way to write it.
        const bool canBeWritten = !macro.value.contains("<CFGDIR>");
        text += canBeWritten ? definition(macro.name, macro.value)
                             : fact("macro " + macro.name + " undetermined");
    }
    text += keywordDefinitions(facts);

    text += "\n# Search path\n" + searchPathOptions(arguments, facts);
    if (!arguments.forceIncludeFile.isEmpty() || !facts.includedFirst.isEmpty())
        text += "\n# Included first\n";
    if (!arguments.forceIncludeFile.isEmpty())
        text += pathOption("-include", arguments.forceIncludeFile);
    for (qsizetype i = 0; i + 1 < facts.includedFirst.size(); i += 2) {
        text += facts.includedFirst[i].toUtf8() + ' '
              + quotedOption(facts.includedFirst[i + 1].toUtf8()) + '\n';
    }
    return text;
}
