#include "clang.h"

#include "target_layouts.h"

#include <QFileInfo>
#include <algorithm>
#include <cctype>

using namespace Qt::StringLiterals;

namespace {

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

/// The language version that \a macro tells, the newest one of \a table that is not newer than its
/// value or than \a least; none when nothing is known of the macro. \a isoPrefix and \a gnuPrefix
/// stand before it.
template <std::size_t Size>
QList<QByteArray> standardOption(const MacroFacts &macros, const QByteArray &macro,
                                 const Standard (&table)[Size], const char *isoPrefix,
                                 const char *gnuPrefix, long least = 0)
{
    const Macro *version = findMacro(macros, macro);
    if (!version && (macros.known.isEmpty() || macros.undetermined.contains(macro)))
        return {};
    QByteArray digits = version ? version->value : QByteArray("0");
    while (!digits.isEmpty() && !std::isdigit(static_cast<unsigned char>(digits.back())))
        digits.chop(1);
    const long value = std::max(digits.toLong(), least);
    QByteArray name = table[0].name;
    for (const Standard &row : table) {
        if (row.value <= value)
            name = row.name;
    }
    if (!name.contains(':'))
        name.prepend(findMacro(macros, "__STRICT_ANSI__") ? isoPrefix : gnuPrefix);
    return {"-std=" + name};
}

/// Language features that a compiler announces by one of some macros and clang takes by an option:
/// the options where there is such a macro, and where there is none.
struct Feature
{
    QList<QByteArray> macros;
    QList<QByteArray> options;
    QList<QByteArray> opposite;
};

const Feature cppFeatures[] = {
    {{"__EXCEPTIONS", "_CPPUNWIND"}, {"-fexceptions", "-fcxx-exceptions"}, {"-fno-exceptions"}},
    {{"__GXX_RTTI", "_CPPRTTI"}, {"-frtti"}, {"-fno-rtti"}},
    {{"__cpp_sized_deallocation"}, {"-fsized-deallocation"}, {"-fno-sized-deallocation"}},
    {{"__cpp_aligned_new"}, {"-faligned-allocation"}, {"-fno-aligned-allocation"}},
    {{"__cpp_char8_t"}, {"-fchar8_t"}, {"-fno-char8_t"}},
};

// Instructions for which headers of clang's own have to be told. Names: the manuals of GCC ("Arm
// Options", "PowerPC Options", "MIPS Options") and of the Arm C Language Extensions.
const Feature instructions[] = {
    {{"__ALTIVEC__"}, {"-maltivec"}, {}},
    {{"__VSX__"}, {"-mvsx"}, {}},
    {{"__mips_msa"}, {"-mmsa"}, {}},
};

/// The options of \a feature for a compiler with \a macros.
QList<QByteArray> optionsOf(const Feature &feature, const MacroFacts &macros)
{
    const bool isThere =
        std::any_of(feature.macros.begin(), feature.macros.end(),
                    [&macros](const QByteArray &name) { return findMacro(macros, name); });
    return isThere ? feature.options : feature.opposite;
}

// The macro that a GNU compiler has for an Arm architecture, and what clang calls it.
const struct
{
    const char *macro;
    const char *name;
} armArchitectures[] = {
    {"__ARM_ARCH_4T__", "armv4t"},
    {"__ARM_ARCH_5TE__", "armv5te"},
    {"__ARM_ARCH_5TEJ__", "armv5tej"},
    {"__ARM_ARCH_6__", "armv6"},
    {"__ARM_ARCH_6K__", "armv6k"},
    {"__ARM_ARCH_6KZ__", "armv6kz"},
    {"__ARM_ARCH_6T2__", "armv6t2"},
    {"__ARM_ARCH_6M__", "armv6-m"},
    {"__ARM_ARCH_7A__", "armv7-a"},
    {"__ARM_ARCH_7R__", "armv7-r"},
    {"__ARM_ARCH_7M__", "armv7-m"},
    {"__ARM_ARCH_7EM__", "armv7e-m"},
    {"__ARM_ARCH_8A__", "armv8-a"},
    {"__ARM_ARCH_8R__", "armv8-r"},
    {"__ARM_ARCH_8M_BASE__", "armv8-m.base"},
    {"__ARM_ARCH_8M_MAIN__", "armv8-m.main"},
};

/// Options for a 32-bit Arm processor, without which clang takes an old one for granted and refuses
/// the types and functions of newer ones.
QList<QByteArray> armOptions(const MacroFacts &macros)
{
    QList<QByteArray> options;
    for (const auto &row : armArchitectures) {
        if (findMacro(macros, row.macro))
            options << QByteArray("-march=") + row.name;
    }
    if (findMacro(macros, "__thumb__"))
        options << "-mthumb";
    if (findMacro(macros, "__ARM_NEON")) {
        options << (findMacro(macros, "__ARM_ARCH_7A__") ? "-mfpu=neon" : "-mfpu=neon-fp-armv8");
        if (!findMacro(macros, "__ARM_PCS_VFP"))
            options << "-mfloat-abi=softfp";
    }
    return options;
}

/// Options for the types, where a target's may differ from the compiler's, and for their keywords.
QList<QByteArray> typeOptions(const Facts &facts, const QByteArray &target)
{
    const TypeFacts &types = facts.types;
    QList<QByteArray> options;
    if (types.charIsUnsigned.value_or(findMacro(facts.macros, "__CHAR_UNSIGNED__")))
        options << "-funsigned-char";
    else if (types.charIsUnsigned)
        options << "-fsigned-char";
    const int intSize = sizeOf(types, "int");
    if (types.smallEnumSize != 0 && types.smallEnumSize < intSize)
        options << "-fshort-enums";
    else if (types.smallEnumSize != 0 && typesOfTarget(target, {}).smallEnumSize == 1)
        options << "-fno-short-enums";
    if (types.wideCharacterType == "unsigned short")
        options << "-fshort-wchar";
    if (hasKeyword(facts, "_Accum"))
        options << "-ffixed-point";
    if (hasKeyword(facts, "__declspec") && findMacro(facts.macros, "__clang__"))
        options << "-fdeclspec";
    return options;
}

// Clang defines these by itself even under -undef, so they are taken back before the compiler's
// own definitions follow.
const QList<QByteArray> alwaysDefined {
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

// What the headers of GNU compilers make wchar_t of. An array of it can only be initialised with
// clang's own wide literals if it has their type.
const QByteArray wideCharacterMacro = "__WCHAR_TYPE__";

/// Whether wchar_t has the same size and sign in both.
bool hasLikeWideCharacter(const TypeFacts &types, const TypeFacts &others)
{
    const QByteArray &name = types.wideCharacterType, &other = others.wideCharacterType;
    return sizeOfLike(types, name) == sizeOfLike(others, other)
        && name.startsWith("unsigned ") == other.startsWith("unsigned ");
}

/// Options for the processor of \a target.
QList<QByteArray> processorOptions(const MacroFacts &macros, const QByteArray &target)
{
    QList<QByteArray> options;
    if (target.startsWith("arm"))
        options << armOptions(macros);
    for (const Feature &feature : instructions)
        options << optionsOf(feature, macros);
    // Without these clang warns, though it is not to link, that it cannot; and it does so before it
    // reads in a file that it should not. The processor is the one that avr-gcc assumes.
    if (target.startsWith("avr-"))
        options << "-nostdlib"
                << "-mmcu=avr2";
    return options;
}

/// Options for the version of the language and its features.
QList<QByteArray> versionOptions(const MacroFacts &macros, bool isCpp)
{
    if (!isCpp)
        return standardOption(macros, "__STDC_VERSION__", cStandards, "c", "gnu");
    // Microsoft's compiler tells its version in this, and 1998 in the other unless /Zc:__cplusplus
    // is given.
    const QByteArray version = findMacro(macros, "_MSVC_LANG") ? "_MSVC_LANG" : "__cplusplus";
    // GNU compilers have these in older versions too, by options; clang does not.
    const bool isLike20 =
        findMacro(macros, "__cpp_concepts") || findMacro(macros, "__cpp_impl_coroutine");
    QList<QByteArray> options =
        standardOption(macros, version, cppStandards, "c++", "gnu++", isLike20 ? 202002 : 0);
    for (const Feature &feature : cppFeatures)
        options << optionsOf(feature, macros);
    return options;
}

/// The version of Microsoft's compiler that clang is to be like, which _MSC_VER tells: 1929
/// is 19.29.
QList<QByteArray> microsoftOptions(const MacroFacts &macros)
{
    const Macro *version = findMacro(macros, "_MSC_VER");
    if (!version || version->value.size() < 3)
        return {};
    return {"-fms-compatibility-version=" + version->value.first(2) + '.' + version->value.mid(2)};
}

/// Settles what \a language says of wchar_t, if that is like the one of clang, \a ofClang.
void settleWideCharacter(const Facts &facts, const TypeFacts &ofClang, bool isCpp,
                         Language &language)
{
    QByteArray &differing = language.differingTypes.wideCharacterType;
    if (differing.isEmpty() || !hasLikeWideCharacter(facts.types, ofClang))
        return;
    // In C++ it is a type of its own, of which no more is known.
    if (isCpp)
        differing.clear();
    else if (findMacro(facts.macros, wideCharacterMacro))
        language.redefinitions << Macro {wideCharacterMacro, differing};
}

} // namespace

Language languageOf(const Facts &facts, const QList<QByteArray> &passed, bool isCpp)
{
    Language language;
    QList<QByteArray> &options = language.options;
    const TargetChoice target = chooseTarget(facts, passed);
    if (!target.name.isEmpty())
        options << "--target=" + target.name;
    options << processorOptions(facts.macros, target.name) << versionOptions(facts.macros, isCpp)
            << microsoftOptions(facts.macros);
    // What has been measured comes last, so that it counts.
    for (const QByteArray &option : passed + target.options + typeOptions(facts, target.name)) {
        options.removeAll(option);
        options << option;
    }
    // Those that the compiler does not have either it reports itself.
    if (!facts.attributes.isEmpty())
        options << "-Wno-unknown-attributes";
    // Otherwise a long double in a structure, which Microsoft has not got, is an error.
    if (options.contains("-mms-bitfields"))
        options << "-Wno-incompatible-ms-struct";
    for (const QByteArray &warning : facts.leniencies)
        options << "-Wno-error=" + warning;
    const TypeFacts ofClang = typesOfTarget(target.name, options);
    language.differingTypes = differingTypes(facts.types, ofClang);
    settleWideCharacter(facts, ofClang, isCpp, language);
    return language;
}

QList<QByteArray> changedOptions(const MacroFacts &before, const MacroFacts &after,
                                 const QByteArray &target, bool isCpp)
{
    QList<QByteArray> options = processorOptions(after, target) + versionOptions(after, isCpp);
    for (const QByteArray &option :
         processorOptions(before, target) + versionOptions(before, isCpp))
        options.removeAll(option);
    return options;
}

QList<QByteArray> macrosOfClang()
{
    return alwaysDefined;
}

QByteArray definingOption(const Macro &macro)
{
    return "-D" + macro.name + '=' + macro.value;
}

QByteArray undefiningOption(const QByteArray &name)
{
    return "-U" + name;
}

QStringList personalityOption(const QString &path)
{
    return {u"--config"_s, path};
}

bool canBeDefined(const Macro &macro)
{
    // Clang puts the file's own folder in the place of this, and has no way to write it.
    return !macro.value.contains("<CFGDIR>");
}

bool holdsIntrinsics(const QString &directory)
{
    static const QLatin1StringView headers[] = {"immintrin.h"_L1, "arm_neon.h"_L1, "arm_acle.h"_L1,
                                                "altivec.h"_L1, "msa.h"_L1};
    return std::any_of(std::begin(headers), std::end(headers), [&directory](auto header) {
        return QFileInfo::exists(directory + u'/' + header);
    });
}
