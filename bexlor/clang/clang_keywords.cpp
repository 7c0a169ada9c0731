#include "clang.h"

#include <optional>

namespace {

// Keywords that clang has itself, from its manual ("Language Extensions") and the GCC manual's
// alternate keywords, all of which it accepts. Those that it knows and cannot use stay out.
const char *const clangKeywords =
    "asm typeof __asm __asm__ __inline __inline__ __signed __signed__ __const __const__ __volatile "
    "__volatile__ __restrict __restrict__ __extension__ __attribute __attribute__ __alignof "
    "__alignof__ __typeof __typeof__ __auto_type __label__ __thread __real __real__ __imag "
    "__imag__ __complex __complex__ __builtin_va_list __builtin_va_arg __builtin_offsetof "
    "__builtin_choose_expr __builtin_types_compatible_p __int128 __int128_t __uint128_t __float128 "
    "_Accum _Fract _Sat __cdecl __stdcall __fastcall __thiscall __vectorcall __null __nullptr "
    "__decltype "
    "_Complex _Imaginary _Atomic _Bool _Noreturn _Static_assert _Generic _Thread_local _Alignas "
    "_Alignof";

// Those that it has besides where it is to be like Microsoft's compiler (clang's "Microsoft
// extensions", and the keywords that Microsoft documents).
const char *const microsoftKeywords =
    "__declspec __int8 __int16 __int32 __int64 __forceinline __ptr32 __ptr64 __sptr __uptr __w64 "
    "__unaligned __try __except __finally __leave __if_exists __if_not_exists __uuidof __super "
    "__interface __assume __noop __pragma __single_inheritance __multiple_inheritance "
    "__virtual_inheritance _asm _inline _cdecl _stdcall _fastcall _declspec _int8 _int16 _int32 "
    "_int64 _alignof";

// Functions that GCC has built in for AVR ("AVR Built-in Functions"), each with one of clang's that
// has the same type, and effects that are as little known: headers declare some of them, and what
// stands for a function must do so in its declaration as well. The macro tells that it is there.
const struct
{
    const char *macro;
    Macro definition;
} avrFunctions[] = {
    {"__BUILTIN_AVR_CLI", {"__builtin_avr_cli", "__builtin_unwind_init"}},
    {"__BUILTIN_AVR_NOP", {"__builtin_avr_nop", "__builtin_unwind_init"}},
    {"__BUILTIN_AVR_SEI", {"__builtin_avr_sei", "__builtin_unwind_init"}},
    {"__BUILTIN_AVR_SLEEP", {"__builtin_avr_sleep", "__builtin_unwind_init"}},
    {"__BUILTIN_AVR_SWAP", {"__builtin_avr_swap", "__builtin_bitreverse8"}},
    {"__BUILTIN_AVR_WDR", {"__builtin_avr_wdr", "__builtin_unwind_init"}},
};

/// Definitions under which clang reads what GCC has built in and clang has otherwise or not at all.
QList<Macro> gnuDefinitions(const MacroFacts &macros)
{
    QList<Macro> definitions;
    // From GCC 11 on this attribute takes arguments ("Common Function Attributes"), for clang it
    // has none.
    const Macro *gnuVersion = findMacro(macros, "__GNUC__");
    if (gnuVersion && gnuVersion->value.toInt() >= 11)
        definitions << Macro {"__malloc__(...)", "__malloc__"};
    // GCC 7 has functions that only tell whether there is an overflow ("Built-in Functions to
    // Perform Arithmetic with Overflow Checking"); clang has those that compute as well.
    if (gnuVersion && gnuVersion->value.toInt() >= 7) {
        for (const QByteArray operation : {"add", "sub", "mul"}) {
            definitions << Macro {"__builtin_" + operation + "_overflow_p(a,b,c)",
                                  "__builtin_" + operation + "_overflow(a,b,&(__typeof__(c)){0})"};
        }
    }
    // With these a GNU function passes on arguments of its caller's ("Constructing Calls"), as
    // those of the GNU C library do under _FORTIFY_SOURCE.
    if (gnuVersion && !findMacro(macros, "__clang__")) {
        definitions << Macro {"__builtin_va_arg_pack()", "0"}
                    << Macro {"__builtin_va_arg_pack_len()", "0"};
    }
    // The macros of GCC's <stdatomic.h> give these functions what is _Atomic, which clang refuses.
    if (gnuVersion && !findMacro(macros, "__clang__") && !findMacro(macros, "__cplusplus")) {
        for (const QByteArray operation :
             {"load", "store", "exchange", "compare_exchange", "fetch_add", "fetch_sub",
              "fetch_and", "fetch_or", "fetch_xor"}) {
            const QByteArray name = "__atomic_" + operation;
            definitions << Macro {name + "(p,...)",
                                  name + "((__typeof__((void)0,*(p))*)(p),__VA_ARGS__)"};
        }
    }
    for (const auto &row : avrFunctions) {
        if (findMacro(macros, row.macro))
            definitions << row.definition;
    }
    return definitions;
}

/// Under which clang reads what \a keyword is used in, as far as a macro can do that.
std::optional<Macro> definitionOf(const Keyword &keyword, const Facts &facts)
{
    switch (keyword.form) {
    case Keyword::Qualifier:
        return Macro {keyword.name, {}};
    case Keyword::QualifierWithArgument:
        return Macro {keyword.name + "(...)", {}};
    case Keyword::OrdinaryName:
        return Macro {keyword.name, keyword.name + '_'};
    case Keyword::TypeName:
        if (!keyword.standIn.isEmpty())
            return Macro {keyword.name, keyword.standIn};
        break;
    case Keyword::QualifierWithBareArgument:
    case Keyword::AssemblerBlock:
    case Keyword::Undetermined:
        break;
    }
    if (keyword.name == "_Float128" && hasKeyword(facts, "__float128"))
        return Macro {keyword.name, "__float128"};
    return {};
}

} // namespace

QList<QByteArray> keywordsOfClang(const MacroFacts &macros)
{
    QList<QByteArray> keywords = QByteArray(clangKeywords).split(' ');
    // Clang takes that by an option; others have arguments to it that clang does not know.
    if (findMacro(macros, "__clang__"))
        keywords << "__declspec";
    if (findMacro(macros, "_MSC_VER"))
        keywords << QByteArray(microsoftKeywords).split(' ');
    return keywords;
}

QList<Macro> headerDefinitions(const MacroFacts &macros)
{
    // Clang's <arm_acle.h> asks for this (Arm C Language Extensions 2.0), and GCC has not got it.
    if (findMacro(macros, "__GNUC__") && findMacro(macros, "__ARM_ARCH")
        && !findMacro(macros, "__ARM_ACLE"))
        return {{"__ARM_ACLE", "200"}};
    return {};
}

QList<Macro> keywordDefinitions(const Facts &facts)
{
    const QList<QByteArray> known = keywordsOfClang(facts.macros);
    QList<Macro> definitions = gnuDefinitions(facts.macros) + headerDefinitions(facts.macros);
    for (const Keyword &keyword : facts.keywords) {
        if (known.contains(keyword.name) && keyword.form != Keyword::OrdinaryName)
            continue;
        // A macro takes its argument or has none; the first form, with an argument, counts.
        const bool isDefined =
            !definitions.isEmpty() && bareName(definitions.last().name) == keyword.name;
        const std::optional<Macro> definition = definitionOf(keyword, facts);
        if (definition && !isDefined)
            definitions << *definition;
    }
    return definitions;
}
