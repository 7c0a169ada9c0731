#include "known_names.h"

#include <QSet>

namespace {

// Sources: ISO/IEC 9899 6.10.8 and ISO/IEC 14882 [cpp.predefined]; the manuals of GCC ("Common
// Predefined Macros"), Clang ("Language Extensions"), the Arm C Language Extensions, the RISC-V C
// API, AVR-GCC ("AVR Options"), SDCC ("Compiler Predefined Macros"), cc65 ("Predefined macros"),
// IAR ("Preprocessor"), Keil ("Predefined macros"), TI ("Predefined Macro Names") and the Microsoft
// C/C++ compiler ("Predefined macros").

/// A pattern with "%" for each of some words.
struct Pattern
{
    const char *pattern;
    const char *words;
};

#define INTEGERS                                                                                   \
    "INT8 INT16 INT24 INT32 INT64 INT128 UINT8 UINT16 UINT24 UINT32 UINT64 UINT128 "               \
    "INT_LEAST8 INT_LEAST16 INT_LEAST32 INT_LEAST64 UINT_LEAST8 UINT_LEAST16 UINT_LEAST32 "        \
    "UINT_LEAST64 INT_FAST8 INT_FAST16 INT_FAST32 INT_FAST64 UINT_FAST8 UINT_FAST16 "              \
    "UINT_FAST32 UINT_FAST64 INTMAX UINTMAX INTPTR UINTPTR PTRDIFF SIZE SIG_ATOMIC WCHAR WINT "    \
    "CHAR CHAR8 CHAR16 CHAR32 SCHAR UCHAR SHRT SHORT USHRT INT UINT LONG ULONG LONG_LONG LLONG "   \
    "ULLONG POINTER"
#define FLOATS                                                                                     \
    "FLT DBL LDBL FLT16 FLT32 FLT64 FLT128 FLT32X FLT64X FLT128X FLT80 BFLT16 DEC32 DEC64 DEC128"
#define FIXED_POINT                                                                                \
    "SFRACT USFRACT FRACT UFRACT LFRACT ULFRACT LLFRACT ULLFRACT SACCUM USACCUM ACCUM UACCUM "     \
    "LACCUM ULACCUM LLACCUM ULLACCUM QQ HQ SQ DQ TQ UQQ UHQ USQ UDQ UTQ HA SA DA TA UHA USA UDA "  \
    "UTA"
#define ATOMICS "BOOL CHAR CHAR8_T CHAR16_T CHAR32_T WCHAR_T SHORT INT LONG LLONG POINTER"

// Words that compilers have as they are, with two underscores before them, and with two more
// behind.
#define PLAIN_WORDS                                                                                \
    "SDCC APPLE2 APPLE2ENH ATARI ATARI2600 ATARI5200 ATARI7800 ATARIXL ATMOS C16 C64 C128 CBM "    \
    "CBM510 CBM610 CC65 CC65_STD CHAR_BIT COSMOS CREATIVISION GAMATE GEOS GEOS_APPLE GEOS_CBM "    \
    "HOMECOMPUTER LUNIX LYNX NES OPTIMIZE OSIC1P PCE PET PLUS4 RP6502 SIM6502 SIM65C02 "           \
    "SUPERVISION SYM1 TELESTRAT VIC20 CX16 AGAT EAGERLY_INLINE_FUNCS FASTCALL LANG_C89 "           \
    "LANG_C99 STRICT_C89 BYTE_ORDER FLOAT_WORD_ORDER CHAR_UNSIGNED CHAR_SIGNED WCHAR_UNSIGNED "    \
    "BIGGEST_ALIGNMENT FLT_EVAL_METHOD FLT_EVAL_METHOD_TS_18661_3 FLT_RADIX DEC_EVAL_METHOD "      \
    "DECIMAL_DIG BITINT_MAXWIDTH BOOL_WIDTH VERSION GNUC GNUC_MINOR GNUC_PATCHLEVEL "              \
    "GNUC_GNU_INLINE GNUC_STDC_INLINE GNUG GXX_ABI_VERSION GXX_WEAK GXX_RTTI "                     \
    "GXX_EXPERIMENTAL_CXX0X USER_LABEL_PREFIX REGISTER_PREFIX IMMEDIATE_PREFIX OPTIMIZE_SIZE "     \
    "NO_INLINE NO_MATH_ERRNO FINITE_MATH_ONLY PRAGMA_REDEFINE_EXTNAME SSP SSP_ALL SSP_STRONG "     \
    "SSP_EXPLICIT SANITIZE_ADDRESS SANITIZE_THREAD STRICT_ANSI DEPRECATED EXCEPTIONS PIC PIE "     \
    "pic pie ELF unix linux gnu_linux LP64 ILP32 x86_64 amd64 i386 i486 i586 i686 k8 "             \
    "code_model_small code_model_medium code_model_large code_model_32 tune_i686 tune_core2 "      \
    "MMX SSE SSE2 SSE3 SSSE3 SSE4_1 SSE4_2 SSE_MATH SSE2_MATH MMX_WITH_SSE FXSR SEG_FS SEG_GS "    \
    "seg_fs seg_gs CET LAHF_SAHF CODE_MODEL_SMALL ARM_EABI arm thumb thumb2 ARMEL ARMEB "          \
    "SOFTFP VFP_FP THUMBEL APCS_32 ARM_ARCH aarch64 AARCH64EL AVR AVR_ARCH AVR_MEGA AVR_TINY "     \
    "AVR_XMEGA riscv riscv_xlen riscv_flen mips powerpc PPC sparc s390x MSDOS cplusplus "          \
    "INTEL_COMPILER ICCARM ICC430 ICCAVR CC_ARM ARMCC_VERSION ARMCOMPILER_VERSION "                \
    "TI_COMPILER_VERSION TMS320C28X MSP430 TINYC WIN32 WIN64 MINGW32 MINGW64 CYGWIN MSVCRT "       \
    "clang clang_major clang_minor clang_patchlevel clang_version clang_literal_encoding "         \
    "clang_wide_literal_encoding llvm CONSTANT_CFSTRINGS OBJC_BOOL_IS_BOOL BLOCKS "                \
    "GLIBCXX_TYPE_INT_N_0 GLIBCXX_BITSIZE_INT_N_0 WINNT tune_k8 USES_INITFINI FLASH MEMX "

const Pattern patterns[] = {
    {"__%_MAX__", INTEGERS},
    {"__%_MIN__", INTEGERS},
    {"__%_TYPE__", INTEGERS},
    {"__%_WIDTH__", INTEGERS},
    {"__%_C", INTEGERS},
    {"__%_C_SUFFIX__", INTEGERS},
    {"__%_FMTd__", INTEGERS},
    {"__%_FMTi__", INTEGERS},
    {"__%_FMTo__", INTEGERS},
    {"__%_FMTu__", INTEGERS},
    {"__%_FMTx__", INTEGERS},
    {"__%_FMTX__", INTEGERS},
    {"__SIZEOF_%__",
     "CHAR SHORT INT LONG LONG_LONG POINTER SIZE_T PTRDIFF_T WCHAR_T WINT_T FLOAT DOUBLE "
     "LONG_DOUBLE INT128 FLOAT80 FLOAT128"},
    {"__%_DIG__", FLOATS},
    {"__%_MANT_DIG__", FLOATS},
    {"__%_DECIMAL_DIG__", FLOATS},
    {"__%_MIN_EXP__", FLOATS},
    {"__%_MAX_EXP__", FLOATS},
    {"__%_MIN_10_EXP__", FLOATS},
    {"__%_MAX_10_EXP__", FLOATS},
    {"__%_MIN__", FLOATS},
    {"__%_MAX__", FLOATS},
    {"__%_NORM_MAX__", FLOATS},
    {"__%_EPSILON__", FLOATS},
    {"__%_DENORM_MIN__", FLOATS},
    {"__%_SUBNORMAL_MIN__", FLOATS},
    {"__%_HAS_DENORM__", FLOATS},
    {"__%_HAS_INFINITY__", FLOATS},
    {"__%_HAS_QUIET_NAN__", FLOATS},
    {"__%_IS_IEC_60559__", FLOATS},
    {"__FP_FAST_FMA%", "F FLT FL F16 F32 F64 F128 F32x F64x L"},
    {"__%_FBIT__", FIXED_POINT},
    {"__%_IBIT__", FIXED_POINT},
    {"__%_MIN__", FIXED_POINT},
    {"__%_MAX__", FIXED_POINT},
    {"__%_EPSILON__", FIXED_POINT},
    {"__GCC_ATOMIC_%_LOCK_FREE", ATOMICS " TEST_AND_SET_TRUEVAL"},
    {"__CLANG_ATOMIC_%_LOCK_FREE", ATOMICS},
    {"__GCC_ATOMIC_%", "TEST_AND_SET_TRUEVAL"},
    {"__ATOMIC_%", "RELAXED CONSUME ACQUIRE RELEASE ACQ_REL SEQ_CST HLE_ACQUIRE HLE_RELEASE"},
    {"__OPENCL_MEMORY_SCOPE_%", "WORK_ITEM WORK_GROUP DEVICE ALL_SVM_DEVICES SUB_GROUP"},
    {"__MEMORY_SCOPE_%", "SYSTEM DEVICE WRKGRP WVFRNT SINGLE"},
    {"__GCC_HAVE_SYNC_COMPARE_AND_SWAP_%", "1 2 4 8 16"},
    {"__GCC_%", "IEC_559 IEC_559_COMPLEX ASM_FLAG_OUTPUTS__ HAVE_DWARF2_CFI_ASM "
                "HAVE_BUILTIN_MIPS16_CACHEFLUSH "
                "CONSTRUCTIVE_SIZE DESTRUCTIVE_SIZE"},
    {"__ORDER_%_ENDIAN__", "LITTLE BIG PDP"},
    {"__STDC%",
     "__ _VERSION__ _HOSTED__ _IEC_559__ _IEC_559_COMPLEX__ _IEC_60559_BFP__ _IEC_60559_COMPLEX__ "
     "_IEC_60559_DFP__ _ISO_10646__ _MB_MIGHT_NEQ_WC__ _UTF_16__ _UTF_32__ _ANALYZABLE__ "
     "_LIB_EXT1__ _NO_ATOMICS__ _NO_COMPLEX__ _NO_THREADS__ _NO_VLA__ PP_THREADS__ "
     "PP_DEFAULT_NEW_ALIGNMENT__ PP_STRICT_POINTER_SAFETY__ _ENDIAN_LITTLE__ _ENDIAN_BIG__ "
     "_ENDIAN_NATIVE__ _EMBED_NOT_FOUND__ _EMBED_FOUND__ _EMBED_EMPTY__"},
    {"__cpp_%",
     "aggregate_bases aggregate_nsdmi aggregate_paren_init alias_templates aligned_new "
     "attributes binary_literals capture_star_this char8_t concepts conditional_explicit consteval "
     "constexpr constexpr_dynamic_alloc constexpr_in_decltype constinit decltype decltype_auto "
     "deduction_guides delegating_constructors designated_initializers digit_separators "
     "enumerator_attributes exceptions explicit_this_parameter fold_expressions "
     "generic_lambdas guaranteed_copy_elision hex_float hex_float_literals if_consteval "
     "if_constexpr impl_coroutine implicit_move impl_destroying_delete "
     "impl_three_way_comparison inheriting_constructors init_captures initializer_lists "
     "inline_variables lambdas modules multidimensional_subscript named_character_escapes "
     "namespace_attributes noexcept_function_type nontype_template_args "
     "nontype_template_parameter_auto nontype_template_parameter_class nsdmi "
     "range_based_for raw_strings ref_qualifiers return_type_deduction rtti "
     "runtime_arrays rvalue_reference rvalue_references size_t_suffix sized_deallocation "
     "static_assert static_call_operator structured_bindings template_auto "
     "template_template_args threadsafe_static_init unicode_characters unicode_literals "
     "user_defined_literals using_enum variable_templates variadic_templates variadic_using"},
    {"__SDCC_%",
     "mcs51 z80 z180 r2k r2ka r3ka sm83 gbz80 tlcs90 ez80_z80 z80n ds390 ds400 hc08 s08 stm8 pdk13 "
     "pdk14 pdk15 mos6502 VERSION_MAJOR VERSION_MINOR VERSION_PATCH REVISION BUILD_NUMBER INT_LONG "
     "INT_LONG_REENT "
     "STACK_AUTO MODEL_SMALL MODEL_MEDIUM MODEL_LARGE MODEL_HUGE MODEL_FLAT24 CHAR_UNSIGNED "
     "ALL_CALLEE_SAVES FLOAT_REENT USE_XSTACK NOOVERLAY PARMS_IN_BANK1 "
     "BITINT_MAXWIDTH NO_EXTENDED_IDENTIFIERS CONST ADDRESS_SPACE ABI"},
    {"__SDCC%", "CALL __ _chkoptions"},
    {"__%__", PLAIN_WORDS},
    {"__%", PLAIN_WORDS},
    {"%", PLAIN_WORDS},
    {"%",
     "unix __unix linux __linux __i386 i386 arm mips sparc sun vax hpux WIN32 WIN64 AVR _LP64 "
     "_ILP32 _FORTIFY_SOURCE "
     "_GNU_SOURCE _REENTRANT _STDC_PREDEF_H _X86_ _WIN32 _WIN64 _M_IX86 _M_X64 _M_AMD64 _M_ARM "
     "_MSC_VER _MSC_FULL_VER _MSC_BUILD _MSC_EXTENSIONS _INTEGRAL_MAX_BITS _MT _DLL _CHAR_UNSIGNED "
     "_CPPRTTI _CPPUNWIND _NATIVE_WCHAR_T_DEFINED _WCHAR_T_DEFINED WINNT __declspec _cdecl __cdecl "
     "_stdcall __stdcall _fastcall __fastcall _thiscall __thiscall __GLIBCXX_TYPE_INT_N_0 "
     "__GLIBCXX_BITSIZE_INT_N_0 __GXX_ABI_VERSION __GXX_MERGED_TYPEINFO_NAMES "
     "__GXX_TYPEINFO_EQUALITY_INLINE __GXX_RTTI __GXX_WEAK__ __GXX_CONSTEXPR_ASM__ __ELF__ "
     "__LITTLE_ENDIAN__ __BIG_ENDIAN__ _LITTLE_ENDIAN _BIG_ENDIAN __STDC_WANT_LIB_EXT1__ "
     "__TINYC__ SDCC SDCC_mcs51 SDCC_z80 SDCC_stm8 SDCC_MODEL_SMALL SDCC_STACK_AUTO "
     "SDCC_CHAR_UNSIGNED SDCC_REVISION __z88dk_fastcall __HAS_CRTIME __LFRACT "
     "__HAVE_SPECULATION_SAFE_VALUE "
     "__USING_SJLJ_EXCEPTIONS__ __SEH__ __ARM_SIZEOF_MINIMAL_ENUM __ARM_SIZEOF_WCHAR_T "
     "__ARM_FEATURE_UNALIGNED __ARM_FEATURE_CLZ __ARM_FEATURE_DSP __ARM_FEATURE_LDREX "
     "__ARM_FEATURE_SAT __ARM_FEATURE_QBIT __ARM_FEATURE_SIMD32 __ARM_FEATURE_IDIV "
     "__ARM_FEATURE_COPROC __ARM_ARCH __ARM_ARCH_4T__ __ARM_ARCH_ISA_ARM __ARM_ARCH_ISA_THUMB "
     "__ARM_ARCH_PROFILE __ARM_PCS __ARM_PCS_VFP __ARM_FP __ARM_32BIT_STATE __ARM_64BIT_STATE "
     "__ARM_ASM_SYNTAX_UNIFIED__ __riscv_mul __riscv_div __riscv_muldiv __riscv_atomic "
     "__riscv_compressed __riscv_fdiv __riscv_fsqrt __riscv_float_abi_soft "
     "__riscv_float_abi_single "
     "__riscv_float_abi_double __riscv_cmodel_medlow __riscv_cmodel_medany __riscv_arch_test "
     "__riscv_i __riscv_m __riscv_a __riscv_f __riscv_d __riscv_c __riscv_zicsr __riscv_zifencei "
     "__riscv_misaligned_slow __riscv_misaligned_fast __riscv_misaligned_avoid"},
};

const char *const keywordWords =
    "asm fortran near far huge interrupt monitor entry cdecl pascal fastcall stdcall bit sbit sfr "
    "sfr16 xdata idata pdata data code using reentrant banked tiny saddr sreg typeof "
    "__asm __asm__ __endasm _asm _endasm __inline __inline__ _inline __forceinline __signed "
    "__signed__ __const __const__ __volatile __volatile__ __restrict __restrict__ __extension__ "
    "__attribute __attribute__ __alignof __alignof__ __typeof __typeof__ __auto_type __label__ "
    "__thread __real __real__ __imag __imag__ __complex __complex__ __builtin_va_arg "
    "__builtin_offsetof __builtin_choose_expr __builtin_types_compatible_p __builtin_va_list "
    "__int8 __int16 __int24 __uint24 __int32 __int64 __int128 __int128_t __uint128_t __float80 "
    "__float128 __ibm128 __fp16 __bf16 _Float16 _Float32 _Float64 _Float128 _Float32x _Float64x "
    "_Float128x _Decimal32 _Decimal64 _Decimal128 _Fract _Accum _Sat __flash __flash1 __flash2 "
    "__flash3 __flash4 __flash5 __memx __seg_fs __seg_gs __func __near __far __huge __code "
    "__xdata __idata __pdata __data __bit __sbit __sfr __sfr16 __sfr32 __at __interrupt __using "
    "__reentrant __naked __critical __wparam __shadowregs __overlay __banked __nonbanked __trap "
    "__smallc __preserves_regs __z88dk_fastcall __z88dk_callee __z88dk_shortcall "
    "__z88dk_params_offset __sdcccall __raisonance __iar __cosmic __addressmod __eeprom __rom "
    "__ram "
    "__fastcall __fastcall__ __cdecl __cdecl__ __stdcall __thiscall __vectorcall __declspec _far "
    "_near __AX__ __EAX__ __A__ __X__ __Y__ __packed __align __pure __value_in_regs __irq __swi "
    "__weak __root __no_init __ramfunc __task __arm __thumb __big_endian __little_endian "
    "__nested __persistent __tiny __regvar __io __ptr32 __ptr64 __w64 __unaligned __try "
    "__except __finally __leave __nullptr";

const char *const cKeywords =
    "auto break case char const continue default do double else enum extern float for goto if int "
    "long register return short signed sizeof static struct switch typedef union unsigned void "
    "volatile while inline restrict _Alignas _Alignof _Atomic _Bool _Complex _Generic _Imaginary "
    "_Noreturn _Static_assert _Thread_local";

const char *const cppKeywords =
    "alignas alignof and and_eq asm auto bitand bitor bool break case catch char char8_t char16_t "
    "char32_t class co_await co_return co_yield compl concept const const_cast consteval constexpr "
    "constinit continue decltype default delete do double dynamic_cast else enum explicit export "
    "extern false float for friend goto if inline int long mutable namespace new noexcept not "
    "not_eq nullptr operator or or_eq private protected public register reinterpret_cast requires "
    "return short signed sizeof static static_assert static_cast struct switch template this "
    "thread_local throw true try typedef typeid typename union unsigned using virtual void "
    "volatile "
    "wchar_t while xor xor_eq";

// Directives, names that only the preprocessor itself may use, and C++'s words for operators.
const char *const specialWords =
    "defined _Pragma __pragma __VA_ARGS__ __VA_OPT__ __FUNCTION__ __PRETTY_FUNCTION__ __func__ "
    "and and_eq bitand bitor compl not not_eq or or_eq xor xor_eq true false __building_module "
    "__is_identifier __is_target_arch __is_target_environment __is_target_os __is_target_vendor";

const char *const changingMacros =
    "__FILE__ __LINE__ __DATE__ __TIME__ __TIMESTAMP__ __COUNTER__ __INCLUDE_LEVEL__ "
    "__BASE_FILE__ __FILE_NAME__";

QList<QByteArray> words(const char *text)
{
    return QByteArray(text).simplified().split(' ');
}

QSet<QByteArray> setOf(const char *text)
{
    const QList<QByteArray> list = words(text);
    return {list.begin(), list.end()};
}

} // namespace

QList<QByteArray> knownMacros()
{
    QList<QByteArray> names;
    for (const Pattern &row : patterns) {
        for (const QByteArray &word : words(row.words))
            names << QByteArray(row.pattern).replace('%', word);
    }
    return names;
}

QList<QByteArray> knownKeywords(bool isCpp)
{
    QList<QByteArray> keywords = words(keywordWords);
    // Only C++ has base classes, and in C clang does not come to an end with this.
    if (isCpp)
        keywords << "__super";
    return keywords;
}

bool isStandardKeyword(const QByteArray &name, bool isCpp)
{
    static const QSet<QByteArray> c = setOf(cKeywords), cpp = setOf(cppKeywords);
    return (isCpp ? cpp : c).contains(name);
}

bool isBuiltIntoThePreprocessor(const QByteArray &name)
{
    static const QSet<QByteArray> changing = setOf(changingMacros);
    return changing.contains(name) || name.startsWith("__has_");
}

bool isSpecialName(const QByteArray &name)
{
    static const QSet<QByteArray> special = setOf(specialWords);
    return special.contains(name) || isBuiltIntoThePreprocessor(name) || name.startsWith("calyx_")
        || name.startsWith("CALYX_");
}
