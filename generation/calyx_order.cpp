#include "app/calyx.h"
#include "generation/command_order.h"

#include <QCheckBox>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>

CompileCommand Calyx::compileCommand() const
{
    CompileCommand command;
    for (int row = 0; row < CmpOrderListBox->count(); ++row)
        command.order << CmpOrderListBox->item(row)->text();
    command.command = CmpExeEdit->text();
    command.outputFlag = CmpExeFlagEdit->text();
    command.spaceAfterOutputFlag = CmpExeFlagChkBox->isChecked();
    command.defineFlag = CmpDefFlagEdit->text();
    command.spaceAfterDefineFlag = CmpDefFlagChkBox->isChecked();
    command.objectFlag = CmpCmpFlagEdit->text();
    return command;
}

void Calyx::applyOrderString(const QString &order)
{
    const StoredOrder stored = parseOrderString(order);
    CmpOrderListBox->clear();
    CmpOrderListBox->addItems(stored.order);
    CmpDefFlagChkBox->setChecked(
        stored.spaceAfterDefineFlag.value_or(CmpDefFlagChkBox->isChecked()));
    CmpExeFlagChkBox->setChecked(
        stored.spaceAfterOutputFlag.value_or(CmpExeFlagChkBox->isChecked()));
}

void Calyx::updateCommandPreview()
{
    const QString preview = commandPreview(compileCommand());
    CmpCmdOrder->setText(preview);
    for (QLabel *label : {DefSwitchCompileCmdTxt, SearchCompileCmdTxt})
        label->setText(QLatin1String("Compile Command - ") + preview);
}

void Calyx::CmpExeFlagChkBox_clicked()
{
    updateCommandPreview();
}

void Calyx::CmpDefFlagChkBox_clicked()
{
    updateCommandPreview();
}

void Calyx::CmdOrderUpBtn_clicked()
{
    moveOrderItem(-1);
}

void Calyx::CmdOrderDwnBtn_clicked()
{
    moveOrderItem(1);
}

void Calyx::moveOrderItem(int distance)
{
    const int from = CmpOrderListBox->currentRow();
    const int to = from + distance;
    if (from < 0 || to < 0 || to >= CmpOrderListBox->count())
        return;
    CmpOrderListBox->insertItem(to, CmpOrderListBox->takeItem(from));
    CmpOrderListBox->setCurrentRow(to);
    updateCommandPreview();
}
