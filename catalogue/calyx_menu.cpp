#include "app/calyx.h"
#include "catalogue/download.h"
#include "catalogue/product_language.h"
#include "catalogue/sub_popup_menu.h"
#include "generation/command_order.h"
#include "platform/web_address.h"

#include <QCheckBox>
#include <QLineEdit>
#include <QListWidget>
#include <QMessageBox>
#include <QPushButton>
#include <QRadioButton>
#include <QTextEdit>

void Calyx::buildExeCommandMenu()
{
    for (const QString &family : catalogue.families) {
        if (!compilerFamilySet.isEmpty() && !compilerFamilySet.contains(family))
            continue;
        auto *menu = new SubPopupMenu;
        menu->setStyle(style());
        menu->setTitle(menuText(family));
        menu->family = family;
        menu->owner = this;
        for (const QString &name : namesOf(catalogue.compilers, family))
            menu->insertItem(name);
        familyMenus << menu;
        exeCommandMenu.addMenu(menu);
    }
    ExeCommandBtn->setMenu(&exeCommandMenu);
}

void Calyx::clearExeCommandMenu()
{
    exeCommandMenu.clear();
    // The menu that shows a sub-menu does not own it.
    qDeleteAll(familyMenus);
    familyMenus.clear();
}

void Calyx::applyProductToMenus(const QString &code)
{
    for (SubPopupMenu *menu : familyMenus) {
        menu->enableAllItems();
        menu->disableOtherLanguage(code);
    }
}

void Calyx::ProductRadioBtn_clicked()
{
    const bool isC = KOVRadioButton->isChecked();
    const QString code = QLatin1String(isC ? "kov" : "kovpp");
    applyProductToMenus(code);
    if (!conflictsWith(selectedCompilerName, code))
        return;
    QMessageBox::about(
        nullptr, QStringLiteral("Calyx"),
        isC ? QStringLiteral("You have selected KOV for a currently selected C++ execution "
                             "command.\nPlease reselect the Exe Command below.")
            : QStringLiteral("You have selected KOV++ for a currently selected C execution "
                             "command.\nPlease reselect the Exe Command below."));
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
    QMessageBox::about(
        nullptr, QStringLiteral("Calyx"),
        QStringLiteral("The generator will now close and take you to the download site for the "
                       "latest integration package to be installed.\n(")
            + downloadBaseAddress + package + QLatin1Char(')'));
    platform::openWebAddress(downloadAddress(package));
    reject();
}

void Calyx::applyRecord(const CompilerRecord &record)
{
    const auto isYes = [](const QString &word) { return word == QLatin1String("yes"); };
    CmpExeEdit->setText(record.ExeCommand);
    CrossCmpCheckBox->setChecked(isYes(record.CrossCompiler));
    // Empties and disables the output flag of a cross compiler, which then shows the stored one.
    CrossCmpCheckBox_clicked();
    CmpExeFlagEdit->setText(record.OutputFlag);
    CmpCmpFlagEdit->setText(record.ObjectFlag);
    CmpDefFlagEdit->setText(record.DefineFlag);
    CmpObjExtFlagEdit->setText(record.ObjectFileExtension);
    ReduceFileSizeCheckBox->setChecked(isYes(record.ReduceFileSize));
    applyOrderString(record.Order);
    updateCommandPreview();
    CmpDefEdit->setPlainText(record.CompilerDefines);
    CmpSwtchEdit->setPlainText(record.CompilerSwitches);
    templatePersonalityFile = record.Template;
    forceIncludeFile = record.ForceIncludeFile;
    substituteHeaders = record.SubHeaders;
    selectedCompilerFamily = record.Family;
    selectedCompilerName = record.Name;
}

void Calyx::resetCompilerFields()
{
    CmpExeEdit->clear();
    CrossCmpCheckBox->setChecked(false);
    for (QLineEdit *flag : {CmpExeFlagEdit, CmpCmpFlagEdit, CmpDefFlagEdit})
        flag->clear();
    CmpOrderListBox->clear();
    CmpOrderListBox->addItems(defaultOrder());
    ReduceFileSizeCheckBox->setChecked(false);
    for (QString *text :
         {&templatePersonalityFile, &forceIncludeFile, &substituteHeaders, &selectedCompilerName})
        text->clear();
}
