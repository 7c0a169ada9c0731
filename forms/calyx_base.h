#pragma once

#include "side_bar.h"
#include "stepped_wizard.h"

#include <QPixmap>

class LogBrowser;
class QCheckBox;
class QFrame;
class QGroupBox;
class QLabel;
class QLineEdit;
class QListWidget;
class QPushButton;
class QRadioButton;
class QTextEdit;

/// The wizard window: its five pages with every widget at a fixed place, every text and image.
/// It connects nothing and decides nothing.
///
/// The decoration of the pages (labels with images, separator lines, headings) is public like
/// every other widget. A side-bar button's prefix names its page: P0_, P1_ and P4_ are Page0, Page1
/// and Page4, but P3_ is Page2 and P2_ is Page3.
class CalyxBase : public SteppedWizard
{
    Q_OBJECT

public:
    explicit CalyxBase(QWidget *parent = nullptr, const char *name = nullptr, bool modal = false,
                       Qt::WindowFlags flags = {});

    QPixmap iconImage, logoImage, bannerLeftImage, bannerRightImage, bandLeftImage, bandRightImage;
    QPixmap productOffImage, compilerOffImage, searchOffImage, definesOffImage, reviewOffImage;
    QPixmap productOnImage, compilerOnImage, searchOnImage, definesOnImage, reviewOnImage;
    QPixmap kovLogoImage, kovppLogoImage, upArrowImage, downArrowImage;

    WizardPage *Page0;
    QFrame *line1_2_2_2, *line1_2_2, *line1, *line1_2, *buttonGroup1;
    QLabel *pixmapLabel5, *pixmapLabel3, *pixmapLabel3_2, *pixmapLabel3_3, *pixmapLabel3_3_2,
        *textLabel2, *textLabel1_3, *textLabel1, *textLabel1_2, *DestErrorLabel, *pixmapLabel4_2,
        *pixmapLabel4;
    QPushButton *P0_PrdctBtn, *P0_RevBtn, *P0_CmpBtn, *P0_DefBtn, *P0_SrchBtn, *PersonDestBrowseBtn;
    QLineEdit *PersonDestEdit, *PersonNameEdit;
    QGroupBox *groupBox1;
    QRadioButton *KOVRadioButton, *KOVPPRadioButton;

    WizardPage *Page1;
    QFrame *line1_2_2_3, *line1_3, *line1_2_2_2_2, *line1_2_3;
    QLabel *pixmapLabel5_2, *pixmapLabel3_4, *pixmapLabel3_2_2, *pixmapLabel3_3_3,
        *pixmapLabel3_3_2_2, *textLabel3_2, *textLabel3_2_2, *textLabel4_2_2_2, *textLabel4_2_2,
        *textLabel4_2, *textLabel2_2, *textLabel4_2_2_3, *CmpCmdOrder, *CmpPathErrorLabel;
    QPushButton *P1_PrdctBtn, *P1_CmpBtn, *P1_RevBtn, *CmdOrderUpBtn, *CmdOrderDwnBtn,
        *ExeCommandBtn, *P1_DefBtn, *P1_SrchBtn;
    QCheckBox *CmpExeFlagChkBox, *CrossCmpCheckBox, *CmpDefFlagChkBox, *ReduceFileSizeCheckBox;
    QLineEdit *CmpExeFlagEdit, *CmpDefFlagEdit, *CmpCmpFlagEdit, *CmpObjExtFlagEdit, *CmpExeEdit;
    QGroupBox *groupBox1_2;
    QListWidget *CmpOrderListBox;

    WizardPage *Page2;
    QLabel *textLabel3_3, *pixmapLabel5_4, *pixmapLabel3_4_2_2, *pixmapLabel3_2_2_2_2,
        *pixmapLabel3_3_3_2_2, *pixmapLabel3_3_2_2_2_2, *textLabel3, *SearchCompileCmdTxt,
        *textLabel2_2_2_2;
    QFrame *line1_2_2_5, *line1_2_5, *line1_5, *line1_2_2_2_4;
    QPushButton *P3_PrdctBtn, *P3_CmpBtn, *P3_RevBtn, *CmpHdrDirDeleteBtn, *CmpHdrDirEditBtn,
        *CmpHdrDirAddBtn, *P3_DefBtn, *P3_SrchBtn;
    QListWidget *CmpHdrDirListBox;
    QGroupBox *groupBox1_2_2_2;

    WizardPage *Page3;
    QLabel *textLabel3_3_2, *pixmapLabel5_3, *pixmapLabel3_4_2, *pixmapLabel3_2_2_2,
        *pixmapLabel3_3_3_2, *pixmapLabel3_3_2_2_2, *textLabel2_2_2, *DefSwitchCompileCmdTxt,
        *textLabel4_3, *textLabel4;
    QFrame *line1_2_2_4, *line1_2_4, *line1_4, *line1_2_2_2_3;
    QPushButton *P2_PrdctBtn, *P2_CmpBtn, *P2_RevBtn, *P2_DefBtn, *P2_SrchBtn;
    QGroupBox *groupBox1_2_2;
    QTextEdit *CmpSwtchEdit, *CmpDefEdit;

    WizardPage *Page4;
    QFrame *line1_2_6, *line1_2_2_6, *line1_6, *line1_2_2_2_5;
    QLabel *pixmapLabel5_5, *pixmapLabel3_4_2_3, *pixmapLabel3_2_2_2_3, *pixmapLabel3_3_3_2_3,
        *pixmapLabel3_3_2_2_2_3;
    QPushButton *SaveLogBtn, *P4_PrdctBtn, *P4_CmpBtn, *P4_RevBtn, *AddCompilerBtn, *P4_DefBtn,
        *P4_SrchBtn;
    LogBrowser *DetailsText;

    SideBar sideBar {*this};

protected slots:
    /// Sets every visible text, tool tip and accessible name, and restores the default command
    /// order.
    virtual void languageChange();

private:
    void createPages();
};
