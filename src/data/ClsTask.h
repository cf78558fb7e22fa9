#pragma once

#include "data/PackedTexts.h"
#include "data/RepeatRules.h"
#include "store/DatabaseEngine.h"
#include "system/Moment.h"
#include "system/RuntimeError.h"

#include <QCoreApplication>
#include <memory>
#include <optional>
#include <vector>

class Connection;
class RecordSet;

/// There is no 16-bit id left for a new task.
class NoRoomError : public RuntimeError
{
public:
    using RuntimeError::RuntimeError;
};

/// The record of one task and the store of the table `tasks`. Copyable. Every operation opens a connection
/// of its own and closes it; all throw DatabaseError. The codes are in TaskCodes.h.
class ClsTask
{
    Q_DECLARE_TR_FUNCTIONS(ClsTask)

public:
    /// `engine` outlives the object and its copies.
    explicit ClsTask(const DatabaseEngine& engine);

    /// 0 for a task that is not stored yet.
    qint32 Id() const { return m_id; }
    void setId(qint32 id) { m_id = id; }
    qint16 CategoryId() const { return m_categoryId; }
    void setCategoryId(qint16 id) { m_categoryId = id; }
    QString TaskName() const { return m_texts.text(NameText); }
    /// In UTF-8; valid until the task changes.
    std::string_view taskNameUtf8() const { return m_texts.utf8(NameText); }
    void setTaskName(const QString& name) { setText(NameText, name); }
    QString Description() const { return m_texts.text(DescriptionText); }
    /// In UTF-8; valid until the task changes.
    std::string_view descriptionUtf8() const { return m_texts.utf8(DescriptionText); }
    void setDescription(const QString& description) { setText(DescriptionText, description); }
    qint32 status() const { return m_status; }
    void setStatus(qint32 status) { m_status = status; }
    Moment DueDateTime() const { return m_dueDateTime; }
    void setDueDateTime(Moment moment) { m_dueDateTime = moment; }
    qint32 Periority() const { return m_periority; }
    void setPeriority(qint32 periority) { m_periority = periority; }
    bool ReminderOn() const { return m_reminderOn; }
    void setReminderOn(bool on) { m_reminderOn = on; }
    Moment reminderDateTime() const { return m_reminderDateTime; }
    void setReminderDateTime(Moment moment) { m_reminderDateTime = moment; }
    QString ReminderSound() const { return m_texts.text(SoundText); }
    void setReminderSound(const QString& path) { setText(SoundText, path); }
    QString ReminderFile() const { return m_texts.text(FileText); }
    void setReminderFile(const QString& path) { setText(FileText, path); }
    /// The icon of the task's category; filled by queries, never written.
    qint16 IconId() const { return m_iconId; }
    void setIconId(qint16 iconId) { m_iconId = iconId; }
    /// Set when the reminder moment of a stored task was changed: `Update` then arms the alert again.
    bool DateChanged() const { return m_dateChanged; } // Without a caller: part of the interface.
    void setDateChanged(bool changed) { m_dateChanged = changed; }

    /// How the task repeats; filled by `GetTaskById` alone.
    std::optional<Repeat> repeat() const { return m_repeat ? std::optional(*m_repeat) : std::nullopt; }
    void setRepeat(const std::optional<Repeat>& repeat)
    {
        m_repeat = repeat ? std::make_shared<const Repeat>(*repeat) : nullptr;
    }

    /// Inserts this task and returns its id; the object keeps its own id. One that repeats and is completed
    /// moves on (MovingOn). Throws NoRoomError when no id is left, and RuntimeError when the rules cannot be
    /// loaded; nothing is stored then.
    qint32 Add() const;
    /// Updates the row of its id, and how the task repeats; otherwise as `Add`.
    void Update() const;
    /// The stored task of that id; none when there is no such row or its category is gone. Throws
    /// UnreadableRecordError for a row that does not convert.
    std::optional<ClsTask> GetTaskById(qint16 Id) const;
    /// The matching tasks in the order of `sortBy`; names in the order of the user's language (NameOrder).
    /// An unknown `taskType` is an error, here and below. `fromDate` and `toDate` are whole days and count
    /// only when `isDateRange` is set. A task is left out when its row or its category's does not convert
    /// (DatabaseEngine::unreadable).
    std::vector<ClsTask> GetTasks(qint16 cat, qint32 status, qint32 sortBy, bool isDateRange, Moment fromDate,
        Moment toDate, qint32 taskType) const;
    /// Reads every task that has a category, without keeping any, and returns their number. Throws
    /// UnreadableRecordError for one that does not convert.
    qint64 readAll() const;
    /// Deletes the matching tasks due from `fromDate` to the end of `toDate` and returns their number.
    qint32 DeleteTasks(qint16 cat, qint32 status, Moment fromDate, Moment toDate, qint32 taskType) const;
    /// How many tasks `DeleteTasks` would delete.
    qint32 GetTasksCount(qint16 cat, qint32 status, Moment fromDate, Moment toDate, qint32 taskType) const;
    void DeleteById(qint16 Id) const;

    /// The id of the task that the connection has inserted last. Throws NoRoomError when it has more than 16
    /// bits; then the connection is closed and nothing is stored.
    static qint32 insertedId(Connection& connection);

private:
    friend class TaskFields;
    enum Text : std::size_t { NameText, DescriptionText, SoundText, FileText, TextCount };
    QString filled(const QString& pattern) const;
    qint32 store(const QString& statement) const;
    void setText(Text which, const QString& value)
    {
        const QByteArray utf8 = value.toUtf8();
        m_texts.set(which, {utf8.constData(), static_cast<std::size_t>(utf8.size())});
    }

    const DatabaseEngine* m_engine;
    PackedTexts<TextCount> m_texts;
    std::shared_ptr<const Repeat> m_repeat; ///< lists hold many tasks of which few repeat
    Moment m_dueDateTime{};
    Moment m_reminderDateTime{};
    qint32 m_id = 0;
    qint32 m_status = 0;
    qint32 m_periority = 0;
    qint16 m_categoryId = 0;
    qint16 m_iconId = 0;
    bool m_reminderOn = false;
    bool m_dateChanged = false;
};
