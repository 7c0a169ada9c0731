#include "calyx_base.h"

#include "colours.h"
#include "elided_widgets.h"
#include "form_table.h"
#include "log_browser.h"
#include "order_tokens.h"
#include "picture.h"

#include <QCheckBox>
#include <QCoreApplication>
#include <QGroupBox>
#include <QIcon>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QPushButton>
#include <QRadioButton>
#include <QStyledItemDelegate>
#include <QTextEdit>

using namespace Qt::StringLiterals;

namespace {

#define ROW(member) FORM_WIDGET(CalyxBase, member)
#define ORDER(member) FORM_WIDGET_AS(CalyxBase, member, OrderList)
#define PREVIEW(member) FORM_WIDGET_AS(CalyxBase, member, ElidedLabel)

// The rows of the order list are compared with and stored as what they are called in English. What
// is painted is translated, and what is read out.
class OrderList : public QListWidget
{
public:
    explicit OrderList(QWidget *parent) : QListWidget(parent)
    {
        setItemDelegate(new ItemDelegate(this));
    }

protected:
    void rowsInserted(const QModelIndex &parent, int start, int end) override
    {
        for (int row = start; row <= end; ++row)
            item(row)->setData(Qt::AccessibleTextRole, translated(item(row)->text()));
        QListWidget::rowsInserted(parent, start, end);
    }

private:
    static QString translated(const QString &item)
    {
        return item.isEmpty() ? item : QCoreApplication::translate("CalyxBase", item.toUtf8());
    }

    class ItemDelegate : public QStyledItemDelegate
    {
    public:
        using QStyledItemDelegate::QStyledItemDelegate;

