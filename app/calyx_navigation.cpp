#include "app/calyx.h"

#include "generation/generator_process.h"
#include "platform/paths.h"

#include <QEvent>
#include <QLineEdit>
#include <QPushButton>

namespace {

const int steps = 5;

using Slot = void (Calyx::*)();

struct SideBarButton
{
    QPushButton *CalyxBase::*button;
    Slot slot;
};

// One row for each page, one button for each step, both in the order of the pages.
const SideBarButton sideBars[steps][steps] = {
    {{&CalyxBase::P0_PrdctBtn, &Calyx::PrdctBtn_clicked},
     {&CalyxBase::P0_CmpBtn, &Calyx::P0_CmpBtn_clicked},
     {&CalyxBase::P0_SrchBtn, &Calyx::P0_SrchBtn_clicked},
     {&CalyxBase::P0_DefBtn, &Calyx::P0_DefBtn_clicked},
     {&CalyxBase::P0_RevBtn, &Calyx::P0_RevBtn_clicked}},
    {{&CalyxBase::P1_PrdctBtn, &Calyx::PrdctBtn_clicked},
     {&CalyxBase::P1_CmpBtn, &Calyx::CmpBtn_clicked},
     {&CalyxBase::P1_SrchBtn, &Calyx::P1_SrchBtn_clicked},
     {&CalyxBase::P1_DefBtn, &Calyx::P1_DefBtn_clicked},
     {&CalyxBase::P1_RevBtn, &Calyx::P1_RevBtn_clicked}},
    {{&CalyxBase::P3_PrdctBtn, &Calyx::PrdctBtn_clicked},
     {&CalyxBase::P3_CmpBtn, &Calyx::CmpBtn_clicked},
     {&CalyxBase::P3_SrchBtn, &Calyx::SrchBtn_clicked},
     {&CalyxBase::P3_DefBtn, &Calyx::DefBtn_clicked},
     {&CalyxBase::P3_RevBtn, &Calyx::RevBtn_clicked}},
    {{&CalyxBase::P2_PrdctBtn, &Calyx::PrdctBtn_clicked},
     {&CalyxBase::P2_CmpBtn, &Calyx::CmpBtn_clicked},
     {&CalyxBase::P2_SrchBtn, &Calyx::SrchBtn_clicked},
     {&CalyxBase::P2_DefBtn, &Calyx::DefBtn_clicked},
     {&CalyxBase::P2_RevBtn, &Calyx::RevBtn_clicked}},
    {{&CalyxBase::P4_PrdctBtn, &Calyx::PrdctBtn_clicked},
     {&CalyxBase::P4_CmpBtn, &Calyx::CmpBtn_clicked},
     {&CalyxBase::P4_SrchBtn, &Calyx::SrchBtn_clicked},
     {&CalyxBase::P4_DefBtn, &Calyx::DefBtn_clicked},
     {&CalyxBase::P4_RevBtn, &Calyx::RevBtn_clicked}},
};

struct StepImageFiles
{
    const char *highlighted;
    const char *plain;
};

const StepImageFiles stepImageFiles[steps] = {
    {"product_output_shd.bmp", "product_output.bmp"},
    {"compiler_command_shd.bmp", "compiler_command.bmp"},
    {"search_directories_shd.bmp", "search_directories.bmp"},
    {"defines_switches_shd.bmp", "defines_switches.bmp"},
    {"review_shd.bmp", "review.bmp"},
};

QIcon loadImage(const char *file)
{
    const QPixmap image(platform::hostPath(QLatin1String("..\\images\\") + QLatin1String(file)));
    return image.isNull() ? QIcon() : QIcon(image);
}

// Setting an image repaints the button, and the paint event comes back to the event filter.
void showImage(QPushButton *button, const QIcon &image)
{
    if (button->icon().cacheKey() != image.cacheKey())
        button->setIcon(image);
}

} // namespace

void Calyx::connectSideBars()
{
    for (const auto &sideBar : sideBars) {
        for (const SideBarButton &row : sideBar) {
            connect(this->*row.button, &QPushButton::clicked, this, row.slot);
            (this->*row.button)->installEventFilter(this);
        }
    }
}

void Calyx::loadSideBarImages()
{
    for (int step = 0; step < steps; ++step) {
        sideBarImages[step] = {loadImage(stepImageFiles[step].highlighted),
                               loadImage(stepImageFiles[step].plain)};
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
    if (generatorProcess)
        generatorProcess->kill();
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
    if (event->type() == QEvent::Enter || event->type() == QEvent::Leave) {
        for (const auto &sideBar : sideBars) {
            for (int step = 0; step < steps; ++step) {
                QPushButton *const button = this->*sideBar[step].button;
                const StepImages &images = sideBarImages[step];
                if (watched == button) {
                    const bool entered = event->type() == QEvent::Enter;
                    showImage(button, entered ? images.highlighted : images.plain);
                }
            }
        }
    }
    if (watched == CmpExeEdit || watched == CmpExeFlagEdit || watched == CmpCmpFlagEdit
        || watched == CmpDefFlagEdit)
        updateCommandPreview();
    const int current = currentId();
    if (current >= 0)
        showImage(this->*sideBars[current][current].button, sideBarImages[current].highlighted);
    return CalyxBase::eventFilter(watched, event);
}

void Calyx::focusInEvent(QFocusEvent *) { }
