#include "exchange/TodoReading.h"

#include "data/TaskCodes.h"
#include "exchange/ExchangeTexts.h"
#include "exchange/TodoAlarms.h"
#include "exchange/TodoRepeats.h"
#include "exchange/TodoValues.h"

#include <algorithm>

namespace
{

/// Collects what the lines of a VTODO say, and puts it together at their end.
class TodoReading
{
public:
    TodoReading(const CalendarPart& part, FileZones& zones, Moment now, Repeating* repeating)
        : m_zones(zones), m_now(now), m_repeating(repeating), m_isEvent(part.kind == QLatin1String("VEVENT")),
          m_isOfOsmo(part.producer.contains(QLatin1String(Producer::Osmo))),
          m_isOfOrage(part.producer.contains(QLatin1String(Producer::Orage)))
    {
    }

    void readLine(const ContentLine& line);
    /// A component of the task, with its lines.
    void readComponent(const std::vector<std::string>& lines, std::size_t begin, std::size_t end);
    ReadTodo finish();

    ReadTodo todo;

private:
    /// A line of which the last one of its name counts.
    struct Texts {
        std::optional<std::string> seen;
        std::optional<std::string> exact;

        /// The exact text counts as long as nobody has changed what others see of it.
        std::string text() const
        {
            const std::string shown = seen.value_or(std::string());
            return exact && sayablePart(*exact) == shown ? *exact : shown;
        }
    };
    using Action = void (TodoReading::*)(const ContentLine&);
    struct Known {
        std::string_view name;
        Action action;
    };
    static const Known KnownLines[];

    void readSummary(const ContentLine& line) { readText(m_name, line); }
    void readDescription(const ContentLine& line) { readText(m_description, line); }
    void readText(Texts& texts, const ContentLine& line);
    void readExactSummary(const ContentLine& line) { m_name.exact = textOfLine(line); }
    void readExactDescription(const ContentLine& line) { m_description.exact = textOfLine(line); }
    void readExactCategory(const ContentLine& line) { m_category.exact = textOfLine(line); }
    void readUid(const ContentLine& line) { todo.task.task.uid = line.value; }
    void readCategories(const ContentLine& line);
    void readStatus(const ContentLine& line);
    void readOwnStatus(const ContentLine& line) { m_ownStatus = line.value; }
    void readPriority(const ContentLine& line);
    void readOwnPriority(const ContentLine& line) { m_ownPriority = numberOf(line.value); }
    void readCompleted(const ContentLine& line);
    void readPercent(const ContentLine& line);
    void readDue(const ContentLine& line);
    void readStart(const ContentLine& line);
    void readDuration(const ContentLine& line) { m_duration = durationOf(line.value); }
    void readRepeat(const ContentLine& line) { m_repeat.take(line, m_zones, todo.task.task.properties); }
    void readException(const ContentLine&) { todo.isException = true; }
    void readSound(const ContentLine& line) { todo.task.task.sound = textOfLine(line); }
    void readFile(const ContentLine& line) { todo.task.task.file = textOfLine(line); }
    void readReminderThatIsOff(const ContentLine& line) { m_off = std::string(line.text); }
    void passOver(const ContentLine&) { }
    /// What only an event may have.
    void readOfEvent(const ContentLine& line)
    {
        if (!m_isEvent) {
            keep(line.text);
        }
    }
    void readAlarmType(const ContentLine& line)
    {
        // Templates and alarms that are past and done.
        todo.isException = todo.isException || line.value != "ACTIVE";
        keep(line.text);
    }

    std::optional<FileMoment> momentOf(const ContentLine& line);
    void keep(std::string_view line) { todo.task.task.properties.append(line).append("\n"); }
    void nameByFirstLine();
    void finishStatus();
    void finishDue();
    void finishCategory();
    void finishReminder();

