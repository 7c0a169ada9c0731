#include "target_layouts.h"

#include <algorithm>
#include <array>

namespace {

const char *const typeNames[] = {"short", "int",    "long",        "long long",
                                 "float", "double", "long double", "void *"};
enum TypeIndex { Short, Int, Long, LongLong, Float, Double, LongDouble, Pointer };

struct Extent
{
    int size;
    int alignment; ///< as a member of a structure
};

/// In the order of typeNames.
using Layout = std::array<Extent, std::size(typeNames)>;

// Read off clang 14 and 19, which agree: sizes, and where a member lies behind a single character.
// A test asks the clang that is installed to confirm them.
using E = Extent;
constexpr Layout avr {E {2, 2}, {2, 1}, {4, 1}, {8, 1}, {4, 1}, {4, 1}, {4, 1}, {2, 1}};
constexpr Layout msp430 {E {2, 2}, {2, 2}, {4, 2}, {8, 2}, {4, 2}, {8, 2}, {8, 2}, {2, 2}};
constexpr Layout tce {E {2, 2}, {4, 4}, {4, 4}, {4, 4}, {4, 4}, {4, 4}, {4, 4}, {4, 4}};
constexpr Layout ilp32 {E {2, 2}, {4, 4}, {4, 4}, {8, 8}, {4, 4}, {8, 8}, {8, 8}, {4, 4}};
constexpr Layout ilp32By4 {E {2, 2}, {4, 4}, {4, 4}, {8, 4}, {4, 4}, {8, 4}, {8, 4}, {4, 4}};
constexpr Layout ilp32Quad {E {2, 2}, {4, 4}, {4, 4}, {8, 8}, {4, 4}, {8, 8}, {16, 16}, {4, 4}};
constexpr Layout i386 {E {2, 2}, {4, 4}, {4, 4}, {8, 4}, {4, 4}, {8, 4}, {12, 4}, {4, 4}};
constexpr Layout i386Windows {E {2, 2}, {4, 4}, {4, 4}, {8, 8}, {4, 4}, {8, 8}, {12, 4}, {4, 4}};
constexpr Layout powerpcAix {E {2, 2}, {4, 4}, {4, 4}, {8, 8}, {4, 4}, {8, 4}, {8, 4}, {4, 4}};
constexpr Layout lp64 {E {2, 2}, {4, 4}, {8, 8}, {8, 8}, {4, 4}, {8, 8}, {8, 8}, {8, 8}};
constexpr Layout lp64Quad {E {2, 2}, {4, 4}, {8, 8}, {8, 8}, {4, 4}, {8, 8}, {16, 16}, {8, 8}};
constexpr Layout s390x {E {2, 2}, {4, 4}, {8, 8}, {8, 8}, {4, 4}, {8, 8}, {16, 8}, {8, 8}};
constexpr Layout powerpc64Aix {E {2, 2}, {4, 4}, {8, 8}, {8, 8}, {4, 4}, {8, 4}, {8, 4}, {8, 8}};
constexpr Layout llp64 {E {2, 2}, {4, 4}, {4, 4}, {8, 8}, {4, 4}, {8, 8}, {8, 8}, {8, 8}};
constexpr Layout llp64Quad {E {2, 2}, {4, 4}, {4, 4}, {8, 8}, {4, 4}, {8, 8}, {16, 16}, {8, 8}};

constexpr ByteOrder little = ByteOrder::LittleEndian, big = ByteOrder::BigEndian;

/// A target, and what is in the names of other targets of its architecture that are laid out in the
/// same way. Where nothing says otherwise, an architecture's row without such a mark counts.
const struct Row
{
    const char *name;
    const char *mark;
    const Layout &layout;
    ByteOrder byteOrder;
    const char *sizeType; ///< the type of differences of pointers is the same with a sign
    const char *wideCharacterType;
    bool hasShortEnums = false;    ///< without being told
    bool hasFreeBitFields = false; ///< which do not align a structure
} rows[] = {
    {"avr-unknown-unknown", "", avr, little, "unsigned int", "int"},
    {"msp430-unknown-none-elf", "", msp430, little, "unsigned int", "int"},
    {"arm-unknown-none-eabi", "", ilp32, little, "unsigned int", "unsigned int"},
    {"armeb-unknown-none-eabi", "", ilp32, big, "unsigned int", "unsigned int"},
    {"i386-unknown-none-elf", "", i386, little, "unsigned int", "int"},
    {"riscv32-unknown-none-elf", "", ilp32Quad, little, "unsigned int", "int"},
    {"powerpc-unknown-none-elf", "", ilp32Quad, big, "unsigned long", "int"},
    {"x86_64-unknown-none-elf", "", lp64Quad, little, "unsigned long", "int"},
    {"x86_64-w64-windows-gnu", "windows", llp64Quad, little, "unsigned long long",
     "unsigned short"},
    {"powerpc64-unknown-none-elf", "", lp64Quad, big, "unsigned long", "int"},
    {"riscv64-unknown-none-elf", "", lp64Quad, little, "unsigned long", "int"},
    {"aarch64-unknown-none-elf", "", lp64Quad, little, "unsigned long", "unsigned int"},
    {"aarch64_be-unknown-none-elf", "", lp64Quad, big, "unsigned long", "unsigned int"},
    {"aarch64_32-apple-watchos", "", ilp32, little, "unsigned long", "int", false, true},
    {"aarch64-w64-windows-gnu", "windows", llp64, little, "unsigned long long", "unsigned short"},
    {"arm-w64-windows-gnu", "windows", ilp32, little, "unsigned int", "unsigned short"},
    {"i386-w64-windows-gnu", "windows", i386Windows, little, "unsigned int", "unsigned short"},
    {"x86_64-pc-windows-msvc", "msvc", llp64, little, "unsigned long long", "unsigned short"},
    {"aarch64-pc-windows-msvc", "msvc", llp64, little, "unsigned long long", "unsigned short"},
    {"arm-pc-windows-msvc", "msvc", ilp32, little, "unsigned int", "unsigned short"},
    {"i386-pc-windows-msvc", "msvc", ilp32, little, "unsigned int", "unsigned short"},
    {"x86_64-unknown-linux-gnux32", "gnux32", ilp32Quad, little, "unsigned int", "int"},
    {"powerpc-unknown-linux-gnu", "linux", ilp32Quad, big, "unsigned int", "int"},
    {"powerpc-ibm-aix", "aix", powerpcAix, big, "unsigned long", "unsigned short"},
    {"powerpcle-unknown-none-elf", "", ilp32Quad, little, "unsigned long", "int"},
    {"powerpc64-ibm-aix", "aix", powerpc64Aix, big, "unsigned long", "unsigned int"},
    {"powerpc64le-unknown-none-elf", "", lp64Quad, little, "unsigned long", "int"},
    {"mips-unknown-none-elf", "", ilp32, big, "unsigned int", "int"},
    {"mipsel-unknown-none-elf", "", ilp32, little, "unsigned int", "int"},
    {"mips64-unknown-none-elf", "", lp64Quad, big, "unsigned long", "int"},
    {"mips64el-unknown-none-elf", "", lp64Quad, little, "unsigned long", "int"},
    {"mips64-unknown-linux-gnuabin32", "gnuabin32", ilp32Quad, big, "unsigned int", "int"},
    {"mips64el-unknown-linux-gnuabin32", "gnuabin32", ilp32Quad, little, "unsigned int", "int"},
    {"sparc-unknown-none-elf", "", ilp32, big, "unsigned int", "int"},
    {"sparcel-unknown-none-elf", "", ilp32, little, "unsigned int", "int"},
    {"sparcv9-unknown-none-elf", "", lp64Quad, big, "unsigned long", "int"},
    {"s390x-unknown-linux-gnu", "", s390x, big, "unsigned long", "int"},
    {"m68k-unknown-none-elf", "", ilp32, big, "unsigned int", "int"},
    {"hexagon-unknown-none-elf", "", ilp32, little, "unsigned int", "int", true},
    {"lanai-unknown-unknown", "", ilp32, big, "unsigned long", "int"},
    {"ve-unknown-linux-gnu", "", lp64Quad, little, "unsigned long", "unsigned int"},
    {"xcore-unknown-unknown", "", ilp32By4, little, "unsigned int", "unsigned char"},
    {"arc-unknown-none-elf", "", ilp32By4, big, "unsigned int", "int"},
    {"tce-unknown-none", "", tce, big, "unsigned int", "int"},
    {"tcele-unknown-none", "", tce, little, "unsigned int", "int"},
    {"wasm32-unknown-unknown", "", ilp32Quad, little, "unsigned long", "int"},
    {"wasm64-unknown-unknown", "", lp64Quad, little, "unsigned long", "int"},
    {"bpfel-unknown-none", "", lp64, little, "unsigned long", "int"},
    {"bpfeb-unknown-none", "", lp64, big, "unsigned long", "int"},
    // Clang 14 does not have these.
    {"loongarch32-unknown-none-elf", "", ilp32Quad, little, "unsigned int", "int"},
    {"loongarch64-unknown-none-elf", "", lp64Quad, little, "unsigned long", "int"},
    {"csky-unknown-none-elf", "", ilp32By4, little, "unsigned int", "int"},
};

template <int Alignment>
void pack(Layout &layout)
{
    for (Extent &type : layout)
        type.alignment = std::min(type.alignment, Alignment);
}

/// An option that lays types out otherwise, and what is in the names of targets that have it; empty
/// for all.
const struct LayoutOption
{
    const char *option;
    QList<QByteArray> targets;
    void (*change)(Layout &layout);
} layoutOptionTable[] = {
    {"-malign-double",
     {"i386-"},
     [](Layout &layout) {
         for (const TypeIndex type : {LongLong, Double, LongDouble})
             layout[type].alignment = layout[type].size;
     }},
    {"-mlong-double-64",
     {"i386-", "x86_64-", "powerpc"},
     [](Layout &layout) { layout[LongDouble] = layout[Double]; }},
    {"-mlong-double-128",
     {"i386-", "x86_64-"},
     [](Layout &layout) {
         layout[LongDouble] = {16, 16};
     }},
    {"-mdouble=64",
     {"avr-"},
     [](Layout &layout) {
         layout[Double] = layout[LongDouble] = {8, 1};
     }},
    {"-mms-bitfields",
     {},
     [](Layout &layout) {
         for (const TypeIndex type : {Short, Int, Long, LongLong, Float, Double, LongDouble}) {
             if (layout[type].size != 12)
                 layout[type].alignment = layout[type].size;
         }
     }},
    {"-mno-ms-bitfields", {"-windows-gnu"}, [](Layout &) {}}, // which is about nothing else
    {"-fpack-struct=8", {}, &pack<8>},
    {"-fpack-struct=4", {}, &pack<4>},
    {"-fpack-struct=2", {}, &pack<2>},
    {"-fpack-struct=1", {}, &pack<1>},
};

bool has(const LayoutOption &option, const QByteArray &target)
{
    return option.targets.isEmpty()
        || std::any_of(option.targets.begin(), option.targets.end(),
                       [&target](const QByteArray &part) { return target.contains(part); });
}

/// Whether a bit-field begins an object of its type, as for Microsoft's compiler.
bool hasOwnBitFields(const QByteArray &target, const QList<QByteArray> &options)
{
    const qsizetype own = options.lastIndexOf("-mms-bitfields");
    const qsizetype shared = options.lastIndexOf("-mno-ms-bitfields");
    if (target.contains("-msvc"))
        return true;
    return own == shared ? target.contains("-windows-") : own > shared;
}

/// The bytes of a structure of a char and a bit-field of int on the target of \a row.
int bitFieldSize(const Row &row, const Extent &number, bool isOwn)
{
    if (isOwn)
        return number.alignment + number.size;
    return row.hasFreeBitFields ? 2 : std::max(2, number.alignment);
}

QByteArray architectureOf(const QByteArray &target)
{
    return target.first(std::max<qsizetype>(target.indexOf('-'), 0));
}

/// The row of the table that \a target is laid out like, or null.
const Row *rowOf(const QByteArray &target)
{
    const Row *found = nullptr;
    for (const Row &row : rows) {
        if (architectureOf(row.name) != architectureOf(target) || !target.contains(row.mark))
            continue;
        if (!found || *row.mark)
            found = &row;
    }
    return found;
}

TypeFacts typesOf(const Row &row, const Layout &layout)
{
    TypeFacts types;
    types.basic.append({"char", 1, 1});
    for (std::size_t i = 0; i < layout.size(); ++i)
        types.basic.append({typeNames[i], layout[i].size, layout[i].alignment});
    types.basic.append({"void (*)(void)", layout[Pointer].size, layout[Pointer].alignment});
    types.sizeType = row.sizeType;
    types.pointerDifferenceType = types.sizeType.split(' ').mid(1).join(' ');
    types.wideCharacterType = row.wideCharacterType;
    types.smallEnumSize = row.hasShortEnums ? 1 : layout[Int].size;
    types.byteOrder = row.byteOrder;
    return types;
}

} // namespace

QList<QByteArray> targetNames()
{
    QList<QByteArray> names;
    for (const Row &row : rows)
        names << row.name;
    return names;
}

QList<QByteArray> layoutOptions(const QByteArray &target)
{
    QList<QByteArray> options;
    for (const LayoutOption &row : layoutOptionTable) {
        if (has(row, target))
            options << row.option;
    }
    return options;
}

TypeFacts typesOfTarget(const QByteArray &target, const QList<QByteArray> &options)
{
    const Row *row = rowOf(target);
    if (!row)
        return {};
    Layout layout = row->layout;
    for (const LayoutOption &option : layoutOptionTable) {
        if (has(option, target) && options.contains(option.option))
            option.change(layout);
    }
    TypeFacts types = typesOf(*row, layout);
    types.bitFieldSize = bitFieldSize(*row, layout[Int], hasOwnBitFields(target, options));
    if (options.contains("-fshort-wchar"))
        types.wideCharacterType = "unsigned short";
    if (options.contains("-fshort-enums"))
        types.smallEnumSize = 1;
    if (options.contains("-fno-short-enums"))
        types.smallEnumSize = layout[Int].size;
    return types;
}
