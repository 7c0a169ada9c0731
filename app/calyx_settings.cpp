#include "app/calyx.h"

#include "app/settings_text.h"
#include "generation/review.h"
#include "platform/text_file.h"

#include <QCheckBox>
#include <QLineEdit>
#include <QListWidget>
#include <QPushButton>
#include <QRadioButton>
#include <QTextEdit>
#include <algorithm>

namespace {

const QString settingsFile = QStringLiteral("settings.txt");

// The keys that the review does not have.
const QString exeTrailingSpace = QStringLiteral("Exe Trailing Space:");
const QString defTrailingSpace = QStringLiteral("Def Trailing Space:");
const QString selectedFamily = QStringLiteral("Selected Compiler Family:");
const QString selectedName = QStringLiteral("Selected Compiler Name:");
const QString templateFile = QStringLiteral("Template Personality File:");
const QString forceInclude = QStringLiteral("Force Include File:");
const QString substitutes = QStringLiteral("Substitute Headers:");
const QString familySet = QStringLiteral("Compiler Family Set:*");

QString locking(const QString &key)
{
    return key + QLatin1Char('*');
}

using Values = QStringList;
using Apply = std::function<void(Calyx &, const Values &)>;
using Widgets = QList<QWidget *>;
using Locked = std::function<Widgets(const Calyx &)>;

struct SettingsKey
{
    QString key;
    SettingsKind kind;
    Apply apply;
    Locked locked; ///< the widgets that it disables for the whole run, if any
};

Apply text(QLineEdit *CalyxBase::*edit)
{
    return [edit](Calyx &wizard, const Values &values) { (wizard.*edit)->setText(values[0]); };
}

Apply check(QCheckBox *CalyxBase::*box, const char *trueWord)
{
    return [=](Calyx &wizard, const Values &values) {
        (wizard.*box)->setChecked(values[0] == QLatin1String(trueWord));
    };
}

Apply rows(QListWidget *CalyxBase::*list)
{
    return [list](Calyx &wizard, const Values &values) {
        (wizard.*list)->clear();
        (wizard.*list)->addItems(values);
    };
}

Apply lines(QTextEdit *CalyxBase::*edit)
{
    return [edit](Calyx &wizard, const Values &values) {
        QString content;
        for (const QString &value : values)
            content += value + QLatin1Char('\n');
        (wizard.*edit)->setPlainText(content);
    };
}

QString entry(const QString &key, const QString &value)
{
    return key + QLatin1Char('\n') + value + QLatin1Char('\n');
}

QString entry(const QString &key, const QCheckBox *box)
{
    return entry(key, QLatin1String(box->isChecked() ? "yes" : "no"));
}

} // namespace

void Calyx::readSettings()
{
    const auto member = [](QString Calyx::*text) -> Apply {
        return [text](Calyx &wizard, const Values &values) { wizard.*text = values[0]; };
    };
    const Apply product = [](Calyx &wizard, const Values &values) {
        wizard.productCode = values[0];
        const bool isC = wizard.productCode == QLatin1String("kov");
        (isC ? wizard.KOVRadioButton : wizard.KOVPPRadioButton)->setChecked(true);
    };
    const Apply destination = text(&CalyxBase::PersonDestEdit);
    const Apply name = text(&CalyxBase::PersonNameEdit);
    const SettingsKind one = SettingsKind::Single, list = SettingsKind::List;
    const SettingsKey keys[] = {
        {reviewKeys::product, one, product, {}},
        {locking(reviewKeys::product), one, product,
         [](const Calyx &form) {
             return Widgets {form.KOVRadioButton, form.KOVPPRadioButton};
         }},
        {reviewKeys::destination, one, destination, {}},
        {locking(reviewKeys::destination), one, destination,
         [](const Calyx &form) {
             return Widgets {form.PersonDestEdit, form.PersonDestBrowseBtn};
         }},
        {reviewKeys::name, one, name, {}},
        {locking(reviewKeys::name), one, name,
         [](const Calyx &form) { return Widgets {form.PersonNameEdit}; }},
        {reviewKeys::command, one, text(&CalyxBase::CmpExeEdit), {}},
        {reviewKeys::crossCompiler, one, check(&CalyxBase::CrossCmpCheckBox, "Yes"), {}},
        {reviewKeys::outputFlag, one, text(&CalyxBase::CmpExeFlagEdit), {}},
        {reviewKeys::objectFlag, one, text(&CalyxBase::CmpCmpFlagEdit), {}},
        {reviewKeys::defineFlag, one, text(&CalyxBase::CmpDefFlagEdit), {}},
        {reviewKeys::objectExtension, one, text(&CalyxBase::CmpObjExtFlagEdit), {}},
        {reviewKeys::reduceFileSize, one, check(&CalyxBase::ReduceFileSizeCheckBox, "Yes"), {}},
        {reviewKeys::headerDirectories, list, rows(&CalyxBase::CmpHdrDirListBox), {}},
        {reviewKeys::defines, list, lines(&CalyxBase::CmpDefEdit), {}},
        {reviewKeys::switches, list, lines(&CalyxBase::CmpSwtchEdit), {}},
        {reviewKeys::order, list, rows(&CalyxBase::CmpOrderListBox), {}},
        {exeTrailingSpace, one, check(&CalyxBase::CmpExeFlagChkBox, "yes"), {}},
        {defTrailingSpace, one, check(&CalyxBase::CmpDefFlagChkBox, "yes"), {}},
        {selectedFamily, one, member(&Calyx::selectedCompilerFamily), {}},
        {selectedName, one, member(&Calyx::selectedCompilerName), {}},
        {templateFile, one, member(&Calyx::templatePersonalityFile), {}},
        {forceInclude, one, member(&Calyx::forceIncludeFile), {}},
        {substitutes, one, member(&Calyx::substituteHeaders), {}},
        {familySet, one, member(&Calyx::compilerFamilySet), {}},
    };
    const auto find = [&keys](const QString &key) -> const SettingsKey * {
        const auto found = std::find_if(std::begin(keys), std::end(keys),
                                        [&key](const SettingsKey &row) { return row.key == key; });
        return found == std::end(keys) ? nullptr : found;
    };
    const auto kindOf = [&find](const QString &key) {
        const SettingsKey *row = find(key);
        return row ? std::optional(row->kind) : std::nullopt;
    };
    const std::optional<QString> content = platform::readTextFile(settingsFile);
    for (const SettingsEntry &read : parseSettings(content.value_or(QString()), kindOf)) {
        const SettingsKey *row = find(read.key);
        row->apply(*this, read.values);
        for (QWidget *widget : row->locked ? row->locked(*this) : Widgets())
            widget->setEnabled(false);
    }
}

void Calyx::writeSettings()
{
    const QLatin1Char separator('\n');
    // What cannot be written is lost without a word; the run's result on the screen is what counts.
    platform::writeTextFile(settingsFile,
                            detailsText + entry(exeTrailingSpace, CmpExeFlagChkBox) + separator
                                + entry(defTrailingSpace, CmpDefFlagChkBox) + separator
                                + entry(selectedFamily, selectedCompilerFamily) + separator
                                + entry(selectedName, selectedCompilerName) + separator
                                + entry(templateFile, templatePersonalityFile) + separator
                                + entry(forceInclude, forceIncludeFile) + separator
                                + entry(substitutes, substituteHeaders));
}
