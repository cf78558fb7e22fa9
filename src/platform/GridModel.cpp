#include "platform/GridModel.h"

#include "platform/ImageList.h"

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
        return cellText(index.row(), field);
    case Qt::DecorationRole: {
        const int icon = cellIcon(index.row(), field);
        return icon == NoIcon || m_images == nullptr ? QVariant() : QVariant(m_images->icon(icon));
    }
    case Qt::AccessibleTextRole:
    case Qt::ToolTipRole: {
        QString word = cellWord(index.row(), field);
        if (word.isEmpty()) {
            word = cellText(index.row(), field);
        }
        if (word.isEmpty()) {
            return {};
        }
        // A tool tip that looks like markup would be shown as such.
        return role == Qt::ToolTipRole ? QStringLiteral("<qt>%1</qt>").arg(word.toHtmlEscaped()) : word;
    }
    case Qt::TextAlignmentRole:
        return QVariant(Qt::AlignLeft | Qt::AlignVCenter);
    default:
        return {};
    }
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
        // The whole of a caption that is too long for its column.
        return m_columns[section].header;
    case Qt::UserRole:
        return m_columns[section].key;
    case Qt::TextAlignmentRole:
        return QVariant(Qt::AlignLeft | Qt::AlignVCenter);
    default:
        return {};
    }
}
