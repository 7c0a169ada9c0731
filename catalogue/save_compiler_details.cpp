#include "save_compiler_details.h"

#include "product_language.h"

#include <QComboBox>
#include <QCoreApplication>
#include <QEvent>
#include <QLineEdit>
#include <QMessageBox>
#include <QPushButton>
#include <QRadioButton>
#include <QShowEvent>

using namespace Qt::StringLiterals;

namespace {

/// \a text as it will come back from the catalogue's file, in which white space is single spaces.
QString storedText(const QString &text)
{
    return (u'<' + text + u'>').simplified().mid(1).chopped(1);
}

/// Makes the last of \a list's items from \a firstItem on that equals \a text current.
void selectLast(QComboBox *list, const QString &text, int firstItem)
{
    for (int item = list->count() - 1; item >= firstItem; --item) {
        if (list->itemText(item) == text) {
            list->setCurrentIndex(item);
            return;
        }
    }
}

/// Copies what is chosen in \a list to \a edit; a long name shows its beginning.
void showChosen(const QComboBox *list, QLineEdit *edit)
{
    edit->setText(list->currentText());
    edit->home(false);
}

} // namespace

SaveCompilerDetails::SaveCompilerDetails()
{
    connect(ExstSaveRadioButton, &QRadioButton::clicked, this,
            &SaveCompilerDetails::ExstSaveRadioButton_clicked);
    connect(NewSaveRadioButton, &QRadioButton::clicked, this,
            &SaveCompilerDetails::NewSaveRadioButton_clicked);
    connect(ExstCmpFamComboBox, &QComboBox::activated, this,
            &SaveCompilerDetails::ExstCmpFamComboBox_selected);
    connect(NewCmpFamComboBox, &QComboBox::activated, this,
            &SaveCompilerDetails::NewCmpFamComboBox_selected);
    connect(NewCmpNameComboBox, &QComboBox::activated, this,
            &SaveCompilerDetails::NewCmpNameComboBox_selected);
    connect(buttonOk, &QPushButton::clicked, this, &SaveCompilerDetails::accept);
    connect(buttonCancel, &QPushButton::clicked, this, &SaveCompilerDetails::reject);
    NewCmpFamEdit->installEventFilter(this);
    NewCmpNameEdit->installEventFilter(this);
}

void SaveCompilerDetails::showEvent(QShowEvent *event)
{
    // A window that comes back from the task bar keeps its answers.
    if (!event->spontaneous())
        fillLists();
    SaveCompilerDetailsBase::showEvent(event);
}

void SaveCompilerDetails::fillLists()
{
    const QStringList names = namesOf(compilers, currentRecord.Family);
    for (QComboBox *list :
         {ExstCmpFamComboBox, NewCmpFamComboBox, ExstCmpNameComboBox, NewCmpNameComboBox})
        list->clear();
    // The empty first entries stand for a text that is typed.
    NewCmpFamComboBox->addItem(QString());
    NewCmpNameComboBox->addItem(QString());
    for (QComboBox *list : {ExstCmpFamComboBox, NewCmpFamComboBox}) {
        const int firstFamily = list->count();
        list->addItems(families);
        selectLast(list, currentRecord.Family, firstFamily);
    }
    for (QComboBox *list : {ExstCmpNameComboBox, NewCmpNameComboBox}) {
        const int firstName = list->count();
        list->addItems(names);
        selectLast(list, currentRecord.Name, firstName);
    }
}

void SaveCompilerDetails::ExstSaveRadioButton_clicked()
{
    choose(ExstSaveRadioButton);
}

void SaveCompilerDetails::NewSaveRadioButton_clicked()
{
    // A second click leaves what has been typed.
    if (!buttonGroup1->isEnabled()) {
        showChosen(NewCmpFamComboBox, NewCmpFamEdit);
        showChosen(NewCmpNameComboBox, NewCmpNameEdit);
    }
    choose(NewSaveRadioButton);
}

void SaveCompilerDetails::choose(const QRadioButton *mode)
{
    // They lie in different boxes, so the toolkit lets both be checked, and unchecked.
    for (QRadioButton *button : {ExstSaveRadioButton, NewSaveRadioButton})
        button->setChecked(button == mode);
    for (QWidget *widget : {ExstCmpFamComboBox, ExstCmpNameComboBox})
        widget->setEnabled(mode == ExstSaveRadioButton);
    for (QWidget *widget : std::initializer_list<QWidget *> {
             NewCmpFamComboBox, NewCmpFamEdit, NewCmpNameComboBox, NewCmpNameEdit, buttonGroup1})
        widget->setEnabled(mode == NewSaveRadioButton);
}

void SaveCompilerDetails::ExstCmpFamComboBox_selected(int)
{
    ExstCmpNameComboBox->clear();
    ExstCmpNameComboBox->addItems(namesOf(compilers, ExstCmpFamComboBox->currentText()));
}

