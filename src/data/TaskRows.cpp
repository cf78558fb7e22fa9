#include "data/TaskRows.h"

#include "data/ClsCategory.h"

TaskFields::TaskFields(const RecordSet& records)
    : m_naming{QLatin1String("tasks"), records.field("task_id"), records.field("task_name")},
      m_status(records.field("task_status")), m_description(records.field("task_desc")),
      m_due(records.field("task_due_date")), m_periority(records.field("task_periority")),
      m_reminder(records.field("reminder_date_time")), m_file(records.field("reminder_file")),
      m_reminderOn(records.field("reminder_on")), m_sound(records.field("reminder_sound")),
      m_played(records.field("played")), m_dismissed(records.field("dismissed"))
{
}

TaskFields::Texts TaskFields::texts(const RecordSet& records) const
{
    return {records.utf8(m_naming.name), records.utf8(m_description), records.utf8(m_sound),
        records.utf8(m_file)};
}

void TaskFields::readNumbers(const RecordSet& records, ClsTask& task) const
{
    task.setStatus(records.int32(m_status));
    task.setDueDateTime(records.moment(m_due));
    task.setId(records.int32(m_naming.id));
    task.setPeriority(records.int32(m_periority));
    task.setReminderDateTime(records.moment(m_reminder));
    task.setReminderOn(records.flag(m_reminderOn));
    // Read only to check it: a reminder that cannot be read must not be missed unnoticed.
    records.flag(m_played);
    records.flag(m_dismissed);
}

void TaskFields::read(const RecordSet& records, ClsTask& task) const
{
    readRecord(records, m_naming, [&] {
        task.m_texts.assign(texts(records));
        readNumbers(records, task);
    });
}

void TaskFields::check(const RecordSet& records, ClsTask& scratch) const
{
    readRecord(records, m_naming, [&] {
        texts(records);
        readNumbers(records, scratch);
    });
}

TaskRows::TaskRows(const DatabaseEngine& engine, const RecordSet& records)
    : m_engine(&engine), m_columns(records), m_categories(records), m_icon(records.field("cat_icon"))
{
}

void TaskRows::read(const RecordSet& records, ClsTask& task)
{
    const qint16 category = m_categories.id(records);
    if (m_readable.count(category) == 0) {
        ClsCategory scratch(*m_engine);
        m_categories.read(records, scratch);
        m_readable.insert(category);
    }
    m_columns.read(records, task);
    task.setCategoryId(category);
    task.setIconId(records.int16(m_icon));
}