    FileZones& m_zones;
    Moment m_now;
    Repeating* m_repeating;
    bool m_isEvent;
    bool m_isOfOsmo;
    bool m_isOfOrage;
    Texts m_name;
    Texts m_description;
    Texts m_category;
    std::vector<std::string> m_categories;
    std::optional<std::string> m_status;
    std::string m_ownStatus;
    int m_priority = 0;
    std::optional<qint32> m_ownPriority;
    bool m_hasCompleted = false;
    std::optional<qint32> m_percent;
    std::optional<Moment> m_due;
    std::optional<FileMoment> m_start;
    std::optional<std::chrono::seconds> m_duration;
    std::optional<std::string> m_off; ///< the line of a reminder that is off
    std::vector<std::string> m_alarms;
    RepeatOfFile m_repeat;
};

const TodoReading::Known TodoReading::KnownLines[] = {{"UID", &TodoReading::readUid},
    {"SUMMARY", &TodoReading::readSummary}, {OwnProperty::Name, &TodoReading::readExactSummary},
    {"DESCRIPTION", &TodoReading::readDescription},
    {OwnProperty::Description, &TodoReading::readExactDescription},
    {"CATEGORIES", &TodoReading::readCategories}, {OwnProperty::Category, &TodoReading::readExactCategory},
    {"STATUS", &TodoReading::readStatus}, {OwnProperty::Status, &TodoReading::readOwnStatus},
    {"PRIORITY", &TodoReading::readPriority}, {OwnProperty::Periority, &TodoReading::readOwnPriority},
    {"COMPLETED", &TodoReading::readCompleted}, {"PERCENT-COMPLETE", &TodoReading::readPercent},
    {"DUE", &TodoReading::readDue}, {"DTSTART", &TodoReading::readStart},
    {"DURATION", &TodoReading::readDuration}, {"RRULE", &TodoReading::readRepeat},
    {"EXRULE", &TodoReading::readRepeat}, {"EXDATE", &TodoReading::readRepeat},
    {"RDATE", &TodoReading::readRepeat}, {OwnProperty::Repeat, &TodoReading::readRepeat},
    {"RECURRENCE-ID", &TodoReading::readException}, {OwnProperty::Sound, &TodoReading::readSound},
    {OwnProperty::File, &TodoReading::readFile}, {OwnProperty::Reminder, &TodoReading::readReminderThatIsOff},
    {"DTSTAMP", &TodoReading::passOver}, {"DTEND", &TodoReading::readOfEvent},
    {"TRANSP", &TodoReading::readOfEvent}, {"X-KDE-KALARM-TYPE", &TodoReading::readAlarmType}};

void TodoReading::readLine(const ContentLine& line)
{
    const auto* known = std::find_if(std::begin(KnownLines), std::end(KnownLines),
        [&line](const Known& candidate) { return line.is(candidate.name); });
    if (known == std::end(KnownLines)) {
        keep(line.text);
    } else {
        (this->*known->action)(line);
    }
}

void TodoReading::readComponent(const std::vector<std::string>& lines, std::size_t begin, std::size_t end)
{
    std::string text;
    for (std::size_t i = begin; i < end; ++i) {
        text.append(lines[i]).append("\n");
    }
    const auto first = ContentLine::of(lines[begin]);
    if (first && equalsIgnoringCase(first->value, "VALARM")) {
        m_alarms.push_back(std::move(text));
    } else {
        todo.task.task.properties += text;
    }
}

void TodoReading::readText(Texts& texts, const ContentLine& line)
{
    texts.seen = unescaped(line.value);
    if (!line.parameters.empty()) {
        keep(line.text);
    }
}

void TodoReading::readCategories(const ContentLine& line)
{
    for (std::string& name : unescapedList(line.value)) {
        // Nothing but control characters cannot be written again.
        if (!isBlank(escaped(name))) {
            m_categories.push_back(std::move(name));
        }
    }
}

void TodoReading::readStatus(const ContentLine& line)
{
    m_status = line.value;
    if (line.value != wordOfStatus(statusOfWord(line.value))) {
        keep(line.text);
    }
}

void TodoReading::readPriority(const ContentLine& line)
{
    m_priority = numberOf(line.value).value_or(0);
    if (m_isOfOsmo && m_priority >= TaskPeriority::High && m_priority <= TaskPeriority::Low) {
        m_priority = priorityNumber(TaskPeriority::Low - m_priority);
        return;
    }
    if (m_priority != priorityNumber(periorityOfNumber(m_priority))) {
        keep(line.text);
    }
}

void TodoReading::readCompleted(const ContentLine& line)
{
    m_hasCompleted = true;
    // Ours is the moment of an export.
    if (!line.parameter(OwnParameter::Assumed)) {
        keep(line.text);
    }
}

void TodoReading::readPercent(const ContentLine& line)
{
    m_percent = numberOf(line.value);
    if (m_percent != AllDone) {
        keep(line.text);
    }
}

std::optional<FileMoment> TodoReading::momentOf(const ContentLine& line)
{
    const auto read = m_zones.momentOf(line);
    todo.task.isInUnknownZone = todo.task.isInUnknownZone || (read && read->isInUnknownZone);
    return read;
}

void TodoReading::readDue(const ContentLine& line)
{
    const auto read = momentOf(line);
    if (!read) {
        todo.problem =
            ExchangeTexts::tr("Its due date cannot be read: %1").arg(textOf(line.value.substr(0, 40)));
        return;
    }
    m_due = read->moment;
    if (read->isDate) {
        *m_due += EndOfDay;
        if (m_isOfOrage) {
            *m_due -= std::chrono::days(1);
        } else {
            keep(line.text);
        }
    }
}

void TodoReading::readStart(const ContentLine& line)
{
    m_start = momentOf(line);
    // Ours is the due moment.
    if (!line.parameter(OwnParameter::Assumed)) {
        readOfEvent(line);
    }
}

void TodoReading::finishStatus()
{
    FileTask& task = todo.task;
    if (m_status) {
        task.task.status = statusOfWords(*m_status, m_ownStatus);
    } else if (m_hasCompleted || m_percent == AllDone) {
        task.task.status = TaskStatus::Completed;
    } else {
        task.task.status = m_percent.value_or(0) > 0 ? TaskStatus::InProgress : TaskStatus::NotStarted;
    }
    task.task.periority = periorityOfNumber(m_priority);
    if (m_ownPriority && priorityNumber(*m_ownPriority) == m_priority) {
        task.task.periority = *m_ownPriority;
    }
    task.said.status = task.said.periority = true;
}

void TodoReading::finishDue()
{
    if (!m_due && m_start && !m_isOfOrage) {
        m_due = m_start->moment;
        if (m_duration && isStorable(*m_due + *m_duration)) {
            *m_due = toMinute(*m_due + *m_duration);
        } else if (m_start->isDate) {
            *m_due += EndOfDay;
        }
    }
    todo.task.said.due = m_due.has_value();
    todo.task.task.due = m_due.value_or(Moment());
}

void TodoReading::finishCategory()
{
    m_category.seen = m_categories.empty() ? std::string() : m_categories.front();
    todo.task.task.category = m_category.text();
    todo.task.said.category = !m_categories.empty() || m_category.exact;
    std::string others;
    for (std::size_t i = 1; i < m_categories.size(); ++i) {
        others += (others.empty() ? "CATEGORIES:" : ",") + escaped(m_categories[i]);
    }
    if (!others.empty()) {
        keep(others);
    }
}

void TodoReading::finishReminder()
{
    FileTask& task = todo.task;
    const auto off = m_off ? ContentLine::of(*m_off) : std::nullopt;
    ReminderOfFile reminder;
    reminder.name = task.task.name;
    reminder.due = m_due;
    reminder.start = m_start ? std::optional(m_start->moment) : m_due;
    reminder.read(m_alarms, off, m_zones, m_now);
    task.said.reminderOn = true;
    task.task.reminderOn = reminder.isOn;
    task.said.reminder = reminder.moment.has_value();
    task.task.reminder = reminder.moment.value_or(Moment());
    task.said.state = reminder.isOwn;
    task.task.played = reminder.played;
    task.task.dismissed = reminder.dismissed;
    // Of a task that this program has written nothing is left unsaid.
    task.said.sound = reminder.isOwn || !task.task.sound.empty();
    task.said.file = reminder.isOwn || !task.task.file.empty();
    task.furtherReminders = reminder.further;
    task.isInUnknownZone = task.isInUnknownZone || reminder.isInUnknownZone;
    task.task.properties += reminder.kept;
    m_repeat.finish(task, m_repeating, m_start ? m_start->moment : task.task.due, reminder.isOwn);
}

/// An alarm has nothing but a text: its first line is the name, the rest the description.
void TodoReading::nameByFirstLine()
{
    TaskRecord& task = todo.task.task;
    if (!m_isEvent || m_description.seen) {
        task.name = task.description.substr(0, task.description.find('\n'));
        return;
    }
    for (const std::string& alarm : m_alarms) {
        for (std::string_view rest = alarm; !rest.empty();) {
            const auto line = ContentLine::of(takeLine(rest));
            if (line && line->is("DESCRIPTION")) {
                const std::string text = unescaped(line->value);
                const std::size_t end = text.find('\n');
                task.name = text.substr(0, end);
                task.description = end == std::string::npos ? std::string() : text.substr(end + 1);
                return;
            }
        }
    }
}

ReadTodo TodoReading::finish()
{
    FileTask& task = todo.task;
    task.task.name = m_name.text();
    task.task.description = m_description.text();
    if (!m_name.seen && !m_name.exact) {
        nameByFirstLine();
    }
    task.said.name = task.said.description = task.said.properties = true;
    finishStatus();
    finishDue();
    finishCategory();
    finishReminder();
    return std::move(todo);
}

} // namespace

ReadTodo readTodo(const CalendarPart& part, FileZones& zones, Moment now, Repeating* repeating)
{
    TodoReading reading(part, zones, now, repeating);
    reading.todo.problem = part.problem;
    std::size_t level = 0;
    std::size_t begin = 0;
    for (std::size_t i = 0; i < part.lines.size(); ++i) {
        const std::string& text = part.lines[i];
        const auto line = ContentLine::of(text);
        if (!isText(text)) {
            reading.todo.problem = ExchangeTexts::tr("It holds bytes that are no text in UTF-8.");
        } else if (!line) {
            // Other readers pass over it, too.
        } else if (line->is("BEGIN")) {
            begin = level++ == 0 ? i : begin;
        } else if (line->is("END")) {
            if (level > 0 && --level == 0) {
                reading.readComponent(part.lines, begin, i + 1);
            }
        } else if (level == 0) {
            reading.readLine(*line);
        }
    }
    ReadTodo read = reading.finish();
    read.task.line = part.line;
    return read;
}
