#pragma once

#include "data/ReminderChecker.h"
#include "widgets/TaskGridModel.h"

#include <QHash>
#include <vector>

/// The due reminders in the alert window, in the order of the query.
class AlertListModel : public TaskGridModel
{
    Q_OBJECT

public:
    enum Field { Id, Name, Periority, DueDate };

    /// `clock` outlives the model; it decides how late a reminder and its task are.
    explicit AlertListModel(const Clock& clock, QObject* parent = nullptr);

    void createColumns();
    /// Replaces all rows; the columns and their widths stay.
    void setReminders(const std::vector<DueReminder>& reminders);
    /// How often reminders of repeating tasks have come, by the ids of the tasks.
    void setTimes(const QHash<qint32, int>& times);
    /// Removes these rows, given from the top.
    void removeReminders(const QList<int>& rows);
    /// Whether exactly these reminders are listed, in this order.
    bool lists(const std::vector<DueReminder>& reminders) const;
    /// Whether all of these are listed.
    bool holds(const std::vector<DueReminder>& reminders) const;
    /// Whether all of `some` are among `all`. A task with another moment is another reminder.
    static bool areAmong(const std::vector<DueReminder>& all, const std::vector<DueReminder>& some);
    /// The tasks of those of `some` that are among `all`.
    static QList<qint32> idsAmong(const std::vector<DueReminder>& all, const std::vector<DueReminder>& some);
    /// How many reminders the user has been shown, for a check that finds `due`: the number of rows. 0 when
    /// the list is hidden (`visible` is false) and out of date: something that it lists is no longer due,
    /// and something due is not listed.
    int shownCount(const std::vector<DueReminder>& due, bool visible) const;
    qint32 idAt(int row) const override { return at(row).id; }
    const std::vector<DueReminder>& reminders() const { return m_reminders; }
    QList<qint32> ids(const QList<int>& rows) const;

    int rowCount(const QModelIndex& parent = {}) const override;

protected:
    QString cellText(int row, int field) const override;
    int cellIcon(int row, int field) const override;
    QString cellWord(int row, int field) const override;
    QString cellNote(int row, int field) const override;
    qint32 statusAt(int row) const override { return at(row).status; }
    Moment dueAt(int row) const override { return at(row).dueDate; }

private:
    /// "4 times since Monday"; empty for once.
    QString missedTimes(int row) const;
    const DueReminder& at(int row) const { return m_reminders[static_cast<std::size_t>(row)]; }

    std::vector<DueReminder> m_reminders;
    QHash<qint32, int> m_times;
};
