#include "save_compiler_details_base.h"

#include "colours.h"
#include "elided_widgets.h"
#include "form_table.h"
#include "picture.h"

#include <QButtonGroup>
#include <QCoreApplication>
#include <QGroupBox>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QRadioButton>

using namespace Qt::StringLiterals;

namespace {

#define ROW(member) FORM_WIDGET(SaveCompilerDetailsBase, member)
#define LIST(member) FORM_WIDGET_AS(SaveCompilerDetailsBase, member, ElidedComboBox)
#define MODE(member) FORM_WIDGET_AS(SaveCompilerDetailsBase, member, ModeButton)
#define GROUP(member) FORM_WIDGET_AS(SaveCompilerDetailsBase, member, WholeTitleGroupBox)

// Some desktops press buttons by Enter. One that is chosen cannot be pressed, and leaves Enter to
// the default button, as all do elsewhere: Enter saves when the dialog has just come.
class ModeButton : public QRadioButton
{
public:
    using QRadioButton::QRadioButton;

protected:
    void keyPressEvent(QKeyEvent *event) override
    {
        const bool isEnter = event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter;
        if (isEnter && isChecked())
            event->ignore();
        else
            QRadioButton::keyPressEvent(event);
    }
};

const WidgetRow<SaveCompilerDetailsBase> widgets[] = {
    {ROW(pixmapLabel3),
     {{5, 20, 532, 36}, SetUp::Plain, &SaveCompilerDetailsBase::bannerLeftImage}},
    {ROW(buttonOk), {{350, 380, 82, 26}, SetUp::WhiteBackground}},
    {ROW(buttonCancel), {{438, 380, 82, 26}, SetUp::WhiteBackground}},
    {GROUP(SaveNewGrpBox), {{20, 250, 500, 120}}},
    {ROW(textLabel1_3), {{10, 20, 90, 20}}, "SaveNewGrpBox"},
    {ROW(textLabel1_2_2), {{10, 60, 90, 20}}, "SaveNewGrpBox"},
    {ROW(textLabel1_2_2_2), {{10, 90, 90, 20}}, "SaveNewGrpBox"},
    {MODE(NewSaveRadioButton), {{10, -2, 16, 20}}, "SaveNewGrpBox"},
    {LIST(NewCmpFamComboBox), {{110, 20, 150, 21}, SetUp::Disabled}, "SaveNewGrpBox"},
    {ROW(NewCmpFamEdit), {{270, 20, 220, 25}, SetUp::Disabled}, "SaveNewGrpBox"},
    {LIST(NewCmpNameComboBox), {{110, 60, 150, 21}, SetUp::Disabled}, "SaveNewGrpBox"},
    {ROW(NewCmpNameEdit), {{270, 55, 220, 25}, SetUp::Disabled}, "SaveNewGrpBox"},
    {ROW(buttonGroup1), {{100, 90, 200, 20}, SetUp::Disabled}, "SaveNewGrpBox"},
    {ROW(CRadioButton), {{10, 0, 40, 20}, SetUp::Checked}, "buttonGroup1"},
    {ROW(CPPRadioButton), {{70, 0, 50, 20}}, "buttonGroup1"},
    {ROW(BothRadioButton), {{140, 0, 50, 20}}, "buttonGroup1"},
    {GROUP(SaveExstGrpBox), {{20, 160, 500, 80}}},
    {ROW(textLabel1), {{10, 20, 90, 20}}, "SaveExstGrpBox"},
    {ROW(textLabel1_2), {{10, 50, 90, 20}}, "SaveExstGrpBox"},
    {LIST(ExstCmpNameComboBox), {{110, 50, 150, 21}}, "SaveExstGrpBox"},
    {MODE(ExstSaveRadioButton), {{10, -2, 16, 20}, SetUp::Checked}, "SaveExstGrpBox"},
    {LIST(ExstCmpFamComboBox), {{110, 20, 150, 21}}, "SaveExstGrpBox"},
    {ROW(line1_2), {{526, 50, 20, 380}, SetUp::SeparatorLine}},
    {ROW(line1), {{-3, 50, 20, 380}, SetUp::SeparatorLine}},
    {ROW(pixmapLabel3_3),
     {{5, 429, 532, 20}, SetUp::Plain, &SaveCompilerDetailsBase::bandLeftImage}},
    {ROW(groupBox1_2), {{20, 60, 500, 90}}},
    {ROW(textLabel2_2), {{10, 5, 481, 80}, SetUp::Wrapped}, "groupBox1_2"},
};

// The titles leave room for the radio buttons that lie over their first spaces.
const TextRow texts[] = {
    {"buttonOk", "text", {QT_TRANSLATE_NOOP("SaveCompilerDetailsBase", "&OK")}},
    {"buttonCancel", "text", {QT_TRANSLATE_NOOP("SaveCompilerDetailsBase", "&Cancel")}},
    {"SaveNewGrpBox",
     "title",
     {QT_TRANSLATE_NOOP("SaveCompilerDetailsBase", "       Save As New   ")}},
    {"textLabel1_3", "text", {QT_TRANSLATE_NOOP("SaveCompilerDetailsBase", "Compiler Family")}},
    {"textLabel1_2_2", "text", {QT_TRANSLATE_NOOP("SaveCompilerDetailsBase", "Compiler Name")}},
    {"textLabel1_2_2_2", "text", {QT_TRANSLATE_NOOP("SaveCompilerDetailsBase", "Language")}},
    {"NewSaveRadioButton",
     "accessibleName",
     {QT_TRANSLATE_NOOP("SaveCompilerDetailsBase", "Save As New")}},
    {"NewCmpFamEdit",
     "toolTip",
     {QT_TRANSLATE_NOOP("SaveCompilerDetailsBase",
                        "Family of the compiler: one of the list, or a new one.")}},
    {"NewCmpNameEdit",
     "toolTip",
     {QT_TRANSLATE_NOOP("SaveCompilerDetailsBase",
                        "Name of the compiler without its language, which is added to it.")}},
    {"buttonGroup1", "toolTip", {QT_TRANSLATE_NOOP("SaveCompilerDetailsBase", "Select Product")}},
    {"CRadioButton", "text", {QT_TRANSLATE_NOOP("SaveCompilerDetailsBase", " C ")}},
    {"CPPRadioButton", "text", {QT_TRANSLATE_NOOP("SaveCompilerDetailsBase", " C++ ")}},
    {"BothRadioButton", "text", {QT_TRANSLATE_NOOP("SaveCompilerDetailsBase", " Both ")}},
    {"SaveExstGrpBox",
     "title",
     {QT_TRANSLATE_NOOP("SaveCompilerDetailsBase", "       Save Under Existing   ")}},
    {"textLabel1", "text", {QT_TRANSLATE_NOOP("SaveCompilerDetailsBase", "Compiler Family")}},
    {"textLabel1_2", "text", {QT_TRANSLATE_NOOP("SaveCompilerDetailsBase", "Compiler Name")}},
    {"ExstSaveRadioButton",
     "accessibleName",
     {QT_TRANSLATE_NOOP("SaveCompilerDetailsBase", "Save Under Existing")}},
    {"textLabel2_2",
     "text",
     {QT_TRANSLATE_NOOP(
         "SaveCompilerDetailsBase",
         "You can either overwirte the existing compiler selected from the list with any changes "
         "you have made to the options, defines or switches; or simply create a new entry in the "
         "compiler list. Note that if you select \"Save As New\" and leave the Compiler Name blank "
         "it will use the name \"C\" or \"C++\" depending on the language specified. You cannot "
         "leave the Compiler Name blank if you select Both. Any changes made to an existing "
         "compiler entry cannot be undone.")}},
};

const NameRow names[] = {
    {"ExstCmpFamComboBox", "textLabel1"},     {"ExstCmpNameComboBox", "textLabel1_2"},
    {"NewCmpFamComboBox", "textLabel1_3"},    {"NewCmpFamEdit", "textLabel1_3"},
    {"NewCmpNameComboBox", "textLabel1_2_2"}, {"NewCmpNameEdit", "textLabel1_2_2"},
};

const char *const tabStops[] = {
    "ExstSaveRadioButton", "ExstCmpFamComboBox", "ExstCmpNameComboBox", "NewSaveRadioButton",
    "NewCmpFamComboBox",   "NewCmpFamEdit",      "NewCmpNameComboBox",  "NewCmpNameEdit",
    "CRadioButton",        "CPPRadioButton",     "BothRadioButton",     "buttonOk",
    "buttonCancel",
};

} // namespace

