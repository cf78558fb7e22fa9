#pragma once

#include "widgets/GridModel.h"

struct ImportPlan;

/// The list of an import: the tasks that come in or change, and those that bring a program along.
class ImportListModel final : public GridModel
{
    Q_OBJECT

public:
    enum Field { Outcome, Name, DueDate, Category };

    using GridModel::GridModel;

    /// `plan` is not owned and outlives its being shown; null for none.
    void show(const ImportPlan* plan);

    int rowCount(const QModelIndex& parent = {}) const override;

protected:
    QString cellText(int row, int field) const override;
    int cellIcon(int /*row*/, int /*field*/) const override { return NoIcon; }
    QString cellWord(int /*row*/, int /*field*/) const override { return {}; }

private:
    const ImportPlan* m_plan = nullptr;
};
