#include "calyx.h"

#include "download.h"
#include "form_answers.h"
#include "log_browser.h"
#include "product_conflict.h"
#include "record_answers.h"
#include "save_compiler_details.h"
#include "web_address.h"

#include <QCheckBox>
#include <QMessageBox>
#include <QPushButton>

using namespace Qt::StringLiterals;

void Calyx::loadCatalogue()
{
    catalogue.append(catalogueFile.load());
}

bool Calyx::saveCatalogue()
{
    // What cannot be written is lost without a word; the reload shows what the file holds.
    const CatalogueFile::Result result = catalogueFile.save(catalogue);
    if (result == CatalogueFile::Result::NotWhole) {
        QMessageBox::warning(this, u"Calyx"_s,
                             tr("The compiler has not been saved: the catalogue compilers.txt "
                                "cannot be read whole, and saving would lose what it holds."));
    }
    return result == CatalogueFile::Result::Saved;
}

void Calyx::buildExeCommandMenu()
{
    exeCommandMenu.build(catalogue, answers.compilerFamilySet);
    ExeCommandBtn->setMenu(&exeCommandMenu);
}

void Calyx::showCatalogue()
{
    buildExeCommandMenu();
    applyProductToMenus(answers.productCode);
}

void Calyx::applyProductToMenus(const QString &code)
{
    exeCommandMenu.applyProduct(code);
}

void Calyx::ProductRadioBtn_clicked()
{
    const QString code = currentAnswers().productCode;
    applyProductToMenus(code);
    const QString conflict = conflictWith(answers.selectedCompilerName, code);
    if (conflict.isEmpty())
        return;
    QMessageBox::about(nullptr, u"Calyx"_s, conflict);
    resetCompilerFields();
}

void Calyx::applyCatalogueCompiler(QString family, QString name)
{
    for (const CompilerRecord &record : catalogue.compilers) {
        if (record.Family != family || record.Name != name)
            continue;
        if (isDownload(record.Template))
            downloadIntegration(packageName(record.Template));
        else
            fillFrom(record);
    }
}

void Calyx::downloadIntegration(const QString &package)
{
    QMessageBox::about(nullptr, u"Calyx"_s,
                       tr("The generator will now close and take you to the download site for the "
                          "latest integration package to be installed.")
                           + "\n("_L1 + downloadBaseAddress + package + u')');
    platform::openWebAddress(downloadAddress(package));
    reject();
}

void Calyx::fillFrom(const CompilerRecord &record)
{
    // First what becomes of the output flag of a cross compiler: it is emptied and disabled, and
    // then shows the stored one; its box is cleared, and stays so where the order says nothing of
    // it.
    Answers chosen;
    applyRecord(record, chosen);
    CrossCmpCheckBox->setChecked(chosen.crossCompiler);
    CrossCmpCheckBox_clicked();

    changeAnswers([&record](Answers &changed) { applyRecord(record, changed); },
                  AnswerField::Recorded);
    updateCommandPreview();
}

void Calyx::resetCompilerFields()
{
    changeAnswers(&resetCompiler, AnswerField::Reset);
}

void Calyx::AddCompilerBtn_clicked()
{
    // Others may have changed it; what the user sees is what is overwritten.
    if (const std::optional<CompilerCatalogue> now = catalogueFile.reload()) {
        catalogue = *now;
        showCatalogue();
    }
    const auto [family, name] = askWhereToSave();
    if (family.isEmpty() || name.isEmpty())
        return;
    putIntoCatalogue(family, name);
    if (saveCatalogue())
        DetailsText->append("Compiler Saved: "_L1 + name);
    catalogue = CompilerCatalogue();
    loadCatalogue();
    showCatalogue();
    answers.selectedCompilerName = name;
    answers.selectedCompilerFamily = family;
}

std::pair<QString, QString> Calyx::askWhereToSave() const
{
    SaveCompilerDetails dialog;
    dialog.families = catalogue.families;
    dialog.compilers = catalogue.compilers;
    dialog.currentRecord.Name = answers.selectedCompilerName;
    dialog.currentRecord.Family = answers.selectedCompilerFamily;
    dialog.exec();
    return {dialog.resultFamily, dialog.resultName};
}

void Calyx::putIntoCatalogue(const QString &family, const QString &name)
{
    CompilerRecord *record = nullptr;
    if (catalogue.families.contains(family))
        record = findRecord(catalogue.compilers, family, name);
    else
        catalogue.families << family;
    if (record)
        updateRecordFromAnswers(*record);
    else
        addRecordFromAnswers(family, name);
}

void Calyx::updateRecordFromAnswers(CompilerRecord &record) const
{
    updateRecord(record, currentAnswers());
}

void Calyx::addRecordFromAnswers(const QString &family, const QString &name)
{
    Answers named = currentAnswers();
    named.selectedCompilerFamily = family;
    named.selectedCompilerName = name;
    catalogue.compilers << recordFrom(named);
}
