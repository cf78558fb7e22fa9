#include "tasks/TaskInput.h"

#include "system/Clock.h"

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

std::string ruleIn(const std::optional<Repeat>& repeat)
{
    return repeat ? repeat->rule : std::string();
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

/// `entered` becomes `now` when the user has left it and others have not.
template <typename Entered, typename Stored>
void follow(Entered& entered, const Entered& filled, const Stored& before, const Stored& now)
{
    if (entered == filled && before != now) {
        entered = now;
    }
}

} // namespace

QString TaskInput::unsavedText(const TaskInput& filled) const
{
    const QString name = nameOf(isBlank(taskName) ? filled.taskName : taskName);
    return name.isEmpty() ? tr("The changes to the task are not saved.")
                          : tr("The changes to '%1' are not saved.").arg(name);
}

void TaskInput::followOthers(const TaskInput& filled, const ClsTask& loaded, const ClsTask& stored)
{
    // As they are stored: nearly always they are the same, and a long text is not converted for that.
    if (loaded.taskNameUtf8() != stored.taskNameUtf8()) {
        follow(taskName, filled.taskName, loaded.TaskName(), stored.TaskName());
    }
    if (loaded.descriptionUtf8() != stored.descriptionUtf8()) {
        follow(description, filled.description, loaded.Description(), stored.Description());
    }
    follow(categoryId, filled.categoryId, loaded.CategoryId(), stored.CategoryId());
    follow(status, filled.status, loaded.status(), stored.status());
    follow(periority, filled.periority, loaded.Periority(), stored.Periority());
    if (!loaded.repeat() && !stored.repeat()) {
        follow(due, filled.due, toMinute(loaded.DueDateTime()), toMinute(stored.DueDateTime()));
    }
    const auto followPath = [](bool& has, QString& path, bool had, const QString& former,
                                const QString& before, const QString& now) {
        if (has == had && path == former && before != now) {
            path = now;
            has = !isBlank(now);
        }
    };
    followPath(
        hasSound, sound, filled.hasSound, filled.sound, loaded.ReminderSound(), stored.ReminderSound());
    followPath(hasFile, file, filled.hasFile, filled.file, loaded.ReminderFile(), stored.ReminderFile());
}

void TaskInput::followReminder(EditedTask& edited, const ClsTask& stored)
{
    if (reminder != edited.reminder) {
        return;
    }
    if (reminderOn == edited.reminderOn) {
        reminderOn = edited.reminderOn = stored.ReminderOn();
    }
    reminder = edited.reminder = stored.reminderDateTime();
}

void TaskInput::followRepeat(EditedTask& edited, const ClsTask& stored)
{
    const bool concernsIt = edited.repeat || stored.repeat();
    const bool isLeftAlone = rule == ruleIn(edited.repeat) && due == toMinute(edited.due);
    if (!concernsIt || !isLeftAlone || status == TaskStatus::Completed) {
        return;
    }
    edited.repeat = stored.repeat();
    edited.due = stored.DueDateTime();
    rule = ruleIn(edited.repeat);
    due = toMinute(edited.due);
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

bool TaskInput::isReminderSetByUser(const EditedTask& edited) const
{
    return reminder != edited.reminder || (reminderOn && !edited.reminderOn);
}

bool TaskInput::hasReminderCome(const EditedTask& edited, Moment now) const
{
    return reminderOn && !isReminderSetByUser(edited) && reminder <= now;
}

std::optional<Repeat> TaskInput::repeat(const std::optional<EditedTask>& edited, Moment now) const
{
    using namespace std::chrono;
    if (rule.empty()) {
        return std::nullopt;
    }
    const minutes lead = floor<minutes>(due - reminder);
    if (!edited || !edited->repeat) {
        const minutes former = edited ? floor<minutes>(edited->due - edited->reminder) : 0min;
        const bool hasCome = edited && hasReminderCome(*edited, now);
        return Repeat{rule, due, !reminderOn ? 0min : hasCome ? std::max(former, 0min) : lead, 0};
    }
    Repeat repeat = *edited->repeat;
    if (beginsAnew(edited)) {
        // One that has come, was put off, or is that of a later time already, does not tell the lead.
        const bool isOfThisTime = reminderOn && edited->due - edited->reminder == repeat.lead;
        const bool isLead = isReminderSetByUser(*edited) || (isOfThisTime && !hasReminderCome(*edited, now));
        return Repeat{rule, due, isLead ? lead : repeat.lead, 0};
    }
    if (isReminderSetByUser(*edited)) {
        // After this time's has been dismissed, the reminder is that of a later one.
        const Moment reminded = edited->reminder + repeat.lead;
        const bool isOfLaterTime =
            reminder > due && reminded > edited->due && RepeatRules::next(repeat, reminded - 1s) == reminded;
        repeat.lead = isOfLaterTime ? floor<minutes>(reminded - reminder) : lead;
    }
    return repeat;
}

bool TaskInput::beginsAnew(const std::optional<EditedTask>& edited) const
{
    return !edited || !edited->repeat || rule != edited->repeat->rule || due != toMinute(edited->due);
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
    const Moment now = engine.clock->now();
    task.setRepeat(repeat(edited, now));
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
        if (task.repeat() && beginsAnew(edited) && hasReminderCome(*edited, now)
            && due - task.repeat()->lead > now) {
            // What has come reminded of the due moment before; the new one is still to be reminded of.
            task.setReminderDateTime(due - task.repeat()->lead);
        }
        task.setDateChanged(task.reminderDateTime() != edited->reminder);
    }
    return task;
}
