// A catalogue of any bytes is read, written and read again.

#include "compiler_catalogue.h"

extern "C" int LLVMFuzzerTestOneInput(const char *data, std::size_t size)
{
    const CompilerCatalogue read =
        parseCatalogue(QString::fromLocal8Bit(QByteArray(data, qsizetype(size))));
    const CompilerCatalogue again = parseCatalogue(catalogueText(read));
    if (again.families.size() != read.families.size()
        || again.compilers.size() != read.compilers.size())
        __builtin_trap();
    return 0;
}
