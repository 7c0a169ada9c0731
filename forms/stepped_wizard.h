#pragma once

#include <QWizard>

/// A wizard page that is complete when it has been told so.
class WizardPage : public QWizardPage
{
    Q_OBJECT

public:
    using QWizardPage::QWizardPage;

    bool isComplete() const override { return m_complete; }
    void setComplete(bool complete);

private:
    bool m_complete = true;
};

/// A wizard in classic style whose pages keep one fixed order, in which any page can be shown at
/// any time, and whose Next and Finish are enabled page by page from outside.
class SteppedWizard : public QWizard
{
    Q_OBJECT

public:
    explicit SteppedWizard(QWidget *parent = nullptr, Qt::WindowFlags flags = {});

    /// Shows \a page, one of the wizard's. Back then leads to the page before it in the fixed
    /// order, whichever page was shown last. Does nothing once the wizard has been left.
    void showPage(const WizardPage *page);

    /// Whether Next is enabled while \a page is shown; true until set.
    void setNextEnabled(WizardPage *page, bool on);
    /// Whether Finish is enabled while \a page, the last one, is shown.
    void setFinishEnabled(WizardPage *page, bool on);

public slots:
    /// Reached by the Next button: shows the page that follows the current one.
    virtual void next();
};
