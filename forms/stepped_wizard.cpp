#include "stepped_wizard.h"

#include <QAbstractButton>
#include <QApplication>
#include <QMouseEvent>
#include <QPointer>
#include <QProxyStyle>
#include <QPushButton>
#include <QRadioButton>
#include <algorithm>

using namespace Qt::StringLiterals;

namespace {

class FormStyle : public QProxyStyle
{
public:
    FormStyle() : QProxyStyle(u"windows"_s) { }

    // The pages have fixed sizes and bring their own margins, so the wizard's own layout must leave
    // them 760 of 768 pixels.
    int pixelMetric(PixelMetric metric, const QStyleOption *option,
                    const QWidget *widget) const override
    {
        switch (metric) {
        case PM_LayoutLeftMargin:
        case PM_LayoutRightMargin:
        case PM_LayoutTopMargin:
        case PM_LayoutBottomMargin:
            return 4;
        case PM_LayoutHorizontalSpacing:
        case PM_LayoutVerticalSpacing:
            return 6;
        default:
            return QProxyStyle::pixelMetric(metric, option, widget);
        }
    }

    int styleHint(StyleHint hint, const QStyleOption *option, const QWidget *widget,
                  QStyleHintReturn *returnData) const override
    {
        switch (hint) {
        case SH_Menu_Scrollable:
            // Instead of spreading over the screen in columns that a long menu does not fit either.
            return 1;
        case SH_Menu_AllowActiveAndDisabled:
            // The keys pass over an item that cannot be chosen, and it is never painted as if it
            // could be, which nobody could read.
            return 0;
        default:
            return QProxyStyle::styleHint(hint, option, widget, returnData);
        }
    }
};

/// Whether \a widget is one of several buttons and another of them is chosen. The toolkit takes Tab
/// from it only once that one has had the focus.
bool isNotChosen(const QWidget *widget)
{
    const auto *button = qobject_cast<const QRadioButton *>(widget);
    return button && !button->isChecked();
}

bool canHoldFocus(const QWidget *widget, const QWidget *form)
{
    return widget->isEnabled() && widget->isVisibleTo(form) && !isNotChosen(widget);
}

/// The first widget of \a page that Tab reaches, in the order in which it does; null when there is
/// none.
QWidget *firstTabStop(QWidget *page)
{
    // A page itself may lie anywhere in that order, its window at the start.
    const QWidget *start = page->window();
    for (QWidget *widget = start->nextInFocusChain(); widget != start;
         widget = widget->nextInFocusChain()) {
        if (page->isAncestorOf(widget) && widget->focusPolicy() & Qt::TabFocus
            && canHoldFocus(widget, page))
            return widget;
    }
    return nullptr;
}

} // namespace

void WizardPage::setComplete(bool complete)
{
    if (complete == m_complete)
        return;
    m_complete = complete;
    emit completeChanged();
}

SteppedWizard::SteppedWizard(QWidget *parent, Qt::WindowFlags flags) : QWizard(parent, flags)
{
    auto *style = new FormStyle;
    style->setParent(this);
    setStyle(style);
    setWizardStyle(QWizard::ClassicStyle);

    // QWizard::next() and back() are not virtual, and the buttons are connected to them.
    for (const auto &[which, slot] : {std::pair(QWizard::NextButton, &SteppedWizard::next),
                                      std::pair(QWizard::BackButton, &SteppedWizard::back)}) {
        button(which)->disconnect(SIGNAL(clicked()), this);
        connect(button(which), &QAbstractButton::clicked, this, slot);
    }
    for (const WizardButton which : {NextButton, FinishButton})
        button(which)->installEventFilter(this);
}

void SteppedWizard::showPage(const WizardPage *page)
{
    if (currentId() < 0)
        return;                       // the wizard has been left
    const QList<int> ids = pageIds(); // ascending, as the pages were added
    const auto isPage = [this, page](int id) { return QWizard::page(id) == page; };
    const auto found = std::find_if(ids.begin(), ids.end(), isPage);
    Q_ASSERT(found != ids.end());
    const int target = *found;

    // Walking there, rather than jumping, keeps the toolkit's history in the fixed order.
    setUpdatesEnabled(false);
    keepFocus([this, target] {
        while (currentId() < target)
            QWizard::next();
        while (currentId() > target)
            QWizard::back();
    });
    setUpdatesEnabled(true);
}

void SteppedWizard::setNextEnabled(WizardPage *page, bool on)
{
    page->setComplete(on);
}

void SteppedWizard::setFinishEnabled(WizardPage *page, bool on)
{
    keepFocus([page, on] { page->setComplete(on); });
}

void SteppedWizard::makeCancelDefault()
{
    qobject_cast<QPushButton *>(button(QWizard::CancelButton))->setDefault(true);
}

void SteppedWizard::next()
{
    keepFocus([this] { QWizard::next(); });
}

void SteppedWizard::back()
{
    keepFocus([this] { QWizard::back(); });
}

void SteppedWizard::keepFocus(const std::function<void()> &change)
{
    const QPointer<QWidget> holder = focusWidget();
    change();
    if (!currentPage())
        return;
    const bool stays = holder && canHoldFocus(holder, this);
    if (QWidget *widget = stays ? holder.data() : firstTabStop(currentPage()))
        widget->setFocus();
}

void SteppedWizard::showEvent(QShowEvent *event)
{
    // The toolkit has given it to the first of several buttons, chosen or not.
    keepFocus([this, event] { QWizard::showEvent(event); });
}

bool SteppedWizard::eventFilter(QObject *watched, QEvent *event)
{
    if (watched == button(QWizard::NextButton) && event->type() == QEvent::MouseButtonRelease)
        m_nextReleased = static_cast<QMouseEvent *>(event)->timestamp();
    const bool isPress =
        event->type() == QEvent::MouseButtonPress || event->type() == QEvent::MouseButtonDblClick;
    if (watched == button(QWizard::FinishButton) && isPress && m_nextReleased) {
        const quint64 passed = static_cast<QMouseEvent *>(event)->timestamp() - *m_nextReleased;
        return passed < quint64(QApplication::doubleClickInterval());
    }
    return QWizard::eventFilter(watched, event);
}
