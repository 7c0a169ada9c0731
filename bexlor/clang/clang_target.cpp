#include "clang.h"

#include <algorithm>

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

template <std::size_t Size>
QByteArray firstDefined(const MacroFacts &macros, const Named (&table)[Size])
{
    for (const Named &row : table) {
        if (findMacro(macros, row.macro))
            return row.name;
    }
    return {};
}

/// In how many things the types of \a target are not those measured.
int differences(const TypeFacts &types, const Target &target)
{
    int count = types.byteOrder != ByteOrder::Unknown && types.byteOrder != target.byteOrder;
    for (std::size_t i = 0; i < std::size(measuredTypes); ++i) {
        const int size = sizeOf(types, measuredTypes[i]);
        count += size != 0 && size != target.sizes[i];
    }
    return count;
}

QByteArray nearestTarget(const TypeFacts &types)
{
    const Target *nearest = std::min_element(
        std::begin(targets), std::end(targets), [&types](const Target &a, const Target &b) {
            return differences(types, a) < differences(types, b);
        });
    return nearest->name;
}

QByteArray architectureOf(const MacroFacts &macros)
{
    if (const Macro *width = findMacro(macros, "__riscv_xlen"))
        return "riscv" + width->value;
    return firstDefined(macros, architectures);
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
    QByteArray system = firstDefined(macros, systems);
    if (system.isEmpty())
        system = "unknown-none";
    if (architecture == "x86_64" && findMacro(macros, "__ILP32__") && system.endsWith("-gnu"))
        system += "x32";
    if (architecture != "arm")
        return system;
    // Without its binary interface clang warns each time that it has to assume one.
    if (system.endsWith("-elf"))
        system.chop(4);
    system += system.endsWith("-gnu") ? "eabi" : "-eabi";
    return findMacro(macros, "__ARM_PCS_VFP") ? system + "hf" : system;
}

} // namespace

QByteArray clangTarget(const Facts &facts)
{
    const QByteArray architecture = architectureOf(facts.macros);
    if (!architecture.isEmpty()) {
        return withByteOrder(architecture, facts.types.byteOrder) + '-'
             + systemOf(facts.macros, architecture);
    }
    return facts.types.basic.isEmpty() ? QByteArray() : nearestTarget(facts.types);
}
