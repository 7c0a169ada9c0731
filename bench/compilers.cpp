#include "compilers.h"

#include <QDir>
#include <QFileInfo>
#include <QStandardPaths>

namespace {

const QString hostGcc = QStringLiteral("/usr/lib/gcc/x86_64-linux-gnu/12");

const Subject subjects[] = {
    {"gcc", "gcc", "x86_64-linux-gnu", false, false, false, {hostGcc, "/usr/include"}, {}, {}},
    {"g++", "g++", "x86_64-linux-gnu", true, false, false, {hostGcc, "/usr/include"}, {}, {}},
    {"clang",
     "clang",
     "x86_64-linux-gnu",
     false,
     false,
     false,
     {"/usr/lib/llvm-14/lib/clang/14.0.6/include", "/usr/include"},
     {"/usr/lib/x86_64-linux-gnu/libclang-cpp.so.14"},
     {}},
    {"tcc",
     "tcc",
     "x86_64-linux-gnu",
     false,
     false,
     false,
     {"/usr/lib/x86_64-linux-gnu/tcc/include", "/usr/include"},
     {"/usr/bin/tcc"},
     {}},
    {"arm-none-eabi-gcc",
     "arm-none-eabi-gcc",
     "arm-none-eabi",
     false,
     false,
     true,
     {"/usr/lib/gcc/arm-none-eabi/12.2.1", "/usr/lib/arm-none-eabi/include"},
     {},
     {}},
    {"avr-gcc",
     "avr-gcc",
     "avr",
     false,
     false,
     true,
     {"/usr/lib/gcc/avr/5.4.0", "/usr/lib/avr/include"},
     {},
     {}},
    {"riscv64-unknown-elf-gcc",
     "riscv64-unknown-elf-gcc -isystem /usr/lib/picolibc/riscv64-unknown-elf/include",
     "riscv64-unknown-elf",
     false,
     false,
     true,
     {"/usr/lib/gcc/riscv64-unknown-elf/12.2.0", "/usr/lib/picolibc/riscv64-unknown-elf/include"},
     {},
     {}},
    {"MinGW-w64 gcc",
     "x86_64-w64-mingw32-gcc",
     "x86_64-w64-mingw32",
     false,
     false,
     true,
     {"/usr/lib/gcc/x86_64-w64-mingw32/12-win32", "/usr/x86_64-w64-mingw32/include"},
     {},
     {}},
    {"sdcc mcs51",
     "sdcc -mmcs51",
     "avr",
     false,
     true,
     true,
     {"/usr/share/sdcc/include"},
     {"/usr/bin/sdcc", "/usr/bin/sdcpp"},
     {}},
    {"sdcc z80",
     "sdcc -mz80",
     "avr",
     false,
     true,
     true,
     {"/usr/share/sdcc/include"},
     {"/usr/bin/sdcc", "/usr/bin/sdcpp"},
     {}},
    {"cc65",
     "cl65 -t none",
     "avr",
     false,
     true,
     true,
     {"/usr/share/cc65/include"},
     {"/usr/bin/cc65", "/usr/bin/cl65"},
     {"__CC65__", "__CC65_STD__", "__CC65_STD_C89__", "__CC65_STD_C99__", "__CC65_STD_CC65__",
      "__STDC_HOSTED__"}},
};

} // namespace

QList<Subject> installedSubjects(const QStringList &chosen)
{
    QList<Subject> installed;
    for (const Subject &subject : subjects) {
        const QString program = subject.command.section(' ', 0, 0);
        const bool isWanted = chosen.isEmpty() || chosen.contains(subject.name);
        if (isWanted && !QStandardPaths::findExecutable(program).isEmpty())
            installed << subject;
    }
    return installed;
}

QStringList generatorArguments(const Subject &subject, const QString &folder,
                               const QString &personality)
{
    const QDir top(folder);
    top.mkdir("programs");
    for (const QString &program : subject.programs)
        QFile::link(program, top.filePath("programs/" + QFileInfo(program).fileName()));
    QStringList arguments {subject.isCpp ? "kovpp" : "kov",
                           subject.isCross ? "ccmp" : "cmp",
                           '"' + subject.command + '"',
                           "-o",
                           "-c",
                           "-D",
                           subject.isSmall && subject.name != "cc65" ? ".rel" : ".o",
                           "%c %o %e %d%j %s "};
    for (const QString &directory : subject.directories + QStringList {top.filePath("programs")})
        arguments << "-i" << directory;
    arguments << "-op" << top.filePath(personality);
    if (subject.isSmall)
        arguments << "-rfs";
    return arguments;
}
