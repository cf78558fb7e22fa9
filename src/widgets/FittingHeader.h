#pragma once

#include <QHeaderView>

/// A horizontal header that squeezes a caption a little too long for its column, so that a narrow column
/// keeps its whole word. A caption that is still too long is elided. The sort sign stands at the end of its
/// column: an arrow that points up for the ascending order. Columns that are not sortable
/// (GridModel::SortableRole) look as if they could not be clicked.
class FittingHeader : public QHeaderView
{
    Q_OBJECT

public:
    explicit FittingHeader(QWidget* parent = nullptr);

signals:
    /// A button of the mouse was let go; what was dragged has its place.
    void released();

protected:
    void mouseReleaseEvent(QMouseEvent* event) override;
    QSize sectionSizeFromContents(int logicalIndex) const override;
    void paintSection(QPainter* painter, const QRect& rect, int logicalIndex) const override;
    void initStyleOptionForIndex(QStyleOptionHeader* option, int logicalIndex) const override;

private:
    QString captionOf(int logicalIndex) const;
    /// Pixels available for the caption.
    int roomFor(int logicalIndex) const;
    bool isSorted(int logicalIndex) const;
    int sortSignWidth() const;
    void paintSqueezed(QPainter& painter, const QRect& rect, int logicalIndex, qreal squeeze) const;
    void paintSortSign(QPainter& painter, const QRect& section) const;
    /// The factor by which the letters are narrowed, at most 1.
    qreal squeezeOf(int logicalIndex) const;
};