SaveCompilerDetailsBase::SaveCompilerDetailsBase(QWidget *parent, const char *name, bool,
                                                 Qt::WindowFlags flags)
    : QDialog(parent, flags), iconImage(picture(u":/images/icon.png"_s)),
      bannerLeftImage(picture(u":/images/bannerLeft.xpm"_s)),
      bandLeftImage(picture(u":/images/bandLeft.xpm"_s))
{
    setObjectName(QLatin1String(name ? name : "SaveCompilerDetailsBase"));
    setPalette(formPalette());
    setWindowIcon(iconImage);
    setSizeGripEnabled(true);
    setModal(true);
    createWidgets(this, this, std::span<const WidgetRow<SaveCompilerDetailsBase>>(widgets));
    // Without a group of their own they would share one with NewSaveRadioButton, and of a group the
    // tab key reaches one button only.
    auto *languages = new QButtonGroup(this);
    for (QRadioButton *button : {CRadioButton, CPPRadioButton, BothRadioButton})
        languages->addButton(button);
    buttonOk->setDefault(true);
    languageChange();
    resize(QSize(547, 463).expandedTo(minimumSizeHint()));
    setTabStops(this, tabStops);
    // The toolkit would start with OK.
    ExstSaveRadioButton->setFocus();
}

void SaveCompilerDetailsBase::languageChange()
{
    setWindowTitle(QCoreApplication::translate("SaveCompilerDetailsBase", "Save Compiler Details"));
    setTexts(this, "SaveCompilerDetailsBase", texts);
    setNames(this, names);
    // Their texts mark a letter, which is to be no shortcut.
    for (QPushButton *button : {buttonOk, buttonCancel})
        button->setShortcut(QKeySequence());
    for (QComboBox *list : {NewCmpFamComboBox, NewCmpNameComboBox}) {
        list->clear();
        list->addItem(
            QCoreApplication::translate("SaveCompilerDetailsBase", "Select or Enter New ..."));
    }
}