        QString displayText(const QVariant &value, const QLocale &) const override
        {
            return translated(value.toString());
        }
    };
};

using Place = Placement<CalyxBase>;

struct ImageFile
{
    QPixmap CalyxBase::*image;
    const char *name;
};

const ImageFile imageFiles[] = {
    {&CalyxBase::iconImage, "icon.png"},
    {&CalyxBase::logoImage, "logo.xpm"},
    {&CalyxBase::bannerLeftImage, "bannerLeft.xpm"},
    {&CalyxBase::bannerRightImage, "bannerRight.xpm"},
    {&CalyxBase::bandLeftImage, "bandLeft.xpm"},
    {&CalyxBase::bandRightImage, "bandRight.xpm"},
    {&CalyxBase::productOffImage, "productOff.xpm"},
    {&CalyxBase::compilerOffImage, "compilerOff.xpm"},
    {&CalyxBase::searchOffImage, "searchOff.xpm"},
    {&CalyxBase::definesOffImage, "definesOff.xpm"},
    {&CalyxBase::reviewOffImage, "reviewOff.xpm"},
    {&CalyxBase::productOnImage, "productOn.xpm"},
    {&CalyxBase::compilerOnImage, "compilerOn.xpm"},
    {&CalyxBase::searchOnImage, "searchOn.xpm"},
    {&CalyxBase::definesOnImage, "definesOn.xpm"},
    {&CalyxBase::reviewOnImage, "reviewOn.xpm"},
    {&CalyxBase::kovLogoImage, "kovLogo.xpm"},
    {&CalyxBase::kovppLogoImage, "kovppLogo.xpm"},
    {&CalyxBase::upArrowImage, "upArrow.xpm"},
    {&CalyxBase::downArrowImage, "downArrow.xpm"},
};

// The decoration, which every page repeats.
const Place bannerLeft {{0, 0, 532, 36}, SetUp::Plain, &CalyxBase::bannerLeftImage};
const Place bannerRight {{540, 0, 217, 32}, SetUp::Plain, &CalyxBase::bannerRightImage};
const Place bandLeft {{0, 360, 532, 20}, SetUp::Plain, &CalyxBase::bandLeftImage};
const Place bandRight {{539, 360, 220, 20}, SetUp::Plain, &CalyxBase::bandRightImage};
const Place logo {{562, 298, 169, 54}, SetUp::Plain, &CalyxBase::logoImage};
const Place lineAtLeftEdge {{-8, 36, 20, 324}, SetUp::SeparatorLine};
const Place lineLeftOfSideBar {{521, 36, 20, 324}, SetUp::SeparatorLine};
const Place lineRightOfContent {{532, 32, 20, 328}, SetUp::SeparatorLine};
const Place lineAtRightEdge {{746, 32, 20, 328}, SetUp::SeparatorLine};

/// The place of a button of the side bar; it is given its image together with the others.
Place sideBarButton(int step)
{
    return {QRect(560, 40 + 40 * step, 190, 31),
            SetUp::Flat | SetUp::WhiteBackground | SetUp::MouseTracking};
}

const WidgetRow<CalyxBase> page0Widgets[] = {
    {ROW(line1_2_2_2), lineAtRightEdge},
    {ROW(pixmapLabel5), logo},
    {ROW(line1_2_2), lineRightOfContent},
    {ROW(pixmapLabel3), bannerLeft},
    {ROW(pixmapLabel3_2), bannerRight},
    {ROW(pixmapLabel3_3), bandLeft},
    {ROW(pixmapLabel3_3_2), bandRight},
    {ROW(P0_PrdctBtn), sideBarButton(0)},
    {ROW(P0_RevBtn), sideBarButton(4)},
    {ROW(line1), lineAtLeftEdge},
    {ROW(PersonDestEdit), {{150, 272, 290, 25}}},
    {ROW(PersonNameEdit), {{150, 310, 290, 25}}},
    {ROW(line1_2), lineLeftOfSideBar},
    {ROW(groupBox1), {{20, 40, 500, 120}}},
    {ROW(textLabel2), {{10, 40, 481, 75}, SetUp::Wrapped}, "groupBox1"},
    {ROW(textLabel1_3), {{10, 10, 461, 21}, SetUp::Welcome}, "groupBox1"},
    {ROW(textLabel1), {{20, 272, 125, 20}}},
    {ROW(textLabel1_2), {{20, 310, 125, 20}}},
    {ROW(P0_CmpBtn), sideBarButton(1)},
    {ROW(P0_DefBtn), sideBarButton(3)},
    {ROW(P0_SrchBtn), sideBarButton(2)},
    {ROW(DestErrorLabel),
     {{150, 340, 370, 16}, SetUp::ErrorText | SetUp::Wrapped | SetUp::LiteralText}},
    {ROW(buttonGroup1), {{60, 200, 390, 20}}},
    {ROW(KOVRadioButton), {{20, 0, 16, 20}, SetUp::Checked}, "buttonGroup1"},
    {ROW(KOVPPRadioButton), {{230, 0, 16, 20}}, "buttonGroup1"},
    {ROW(pixmapLabel4_2), {{310, 180, 165, 65}, SetUp::Plain, &CalyxBase::kovppLogoImage}},
    {ROW(pixmapLabel4), {{100, 180, 134, 66}, SetUp::Plain, &CalyxBase::kovLogoImage}},
    {ROW(PersonDestBrowseBtn), {{448, 273, 75, 25}, SetUp::WhiteBackground}},
};

const WidgetRow<CalyxBase> page1Widgets[] = {
    {ROW(line1_2_2_3), lineRightOfContent},
    {ROW(line1_3), lineAtLeftEdge},
    {ROW(line1_2_2_2_2), lineAtRightEdge},
    {ROW(pixmapLabel5_2), logo},
    {ROW(P1_PrdctBtn), sideBarButton(0)},
    {ROW(P1_CmpBtn), sideBarButton(1)},
    {ROW(P1_RevBtn), sideBarButton(4)},
    {ROW(pixmapLabel3_4), bannerLeft},
    {ROW(pixmapLabel3_2_2), bannerRight},
    {ROW(pixmapLabel3_3_3), bandLeft},
    {ROW(pixmapLabel3_3_2_2), bandRight},
    {ROW(line1_2_3), lineLeftOfSideBar},
    {ROW(CmdOrderUpBtn),
     {{445, 196, 20, 20}, SetUp::Flat | SetUp::WhiteBackground, &CalyxBase::upArrowImage}},
    {ROW(textLabel3_2), {{324, 150, 170, 20}}},
    {ROW(textLabel3_2_2), {{190, 150, 80, 20}}},
    {ROW(textLabel4_2_2_2), {{30, 210, 100, 40}, SetUp::TopAligned}},
    {ROW(CmpExeFlagChkBox), {{214, 172, 20, 20}}},
    {ROW(CmdOrderDwnBtn),
     {{445, 220, 20, 20}, SetUp::Flat | SetUp::WhiteBackground, &CalyxBase::downArrowImage}},
    {ROW(textLabel4_2_2), {{30, 250, 100, 40}, SetUp::TopAligned}},
    {ROW(CmpExeFlagEdit), {{130, 170, 50, 25}}},
    {ROW(CmpDefFlagEdit), {{130, 210, 50, 25}}},
    {ROW(CmpCmpFlagEdit), {{130, 250, 50, 25}}},
    {ROW(CmpObjExtFlagEdit), {{130, 290, 50, 25}}},
    {ROW(textLabel4_2), {{30, 170, 100, 40}, SetUp::TopAligned}},
    {ROW(CmpExeEdit), {{140, 117, 280, 25}}},
    {ROW(ExeCommandBtn), {{24, 119, 110, 23}, SetUp::WhiteBackground}},
    {ROW(CrossCmpCheckBox), {{430, 119, 100, 20}}},
    {ROW(groupBox1_2), {{20, 40, 500, 65}}},
    {ROW(textLabel2_2), {{10, 5, 481, 55}, SetUp::Wrapped}, "groupBox1_2"},
    {ROW(textLabel4_2_2_3), {{30, 290, 100, 40}, SetUp::TopAligned}},
    {ROW(P1_DefBtn), sideBarButton(3)},
    {ROW(P1_SrchBtn), sideBarButton(2)},
    {ORDER(CmpOrderListBox), {{320, 170, 120, 120}}},
    {ROW(CmpDefFlagChkBox), {{214, 212, 20, 20}}},
    {ROW(ReduceFileSizeCheckBox), {{214, 295, 100, 20}}},
    {PREVIEW(CmpCmdOrder), {{20, 335, 330, 20}, SetUp::Italic | SetUp::LiteralText}},
    {ROW(CmpPathErrorLabel),
     {{360, 300, 160, 56}, SetUp::ErrorText | SetUp::Wrapped | SetUp::LiteralText}},
};

const WidgetRow<CalyxBase> page2Widgets[] = {
    {ROW(textLabel3_3), {{10, 20, 420, 20}}},
    {ROW(line1_2_2_5), lineRightOfContent},
    {ROW(line1_2_5), lineLeftOfSideBar},
    {ROW(line1_5), lineAtLeftEdge},
    {ROW(line1_2_2_2_4), lineAtRightEdge},
    {ROW(pixmapLabel5_4), logo},
    {ROW(P3_PrdctBtn), sideBarButton(0)},
    {ROW(P3_CmpBtn), sideBarButton(1)},
    {ROW(P3_RevBtn), sideBarButton(4)},
    {ROW(pixmapLabel3_4_2_2), bannerLeft},
    {ROW(pixmapLabel3_2_2_2_2), bannerRight},
    {ROW(pixmapLabel3_3_3_2_2), bandLeft},
    {ROW(pixmapLabel3_3_2_2_2_2), bandRight},
    {ROW(textLabel3), {{20, 180, 220, 20}}},
    {ROW(CmpHdrDirDeleteBtn), {{365, 288, 75, 25}, SetUp::WhiteBackground}},
    {ROW(CmpHdrDirEditBtn), {{365, 258, 75, 25}, SetUp::WhiteBackground}},
    {ROW(CmpHdrDirAddBtn), {{365, 228, 75, 25}, SetUp::WhiteBackground}},
    {ROW(CmpHdrDirListBox), {{20, 200, 340, 140}}},
    {PREVIEW(SearchCompileCmdTxt), {{20, 155, 500, 20}, SetUp::LiteralText}},
    {ROW(groupBox1_2_2_2), {{20, 40, 500, 90}}},
    {ROW(textLabel2_2_2_2), {{10, 5, 481, 60}, SetUp::Wrapped}, "groupBox1_2_2_2"},
    {ROW(P3_DefBtn), sideBarButton(3)},
    {ROW(P3_SrchBtn), sideBarButton(2)},
};

const WidgetRow<CalyxBase> page3Widgets[] = {
    {ROW(textLabel3_3_2), {{10, 20, 420, 20}}},
    {ROW(line1_2_2_4), lineRightOfContent},
    {ROW(line1_2_4), lineLeftOfSideBar},
    {ROW(line1_4), lineAtLeftEdge},
    {ROW(line1_2_2_2_3), lineAtRightEdge},
    {ROW(pixmapLabel5_3), logo},
    {ROW(P2_PrdctBtn), sideBarButton(0)},
    {ROW(P2_CmpBtn), sideBarButton(1)},
    {ROW(P2_RevBtn), sideBarButton(4)},
    {ROW(pixmapLabel3_4_2), bannerLeft},
    {ROW(pixmapLabel3_2_2_2), bannerRight},
    {ROW(pixmapLabel3_3_3_2), bandLeft},
    {ROW(pixmapLabel3_3_2_2_2), bandRight},
    {ROW(groupBox1_2_2), {{20, 40, 500, 55}}},
    {ROW(textLabel2_2_2), {{10, 5, 481, 45}, SetUp::Wrapped}, "groupBox1_2_2"},
    {PREVIEW(DefSwitchCompileCmdTxt), {{20, 100, 500, 20}, SetUp::LiteralText}},
    {ROW(P2_DefBtn), sideBarButton(3)},
    {ROW(P2_SrchBtn), sideBarButton(2)},
    {ROW(textLabel4_3), {{20, 125, 210, 20}}},
    {ROW(CmpSwtchEdit), {{20, 145, 340, 90}}},
    {ROW(textLabel4), {{20, 237, 210, 20}}},
    {ROW(CmpDefEdit), {{20, 257, 340, 90}}},
};

const WidgetRow<CalyxBase> page4Widgets[] = {
    {ROW(line1_2_6), lineLeftOfSideBar},
    {ROW(line1_2_2_6), lineRightOfContent},
    {ROW(line1_6), lineAtLeftEdge},
    {ROW(line1_2_2_2_5), lineAtRightEdge},
    {ROW(pixmapLabel5_5), logo},
    {ROW(SaveLogBtn), {{420, 320, 100, 31}, SetUp::WhiteBackground | SetUp::Disabled}},
    {ROW(DetailsText), {{20, 40, 390, 310}}},
    {ROW(P4_PrdctBtn), sideBarButton(0)},
    {ROW(P4_CmpBtn), sideBarButton(1)},
    {ROW(P4_RevBtn), sideBarButton(4)},
    {ROW(pixmapLabel3_4_2_3), bannerLeft},
    {ROW(pixmapLabel3_2_2_2_3), bannerRight},
    {ROW(pixmapLabel3_3_3_2_3), bandLeft},
    {ROW(pixmapLabel3_3_2_2_2_3), bandRight},
    {ROW(AddCompilerBtn), {{420, 280, 100, 31}, SetUp::WhiteBackground | SetUp::Disabled}},
    {ROW(P4_DefBtn), sideBarButton(3)},
    {ROW(P4_SrchBtn), sideBarButton(2)},
};

struct Page
{
    WizardPage *CalyxBase::*page;
    const char *name;
    std::span<const WidgetRow<CalyxBase>> widgets;
};

const Page pages[] = {
    {&CalyxBase::Page0, "Page0", page0Widgets}, {&CalyxBase::Page1, "Page1", page1Widgets},
    {&CalyxBase::Page2, "Page2", page2Widgets}, {&CalyxBase::Page3, "Page3", page3Widgets},
    {&CalyxBase::Page4, "Page4", page4Widgets},
};

const TextRow texts[] = {
    {"textLabel1_3", "text", {QT_TRANSLATE_NOOP("CalyxBase", "Welcome to the Vantor :: Calyx")}},
    {"textLabel2",
     "text",
     {QT_TRANSLATE_NOOP(
         "CalyxBase",
         "This wizard will take you through the configuration required to automatically generate "
         "your compiler personality. Before we begin, it is best if your compiler is on your PATH, "
         "you have identified the executable that runs your compiler from the command line and "
         "you have write permissions to the outut directory you wish to specify. To begin, simply "
         "select the product in question and provide the output directory and personality name "
         "you wish to use.")}},
    {"textLabel1", "text", {QT_TRANSLATE_NOOP("CalyxBase", "Personality Destination")}},
    {"textLabel1_2", "text", {QT_TRANSLATE_NOOP("CalyxBase", "Personality Name")}},
    {"PersonDestBrowseBtn", "text", {QT_TRANSLATE_NOOP("CalyxBase", "Browse")}},
    {"PersonDestEdit", "toolTip",
     QT_TRANSLATE_NOOP3("CalyxBase", "Destination folder for the Personality.",
                        "Destination folder for the KOV/KOV++ project.")},
    {"PersonNameEdit",
     "toolTip",
     {QT_TRANSLATE_NOOP("CalyxBase",
                        "Name of the Personality; the extension .p_c is added to it.")}},
    {"buttonGroup1", "toolTip", {QT_TRANSLATE_NOOP("CalyxBase", "Select Product")}},
    {"KOVRadioButton", "accessibleName", {QT_TRANSLATE_NOOP("CalyxBase", "KOV")}},
    {"KOVPPRadioButton", "accessibleName", {QT_TRANSLATE_NOOP("CalyxBase", "KOV++")}},
    {"DestErrorLabel", "text", {""}},

    {"ExeCommandBtn", "text", {QT_TRANSLATE_NOOP("CalyxBase", "Exe Command")}},
    {"CrossCmpCheckBox", "text", {QT_TRANSLATE_NOOP("CalyxBase", "Cross Compiler")}},
    {"textLabel2_2",
     "text",
     {QT_TRANSLATE_NOOP(
         "CalyxBase",
         "Please select your compiler from the drop down menu (Exe Command button), or if the "
         "compiler is not in the list, complete the options including the command to invoke the "
         "compiler. Please note, it is important to specify whether your compiler will produce an "
         "executable binary on this host or not (cross compiler). Reduce File Size avoids compiler "
         "buffer overruns on small embedded compilers.")}},
    {"textLabel3_2_2", "text", {QT_TRANSLATE_NOOP("CalyxBase", "Trailing Space")}},
    {"textLabel3_2", "text", {QT_TRANSLATE_NOOP("CalyxBase", "Compile Command Order ")}},
    {"textLabel4_2", "text", {QT_TRANSLATE_NOOP("CalyxBase", "Output Flag\n(e.g. -o | -e)")}},
    {"textLabel4_2_2_2", "text", {QT_TRANSLATE_NOOP("CalyxBase", "Define Flag\n(e.g. -d)")}},
    {"textLabel4_2_2", "text", {QT_TRANSLATE_NOOP("CalyxBase", "Object Flag\n(e.g. -c)")}},
    {"textLabel4_2_2_3", "text", {QT_TRANSLATE_NOOP("CalyxBase", "Object File Ext\n(e.g. .obj)")}},
    {"ReduceFileSizeCheckBox", "text", {QT_TRANSLATE_NOOP("CalyxBase", "Reduce file size")}},
    {"CmpCmdOrder", "text", {QT_TRANSLATE_NOOP("CalyxBase", "          <exe> <src>")}},
    {"CmpExeEdit", "toolTip",
     QT_TRANSLATE_NOOP3(
         "CalyxBase", "Specify the command required to invoke the compiler from the command line.",
         "Location of CodeWarrior install directory.")},
    {"CmpExeFlagEdit", "toolTip",
     QT_TRANSLATE_NOOP3(
         "CalyxBase",
         "Specify the flag used by the compiler to denote executable output to a file.",
         "Name of the KOV/KOV++ project.")},
    {"CmpDefFlagEdit", "toolTip",
     QT_TRANSLATE_NOOP3(
         "CalyxBase",
         "Specify the flag used by the compiler to define a macro/define on the command line.",
         "Name of the KOV/KOV++ project.")},
    {"CmpCmpFlagEdit", "toolTip",
     QT_TRANSLATE_NOOP3(
         "CalyxBase",
         "Specify the flag used by the compiler to produce (and leave behind) an object file",
         "Name of the KOV/KOV++ project.")},
    {"CmpObjExtFlagEdit", "toolTip",
     QT_TRANSLATE_NOOP3("CalyxBase",
                        "Specify the extension of the object file produced by the compiler",
                        "Name of the KOV/KOV++ project.")},
    {"CmpOrderListBox",
     "toolTip",
     {QT_TRANSLATE_NOOP("CalyxBase", "Specify the order of the flags specified to the compile.")}},
    {"CmdOrderUpBtn", "accessibleName", {QT_TRANSLATE_NOOP("CalyxBase", "Move up")}},
    {"CmdOrderDwnBtn", "accessibleName", {QT_TRANSLATE_NOOP("CalyxBase", "Move down")}},
    {"CmpPathErrorLabel", "text", {""}},

    {"textLabel3_3", "text", {QT_TRANSLATE_NOOP("CalyxBase", "Compile Command - ")}},
    {"textLabel3", "text", {QT_TRANSLATE_NOOP("CalyxBase", "Search Directories")}},
    {"CmpHdrDirDeleteBtn", "text", {QT_TRANSLATE_NOOP("CalyxBase", "Delete")}},
    {"CmpHdrDirEditBtn", "text", {QT_TRANSLATE_NOOP("CalyxBase", "Edit")}},
    {"CmpHdrDirAddBtn", "text", {QT_TRANSLATE_NOOP("CalyxBase", "Add")}},
    {"SearchCompileCmdTxt", "text", {QT_TRANSLATE_NOOP("CalyxBase", "Compile Command - ")}},
    {"textLabel2_2_2_2",
     "text",
     {QT_TRANSLATE_NOOP(
         "CalyxBase",
         "Please specify the starting level directories that contain compiler include files and "
         "compiler binary files. The generator will recurse into these directories checking for "
         "whether they are on the compile path, and extracting defines and keywords. Please note "
         "that because the generator recurses, do not specify \"<font face=\"Courier "
         "New\">C:/</font>\" or \"<font face=\"Courier New\">/usr</font>\" as a directory.")}},
    {"CmpHdrDirListBox",
     "toolTip",
     {QT_TRANSLATE_NOOP(
         "CalyxBase",
         "Specify the starting level directories for all system includes (note sub directories "
         "are not required to be listed).")}},

    {"textLabel3_3_2", "text", {QT_TRANSLATE_NOOP("CalyxBase", "Compile Command - ")}},
    {"textLabel2_2_2",
     "text",
     {QT_TRANSLATE_NOOP(
         "CalyxBase",
         "Please specify any compiler switches or implicit defines that would effect the nature of "
         "the compilation and/or pre-processing of the system header files. Enter these values as "
         "comma or line delimted (eg ONE,TWO=2, THREE=3).")}},
    {"DefSwitchCompileCmdTxt", "text", {QT_TRANSLATE_NOOP("CalyxBase", "Compile Command - ")}},
    {"textLabel4_3", "text", {QT_TRANSLATE_NOOP("CalyxBase", "External Compiler Switches")}},
    {"textLabel4", "text", {QT_TRANSLATE_NOOP("CalyxBase", "Implicit Compiler Defines")}},
    {"CmpSwtchEdit",
     "toolTip",
     {QT_TRANSLATE_NOOP(
         "CalyxBase",
         "Specify all compiler switches that could affect/determine compilation of test files.")}},
    {"CmpDefEdit",
     "toolTip",
     {QT_TRANSLATE_NOOP("CalyxBase",
                        "Specify all compiler defines external to the header files that could "
                        "affect/determine compilation of test files.")}},

    {"DetailsText", "accessibleName", {QT_TRANSLATE_NOOP("CalyxBase", "Review")}},
    {"SaveLogBtn", "text", {QT_TRANSLATE_NOOP("CalyxBase", "Save Log")}},
    {"AddCompilerBtn", "text", {QT_TRANSLATE_NOOP("CalyxBase", "Save Compiler")}},
};

const NameRow names[] = {
    {"PersonDestEdit", "textLabel1"},
    {"PersonNameEdit", "textLabel1_2"},
    {"CmpExeEdit", "ExeCommandBtn"},
    {"CmpExeFlagEdit", "textLabel4_2"},
    {"CmpExeFlagChkBox", "textLabel4_2", "textLabel3_2_2"},
    {"CmpDefFlagEdit", "textLabel4_2_2_2"},
    {"CmpDefFlagChkBox", "textLabel4_2_2_2", "textLabel3_2_2"},
    {"CmpCmpFlagEdit", "textLabel4_2_2"},
    {"CmpObjExtFlagEdit", "textLabel4_2_2_3"},
    {"CmpOrderListBox", "textLabel3_2"},
    {"CmpHdrDirListBox", "textLabel3"},
    {"CmpSwtchEdit", "textLabel4_3"},
    {"CmpDefEdit", "textLabel4"},
};

const char *const tabStops[] = {
    "KOVPPRadioButton", // Tab stops at the chosen one of the two, and goes on to the same widget
    "KOVRadioButton",
    "PersonDestEdit",
    "PersonDestBrowseBtn",
    "PersonNameEdit",
    "P0_PrdctBtn",
    "P0_CmpBtn",
    "P0_SrchBtn",
    "P0_DefBtn",
    "P0_RevBtn",
    "ExeCommandBtn",
    "CmpExeEdit",
    "CrossCmpCheckBox",
    "CmpExeFlagEdit",
    "CmpExeFlagChkBox",
    "CmpDefFlagEdit",
    "CmpDefFlagChkBox",
    "CmpCmpFlagEdit",
    "CmpObjExtFlagEdit",
    "ReduceFileSizeCheckBox",
    "CmpOrderListBox",
    "CmdOrderUpBtn",
    "CmdOrderDwnBtn",
    "P1_PrdctBtn",
    "P1_CmpBtn",
    "P1_SrchBtn",
    "P1_DefBtn",
    "P1_RevBtn",
    "CmpHdrDirListBox",
    "CmpHdrDirAddBtn",
    "CmpHdrDirEditBtn",
    "CmpHdrDirDeleteBtn",
    "P3_PrdctBtn",
    "P3_CmpBtn",
    "P3_SrchBtn",
    "P3_DefBtn",
    "P3_RevBtn",
    "CmpSwtchEdit",
    "CmpDefEdit",
    "P2_PrdctBtn",
    "P2_CmpBtn",
    "P2_SrchBtn",
    "P2_DefBtn",
    "P2_RevBtn",
    "DetailsText",
    "AddCompilerBtn",
    "SaveLogBtn",
    "P4_PrdctBtn",
    "P4_CmpBtn",
    "P4_SrchBtn",
    "P4_DefBtn",
    "P4_RevBtn",
};

} // namespace

