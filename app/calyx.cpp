#include "calyx.h"

#include "form_answers.h"

#include <QAbstractButton>
#include <QApplication>
#include <QCheckBox>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QRadioButton>
#include <algorithm>

using namespace Qt::StringLiterals;

Calyx::Calyx(QWidget *parent, const char *name, bool modal, Qt::WindowFlags flags)
    : CalyxBase(parent, name, modal, flags), lastDirectory(u"\\"_s),
      destToolTip(QObject::tr("Destination folder for the Personality.")),
      destMissingText(
          QObject::tr("Destination folder does not exist please select a different folder.")),
      cmdToolTip(QObject::tr(
          "Specify the command required to invoke the compiler from the command line.")),
      cmdNotOnPathText(QObject::tr("Command specified is not on the path, please amend the path or "
                                   "fully qualify this command.")),
      cmdSpecifyText(QObject::tr("Please complete the command as per the <specify> entries."))
{
    for (WizardPage *page : {Page0, Page1, Page2, Page3})
        setNextEnabled(page, false);
    setOption(QWizard::HaveHelpButton, false);
    // Message boxes have no window of their own to take it from.
    QApplication::setWindowIcon(iconImage);
    // reject() tells by this text whether a personality has been generated.
    setButtonText(QWizard::CancelButton, tr("Cancel"));
    connectWidgets();
    installFilters();

    readSettings();
    loadCatalogue();
    exeCommandMenu.setStyle(style());
    showCatalogue();
    updateCommandPreview();
    checkExeCommand();

    const QPalette white(Qt::white, Qt::white);
    exeCommandMenu.setPalette(white);
    for (const WizardButton which : {NextButton, BackButton, CancelButton, FinishButton})
        button(which)->setPalette(white);
    sideBar.loadImages();

    const QWidget *const product[] = {KOVRadioButton, KOVPPRadioButton, PersonDestEdit,
                                      PersonNameEdit};
    const auto isLocked = [](const QWidget *widget) { return !widget->isEnabled(); };
    if (std::all_of(std::begin(product), std::end(product), isLocked))
        P0_CmpBtn_clicked();
    // Nobody has typed yet, so nothing is pointed out as wrong.
    CmpPathErrorLabel->clear();
    DestErrorLabel->clear();
}

void Calyx::connectWidgets()
{
    for (QRadioButton *button : {KOVRadioButton, KOVPPRadioButton})
        connect(button, &QRadioButton::clicked, this, &Calyx::ProductRadioBtn_clicked);
    connect(PersonDestBrowseBtn, &QPushButton::clicked, this, &Calyx::PersonDestBrowseBtn_clicked);
    for (QLineEdit *edit : {PersonDestEdit, PersonNameEdit})
        connect(edit, &QLineEdit::textChanged, this, &Calyx::Page0LineEdit_textchanged);
    connect(CmpExeEdit, &QLineEdit::textChanged, this, &Calyx::Page1LineEdit_textchanged);
    connect(CrossCmpCheckBox, &QCheckBox::clicked, this, &Calyx::CrossCmpCheckBox_clicked);
    connect(CmpExeFlagChkBox, &QCheckBox::clicked, this, &Calyx::CmpExeFlagChkBox_clicked);
    connect(CmpDefFlagChkBox, &QCheckBox::clicked, this, &Calyx::CmpDefFlagChkBox_clicked);
    connect(CmdOrderUpBtn, &QPushButton::clicked, this, &Calyx::CmdOrderUpBtn_clicked);
    connect(CmdOrderDwnBtn, &QPushButton::clicked, this, &Calyx::CmdOrderDwnBtn_clicked);
    connect(CmpHdrDirAddBtn, &QPushButton::clicked, this, &Calyx::CmpHdrDirAddBtn_clicked);
    connect(CmpHdrDirEditBtn, &QPushButton::clicked, this, &Calyx::CmpHdrDirEditBtn_clicked);
    connect(CmpHdrDirDeleteBtn, &QPushButton::clicked, this, &Calyx::CmpHdrDirDeleteBtn_clicked);
    connect(AddCompilerBtn, &QPushButton::clicked, this, &Calyx::AddCompilerBtn_clicked);
    connect(SaveLogBtn, &QPushButton::clicked, this, &Calyx::SaveLogBtn_clicked);
    connectSideBar();
}

void Calyx::installFilters()
{
    for (QLineEdit *edit : {CmpExeEdit, PersonDestEdit, PersonNameEdit, CmpExeFlagEdit,
                            CmpCmpFlagEdit, CmpDefFlagEdit})
        edit->installEventFilter(this);
}

Answers Calyx::currentAnswers() const
{
    return answersOn(*this, answers);
}

void Calyx::changeAnswers(const std::function<void(Answers &)> &change, AnswerField::Role shown)
{
    answers = currentAnswers();
    change(answers);
    showAnswers(answers, *this, shown);
}
