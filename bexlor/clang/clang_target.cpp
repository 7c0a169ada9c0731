#include "clang.h"

#include "target_layouts.h"

#include <algorithm>
#include <compare>
#include <tuple>

namespace {

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
    {"__s390x__", "s390x"},
    {"__sparcv9", "sparcv9"},
    {"__arch64__", "sparcv9"},
    {"__sparc__", "sparc"},
    {"__m68k__", "m68k"},
    {"__hexagon__", "hexagon"},
    {"__lanai__", "lanai"},
    {"__ve__", "ve"},
    {"__xcore__", "xcore"},
    {"__arc__", "arc"},
    {"__csky__", "csky"},
    {"__wasm32__", "wasm32"},
    {"__wasm64__", "wasm64"},
    {"__bpf__", "bpfel"},
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
    {"bpfel", ByteOrder::BigEndian, "bpfeb"},
    {"mips", ByteOrder::LittleEndian, "mipsel"},
    {"mips64", ByteOrder::LittleEndian, "mips64el"},
    {"powerpc", ByteOrder::LittleEndian, "powerpcle"},
    {"powerpc64", ByteOrder::LittleEndian, "powerpc64le"},
    {"sparc", ByteOrder::LittleEndian, "sparcel"},
};

const Named systems[] = {
    {"_MSC_VER", "pc-windows-msvc"},    {"_WIN32", "w64-windows-gnu"},
    {"__linux__", "unknown-linux-gnu"}, {"_AIX", "ibm-aix"},
    {"__ELF__", "unknown-none-elf"},
};

template <std::size_t Size>
QByteArray firstDefined(const MacroFacts &macros, const Named (&table)[Size])
{
    for (const Named &row : table) {
        if (findMacro(macros, row.macro))
            return row.name;
    }
    return {};
}

QByteArray architectureOf(const MacroFacts &macros)
{
    if (const Macro *width = findMacro(macros, "__riscv_xlen"))
        return "riscv" + width->value;
    if (const Macro *width = findMacro(macros, "__loongarch_grlen"))
        return "loongarch" + width->value;
    const QByteArray architecture = firstDefined(macros, architectures);
    // Short pointers are to be had for one system's targets only.
    return architecture == "aarch64" && findMacro(macros, "__ILP32__") ? "aarch64_32"
                                                                       : architecture;
}

QByteArray withByteOrder(const QByteArray &architecture, ByteOrder order)
{
    for (const auto &row : otherByteOrders) {
        if (architecture == row.name && order == row.otherOrder)
            return row.otherName;
    }
    return architecture;
}

/// The part of a target behind the architecture.
QByteArray systemOf(const MacroFacts &macros, const QByteArray &architecture)
{
    if (architecture == "aarch64_32")
        return "apple-watchos";
    QByteArray system = firstDefined(macros, systems);
    if (system.isEmpty())
        system = "unknown-none";
    if (architecture == "x86_64" && findMacro(macros, "__ILP32__") && system.endsWith("-gnu"))
        system += "x32";
    if (architecture != "arm" || system.endsWith("-msvc"))
        return system;
    // Without its binary interface clang warns each time that it has to assume one.
    if (system.endsWith("-elf"))
        system.chop(4);
    system += system.endsWith("-gnu") ? "eabi" : "-eabi";
    return findMacro(macros, "__ARM_PCS_VFP") ? system + "hf" : system;
}

/// The target that the predefined macros tell; empty for an architecture that clang does not have.
QByteArray targetByMacros(const Facts &facts)
{
    const QByteArray architecture = architectureOf(facts.macros);
    if (architecture.isEmpty())
        return {};
    return withByteOrder(architecture, facts.types.byteOrder) + '-'
         + systemOf(facts.macros, architecture);
}

