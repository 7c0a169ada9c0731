#include "calyx.h"

#include "generator_run.h"

#include <QEvent>
#include <QLineEdit>
#include <QPushButton>
#include <algorithm>

namespace {

using Slot = void (Calyx::*)();

// The slots of the buttons, in the order of the steps. On the first two pages those that lead
// forward heed the checks of the page.
const Slot stepSlots[][SideBar::steps] = {
    {&Calyx::PrdctBtn_clicked, &Calyx::P0_CmpBtn_clicked, &Calyx::P0_SrchBtn_clicked,
     &Calyx::P0_DefBtn_clicked, &Calyx::P0_RevBtn_clicked},
    {&Calyx::PrdctBtn_clicked, &Calyx::CmpBtn_clicked, &Calyx::P1_SrchBtn_clicked,
     &Calyx::P1_DefBtn_clicked, &Calyx::P1_RevBtn_clicked},
    {&Calyx::PrdctBtn_clicked, &Calyx::CmpBtn_clicked, &Calyx::SrchBtn_clicked,
     &Calyx::DefBtn_clicked, &Calyx::RevBtn_clicked},
};

} // namespace

void Calyx::connectSideBar()
{
    for (int page = 0; page < SideBar::steps; ++page) {
        for (int step = 0; step < SideBar::steps; ++step) {
            QPushButton *button = sideBar.button(page, step);
            connect(button, &QPushButton::clicked, this, stepSlots[std::min(page, 2)][step]);
            button->installEventFilter(this);
        }
    }
}

void Calyx::showOtherPage(WizardPage *page)
{
    if (currentPage() == page)
        return;
    if (page == Page4)
        buildReview();
    showPage(page);
}

bool Calyx::nextIsEnabled() const
{
    return button(QWizard::NextButton)->isEnabled();
}

void Calyx::PrdctBtn_clicked()
{
    showOtherPage(Page0);
}

void Calyx::CmpBtn_clicked()
{
    showOtherPage(Page1);
}

void Calyx::SrchBtn_clicked()
{
    showOtherPage(Page2);
}

void Calyx::DefBtn_clicked()
{
    showOtherPage(Page3);
}

void Calyx::RevBtn_clicked()
{
    showOtherPage(Page4);
}

void Calyx::P0_CmpBtn_clicked()
{
    if (nextIsEnabled())
        CmpBtn_clicked();
}

void Calyx::P0_SrchBtn_clicked()
{
    if (nextIsEnabled() && commandValid)
        SrchBtn_clicked();
}

void Calyx::P0_DefBtn_clicked()
{
    if (nextIsEnabled() && commandValid)
        DefBtn_clicked();
}

void Calyx::P0_RevBtn_clicked()
{
    if (nextIsEnabled() && commandValid)
        RevBtn_clicked();
}

void Calyx::P1_SrchBtn_clicked()
{
    if (nextIsEnabled())
        SrchBtn_clicked();
}

void Calyx::P1_DefBtn_clicked()
{
    if (nextIsEnabled())
        DefBtn_clicked();
}

void Calyx::P1_RevBtn_clicked()
{
    if (nextIsEnabled())
        RevBtn_clicked();
}

void Calyx::next()
{
    if (currentPage() == Page3)
        buildReview();
    CalyxBase::next();
}

void Calyx::reject()
{
    // The end of a run, which writes the settings, must not wait for an event loop that has ended.
    if (generatorProcess)
        generatorProcess->end();
    exitCode = buttonText(QWizard::CancelButton) == tr("Cancel") ? 1 : 0;
    CalyxBase::reject();
}

bool Calyx::eventFilter(QObject *watched, QEvent *event)
{
    if (event->type() == QEvent::KeyRelease) {
        if (watched == PersonDestEdit || watched == PersonNameEdit) {
            Page0LineEdit_textchanged(QString());
            return false;
        }
        if (watched == CmpExeEdit) {
            Page1LineEdit_textchanged(QString());
            return false;
        }
    }
    sideBar.followMouse(watched, event);
    if (watched == CmpExeEdit || watched == CmpExeFlagEdit || watched == CmpCmpFlagEdit
        || watched == CmpDefFlagEdit)
        updateCommandPreview();
    if (currentId() >= 0)
        sideBar.highlight(currentId());
    return CalyxBase::eventFilter(watched, event);
}

void Calyx::focusInEvent(QFocusEvent *) { }
