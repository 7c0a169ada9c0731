#include "calyx.h"

#include "colours.h"
#include "command_check.h"
#include "host_path.h"

#include <QCheckBox>
#include <QFileDialog>
#include <QFileInfo>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>

using namespace Qt::StringLiterals;

void Calyx::Page0LineEdit_textchanged(const QString &)
{
    const QString destination = PersonDestEdit->text();
    const bool exists =
        !destination.isEmpty() && QFileInfo::exists(platform::hostPath(destination));
    setForegroundColour(PersonDestEdit, exists ? Qt::black : Qt::red);
    PersonDestEdit->setToolTip(exists ? destToolTip : destMissingText);
    DestErrorLabel->setText(exists ? QString() : destMissingText);
    setNextEnabled(Page0, exists && !PersonNameEdit->text().isEmpty());
}

void Calyx::Page1LineEdit_textchanged(const QString &)
{
    commandValid = checkExeCommand();
    setNextEnabled(Page1, commandValid);
    // A command that has passed once opens the later pages for good.
    if (commandValid) {
        setNextEnabled(Page2, true);
        setNextEnabled(Page3, true);
    }
}

bool Calyx::checkExeCommand()
{
    const QString command = CmpExeEdit->text();
    if (command.isEmpty())
        return false;
    const CommandState state = checkCommand(command);
    const bool valid = state == CommandState::Valid;
    const QString problem = state == CommandState::NotOnPath ? cmdNotOnPathText : cmdSpecifyText;
    setForegroundColour(CmpExeEdit, valid ? Qt::black : Qt::red);
    CmpExeEdit->setToolTip(valid ? cmdToolTip : problem);
    CmpPathErrorLabel->setText(valid ? QString() : problem);
    return valid;
}

void Calyx::CrossCmpCheckBox_clicked()
{
    const bool cross = CrossCmpCheckBox->isChecked();
    if (cross) {
        CmpExeFlagEdit->clear();
        CmpExeFlagChkBox->setChecked(false);
    }
    CmpExeFlagEdit->setEnabled(!cross);
    CmpExeFlagChkBox->setEnabled(!cross);
}

QString Calyx::askForDirectory(const QString &start, const QString &caption)
{
    QFileDialog dialog(this, caption, platform::hostPath(start));
    dialog.setObjectName(u"get existing directory"_s);
    dialog.setFileMode(QFileDialog::Directory);
    dialog.setOption(QFileDialog::ShowDirsOnly);
    return dialog.exec() == QDialog::Accepted ? dialog.selectedFiles().value(0) : QString();
}

QString Calyx::normalisePath(QString path)
{
    return path.replace(u'/', u'\\');
}

void Calyx::CmpHdrDirAddBtn_clicked()
{
    const QString path = normalisePath(
        askForDirectory(lastDirectory, u"Select The Compiler Header File Directory"_s));
    if (path.isEmpty())
        return;
    CmpHdrDirListBox->addItem(path);
    lastDirectory = path;
}

void Calyx::CmpHdrDirEditBtn_clicked()
{
    QListWidgetItem *const row = CmpHdrDirListBox->currentItem();
    const QString path = normalisePath(askForDirectory(
        row ? row->text() : QString(), u"Select The Compiler Header File Directory"_s));
    if (path.isEmpty())
        return;
    if (row)
        row->setText(path);
    lastDirectory = path;
}

void Calyx::CmpHdrDirDeleteBtn_clicked()
{
    delete CmpHdrDirListBox->currentItem();
}

void Calyx::PersonDestBrowseBtn_clicked()
{
    const QString path = normalisePath(
        askForDirectory(lastDirectory, u"Select the Compiler Personality Destination Directory"_s));
    if (!path.isEmpty())
        lastDirectory = path;
    PersonDestEdit->setText(path);
}
