#pragma once

#include <QWizard>
#include <functional>
#include <optional>

/// A wizard page that is complete when it has been told so.
class WizardPage : public QWizardPage
{
    Q_OBJECT

public:
    using QWizardPage::QWizardPage;

    bool isComplete() const override { return m_complete; }
    /// Tells the wizard, too, which then enables Next or Finish, or disables it.
    void setComplete(bool complete);

private:
    bool m_complete = true;
};

/// A wizard in classic style whose pages keep one fixed order, in which any page can be shown at
/// any time, and whose Next and Finish are enabled page by page from outside.
///
/// A widget that has the focus keeps it for as long as it can be seen and used. Otherwise, as after
/// most changes of the page and when the wizard is shown, the focus goes to the first widget of the
/// page that Tab reaches; of several radio buttons that is the chosen one.
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

    /// Makes the Cancel button the one that Enter presses, while the current page is shown.
    void makeCancelDefault();

public slots:
    /// Reached by the Next button: shows the page that follows the current one.
    virtual void next();

protected:
    /// Keeps a click on Finish from the button when it comes so soon after one on Next, which lies
    /// in the same place, that it must have been meant for that.
    bool eventFilter(QObject *watched, QEvent *event) override;
    void showEvent(QShowEvent *event) override;

private:
    void back();
    /// Does \a change, and gives the focus to another widget if its holder has gone.
    void keepFocus(const std::function<void()> &change);

    std::optional<quint64> m_nextReleased; ///< when the mouse let go of Next, in milliseconds
};
