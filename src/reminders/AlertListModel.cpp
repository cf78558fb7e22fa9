#include "reminders/AlertListModel.h"

#include "reminders/Lateness.h"
#include "system/Clock.h"
#include "widgets/MomentTexts.h"
#include "widgets/PlainText.h"
#include "widgets/TaskPictures.h"

#include <algorithm>

AlertListModel::AlertListModel(const Clock& clock, QObject* parent)
    : TaskGridModel(clock, Name, DueDate, parent)
{
}

void AlertListModel::createColumns()
{
    setColumns({{Id, QStringLiteral("id"), tr("id"), 0}, {Name, QStringLiteral("name"), tr("Name"), 26},
        {Periority, QStringLiteral("periority"), tr("Periority"), 200},
        {DueDate, QStringLiteral("due date"), tr("Due Date"), 48}});
}

void AlertListModel::setReminders(const std::vector<DueReminder>& reminders)
{
    if (!m_reminders.empty()) {
        beginRemoveRows({}, 0, rowCount() - 1);
        m_reminders.clear();
        endRemoveRows();
    }
    if (!reminders.empty()) {
        beginInsertRows({}, 0, static_cast<int>(reminders.size()) - 1);
        m_reminders = reminders;
        standNow();
        endInsertRows();
    }
}

void AlertListModel::setTimes(const QHash<qint32, int>& times)
{
    if (m_times == times) {
        return;
    }
    m_times = times;
    if (rowCount() > 0) {
        emit dataChanged(index(0, 0), index(rowCount() - 1, columnCount() - 1));
    }
}

void AlertListModel::removeReminders(const QList<int>& rows)
{
    for (qsizetype last = rows.size() - 1; last >= 0; --last) {
        qsizetype first = last;
        while (first > 0 && rows[first - 1] + 1 == rows[first]) {
            --first;
        }
        beginRemoveRows({}, rows[first], rows[last]);
        m_reminders.erase(m_reminders.begin() + rows[first], m_reminders.begin() + rows[last] + 1);
        endRemoveRows();
        last = first;
    }
}

bool AlertListModel::lists(const std::vector<DueReminder>& reminders) const
{
    return std::equal(m_reminders.begin(), m_reminders.end(), reminders.begin(), reminders.end(),
        [](const DueReminder& shown, const DueReminder& due) { return shown.id == due.id; });
}

bool AlertListModel::holds(const std::vector<DueReminder>& reminders) const
{
    return areAmong(m_reminders, reminders);
}

bool AlertListModel::areAmong(const std::vector<DueReminder>& all, const std::vector<DueReminder>& some)
{
    return idsAmong(all, some).size() == static_cast<qsizetype>(some.size());
}

QList<qint32> AlertListModel::idsAmong(
    const std::vector<DueReminder>& all, const std::vector<DueReminder>& some)
{
    QHash<qint32, QString> moments;
    moments.reserve(static_cast<qsizetype>(all.size()));
    for (const DueReminder& reminder : all) {
        moments.insert(reminder.id, reminder.reminder);
    }
    QList<qint32> ids;
    for (const DueReminder& reminder : some) {
        const auto found = moments.constFind(reminder.id);
        if (found != moments.constEnd() && *found == reminder.reminder) {
            ids.append(reminder.id);
        }
    }
    return ids;
}

int AlertListModel::shownCount(const std::vector<DueReminder>& due, bool visible) const
{
    const bool isOvertaken = !visible && !areAmong(due, m_reminders) && !holds(due);
    return isOvertaken ? 0 : rowCount();
}

QList<qint32> AlertListModel::ids(const QList<int>& rows) const
{
    QList<qint32> ids;
    for (const int row : rows) {
        ids.append(idAt(row));
    }
    return ids;
}

int AlertListModel::rowCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : static_cast<int>(m_reminders.size());
}

QString AlertListModel::cellText(int row, int field) const
{
    switch (field) {
    case Id:
        return QString::number(at(row).id);
    case Name: {
        const QString missed = missedTimes(row);
        return missed.isEmpty() ? at(row).name : tr("%1 (%2)").arg(at(row).name, missed);
    }
    case DueDate:
        return dateAndLongTime(at(row).dueDate);
    default:
        return {};
    }
}

QString AlertListModel::missedTimes(int row) const
{
    const auto reminder = momentFromStoredText(at(row).reminder.toStdString());
    return reminder ? missedText(m_times.value(at(row).id), *reminder, clock().now()) : QString();
}

int AlertListModel::cellIcon(int row, int field) const
{
    switch (field) {
    case Name:
        return at(row).icon;
    case Periority:
        return periorityPicture(at(row).periority);
    default:
        return NoIcon;
    }
}

QString AlertListModel::cellWord(int row, int field) const
{
    return field == Periority ? periorityWord(at(row).periority) : QString();
}

QString AlertListModel::cellNote(int row, int field) const
{
    const DueReminder& shown = at(row);
    QStringList notes{urgencyWord(row)};
    if (field == Name && !shown.category.isEmpty()) {
        notes.append(tr("Category: %1").arg(shownPart(shown.category)));
    }
    if (const auto reminder = momentFromStoredText(shown.reminder.toStdString())) {
        notes.append(latenessText(*reminder, clock().now()));
    }
    notes.removeAll(QString());
    return notes.join(u'\n');
}
