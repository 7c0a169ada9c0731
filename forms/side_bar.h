#pragma once

#include <QIcon>

class CalyxBase;
class QEvent;
class QObject;
class QPushButton;

/// The image buttons at the right of every page, one for each step of the wizard: step n is page n.
class SideBar
{
public:
    static constexpr int steps = 5;

    /// \a form must outlive it, and creates the buttons.
    explicit SideBar(CalyxBase &form);

    /// The button of \a step on \a page.
    QPushButton *button(int page, int step) const;

    /// Gives the buttons the images that are compiled into the program, that of the page's own step
    /// highlighted.
    void showBuiltInImages();
    /// Sets the accessible names and descriptions in the current language, and takes every shortcut
    /// away. The description tells the current step.
    void setTexts();

    /// Loads the images that the buttons show from now on when the mouse or the wizard comes to
    /// them: bitmaps in the folder "images" beside the working directory. A missing one is empty.
    void loadImages();
    /// Follows the mouse: on an Enter event of a button shows it highlighted, on a Leave event
    /// plain.
    void followMouse(const QObject *watched, const QEvent *event);
    /// Highlights the button of the page's own step.
    void highlight(int page);

private:
    CalyxBase &m_form;
    QIcon m_highlighted[steps];
    QIcon m_plain[steps];
};
