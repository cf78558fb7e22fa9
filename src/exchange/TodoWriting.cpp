#include "exchange/TodoWriting.h"

#include "data/TaskCodes.h"
#include "data/TaskRecord.h"
#include "exchange/FileTask.h"
#include "exchange/FileZones.h"
#include "exchange/TodoAlarms.h"
#include "exchange/TodoRepeats.h"
#include "exchange/TodoValues.h"

#include <libical/ical.h>
#include <vector>

namespace
{

/// A line of other programs, or a component with all its lines.
struct KeptPart {
    std::string_view text;
    ContentLine first;
};

std::vector<KeptPart> partsOf(std::string_view properties)
{
    std::vector<KeptPart> parts;
    while (!properties.empty()) {
        const char* begin = properties.data();
        const std::string_view whole = takeLine(properties);
        const auto first = ContentLine::of(whole);
        if (!first) {
            continue;
        }
        for (int level = first->is("BEGIN") ? 1 : 0; level > 0 && !properties.empty();) {
            if (const auto line = ContentLine::of(takeLine(properties))) {
                level += line->is("BEGIN") ? 1 : 0;
                level -= line->is("END") ? 1 : 0;
            }
        }
        parts.push_back(
            {std::string_view(begin, static_cast<std::size_t>(properties.data() - begin)), *first});
    }
    return parts;
}

class TodoWriting
{
public:
    TodoWriting(std::string& out, const TaskRecord& task)
        : m_out(out), m_task(task), m_kept(partsOf(task.properties))
    {
    }

    void write(const std::string& stamp)
    {
        line("BEGIN:VTODO");
        line("UID", m_task.uid);
        line("DTSTAMP", stamp);
        writeText("SUMMARY", OwnProperty::Name, m_task.name);
        writeText("DESCRIPTION", OwnProperty::Description, m_task.description);
        writeText("CATEGORIES", OwnProperty::Category, m_task.category);
        writeUnlessKept("DUE", momentText(m_task.due));
        writeRepeat();
        writeStatus(stamp);
        writePriority();
        writeOwnTexts();
        writeKept();
        writeReminder();
        line("END:VTODO");
    }

private:
    void line(std::string_view text) { appendFolded(m_out, text); }
    void line(std::string_view name, std::string_view value)
    {
        m_line.assign(name).append(":").append(value);
        appendFolded(m_out, m_line);
    }
    void lines(std::string_view texts)
    {
        while (!texts.empty()) {
            line(takeLine(texts));
        }
    }
    bool isKept(std::string_view name) const
    {
        for (const KeptPart& part : m_kept) {
            // Categories that are kept are further ones.
            if (part.first.is(name) && !part.first.is("CATEGORIES") && stillHolds(part)) {
                return true;
            }
        }
        return false;
    }
    void writeUnlessKept(std::string_view name, std::string_view value)
    {
        if (!isKept(name)) {
            line(name, value);
        }
    }
    bool stillHolds(const KeptPart& part) const;
    bool isStillDue(const ContentLine& line) const;
    bool isLeftOfReminder(const KeptPart& part) const
    {
        return part.first.is("BEGIN") && equalsIgnoringCase(part.first.value, "VALARM")
            && isWithoutTrigger(part.text);
    }
    void writeText(std::string_view name, std::string_view own, const std::string& text);
    void writeRepeat();
    void writeStatus(const std::string& stamp);
    void writePriority();
    void writeOwnTexts();
    void writeKept();
    void writeReminder();
    void writeAlarm(std::string_view rest);
    std::string reminderState(const std::string& parameters) const;

