#include "calyx.h"

#include "download.h"
#include "form_answers.h"
#include "log_browser.h"
#include "product_language.h"
#include "record_answers.h"
#include "save_compiler_details.h"
#include "web_address.h"

#include <QCheckBox>
#include <QMessageBox>
#include <QPushButton>
#include <QRadioButton>

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
    const QString code = KOVRadioButton->isChecked() ? generator::productC : generator::productCpp;
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
            applyRecord(record);
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

void Calyx::applyRecord(const CompilerRecord &record)
{
    answers = currentAnswers();
    ::applyRecord(record, answers);
    // Empties and disables the output flag of a cross compiler, which then shows the stored one,
    // and clears its box, which stays so where the order says nothing of it.
    CrossCmpCheckBox->setChecked(answers.crossCompiler);
    CrossCmpCheckBox_clicked();
    answers = currentAnswers();
    ::applyRecord(record, answers);
    showAnswers(answers, *this, AnswerField::Recorded);
    updateCommandPreview();
}

void Calyx::resetCompilerFields()
{
    answers = currentAnswers();
    resetCompiler(answers);
    showAnswers(answers, *this, AnswerField::Reset);
}

void Calyx::AddCompilerBtn_clicked()
{
    // Others may have changed it; what the user sees is what is overwritten.
    if (const std::optional<CompilerCatalogue> now = catalogueFile.reload()) {
        catalogue = *now;
        showCatalogue();
    }
    SaveCompilerDetails dialog;
    dialog.families = catalogue.families;
    dialog.compilers = catalogue.compilers;
    dialog.currentRecord.Name = answers.selectedCompilerName;
    dialog.currentRecord.Family = answers.selectedCompilerFamily;
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
    if (saveCatalogue())
        DetailsText->append("Compiler Saved: "_L1 + name);
    catalogue = CompilerCatalogue();
    loadCatalogue();
    showCatalogue();
    answers.selectedCompilerName = name;
    answers.selectedCompilerFamily = family;
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