void SaveCompilerDetails::NewCmpFamComboBox_selected(int)
{
    showChosen(NewCmpFamComboBox, NewCmpFamEdit);
    NewCmpNameComboBox->clear();
    NewCmpNameComboBox->addItem(QString());
    NewCmpNameComboBox->addItems(namesOf(compilers, NewCmpFamComboBox->currentText()));
    showChosen(NewCmpNameComboBox, NewCmpNameEdit);
}

void SaveCompilerDetails::NewCmpNameComboBox_selected(int)
{
    showChosen(NewCmpNameComboBox, NewCmpNameEdit);
}

bool SaveCompilerDetails::eventFilter(QObject *watched, QEvent *event)
{
    // What is typed no longer comes from the list.
    if (event->type() == QEvent::KeyRelease && watched == NewCmpFamEdit) {
        NewCmpFamComboBox->setCurrentIndex(0);
        return false;
    }
    if (event->type() == QEvent::KeyRelease && watched == NewCmpNameEdit) {
        NewCmpNameComboBox->setCurrentIndex(0);
        return false;
    }
    return SaveCompilerDetailsBase::eventFilter(watched, event);
}

QString SaveCompilerDetails::withLanguage(const QString &name) const
{
    if (BothRadioButton->isChecked())
        return name;
    const QString language = QLatin1String(CRadioButton->isChecked() ? "C" : "C++");
    return name.isEmpty() ? language : name + " - "_L1 + language;
}

bool SaveCompilerDetails::isKnown(const QString &family, const QString &name) const
{
    if (name.isEmpty())
        return false; // the lists' empty entry
    if (name == NewCmpNameComboBox->currentText() && family == NewCmpFamComboBox->currentText())
        return true;
    // One for both languages leaves room for one of its name for the language that is chosen.
    return tellsLanguage(name) && findRecord(compilers, family, name) != nullptr;
}

bool SaveCompilerDetails::contradictsLanguage(const QString &name) const
{
    const bool namesC = name == "C"_L1;
    const bool namesCpp = name == "C++"_L1;
    const bool spellsCpp = name == "Cpp"_L1 || name == "CPP"_L1;
    if (CPPRadioButton->isChecked())
        return namesC;
    if (CRadioButton->isChecked())
        return namesCpp || spellsCpp;
    return namesC || namesCpp || spellsCpp;
}

void SaveCompilerDetails::showProblem(const QString &text)
{
    QMessageBox::critical(nullptr, windowTitle(), text);
}

bool SaveCompilerDetails::isConfirmed(const QString &question)
{
    return QMessageBox::critical(this, windowTitle(), question, QMessageBox::Yes | QMessageBox::No,
                                 QMessageBox::No)
        == QMessageBox::Yes;
}

bool SaveCompilerDetails::isNewEntryAccepted(const QString &family, const QString &name,
                                             const QString &savedName)
{
    bool accepted = true;
    if (family.isEmpty() && name.isEmpty()) {
        showProblem(QCoreApplication::translate(
            "Calyx", "Compiler Family and Compiler Name cannot be empty."));
        accepted = false;
    } else if (isKnown(family, name) || findRecord(compilers, family, savedName)) {
        accepted = isConfirmed(QCoreApplication::translate(
            "Calyx", "Compiler Family and Compiler Name match an existing compiler, do you want to "
                     "overwrite this?"));
    } else if (BothRadioButton->isChecked() && name.isEmpty()) {
        showProblem(QCoreApplication::translate(
            "Calyx", "Compiler Name cannot be empty if language: Both is selected."));
        accepted = false;
    }
    if (contradictsLanguage(name)) {
        accepted &= isConfirmed(QCoreApplication::translate(
            "Calyx",
            "Compiler Name provided does not match the language selected,\nor describes a specific "
            "language when 'Both' is selected.\n\nIt is advisabe to ensure that the compiler name "
            "reflects the language. Are you sure you wish to continue with this name?"));
    }
    return accepted;
}

void SaveCompilerDetails::accept()
{
    if (!NewSaveRadioButton->isChecked()) {
        if (ExstSaveRadioButton->isChecked()) {
            resultFamily = ExstCmpFamComboBox->currentText();
            resultName = ExstCmpNameComboBox->currentText();
        }
        SaveCompilerDetailsBase::accept();
        return;
    }
    const QString family = storedText(NewCmpFamEdit->text());
    const QString name = storedText(NewCmpNameEdit->text());
    const QString savedName = isKnown(family, name) ? name : withLanguage(name);
    const bool isAccepted = isNewEntryAccepted(family, name, savedName);
    resultFamily = family;
    resultName = savedName;
    if (isAccepted)
        SaveCompilerDetailsBase::accept();
}

void SaveCompilerDetails::reject()
{
    resultFamily.clear();
    resultName.clear();
    SaveCompilerDetailsBase::reject();
}
