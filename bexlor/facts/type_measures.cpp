#include "type_measures.h"

QByteArray structureBehindChar(const QByteArray &name, const QByteArray &type)
{
    const QByteArray member =
        type.endsWith("(*)(void)") ? "void (*member)(void)" : type + " member";
    return "struct " + name + " { char before; " + member + "; };\n";
}

QByteArray alignmentIn(const QByteArray &name, const QByteArray &type)
{
    return "sizeof(struct " + name + ") - sizeof(" + type + ')';
}

QByteArray bitFieldStructure(const QByteArray &name)
{
    return "struct " + name + " { char before; int member : 4; };\n";
}

QByteArray smallEnumeration(const QByteArray &name)
{
    return "enum " + name + " { " + name + "_zero };\n";
}
