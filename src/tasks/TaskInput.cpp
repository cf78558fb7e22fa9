#include "tasks/TaskInput.h"

#include <algorithm>

namespace
{

bool isBlank(const QString& text)
{
    return text.trimmed().isEmpty();
}

bool isLineBreak(QChar c)
{
    return (c >= u'\n' && c <= u'\r') || c == QChar(0x85) || c == QChar::LineSeparator
        || c == QChar::ParagraphSeparator;
}

/// A name is one line, but QLineEdit keeps line breaks that were pasted.
QString nameOf(const QString& text)
{
    QString line = text;
    line.replace(QLatin1String("\r\n"), QLatin1String(" "));
    std::replace_if(line.begin(), line.end(), isLineBreak, QChar(u' '));
    return line.trimmed();
}

/// Without blanks around it; tabs and line breaks belong to the text.
QString descriptionOf(const QString& text)
{
    qsizetype begin = 0;
    qsizetype end = text.size();
    while (begin < end && text[begin] == u' ') {
        ++begin;
    }
    while (end > begin && text[end - 1] == u' ') {
        --end;
    }
    return text.mid(begin, end - begin);
}

} // namespace

QString TaskInput::unsavedText(const TaskInput& filled) const
{
    const QString name = nameOf(isBlank(taskName) ? filled.taskName : taskName);
    return name.isEmpty() ? tr("The changes to the task are not saved.")
                          : tr("The changes to '%1' are not saved.").arg(name);
}

void TaskInput::followReminder(EditedTask& edited, const ClsTask& stored)
{
    if (reminder != edited.reminder) {
        return;
    }
    if (reminderOn == edited.reminderOn) {
        reminderOn = stored.ReminderOn();
    }
    reminder = edited.reminder = stored.reminderDateTime();
}

bool TaskInput::reminderMustLieAhead(const std::optional<EditedTask>& edited) const
{
    return !edited || reminder != edited->reminder || !edited->reminderOn;
}

std::optional<Refusal> TaskInput::refusal(const std::optional<EditedTask>& edited, Moment now) const
{
    if (reminderMustLieAhead(edited) && reminderOn && reminder < now) {
        return Refusal{TaskField::ReminderDate,
            tr("Reminder date and time should not be earlier than current system date and time")};
    }
    if (isBlank(taskName)) {
        return Refusal{TaskField::TaskName, tr("Please enter task name.")};
    }
    if (!categoryId) {
        return Refusal{TaskField::Category, tr("Please select category.")};
    }
    if (hasSound && isBlank(sound)) {
        return Refusal{TaskField::SoundBrowse, tr("Please select reminder sound.")};
    }
    if (hasFile && isBlank(file)) {
        return Refusal{TaskField::FileBrowse, tr("Please select reminder file.")};
    }
    return std::nullopt;
}

ClsTask TaskInput::toTask(const DatabaseEngine& engine, const std::optional<EditedTask>& edited) const
{
    ClsTask task(engine);
    task.setCategoryId(categoryId.value());
    task.setStatus(status);
    task.setDueDateTime(due);
    task.setPeriority(periority);
    task.setReminderOn(reminderOn);
    task.setReminderDateTime(reminder);
    if (hasFile) {
        task.setReminderFile(file);
    }
    if (hasSound) {
        task.setReminderSound(sound);
    }
    // Long texts last: the texts of a task share one buffer, which every setter makes anew.
    task.setDescription(descriptionOf(description));
    task.setTaskName(nameOf(taskName));
    if (edited) {
        task.setId(edited->id);
        task.setDateChanged(reminder != edited->reminder);
    }
    return task;
}
