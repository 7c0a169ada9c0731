// A catalogue of any bytes is read, written and read again; and a compiler is saved into it.

#include "catalogue_file.h"

extern "C" int LLVMFuzzerTestOneInput(const char *data, std::size_t size)
{
    const QByteArray file(data, qsizetype(size));
    const CompilerCatalogue read = parseCatalogue(file);
    const CompilerCatalogue again = parseCatalogue(catalogueText(read));
    if (again.families.size() != read.families.size()
        || again.compilers.size() != read.compilers.size())
        __builtin_trap();

    CompilerRecord record;
    record.Name = record.Family = QStringLiteral("new");
    CompilerCatalogue saved = parseCatalogue(withChanges(file, {}, {{record.Family}, {record}}));
    CompilerRecord *found = findRecord(saved.compilers, record.Family, record.Name);
    if (!found || *found != record || !saved.families.contains(record.Family)
        || saved.compilers.size() < read.compilers.size())
        __builtin_trap();
    return 0;
}
