#include "record_arguments.h"

#include "argument_texts.h"
#include "compiler_catalogue.h"
#include "generator_interface.h"

// The fields of one line, which the wizard tidies as it shows them.
CompilerRecord tidied(CompilerRecord record)
{
    for (QString *field : {&record.ExeCommand, &record.OutputFlag, &record.ObjectFlag,
                           &record.DefineFlag, &record.ObjectFileExtension})
        *field = field->simplified();
    return record;
}

QStringList recordArguments(const CompilerRecord &record, const QString &productCode,
                            const QStringList &headerDirectories, const QString &personality)
{
    using namespace generator;
    QStringList list {productCode,
                      isYes(record.CrossCompiler) ? crossCompiler : nativeCompiler,
                      quotedCommand(record.ExeCommand),
                      record.OutputFlag,
                      record.ObjectFlag,
                      record.DefineFlag,
                      withDot(record.ObjectFileExtension),
                      record.Order};
    for (const QString &directory : headerDirectories)
        list << headerDirectory << directory;
    list << generator::personality << personality << option(defines, record.CompilerDefines)
         << option(switches, record.CompilerSwitches)
         << option(templateFile, inFolder(templateFolder, record.Template))
         << option(forceIncludeFile, inFolder(forceIncludeFolder, record.ForceIncludeFile))
         << option(substituteHeaders, inFolder(substituteHeadersFolder, record.SubHeaders));
    if (isYes(record.ReduceFileSize))
        list << reduceFileSize;
    return list;
}
