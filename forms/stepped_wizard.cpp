#include "stepped_wizard.h"

#include <QAbstractButton>
#include <QProxyStyle>

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

    // A menu that is higher than the screen scrolls, instead of spreading over it in columns that
    // a long one does not fit either.
    int styleHint(StyleHint hint, const QStyleOption *option, const QWidget *widget,
                  QStyleHintReturn *returnData) const override
    {
        return hint == SH_Menu_Scrollable
                 ? 1
                 : QProxyStyle::styleHint(hint, option, widget, returnData);
    }
};

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

    // QWizard::next() is not virtual, and the button is connected to it.
    QAbstractButton *nextButton = button(QWizard::NextButton);
    nextButton->disconnect(SIGNAL(clicked()), this);
    connect(nextButton, &QAbstractButton::clicked, this, &SteppedWizard::next);
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
    while (currentId() < target)
        QWizard::next();
    while (currentId() > target)
        back();
    setUpdatesEnabled(true);
}

void SteppedWizard::setNextEnabled(WizardPage *page, bool on)
{
    page->setComplete(on);
}

void SteppedWizard::setFinishEnabled(WizardPage *page, bool on)
{
    page->setComplete(on);
}

void SteppedWizard::next()
{
    QWizard::next();
}
