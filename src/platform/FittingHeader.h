#pragma once

#include <QHeaderView>

/// A horizontal header that squeezes the letters of a caption that is a little too long for its column, so
/// that a narrow column keeps its whole word. What is still too long is elided.
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
    /// Pixels for the caption.
    int roomFor(int logicalIndex) const;
    /// How wide the letters are drawn, at most 1.
    qreal squeezeOf(int logicalIndex) const;
};
