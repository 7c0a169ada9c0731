#include "learning.h"

namespace {

/// Code that the standards no longer allow and many compilers still do, by the name of the warning
/// that newer clang makes an error of ("Diagnostic flags in Clang"). "%" stands for a number.
struct Leniency
{
    QByteArray warning;
    QByteArray code;
    bool isOfCpp;
};

const Leniency leniencies[] = {
    {"implicit-function-declaration", "int calyx_%(void) { return calyx_u%(); }\n", false},
    {"implicit-int", "extern calyx_%;\n", false},
    {"int-conversion", "char *calyx_%(int a) { return a; }\n", false},
    {"incompatible-pointer-types", "int *calyx_%(char *a) { return a; }\n", false},
    {"incompatible-function-pointer-types",
     "void calyx_f%(char *); void (*calyx_%(void))(int) { return calyx_f%; }\n", false},
    {"return-type", "int calyx_%(void) { return; }\n", false},
    {"c++11-narrowing", "int calyx_%(double a) { int b[] = {a}; return b[0]; }\n", true},
    {"register", "int calyx_%(int a) { register int b = a; return b; }\n", true},
    {"reserved-user-defined-literal",
     "#define calyx_m% \"b\"\nconst char *calyx_% = \"a\"calyx_m%;\n", true},
};

} // namespace

QList<QByteArray> learnLeniencies(const Questions &questions)
{
    QList<QByteArray> warnings, items;
    for (const Leniency &leniency : leniencies) {
        if (leniency.isOfCpp != questions.isCpp())
            continue;
        warnings << leniency.warning;
        items << QByteArray(leniency.code).replace('%', QByteArray::number(items.size()));
    }
    return selected(warnings, questions.accepted({}, items));
}
