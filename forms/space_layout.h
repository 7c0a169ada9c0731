#pragma once

#include <QAbstractTextDocumentLayout>

/// Lays out a short plain text whose lines break at spaces only. The toolkit's own layout breaks
/// them behind hyphens and slashes, too, and so tears options and paths apart. A word that is wider
/// than the text stays whole and makes the document wider.
class SpaceLayout : public QAbstractTextDocumentLayout
{
    Q_OBJECT

public:
    using QAbstractTextDocumentLayout::QAbstractTextDocumentLayout;

    void draw(QPainter *painter, const PaintContext &context) override;
    int hitTest(const QPointF &point, Qt::HitTestAccuracy accuracy) const override;
    int pageCount() const override { return 1; }
    QSizeF documentSize() const override { return m_size; }
    QRectF frameBoundingRect(QTextFrame *) const override { return {QPointF(), m_size}; }
    QRectF blockBoundingRect(const QTextBlock &block) const override;

protected:
    void documentChanged(int, int, int) override;

private:
    QSizeF m_size;
};
