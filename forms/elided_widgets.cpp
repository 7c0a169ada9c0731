#include "elided_widgets.h"

#include <QAbstractItemView>
#include <QHelpEvent>
#include <QPainter>
#include <QRegularExpression>
#include <QScrollBar>
#include <QStyleOptionComboBox>
#include <QStylePainter>
#include <QToolTip>
#include <algorithm>

using namespace Qt::StringLiterals;

namespace {

/// \a text in lines of up to a hundred characters, broken at spaces where that can be, and its end
/// left out where they are many: a tool tip that fits the screen.
QString inLines(const QString &text)
{
    static const QRegularExpression line(u"(.{1,100})(?:\\s|$)|(.{100})"_s);
    const QStringList lines =
        QString(text).replace(line, u"\\1\\2\n"_s).split(u'\n', Qt::SkipEmptyParts);
    const qsizetype most = 30;
    const QString shown = lines.first(std::min(lines.size(), most)).join(u'\n');
    return lines.size() > most ? shown + QChar(0x2026) : shown;
}

} // namespace

bool ElidedLabel::event(QEvent *event)
{
    if (event->type() != QEvent::ToolTip || shownText() == text())
        return QLabel::event(event);
    QToolTip::showText(
        static_cast<QHelpEvent *>(event)->globalPos(),
        u"<p style='white-space: pre'>"_s + inLines(text()).toHtmlEscaped() + u"</p>"_s, this);
    return true;
}

void ElidedLabel::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    style()->drawItemText(&painter, rect(), int(alignment()), palette(), isEnabled(), shownText(),
                          foregroundRole());
}

QString ElidedLabel::shownText() const
{
    return fontMetrics().elidedText(text(), Qt::ElideRight, width());
}

ElidedComboBox::ElidedComboBox(QWidget *parent) : QComboBox(parent)
{
    view()->setTextElideMode(Qt::ElideRight);
}

void ElidedComboBox::showPopup()
{
    const int scrollBar = view()->verticalScrollBar()->sizeHint().width();
    const QMargins frame = view()->window()->contentsMargins();
    view()->setMinimumWidth(std::min(view()->sizeHintForColumn(0) + scrollBar,
                                     screen()->availableGeometry().marginsRemoved(frame).width()));
    QComboBox::showPopup();
}

void ElidedComboBox::initStyleOption(QStyleOptionComboBox *option) const
{
    QComboBox::initStyleOption(option);
    const QRect field =
        style()->subControlRect(QStyle::CC_ComboBox, option, QStyle::SC_ComboBoxEditField, this);
    // The style leaves a pixel free at either side.
    option->currentText =
        fontMetrics().elidedText(option->currentText, Qt::ElideRight, field.width() - 2);
}

bool WholeTitleGroupBox::event(QEvent *event)
{
    if (event->type() != QEvent::KeyPress)
        return QGroupBox::event(event);
    // Where Enter presses buttons, the toolkit presses the title, which is none here.
    event->ignore();
    return false;
}

void WholeTitleGroupBox::paintEvent(QPaintEvent *)
{
    QStyleOptionGroupBox option;
    initStyleOption(&option);
    const QRect place =
        style()->subControlRect(QStyle::CC_GroupBox, &option, QStyle::SC_GroupBoxLabel, this);
    option.subControls &= ~QStyle::SC_GroupBoxLabel;
    QStylePainter painter(this);
    painter.drawComplexControl(QStyle::CC_GroupBox, option);
    painter.setPen(palette().color(foregroundRole()));
    painter.drawText(place, Qt::AlignCenter | Qt::TextDontClip, title());
}
