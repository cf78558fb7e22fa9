#pragma once

#include "widgets/GridModel.h"

/// Rows of one text each; the text is shown by field 1, its picture number by field 2. Field 0, its
/// length, is hidden.
class WordsModel final : public GridModel
{
public:
    using GridModel::GridModel;

    void setWords(const QStringList& words, const QList<GridColumn>& columns)
    {
        beginResetModel();
        m_words = words;
        replaceColumns(columns);
        endResetModel();
    }
    void removeWord(int row)
    {
        beginRemoveRows({}, row, row);
        m_words.removeAt(row);
        endRemoveRows();
    }
    int rowCount(const QModelIndex& parent = {}) const override
    {
        return parent.isValid() ? 0 : static_cast<int>(m_words.size());
    }

protected:
    QString cellText(int row, int field) const override
    {
        return field == 0 ? QString::number(m_words[row].size()) : field == 2 ? QString() : m_words[row];
    }
    int cellIcon(int row, int field) const override { return field == 2 ? row : NoIcon; }
    QString cellWord(int row, int field) const override
    {
        return field == 2 ? QStringLiteral("picture %1").arg(row) : QString();
    }

private:
    QStringList m_words;
};

inline QList<GridColumn> columns()
{
    return {{0, QStringLiteral("id"), QStringLiteral("id"), 0},
        {1, QStringLiteral("name"), QStringLiteral("Name"), 26},
        {2, QStringLiteral("periority"), QStringLiteral("Periority"), 200}};
}
