#pragma once

#include <QDialog>
#include <QPixmap>

class QComboBox;
class QFrame;
class QGroupBox;
class QLabel;
class QLineEdit;
class QPushButton;
class QRadioButton;

/// The dialog that asks under which family and name a compiler is saved: every widget at a fixed
/// place, every text and image. It connects nothing and decides nothing.
class SaveCompilerDetailsBase : public QDialog
{
    Q_OBJECT

public:
    explicit SaveCompilerDetailsBase(QWidget *parent = nullptr, const char *name = nullptr,
                                     bool modal = false, Qt::WindowFlags flags = {});

    QPixmap iconImage, bannerLeftImage, bandLeftImage;

    QLabel *pixmapLabel3, *pixmapLabel3_3, *textLabel2_2;
    QFrame *line1, *line1_2;
    QGroupBox *groupBox1_2;
    QPushButton *buttonOk, *buttonCancel;

    QGroupBox *SaveExstGrpBox;
    QLabel *textLabel1, *textLabel1_2;
    QRadioButton *ExstSaveRadioButton;
    QComboBox *ExstCmpFamComboBox, *ExstCmpNameComboBox;

    QGroupBox *SaveNewGrpBox;
    QLabel *textLabel1_3, *textLabel1_2_2, *textLabel1_2_2_2;
    QRadioButton *NewSaveRadioButton;
    QComboBox *NewCmpFamComboBox, *NewCmpNameComboBox;
    QLineEdit *NewCmpFamEdit, *NewCmpNameEdit;
    QFrame *buttonGroup1;
    QRadioButton *CRadioButton, *CPPRadioButton, *BothRadioButton;

protected slots:
    /// Sets every visible text and tool tip, and empties the lists of the new entry down to their
    /// first item.
    virtual void languageChange();
};