/// The targets that a compiler's code may be read for, if its macros tell \a named: that one, and
/// those of the same architecture for other systems; or all. Windows is neither taken for another
/// system nor another system for it, since it has rules of its own for what is exported;
/// Microsoft's compiler for no other, since clang reads another language then; and Apple's systems,
/// where sections have names of their own, only if they are named.
QList<QByteArray> candidates(const QByteArray &named)
{
    const QByteArray architecture = named.first(named.indexOf('-') + 1);
    const auto isAlike = [&named](const QByteArray &target, const QByteArray &part) {
        return target.contains(part) == named.contains(part);
    };
    QList<QByteArray> targets;
    for (const QByteArray &target : targetNames()) {
        const bool isSuitable = named.isEmpty()
                                  ? !target.contains("-apple-")
                                  : target.startsWith(architecture) && isAlike(target, "-windows-");
        if (isSuitable && isAlike(target, "-msvc"))
            targets << target;
    }
    if (!named.isEmpty())
        targets.prepend(named);
    return targets;
}

/// In what a target's types are not those measured; the first that differ between two count.
struct Misfit
{
    int sizes = 0; ///< and byte orders
    int alignments = 0;
    bool isPacked = false; ///< which overrides what code says of alignments
    int names = 0;         ///< of types

    auto operator<=>(const Misfit &) const = default;
};

Misfit misfitOf(const TypeFacts &types, const TargetChoice &choice, const QList<QByteArray> &passed)
{
    const TypeFacts ofTarget = typesOfTarget(choice.name, passed + choice.options);
    const TypeFacts differing = differingTypes(types, ofTarget);
    Misfit misfit;
    for (const Type &type : differing.basic)
        ++(type.size == sizeOf(types, type.name) ? misfit.alignments : misfit.sizes);
    misfit.sizes += differing.byteOrder != ByteOrder::Unknown;
    misfit.alignments += differing.bitFieldSize != 0;
    misfit.isPacked =
        std::any_of(choice.options.begin(), choice.options.end(),
                    [](const QByteArray &option) { return option.startsWith("-fpack-struct"); });
    misfit.names = !differing.sizeType.isEmpty() + !differing.pointerDifferenceType.isEmpty();
    return misfit;
}

/// \a target with those options that make its types more like \a types.
TargetChoice fitted(const TypeFacts &types, const QByteArray &target,
                    const QList<QByteArray> &passed)
{
    TargetChoice choice {target, {}};
    for (const QByteArray &option : layoutOptions(target)) {
        const TargetChoice changed {target, choice.options + QList {option}};
        const Misfit before = misfitOf(types, choice, passed);
        const Misfit after = misfitOf(types, changed, passed);
        if (std::tie(after.sizes, after.alignments) < std::tie(before.sizes, before.alignments))
            choice = changed;
    }
    return choice;
}

} // namespace

TypeFacts differingTypes(const TypeFacts &types, const TypeFacts &ofClang)
{
    TypeFacts differing;
    for (const Type &type : ofClang.basic) {
        const auto differs = [&type](const Type &measured) {
            return measured.name == type.name && measured != type;
        };
        if (std::any_of(types.basic.begin(), types.basic.end(), differs))
            differing.basic << type;
    }
    const auto compare = [&](auto TypeFacts::*fact) {
        const auto unknown = TypeFacts().*fact;
        if (types.*fact != unknown && ofClang.*fact != unknown && types.*fact != ofClang.*fact)
            differing.*fact = ofClang.*fact;
    };
    compare(&TypeFacts::byteOrder);
    compare(&TypeFacts::smallEnumSize);
    compare(&TypeFacts::bitFieldSize);
    for (const NamedType &row : namedTypes)
        compare(row.type);
    return differing;
}

TargetChoice chooseTarget(const Facts &facts, const QList<QByteArray> &passed)
{
    const QByteArray named = targetByMacros(facts);
    if (facts.types.basic.isEmpty())
        return {named, {}};
    QList<TargetChoice> choices;
    for (const QByteArray &target : candidates(named))
        choices << fitted(facts.types, target, passed);
    return *std::min_element(
        choices.begin(), choices.end(), [&](const TargetChoice &a, const TargetChoice &b) {
            return misfitOf(facts.types, a, passed) < misfitOf(facts.types, b, passed);
        });
}
