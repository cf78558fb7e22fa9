#pragma once

#include <QHeaderView>

/// A horizontal header that squeezes a caption a little too long for its column, so that a narrow column
/// keeps its whole word. A caption that is still too long is elided.
class FittingHeader : public QHeaderView
{
    Q_OBJECT

public:
    explicit FittingHeader(QWidget* parent = nullptr);

protected:
    QSize sectionSizeFromContents(int logicalIndex) const override;
    void paintSection(QPainter* painter, const QRect& rect, int logicalIndex) const override;
    void initStyleOptionForIndex(QStyleOptionHeader* option, int logicalIndex) const override;

private:
    QString captionOf(int logicalIndex) const;
    /// Pixels available for the caption.
    int roomFor(int logicalIndex) const;
    /// The factor by which the letters are narrowed, at most 1.
    qreal squeezeOf(int logicalIndex) const;
};
