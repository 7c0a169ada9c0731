#include "form_table.h"

#include "colours.h"
#include "one_line_validator.h"

#include <QAbstractButton>
#include <QCoreApplication>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>

using namespace Qt::StringLiterals;

namespace {

void setUpFont(QWidget *widget, SetUps setUps)
{
    QFont font = widget->font();
    if (setUps & SetUp::ErrorText)
        font.setBold(true);
    if (setUps & SetUp::Italic)
        font.setItalic(true);
    if (setUps & SetUp::Welcome)
        font.setPointSize(12);
    if (font != widget->font())
        widget->setFont(font);
}

void setUpLabel(QLabel *label, SetUps setUps, const QPixmap *image)
{
    if (image) {
        label->setPixmap(*image);
        label->setScaledContents(true);
    }
    if (setUps & SetUp::Wrapped) {
        label->setWordWrap(true);
        label->setAlignment(Qt::AlignLeft | Qt::AlignVCenter);
    }
    if (setUps & SetUp::TopAligned)
        label->setAlignment(Qt::AlignLeft | Qt::AlignTop);
    if (setUps & SetUp::LiteralText)
        label->setTextFormat(Qt::PlainText);
    if (setUps & SetUp::ErrorText)
        setForegroundColour(label, Qt::red);
}

void setUpButton(QAbstractButton *button, SetUps setUps, const QPixmap *image)
{
    if (image) {
        button->setIconSize(image->deviceIndependentSize().toSize());
        button->setIcon(*image);
    }
    button->setChecked(setUps.testFlag(SetUp::Checked));
    if (auto *pushButton = qobject_cast<QPushButton *>(button))
        pushButton->setFlat(setUps.testFlag(SetUp::Flat));
}

} // namespace

void setUpWidget(QWidget *widget, const char *name, const QRect &rectangle, SetUps setUps,
                 const QPixmap *image)
{
    widget->setObjectName(QLatin1String(name));
    widget->setGeometry(rectangle);
    setUpFont(widget, setUps);
    if (setUps & SetUp::WhiteBackground)
        setBackgroundColour(widget, Qt::white);
    widget->setMouseTracking(setUps.testFlag(SetUp::MouseTracking));
    widget->setEnabled(!setUps.testFlag(SetUp::Disabled));
    if (auto *label = qobject_cast<QLabel *>(widget)) {
        setUpLabel(label, setUps, image);
    } else if (auto *button = qobject_cast<QAbstractButton *>(widget)) {
        setUpButton(button, setUps, image);
    } else if (auto *edit = qobject_cast<QLineEdit *>(widget)) {
        edit->setValidator(new OneLineValidator(edit));
    } else if (auto *frame = qobject_cast<QFrame *>(widget); setUps & SetUp::SeparatorLine) {
        frame->setFrameShape(QFrame::VLine);
        frame->setFrameShadow(QFrame::Sunken);
    }
}

void setTexts(QWidget *form, const char *context, std::span<const TextRow> rows)
{
    for (const TextRow &row : rows) {
        // An empty source text would translate to the header of the translation file.
        const SourceText &source = row.source;
        const QString text = *source.text ? QCoreApplication::translate(context, source.text,
                                                                        source.translationComment)
                                          : QString();
        form->findChild<QWidget *>(QLatin1StringView(row.widget))->setProperty(row.property, text);
    }
}

void setNames(QWidget *form, std::span<const NameRow> rows)
{
    const auto widget = [form](const char *name) {
        return form->findChild<QWidget *>(QLatin1StringView(name));
    };
    for (const NameRow &row : rows) {
        QString name = widget(row.captionedBy)->property("text").toString();
        if (row.columnCaptionedBy)
            name += ", "_L1 + widget(row.columnCaptionedBy)->property("text").toString();
        widget(row.widget)->setAccessibleName(name.simplified());
    }
}

void setTabStops(const QWidget *form, std::span<const char *const> names)
{
    QWidget *previous = nullptr;
    for (const char *name : names) {
        auto *widget = form->findChild<QWidget *>(QLatin1StringView(name));
        if (previous)
            QWidget::setTabOrder(previous, widget);
        previous = widget;
    }
}
