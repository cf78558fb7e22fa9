#include "SoakWorld.h"

#include "data/TaskCodes.h"

#include <QRegularExpression>
#include <algorithm>

// Tasks that repeat, in the model: the moments of a series are found by going through the days one by one.

using namespace std::chrono_literals;

namespace
{

using std::chrono::days;
using std::chrono::local_days;

constexpr int LongestSeries = 4'000; ///< in days

QString text(Moment moment)
{
    return QString::fromStdString(storedText(moment));
}

Moment momentOf(const QString& stored)
{
    return *momentFromStoredText(stored.toStdString());
}

/// In minutes.
int leadIn(const TaskRow& row)
{
    return static_cast<int>((momentOf(row.due) - momentOf(row.reminder)) / 1min);
}

int numberIn(const QString& rule, const char* name, int otherwise)
{
    const auto match = QRegularExpression(QLatin1String(name) + QStringLiteral("=(\\d+)")).match(rule);
    return match.hasMatch() ? match.captured(1).toInt() : otherwise;
}

/// The first `most` moments of the series that are later than `after` and not later than `until`.
std::vector<Moment> momentsBetween(const RepeatRow& repeat, Moment after, Moment until, int most)
{
    const Moment first = momentOf(repeat.first);
    const int every =
        numberIn(repeat.rule, "INTERVAL", 1) * (repeat.rule.contains(QLatin1String("WEEKLY")) ? 7 : 1);
    const bool isOfWeekdays = repeat.rule.contains(QLatin1String("BYDAY=MO,TU,WE,TH,FR"));
    int left = numberIn(repeat.rule, "COUNT", LongestSeries);
    std::vector<Moment> moments;
    for (int day = 0; day < LongestSeries && left > 0 && static_cast<int>(moments.size()) < most; ++day) {
        const Moment moment = first + days(day);
        const unsigned weekday = std::chrono::weekday(std::chrono::floor<days>(moment)).iso_encoding();
        if (isOfWeekdays ? weekday <= 5 || day == 0 : day % every == 0) {
            --left;
            if (moment > until) {
                break;
            }
            if (moment > after) {
                moments.push_back(moment);
            }
        }
    }
    return moments;
}

std::optional<Moment> momentAfter(const RepeatRow& repeat, Moment after)
{
    const std::vector<Moment> moments = momentsBetween(repeat, after, Moment::max(), 1);
    return moments.empty() ? std::nullopt : std::optional(moments.front());
}

/// How many are later than `after` and not later than `until`.
int countOf(const RepeatRow& repeat, Moment after, Moment until)
{
    return static_cast<int>(momentsBetween(repeat, after, until, LongestSeries).size());
}

/// What the entries of the list of repeats say.
QString ruleOfEntry(int entry)
{
    constexpr std::array Rules{
        "", "FREQ=DAILY", "FREQ=WEEKLY;BYDAY=MO,TU,WE,TH,FR", "FREQ=WEEKLY", "FREQ=WEEKLY;INTERVAL=2"};
    return QLatin1String(Rules.at(static_cast<std::size_t>(entry)));
}

} // namespace

