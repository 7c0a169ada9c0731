#pragma once

#include "compiler_catalogue.h"
#include "save_compiler_details_base.h"

/// Asks under which family and name a compiler is saved: over a known one, or as a new one.
class SaveCompilerDetails : public SaveCompilerDetailsBase
{
    Q_OBJECT

public:
    SaveCompilerDetails();

    // To be set before the dialog is shown: the catalogue, and the family and name chosen last.
    QStringList families;
    QList<CompilerRecord> compilers;
    CompilerRecord currentRecord;

    // The answer, once the dialog has been closed; empty texts when it has been rejected. The name
    // ends with its language, unless it is for both.
    QString resultFamily;
    QString resultName;

public slots:
    void ExstSaveRadioButton_clicked();
    void NewSaveRadioButton_clicked();
    void ExstCmpFamComboBox_selected(int);
    void NewCmpFamComboBox_selected(int);
    void NewCmpNameComboBox_selected(int);

protected slots:
    void accept() override;
    void reject() override;

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;
    void showEvent(QShowEvent *event) override;

private:
    void fillLists();
    /// Makes the one mode or the other the chosen one, by its button.
    void choose(const QRadioButton *mode);
    QString withLanguage(const QString &name) const;
    /// Whether a new entry would be one that is there, which has its language in its name already.
    bool isKnown(const QString &family, const QString &name) const;
    bool contradictsLanguage(const QString &name) const;
    void showProblem(const QString &text);
    bool isConfirmed(const QString &question);
    /// Whether the new entry can be saved, as \a savedName, and the user wants it so.
    bool isNewEntryAccepted(const QString &family, const QString &name, const QString &savedName);
};
