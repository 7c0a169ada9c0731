#include "app/calyx.h"
#include "catalogue/save_compiler_details.h"
#include "generation/answers.h"
#include "platform/text_file.h"

#include <QPushButton>

namespace {

const QString catalogueFile = QStringLiteral("compilers.txt");

QString word(bool value)
{
    return QLatin1String(value ? "yes" : "no");
}

} // namespace

void Calyx::loadCatalogue()
{
    const CompilerCatalogue read =
        parseCatalogue(platform::readTextFile(catalogueFile).value_or(QString()));
    catalogue.families << read.families;
    catalogue.compilers << read.compilers;
}

void Calyx::saveCatalogue()
{
    // What cannot be written is lost without a word; the reload shows what the file holds.
    platform::writeTextFile(catalogueFile, catalogueText(catalogue));
}

void Calyx::AddCompilerBtn_clicked()
{
    SaveCompilerDetails dialog;
    dialog.families = catalogue.families;
    dialog.compilers = catalogue.compilers;
    dialog.currentRecord.Name = selectedCompilerName;
    dialog.currentRecord.Family = selectedCompilerFamily;
    dialog.exec();
    const QString family = dialog.resultFamily, name = dialog.resultName;
    if (family.isEmpty() || name.isEmpty())
        return;

    CompilerRecord *record = nullptr;
    if (catalogue.families.contains(family))
        record = findRecord(catalogue.compilers, family, name);
    else
        catalogue.families << family;
    if (record)
        updateRecordFromAnswers(*record);
    else
        addRecordFromAnswers(family, name);
    saveCatalogue();

    clearExeCommandMenu();
    catalogue = CompilerCatalogue();
    loadCatalogue();
    buildExeCommandMenu();
    applyProductToMenus(productCode);
    selectedCompilerName = name;
    selectedCompilerFamily = family;
}

void Calyx::updateRecordFromAnswers(CompilerRecord &record) const
{
    const Answers current = answers();
    record.ExeCommand = current.compile.command;
    record.CrossCompiler = word(current.crossCompiler);
    record.OutputFlag = current.compile.outputFlag;
    record.DefineFlag = current.compile.defineFlag;
    record.ObjectFlag = current.compile.objectFlag;
    record.ObjectFileExtension = current.objectExtension;
    record.Order = commandOrderString(current.compile);
    record.ReduceFileSize = word(current.reduceFileSize);
    record.CompilerDefines = toCommaList(current.defines);
    record.CompilerSwitches = toCommaList(current.switches);
}

void Calyx::addRecordFromAnswers(const QString &family, const QString &name)
{
    CompilerRecord record;
    record.Name = name;
    record.Family = family;
    updateRecordFromAnswers(record);
    record.Template = templatePersonalityFile;
    record.ForceIncludeFile = forceIncludeFile;
    record.SubHeaders = substituteHeaders;
    catalogue.compilers << record;
}
