#include "widgets/GridModel.h"

#include "widgets/ImageList.h"
#include "widgets/PlainText.h"

void GridModel::setColumns(const QList<GridColumn>& columns)
{
    beginResetModel();
    m_columns = columns;
    endResetModel();
}

int GridModel::columnCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : static_cast<int>(m_columns.size());
}

QVariant GridModel::data(const QModelIndex& index, int role) const
{
    if (!index.isValid()) {
        return {};
    }
    const int field = m_columns[index.column()].field;
    switch (role) {
    case Qt::DisplayRole:
        return shownPart(cellText(index.row(), field));
    case Qt::DecorationRole:
        return cellPicture(index.row(), field);
    case Qt::AccessibleTextRole:
        return shownPart(wordOrText(index.row(), field));
    case Qt::AccessibleDescriptionRole:
        return shownPart(cellNote(index.row(), field));
    case Qt::ToolTipRole:
        return toolTip(index.row(), field);
    case Qt::TextAlignmentRole:
        return QVariant(Qt::AlignLeft | Qt::AlignVCenter);
    case Qt::FontRole: {
        const QFont font = cellFont(index.row(), field);
        return font.resolveMask() == 0 ? QVariant() : QVariant(font);
    }
    case InkRole:
        return static_cast<int>(rowInk(index.row()));
    case MarksRole:
        return QVariant::fromValue(cellMarks(index.row(), field));
    default:
        return {};
    }
}

QVariant GridModel::cellPicture(int row, int field) const
{
    const int icon = cellIcon(row, field);
    return icon == NoIcon || m_images == nullptr ? QVariant() : QVariant(m_images->icon(icon));
}

QString GridModel::wordOrText(int row, int field) const
{
    const QString word = cellWord(row, field);
    return word.isEmpty() ? cellText(row, field) : word;
}

QString GridModel::rowText(int row) const
{
    QStringList texts;
    for (const GridColumn& column : m_columns) {
        if (column.widthDivisor != 0) {
            // A tab or a line break within a name would look like another cell or row.
            texts.append(wordOrText(row, column.field).simplified());
        }
    }
    return texts.join(u'\t');
}

QString GridModel::toolTip(int row, int field) const
{
    QStringList lines{wordOrText(row, field), cellNote(row, field)};
    lines.removeAll(QString());
    return plainToolTip(lines.join(u'\n'));
}

QVariant GridModel::headerData(int section, Qt::Orientation orientation, int role) const
{
    if (orientation != Qt::Horizontal || section < 0 || section >= m_columns.size()) {
        return {};
    }
    switch (role) {
    case Qt::DisplayRole:
        return m_columns[section].header;
    case Qt::ToolTipRole:
        // The whole caption, for a column that is too narrow for it.
        return plainToolTip(m_columns[section].header);
    case Qt::UserRole:
        return m_columns[section].key;
    case SortableRole:
        return m_columns[section].isSortable;
    case Qt::TextAlignmentRole:
        return QVariant(Qt::AlignLeft | Qt::AlignVCenter);
    default:
        return {};
    }
}
