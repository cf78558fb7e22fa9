#include "data/ReminderChecker.h"

#include "data/ClsDatabase.h"
#include "data/RecordReading.h"
#include "data/ReminderStatements.h"
#include "data/TaskCodes.h"
#include "store/DatabaseError.h"

namespace
{

DatabaseEngine withClock(DatabaseEngine engine, const Clock& clock)
{
    engine.clock = &clock;
    return engine;
}

/// No reminder is left out for a status that it does not depend on.
qint32 statusOf(const RecordSet& records, int field)
{
    try {
        return records.int32(field);
    } catch (const DatabaseError&) {
        return TaskStatus::NotStarted;
    }
}

} // namespace

ReminderChecker::ReminderChecker(const DatabaseEngine& engine)
    : m_clock(engine.clock->now()), m_engine(withClock(engine, m_clock)),
      m_connection(ClsDatabase(m_engine).Connect())
{
    m_connection.open();
    readDue();
}

void ReminderChecker::readDue()
{
    RecordSet records = m_connection.execute(ReminderStatements::selectDue());
    const int id = records.field("task_id");
    const int name = records.field("task_name");
    const int icon = records.field("cat_icon");
    const int periority = records.field("task_periority");
    const int dueDate = records.field("task_due_date");
    const int category = records.field("cat_name");
    const int reminder = records.field("reminder_date_time");
    const int sound = records.field("reminder_sound");
    const int file = records.field("reminder_file");
    const int played = records.field("played");
    const int reminderOn = records.field("reminder_on");
    const int status = records.field("task_status");
    for (; !records.atEnd(); records.moveNext()) {
        // Left out even without a listener: one bad record must not keep the other reminders from the user.
        try {
            readRecord(records, {QLatin1String("tasks"), id, name}, [&] {
                m_due.push_back({records.int32(id), records.text(name), records.int32(icon),
                    records.text(category), records.int32(periority), records.moment(dueDate),
                    records.text(reminder), records.text(sound), records.text(file), records.flag(played),
                    records.flag(reminderOn), statusOf(records, status)});
            });
        } catch (const UnreadableRecordError& error) {
            if (m_engine.unreadable != nullptr) {
                m_engine.unreadable->recordLeftOut(error.record());
            }
        }
    }
}

ReminderChecker::Outcome ReminderChecker::outcome(int shownRows) const
{
    const int count = static_cast<int>(m_due.size());
    if (count == shownRows) {
        return Outcome::Nothing;
    }
    if (count == 0) {
        return Outcome::Hide;
    }
    return count > shownRows ? Outcome::BringUp : Outcome::Redraw;
}

void ReminderChecker::markPlayed()
{
    m_connection.execute(ReminderStatements::markDueAsPlayed());
}

void ReminderChecker::close()
{
    m_connection.close();
}
