#pragma once

#include <QAbstractTableModel>
#include <QIcon>
#include <QList>

class ImageList;

/// A column of a grid. Its width is the grid's width divided by `widthDivisor`, scaled so that all columns
/// together fill the grid; a divisor of 0 hides the column.
struct GridColumn {
    int field = 0; ///< which of the model's fields the column shows
    QString key; ///< unique name, stored under Qt::UserRole in the header
    QString header;
    int widthDivisor = 0;
};

/// The columns and the image list of a grid. The derived class answers the content of a cell, only when
/// that is painted or read.
class GridModel : public QAbstractTableModel
{
    Q_OBJECT

public:
    using QAbstractTableModel::QAbstractTableModel;

    /// `images` is not owned and outlives the model.
    void setImageList(const ImageList* images) { m_images = images; }
    const QList<GridColumn>& columns() const { return m_columns; }
    /// Replaces all columns and emits a model reset.
    void setColumns(const QList<GridColumn>& columns);

    int columnCount(const QModelIndex& parent = {}) const override;
    QVariant data(const QModelIndex& index, int role) const override;
    QVariant headerData(int section, Qt::Orientation orientation, int role) const override;

protected:
    static constexpr int NoIcon = -1;

    /// Replaces all columns without a reset, for a model that is resetting itself already.
    void replaceColumns(const QList<GridColumn>& columns) { m_columns = columns; }

    /// The text that a cell shows.
    virtual QString cellText(int row, int field) const = 0;
    /// The picture of a cell as an index into the image list, counted from 0, or NoIcon.
    virtual int cellIcon(int row, int field) const = 0;
    /// The word for a cell that shows only a picture, for tool tips and screen readers; empty for none.
    virtual QString cellWord(int row, int field) const = 0;
    /// What the tool tip of a cell adds below its text or word, and what screen readers say as its
    /// description; empty for nothing.
    virtual QString cellNote(int /*row*/, int /*field*/) const { return {}; }

private:
    QString wordOrText(int row, int field) const;
    QString toolTip(int row, int field) const;

    const ImageList* m_images = nullptr;
    QList<GridColumn> m_columns;
};
