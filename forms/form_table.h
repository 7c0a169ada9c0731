#pragma once

#include <QFlags>
#include <QPixmap>
#include <QRect>
#include <QWidget>
#include <span>

/// The set-up words of a form table: what a widget looks like before anything has happened.
enum class SetUp {
    Plain = 0,
    SeparatorLine = 1 << 0, ///< of a QFrame: a sunken vertical line
    Wrapped = 1 << 1,       ///< of a QLabel: words wrap, the text is centred vertically
    TopAligned = 1 << 2,    ///< of a QLabel
    LiteralText = 1 << 3,   ///< of a QLabel: shows user input, so nothing in it is markup
    ErrorText = 1 << 4,     ///< of a QLabel: red and bold
    Italic = 1 << 5,
    Welcome = 1 << 6, ///< 12 points
    WhiteBackground = 1 << 7,
    Flat = 1 << 8, ///< of a QPushButton
    MouseTracking = 1 << 9,
    Checked = 1 << 10, ///< of a button that can be checked
    Disabled = 1 << 11,
};
Q_DECLARE_FLAGS(SetUps, SetUp)
Q_DECLARE_OPERATORS_FOR_FLAGS(SetUps)

/// Where a widget lies in its parent, in pixels, how it is set up, and the image it shows.
template <typename Form>
struct Placement
{
    QRect rectangle;
    SetUps setUps = SetUp::Plain;
    QPixmap Form::*image = nullptr;
};

/// One widget of a form. A table of them is in creation order, so that where siblings overlap a
/// later one lies above an earlier one.
template <typename Form>
struct WidgetRow
{
    const char *name; ///< object name, also the member's
    QWidget *(*create)(Form *form, QWidget *parent);
    Placement<Form> placement;
    const char *parent = nullptr; ///< object name of an earlier row; null for the page itself
};

struct SourceText
{
    const char *text;
    const char *translationComment = nullptr;
};

/// One text of a form: which property of which widget shows it. An empty text clears the property.
struct TextRow
{
    const char *widget;
    const char *property;
    SourceText source;
};

/// Which other widget's text is the caption of a widget that has no text of its own; in a grid, the
/// caption of its row and that of its column.
struct NameRow
{
    const char *widget;
    const char *captionedBy;
    const char *columnCaptionedBy = nullptr;
};

/// Creates the widget that the member \a Member of \a form points to.
template <auto Member, typename Form,
          typename Widget =
              std::remove_pointer_t<std::remove_cvref_t<decltype(std::declval<Form>().*Member)>>>
QWidget *createMember(Form *form, QWidget *parent)
{
    form->*Member = new Widget(parent);
    return form->*Member;
}

/// The first two fields of a WidgetRow; the second macro for a widget of a class derived from the
/// member's.
#define FORM_WIDGET(Form, member) #member, &createMember < &Form::member, Form>
#define FORM_WIDGET_AS(Form, member, Class) #member, &createMember < &Form::member, Form, Class>

/// Gives \a widget its object name, its place in its parent and its looks, for which it takes those
/// words of \a setUps that are for its class. \a image, which may be null, is for a label or a
/// button.
void setUpWidget(QWidget *widget, const char *name, const QRect &rectangle, SetUps setUps,
                 const QPixmap *image);

/// Creates all widgets of \a rows below \a page and sets them up.
template <typename Form>
void createWidgets(Form *form, QWidget *page, std::span<const WidgetRow<Form>> rows)
{
    for (const WidgetRow<Form> &row : rows) {
        QWidget *parent =
            row.parent ? page->findChild<QWidget *>(QLatin1StringView(row.parent)) : page;
        const Placement<Form> &placement = row.placement;
        setUpWidget(row.create(form, parent), row.name, placement.rectangle, placement.setUps,
                    placement.image ? &(form->*placement.image) : nullptr);
    }
}

/// Sets every text of \a rows, translated in \a context, on the widgets below \a form.
void setTexts(QWidget *form, const char *context, std::span<const TextRow> rows);

/// Names every widget of \a rows after its captions, in one line, for those who do not see that. To
/// be called when the texts have been set.
void setNames(QWidget *form, std::span<const NameRow> rows);

/// Lets the tab key go through the widgets below \a form with these object names, in their order.
void setTabStops(const QWidget *form, std::span<const char *const> names);
