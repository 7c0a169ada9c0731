#include "app/calyx.h"
#include "forms/log_browser.h"
#include "generation/review.h"

#include <QCheckBox>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QRadioButton>
#include <QTextEdit>

Answers Calyx::answers() const
{
    Answers answers;
    answers.productCode = productCode;
    answers.destination = PersonDestEdit->text();
    answers.name = PersonNameEdit->text();
    answers.compile = compileCommand();
    answers.crossCompiler = CrossCmpCheckBox->isChecked();
    answers.objectExtension = CmpObjExtFlagEdit->text();
    answers.reduceFileSize = ReduceFileSizeCheckBox->isChecked();
    for (int row = 0; row < CmpHdrDirListBox->count(); ++row)
        answers.headerDirectories << CmpHdrDirListBox->item(row)->text();
    answers.defines = CmpDefEdit->toPlainText();
    answers.switches = CmpSwtchEdit->toPlainText();
    answers.templatePersonalityFile = templatePersonalityFile;
    answers.forceIncludeFile = forceIncludeFile;
    answers.substituteHeaders = substituteHeaders;
    return answers;
}

void Calyx::buildReview()
{
    productCode = QLatin1String(KOVRadioButton->isChecked() ? "kov" : "kovpp");
    for (QLineEdit *edit :
         {CmpExeEdit, CmpDefFlagEdit, CmpCmpFlagEdit, CmpExeFlagEdit, CmpObjExtFlagEdit})
        edit->setText(edit->text().simplified());
    updateCommandPreview();
    const Answers current = answers();
    const QString review = reviewText(current);
    DetailsText->setText(review);
    DetailsText->append(shownOrder(CmpCmdOrder->text()));
    detailsText = review + keptOrder(current);
    setFinishEnabled(Page4, true);
}
