#pragma once

#include "widgets/TextPart.h"

#include <QAbstractTableModel>
#include <QFont>
#include <QIcon>
#include <QList>

class ImageList;

/// In which of the skin's colours a row is written.
enum class RowInk { Usual, Overdue, DueToday, Done };

/// A column of a grid. Its width is the grid's width divided by `widthDivisor`, scaled so that all columns
/// together fill the grid; a divisor of 0 hides the column.
struct GridColumn {
    int field = 0; ///< which of the model's fields the column shows
    QString key; ///< unique name, stored under Qt::UserRole in the header
    QString header;
    int widthDivisor = 0;
    bool isSortable = false; ///< a click on the header asks for an order
};

/// The columns and the image list of a grid. The derived class answers the content of a cell, only when
/// that is painted or read.
class GridModel : public QAbstractTableModel
{
    Q_OBJECT

public:
    /// The parts of a cell's text to be marked, a QList<TextPart>.
    static constexpr int MarksRole = Qt::UserRole + 3;

    using QAbstractTableModel::QAbstractTableModel;

    /// The role under which the header says whether a column is sortable.
    static constexpr int SortableRole = Qt::UserRole + 1;
    /// The RowInk of a cell's row as a number.
    static constexpr int InkRole = Qt::UserRole + 2;

    /// `images` is not owned and outlives the model.
    void setImageList(const ImageList* images) { m_images = images; }
    const QList<GridColumn>& columns() const { return m_columns; }
    /// Replaces all columns and emits a model reset.
    void setColumns(const QList<GridColumn>& columns);

    /// A row as plain text: what its visible cells show, words for pictures, with tabs in between.
    QString rowText(int row) const;

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
    /// The picture of a cell; that of `cellIcon`, where the list of pictures has it.
    virtual QVariant cellPicture(int row, int field) const;
    /// The word for a cell that shows only a picture, for tool tips and screen readers; empty for none.
    virtual QString cellWord(int row, int field) const = 0;
    /// What the tool tip of a cell adds below its text or word, and what screen readers say as its
    /// description; empty for nothing.
    virtual QString cellNote(int /*row*/, int /*field*/) const { return {}; }
    virtual RowInk rowInk(int /*row*/) const { return RowInk::Usual; }
    /// What the font of a cell has different from the grid's: weight, line through or below. The heights of
    /// rows do not follow it.
    virtual QFont cellFont(int /*row*/, int /*field*/) const { return {}; }
    virtual QList<TextPart> cellMarks(int /*row*/, int /*field*/) const { return {}; }

private:
    QString wordOrText(int row, int field) const;
    QString toolTip(int row, int field) const;

    const ImageList* m_images = nullptr;
    QList<GridColumn> m_columns;
};
