#include "data/TaskRecordRows.h"

#include "data/RecordReading.h"

TaskRecordRows::TaskRecordRows(const DatabaseEngine& engine, const RecordSet& records, bool hasRepeats)
    : m_engine(&engine), m_rows(engine, records), m_task(engine), m_sound(records.field("reminder_sound")),
      m_file(records.field("reminder_file")), m_category(records.field("cat_name")),
      m_played(records.field("played")), m_dismissed(records.field("dismissed")),
      m_uid(records.field("known_uid")), m_properties(records.field("known_properties"))
{
    if (hasRepeats) {
        m_rule = records.field("known_rule");
        m_repeat.emplace(records);
    }
}

bool TaskRecordRows::read(const RecordSet& records, TaskRecord& task)
{
    return readOrLeaveOut(*m_engine, [&] {
        m_rows.read(records, m_task);
        task.id = m_task.Id();
        task.status = m_task.status();
        task.periority = m_task.Periority();
        task.due = m_task.DueDateTime();
        task.reminder = m_task.reminderDateTime();
        task.reminderOn = m_task.ReminderOn();
        task.played = records.flag(m_played);
        task.dismissed = records.flag(m_dismissed);
        task.name = m_task.taskNameUtf8();
        task.description = m_task.descriptionUtf8();
        task.category = records.utf8(m_category);
        task.categoryId = m_task.CategoryId();
        task.sound = records.utf8(m_sound);
        task.file = records.utf8(m_file);
        task.uid = records.utf8(m_uid);
        task.properties = records.utf8(m_properties);
        task.repeat.reset();
        if (m_repeat && !records.utf8(m_rule).empty()) {
            task.repeat = m_repeat->read(records);
        }
    });
}
