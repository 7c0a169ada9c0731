#include "space_layout.h"

#include <QPainter>
#include <QTextBlock>
#include <QTextDocument>
#include <QTextLayout>
#include <algorithm>

namespace {

/// Breaks \a block into lines, each as long as \a width allows.
void breakLines(const QTextBlock &block, qreal width)
{
    QTextLayout &layout = *block.layout();
    const QString text = block.text();
    qreal height = 0;
    layout.beginLayout();
    for (QTextLine line = layout.createLine(); line.isValid(); line = layout.createLine()) {
        line.setLeadingIncluded(true);
        line.setLineWidth(width);
        const qsizetype start = line.textStart(), end = start + line.textLength();
        if (end < text.size() && !text[end - 1].isSpace()) {
            const qsizetype last = text.lastIndexOf(u' ', end - 1);
            const qsizetype space = last >= start ? last : text.indexOf(u' ', end);
            line.setNumColumns(int((space < 0 ? text.size() : space + 1) - start));
        }
        line.setPosition(QPointF(0, height));
        height += line.height();
    }
    layout.endLayout();
}

} // namespace

void SpaceLayout::documentChanged(int, int, int)
{
    const qreal margin = document()->documentMargin();
    const qreal width = document()->textWidth() - 2 * margin;
    m_size = QSizeF(0, margin);
    for (QTextBlock block = document()->begin(); block.isValid(); block = block.next()) {
        breakLines(block, width);
        block.layout()->setPosition(QPointF(margin, m_size.height()));
        const QRectF rectangle = blockBoundingRect(block);
        m_size = QSizeF(std::max(m_size.width(), rectangle.right() + margin), rectangle.bottom());
    }
    m_size.rheight() += margin;
    emit documentSizeChanged(m_size);
    emit update();
}

QRectF SpaceLayout::blockBoundingRect(const QTextBlock &block) const
{
    const QTextLayout &layout = *block.layout();
    return layout.boundingRect().translated(layout.position());
}

void SpaceLayout::draw(QPainter *painter, const PaintContext &context)
{
    painter->setPen(context.palette.color(QPalette::Text));
    for (QTextBlock block = document()->begin(); block.isValid(); block = block.next()) {
        QList<QTextLayout::FormatRange> selected;
        for (const Selection &selection : context.selections) {
            const int start = selection.cursor.selectionStart();
            const int length = selection.cursor.selectionEnd() - start;
            selected.append({start - block.position(), length, selection.format});
        }
        if (!context.clip.isValid() || blockBoundingRect(block).intersects(context.clip))
            block.layout()->draw(painter, QPointF(), selected, context.clip);
    }
}

int SpaceLayout::hitTest(const QPointF &point, Qt::HitTestAccuracy) const
{
    QTextBlock block = document()->begin();
    while (block.next().isValid() && blockBoundingRect(block).bottom() <= point.y())
        block = block.next();
    const QTextLayout &layout = *block.layout();
    const QPointF inBlock = point - layout.position();
    int line = 0;
    while (line + 1 < layout.lineCount() && layout.lineAt(line).rect().bottom() <= inBlock.y())
        ++line;
    return block.position() + layout.lineAt(line).xToCursor(inBlock.x());
}
