#include "side_bar.h"

#include "calyx_base.h"
#include "host_path.h"
#include "picture.h"

#include <QCoreApplication>
#include <QEvent>
#include <QPushButton>

using namespace Qt::StringLiterals;

namespace {

struct Step
{
    QPushButton *CalyxBase::*buttons[SideBar::steps]; ///< one a page, in the order of the pages
    QPixmap CalyxBase::*plain;
    QPixmap CalyxBase::*highlighted;
    QLatin1StringView bitmap; ///< the plain one's name; the highlighted one's has "_shd" behind it
    const char *accessibleName;
};

const Step table[SideBar::steps] = {
    {{&CalyxBase::P0_PrdctBtn, &CalyxBase::P1_PrdctBtn, &CalyxBase::P3_PrdctBtn,
      &CalyxBase::P2_PrdctBtn, &CalyxBase::P4_PrdctBtn},
     &CalyxBase::productOffImage,
     &CalyxBase::productOnImage,
     "product_output"_L1,
     QT_TRANSLATE_NOOP("CalyxBase", "Product & Output")},
    {{&CalyxBase::P0_CmpBtn, &CalyxBase::P1_CmpBtn, &CalyxBase::P3_CmpBtn, &CalyxBase::P2_CmpBtn,
      &CalyxBase::P4_CmpBtn},
     &CalyxBase::compilerOffImage,
     &CalyxBase::compilerOnImage,
     "compiler_command"_L1,
     QT_TRANSLATE_NOOP("CalyxBase", "Compiler Command")},
    {{&CalyxBase::P0_SrchBtn, &CalyxBase::P1_SrchBtn, &CalyxBase::P3_SrchBtn,
      &CalyxBase::P2_SrchBtn, &CalyxBase::P4_SrchBtn},
     &CalyxBase::searchOffImage,
     &CalyxBase::searchOnImage,
     "search_directories"_L1,
     QT_TRANSLATE_NOOP("CalyxBase", "Search Directories")},
    {{&CalyxBase::P0_DefBtn, &CalyxBase::P1_DefBtn, &CalyxBase::P3_DefBtn, &CalyxBase::P2_DefBtn,
      &CalyxBase::P4_DefBtn},
     &CalyxBase::definesOffImage,
     &CalyxBase::definesOnImage,
     "defines_switches"_L1,
     QT_TRANSLATE_NOOP("CalyxBase", "Defines & Switches")},
    {{&CalyxBase::P0_RevBtn, &CalyxBase::P1_RevBtn, &CalyxBase::P3_RevBtn, &CalyxBase::P2_RevBtn,
      &CalyxBase::P4_RevBtn},
     &CalyxBase::reviewOffImage,
     &CalyxBase::reviewOnImage,
     "review"_L1,
     QT_TRANSLATE_NOOP("CalyxBase", "Review")},
};

QIcon loadImage(const QString &name)
{
    const QPixmap image = picture(platform::hostPath("..\\images\\"_L1 + name + ".bmp"_L1));
    return image.isNull() ? QIcon() : QIcon(image);
}

// Setting an image repaints the button, and who watches its events may set it again.
void showImage(QPushButton *button, const QIcon &image)
{
    if (button->icon().cacheKey() != image.cacheKey())
        button->setIcon(image);
}

} // namespace

SideBar::SideBar(CalyxBase &form) : m_form(form) { }

QPushButton *SideBar::button(int page, int step) const
{
    return m_form.*table[step].buttons[page];
}

void SideBar::showBuiltInImages()
{
    for (int page = 0; page < steps; ++page) {
        for (int step = 0; step < steps; ++step) {
            const QPixmap &image =
                m_form.*(page == step ? table[step].highlighted : table[step].plain);
            button(page, step)->setIconSize(image.deviceIndependentSize().toSize());
            button(page, step)->setIcon(image);
        }
    }
}

void SideBar::setTexts()
{
    for (int page = 0; page < steps; ++page) {
        for (int step = 0; step < steps; ++step) {
            QPushButton *const entry = button(page, step);
            entry->setAccessibleName(
                QCoreApplication::translate("CalyxBase", table[step].accessibleName));
            if (page == step) {
                entry->setAccessibleDescription(
                    QCoreApplication::translate("CalyxBase", "Current step"));
            }
            entry->setShortcut(QKeySequence());
        }
    }
}

void SideBar::loadImages()
{
    for (int step = 0; step < steps; ++step) {
        m_plain[step] = loadImage(table[step].bitmap);
        m_highlighted[step] = loadImage(table[step].bitmap + "_shd"_L1);
    }
}

void SideBar::followMouse(const QObject *watched, const QEvent *event)
{
    const bool enters = event->type() == QEvent::Enter;
    if (!enters && event->type() != QEvent::Leave)
        return;
    for (int page = 0; page < steps; ++page) {
        for (int step = 0; step < steps; ++step) {
            if (watched == button(page, step))
                showImage(button(page, step), enters ? m_highlighted[step] : m_plain[step]);
        }
    }
}

void SideBar::highlight(int page)
{
    showImage(button(page, page), m_highlighted[page]);
}