CalyxBase::CalyxBase(QWidget *parent, const char *name, bool modal, Qt::WindowFlags flags)
    : SteppedWizard(parent, flags)
{
    for (const ImageFile &file : imageFiles)
        this->*file.image = picture(u":/images/"_s + QLatin1String(file.name));
    setObjectName(QLatin1String(name ? name : "CalyxBase"));
    setModal(modal);
    setPalette(formPalette());
    setWindowIcon(iconImage);

    createPages();
    languageChange();
    resize(QSize(768, 455).expandedTo(minimumSizeHint()));
    setTabStops(this, tabStops);
    // The first page is current before the window is shown, so that showing it does not go back
    // there once another page has been chosen.
    restart();
}

void CalyxBase::createPages()
{
    for (const Page &row : pages) {
        auto *page = new WizardPage(this);
        this->*row.page = page;
        page->setObjectName(QLatin1String(row.name));
        page->setMinimumSize(760, 380);
        createWidgets(this, page, row.widgets);
        addPage(page);
    }
    sideBar.showBuiltInImages();
    Page4->setComplete(false);
    for (QTextEdit *edit : {CmpSwtchEdit, CmpDefEdit}) {
        edit->setAcceptRichText(false);
        edit->setTabChangesFocus(true);
    }
}

void CalyxBase::languageChange()
{
    setWindowTitle(QCoreApplication::translate("CalyxBase", "Calyx " CALYX_VERSION));
    setTexts(this, "CalyxBase", texts);
    setNames(this, names);
    CmpOrderListBox->clear();
    for (const CommandPartName &part : commandPartNames)
        CmpOrderListBox->addItem(QLatin1String(part.name));
    sideBar.setTexts();
    for (QPushButton *button : {SaveLogBtn, AddCompilerBtn})
        button->setShortcut(QKeySequence());
    for (const Page &row : pages)
        (this->*row.page)->setTitle(QString());
}
