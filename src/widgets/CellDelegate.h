#pragma once

#include "widgets/TextPart.h"

#include <QStyledItemDelegate>

class GridView;

/// Paints the cells of a GridView: each text in its own direction and in the colour of its row, and its
/// marked parts (GridModel::MarksRole) in the colours of the grid for them.
class CellDelegate final : public QStyledItemDelegate
{
public:
    /// `grid` becomes the owner.
    explicit CellDelegate(GridView& grid);

    QString displayText(const QVariant& value, const QLocale& locale) const override;
    void paint(
        QPainter* painter, const QStyleOptionViewItem& option, const QModelIndex& index) const override;

protected:
    void initStyleOption(QStyleOptionViewItem* option, const QModelIndex& index) const override;

private:
    void paintMarks(QPainter& painter, const QStyleOptionViewItem& cell, const QList<TextPart>& marks) const;

    const GridView& m_grid;
};
