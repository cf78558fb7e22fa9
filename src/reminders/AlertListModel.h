#pragma once

#include "platform/GridModel.h"
#include "reminders/ReminderChecker.h"

#include <vector>

/// The due reminders that the alert window lists, in the order of the query.
class AlertListModel : public GridModel
{
    Q_OBJECT

public:
    enum Field { Id, Name, Periority, DueDate };

    /// `clock` outlives the model; how late a reminder is follows it.
    explicit AlertListModel(const Clock& clock, QObject* parent = nullptr);

    void createColumns();
    /// Replaces all rows. The columns and the widths that the user has given them stay.
    void setReminders(const std::vector<DueReminder>& reminders);
    void removeReminder(int row);
    /// Whether these very tasks are listed, in this order.
    bool lists(const std::vector<DueReminder>& reminders) const;
    /// How many of them the user has been shown, for a check that finds these reminders due: the number of
    /// rows. None when the list is hidden (`visible` is false) and has been overtaken: some of what it lists
    /// is no longer due, and some of what is due it does not list.
    int shownCount(const std::vector<DueReminder>& due, bool visible) const;
    /// The row of that task; -1 when it is not listed.
    int rowOf(qint32 id) const;
    qint32 id(int row) const { return at(row).id; }
    /// The task id of a row as the text of its cell.
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