/// `before` is the row as it was, null for a new task; the row itself is stored already.
void SoakWorld::saveRepeat(qint32 id, const TaskEntry& entry, const TaskRow* before)
{
    m_lastRung.erase(id);
    m_putOff.erase(id);
    const auto known = m_rows.repeats.find(id);
    const bool repeated = known != m_rows.repeats.end();
    const QString rule = entry.repeat >= 0 ? ruleOfEntry(entry.repeat)
        : repeated                         ? known->second.rule
                                           : QString();
    if (rule.isEmpty()) {
        m_rows.repeats.erase(id);
        return;
    }
    const auto entered = static_cast<int>((entry.due - entry.reminder) / 1min);
    const bool isReminderNew = before == nullptr || text(entry.reminder) != before->reminder
        || (entry.reminderOn && !before->reminderOn);
    const bool hasCome = entry.reminderOn && !isReminderNew && entry.reminder <= m_now;
    const bool isDueNew = before != nullptr && text(entry.due) != before->due;
    const bool beginsAnew = !repeated || rule != known->second.rule || isDueNew;
    if (!repeated) {
        const int former = before == nullptr ? 0 : leadIn(*before);
        m_rows.repeats[id] = {rule, text(entry.due),
            !entry.reminderOn ? 0
                : hasCome     ? std::max(former, 0)
                              : entered,
            0};
    } else {
        RepeatRow& repeat = known->second;
        // One that had been put off says nothing of the next ones.
        const bool wasPlain = leadIn(*before) == repeat.lead;
        if (beginsAnew) {
            const bool follows = isReminderNew || (entry.reminderOn && wasPlain && !hasCome);
            repeat = {rule, text(entry.due), follows ? entered : repeat.lead, 0};
        } else if (isReminderNew) {
            const Moment of = momentOf(before->reminder) + std::chrono::minutes(repeat.lead);
            const bool isOfLaterTime = entry.reminder > entry.due && of > momentOf(before->due)
                && momentAfter(repeat, of - 1s) == of;
            repeat.lead = isOfLaterTime ? static_cast<int>((of - entry.reminder) / 1min) : entered;
        }
    }
    if (const Moment coming = entry.due - std::chrono::minutes(m_rows.repeats.at(id).lead);
        beginsAnew && hasCome && coming > m_now) {
        TaskRow& row = m_rows.tasks.at(id);
        row.reminder = text(coming);
        row.played = row.dismissed = false;
    }
    if (m_rows.tasks.at(id).status == TaskStatus::Completed) {
        complete(id);
    }
}

bool SoakWorld::complete(qint32 id)
{
    const auto found = m_rows.repeats.find(id);
    if (found == m_rows.repeats.end()) {
        return false;
    }
    TaskRow& row = m_rows.tasks.at(id);
    const auto next = momentAfter(found->second, std::max(momentOf(row.due), m_now));
    if (!next) {
        m_rows.repeats.erase(found);
        return false;
    }
    ++found->second.done;
    row.status = TaskStatus::NotStarted;
    row.due = text(*next);
    const QString reminder = text(*next - std::chrono::minutes(found->second.lead));
    if (reminder > text(m_now) || reminder > row.reminder) {
        row.reminder = reminder;
        row.played = row.dismissed = false;
        if (const auto last = m_lastRung.find(id); last != m_lastRung.end() && reminder <= last->second) {
            // The clock has been set back before a reminder that had come.
            m_lastRung.erase(last);
            m_soundedSinceStart.erase(id);
        }
    }
    ++m_movedOn;
    return true;
}

bool SoakWorld::dismissRepeating(qint32 id)
{
    const auto found = m_rows.repeats.find(id);
    TaskRow& row = m_rows.tasks.at(id);
    if (found == m_rows.repeats.end() || !row.reminderOn) {
        return false;
    }
    RepeatRow& repeat = found->second;
    const Moment due = momentOf(row.due);
    const std::chrono::minutes lead(repeat.lead);
    const auto next = momentAfter(repeat, std::max(due, std::max(momentOf(row.reminder), m_now) + lead));
    if (!next) {
        return false;
    }
    if (due <= m_now) {
        const Moment coming = std::min(*next, momentAfter(repeat, m_now).value_or(*next));
        repeat.done += 1 + countOf(repeat, due, coming - 1s);
        row.due = text(coming);
        row.status = TaskStatus::NotStarted;
    }
    row.reminder = text(*next - lead);
    row.played = row.dismissed = false;
    ++m_movedOn;
    return true;
}

int SoakWorld::timesOf(qint32 id) const
{
    const auto repeat = m_rows.repeats.find(id);
    const auto listed = m_listed.find(id);
    if (repeat == m_rows.repeats.end() || listed == m_listed.end() || momentOf(listed->second) > m_now) {
        return 1;
    }
    const std::chrono::minutes lead(repeat->second.lead);
    return 1 + countOf(repeat->second, momentOf(listed->second) + lead, m_now + lead);
}

void SoakWorld::removeRepeatsOfNone()
{
    std::erase_if(
        m_rows.repeats, [this](const auto& repeat) { return m_rows.tasks.count(repeat.first) == 0; });
}

/// Of a task that repeats, a reminder is later than those before it: what has moved on never comes again.
void SoakWorld::countRung(qint32 id, const QString& reminder)
{
    if (m_rows.repeats.count(id) == 0 || m_putOff.erase(id) > 0) {
        return;
    }
    const auto last = m_lastRung.find(id);
    m_doubled += last != m_lastRung.end() && reminder < last->second ? 1 : 0;
    m_lastRung[id] = reminder;
}
