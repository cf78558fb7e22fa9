#pragma once

#include "data/ReminderChecker.h"
#include "widgets/GridModel.h"

#include <vector>

/// The due reminders in the alert window, in the order of the query.
class AlertListModel : public GridModel
{
    Q_OBJECT

public:
    enum Field { Id, Name, Periority, DueDate };

    /// `clock` outlives the model; it decides how late a reminder is.
    explicit AlertListModel(const Clock& clock, QObject* parent = nullptr);

    void createColumns();
    /// Replaces all rows; the columns and their widths stay.
    void setReminders(const std::vector<DueReminder>& reminders);
    void removeReminder(int row);
    /// Whether exactly these reminders are listed, in this order.
    bool lists(const std::vector<DueReminder>& reminders) const;
    /// How many reminders the user has been shown, for a check that finds `due`: the number of rows. 0 when
    /// the list is hidden (`visible` is false) and out of date: something that it lists is no longer due,
    /// and something due is not listed.
    int shownCount(const std::vector<DueReminder>& due, bool visible) const;
    /// The row of that task; -1 when it is not listed.
    int rowOf(qint32 id) const;
    qint32 id(int row) const { return at(row).id; }
    /// The task id of a row as text.
    QString idText(int row) const { return cellText(row, Id); }

    int rowCount(const QModelIndex& parent = {}) const override;

protected:
    QString cellText(int row, int field) const override;
    int cellIcon(int row, int field) const override;
    QString cellWord(int row, int field) const override;
    QString cellNote(int row, int field) const override;

private:
    const DueReminder& at(int row) const { return m_reminders[static_cast<std::size_t>(row)]; }

    const Clock& m_clock;
    std::vector<DueReminder> m_reminders;
};
