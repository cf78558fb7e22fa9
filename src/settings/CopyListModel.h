#pragma once

#include "data/CopyDifference.h"
#include "data/KeptCopies.h"
#include "widgets/GridModel.h"

#include <optional>
#include <vector>

/// The copies of the data file that the program has made, with what has become different since each.
class CopyListModel : public GridModel
{
    Q_OBJECT

public:
    enum Field { MadeAt, Occasion, Tasks, Difference };

    explicit CopyListModel(QObject* parent = nullptr);

    /// Replaces all rows; nothing is known of their differences.
    void setCopies(const QList<KeptCopy>& copies);
    /// Whether exactly these copies are listed.
    bool lists(const QList<KeptCopy>& copies) const;
    void setDifference(int row, const CopyDifference& difference);
    const KeptCopy& at(int row) const { return m_rows[static_cast<std::size_t>(row)].copy; }
    /// False for a row that is known not to be restorable.
    bool isUsable(int row) const;

    int rowCount(const QModelIndex& parent = {}) const override;

protected:
    QString cellText(int row, int field) const override;
    int cellIcon(int row, int field) const override;
    QString cellWord(int row, int field) const override;

private:
    struct Row {
        KeptCopy copy;
        std::optional<CopyDifference> difference;
    };
    std::vector<Row> m_rows;
};