    std::string& m_out;
    const TaskRecord& m_task;
    std::vector<KeptPart> m_kept;
    std::string m_line;
    bool m_hasAlarm = false;
    int m_further = 0; ///< alarms of other programs
};

bool TodoWriting::isStillDue(const ContentLine& line) const
{
    const icaltimetype day = icaltime_from_string(std::string(line.value).c_str());
    const std::chrono::year_month_day date(std::chrono::year(day.year),
        std::chrono::month(static_cast<unsigned>(day.month)),
        std::chrono::day(static_cast<unsigned>(day.day)));
    return day.is_date != 0 && date.ok() && makeMoment(date, EndOfDay) == m_task.due;
}

bool TodoWriting::stillHolds(const KeptPart& part) const
{
    const ContentLine& first = part.first;
    if (first.is("SUMMARY")) {
        return unescaped(first.value) == sayablePart(m_task.name);
    }
    if (first.is("DESCRIPTION")) {
        return unescaped(first.value) == sayablePart(m_task.description);
    }
    if (first.is("DUE")) {
        return isStillDue(first);
    }
    if (first.is("STATUS")) {
        return statusOfWord(first.value) == m_task.status;
    }
    if (first.is("PRIORITY")) {
        return periorityOfNumber(numberOf(first.value).value_or(0)) == m_task.periority;
    }
    if (first.is("COMPLETED")) {
        return m_task.status == TaskStatus::Completed;
    }
    if (first.is("PERCENT-COMPLETE")) {
        return m_task.status != TaskStatus::Completed && numberOf(first.value).value_or(0) < AllDone;
    }
    if (first.is("DTSTART")) {
        // From there others count the days of a rule.
        if (m_task.repeat && m_task.repeat->first != m_task.due) {
            return false;
        }
        // What begins after it is due is refused by others. The zone of a beginning does not matter for that.
        return first.value.substr(0, 8) <= std::string_view(momentText(m_task.due)).substr(0, 8);
    }
    if (first.is("RRULE") || first.is("EXRULE") || first.is("EXDATE") || first.is("RDATE")) {
        return !m_task.repeat;
    }
    return true;
}

void TodoWriting::writeText(std::string_view name, std::string_view own, const std::string& text)
{
    if (const std::string shown = escaped(text); !isBlank(shown)) {
        writeUnlessKept(name, shown);
    }
    const bool isNone = text.empty() && name == "DESCRIPTION";
    if (!isSayable(text) && !isNone) {
        line(textLine(own, text));
    }
}

void TodoWriting::writeRepeat()
{
    if (!m_task.repeat || !isSayableRule(m_task.repeat->rule)) {
        return;
    }
    // Without a beginning a rule means nothing to others; it is of the same type as DUE.
    if (!isKept("DTSTART")) {
        const std::string due = momentText(m_task.due);
        const bool isDay = isKept("DUE");
        line(isDay ? "DTSTART;X-AMBERTASK-ASSUMED=TRUE;VALUE=DATE" : "DTSTART;X-AMBERTASK-ASSUMED=TRUE",
            isDay ? due.substr(0, 8) : due);
    }
    line("RRULE", m_task.repeat->rule);
    if (const std::string own = repeatLine(*m_task.repeat, m_task.due, m_task.reminder); !own.empty()) {
        line(own);
    }
}

void TodoWriting::writeStatus(const std::string& stamp)
{
    writeUnlessKept("STATUS", wordOfStatus(m_task.status));
    if (const std::string own = ownStatusWord(m_task.status); !own.empty()) {
        line(OwnProperty::Status, own);
    }
    if (m_task.status == TaskStatus::Completed) {
        line("PERCENT-COMPLETE:100");
        // Some programs know by this alone that a task is completed.
        if (!isKept("COMPLETED")) {
            line("COMPLETED;X-AMBERTASK-ASSUMED=TRUE", stamp);
        }
    }
}

void TodoWriting::writePriority()
{
    const int number = priorityNumber(m_task.periority);
    writeUnlessKept("PRIORITY", std::to_string(number));
    if (periorityOfNumber(number) != m_task.periority) {
        line(OwnProperty::Periority, std::to_string(m_task.periority));
    }
}

void TodoWriting::writeOwnTexts()
{
    if (!m_task.sound.empty()) {
        line(textLine(OwnProperty::Sound, m_task.sound));
    }
    if (!m_task.file.empty()) {
        line(textLine(OwnProperty::File, m_task.file));
    }
}

void TodoWriting::writeKept()
{
    for (const KeptPart& part : m_kept) {
        if (isLeftOfReminder(part)) {
            if (m_task.reminderOn && !m_hasAlarm) {
                std::string_view rest = part.text;
                takeLine(rest);
                writeAlarm(rest.substr(0, rest.rfind("END:")));
            }
        } else if (stillHolds(part)) {
            const bool isAlarm = part.first.is("BEGIN") && equalsIgnoringCase(part.first.value, "VALARM");
            m_further += isAlarm ? 1 : 0;
            lines(part.text);
        }
    }
}

std::string TodoWriting::reminderState(const std::string& parameters) const
{
    std::string text(OwnProperty::Reminder);
    text += parameters;
    text += m_task.played ? ";X-PLAYED=TRUE" : "";
    text += m_task.dismissed ? ";X-DISMISSED=TRUE" : "";
    return text + ':' + momentText(m_task.reminder);
}

void TodoWriting::writeReminder()
{
    if (!m_task.reminderOn) {
        line(reminderState(";X-FURTHER=" + std::to_string(m_further)));
    } else if (!m_hasAlarm) {
        writeAlarm(alarmAction(m_task.name));
    }
}

void TodoWriting::writeAlarm(std::string_view rest)
{
    m_hasAlarm = true;
    line("BEGIN:VALARM");
    lines(rest);
    // Relative, because others allow an absolute one in UTC only, which another time zone would move; to the
    // end, because a task need not have a beginning.
    line("TRIGGER;RELATED=END", durationText(m_task.reminder - m_task.due));
    line(reminderState({}));
    line("END:VALARM");
}

} // namespace

void appendTodo(std::string& out, const TaskRecord& task, const std::string& stamp)
{
    TodoWriting(out, task).write(stamp);
}
