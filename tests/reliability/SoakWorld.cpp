#include "SoakWorld.h"

#include "data/TaskCodes.h"
#include "system/Moment.h"

#include <algorithm>
#include <utility>

using namespace std::chrono_literals;

namespace
{

QString text(Moment moment)
{
    return QString::fromStdString(storedText(moment));
}

} // namespace

SoakWorld::Outcome SoakWorld::start(bool keepsBetween)
{
    Outcome outcome;
    m_listed.clear();
    m_alertVisible = false;
    m_owesMark = false;
    m_fired.clear();
    m_soundedSinceStart.clear();
    tick(outcome, keepsBetween);
    outcome.sounds.sort();
    outcome.started.sort();
    return outcome;
}

void SoakWorld::commit(Outcome& outcome, bool keepsBetween) const
{
    if (keepsBetween) {
        outcome.between.push_back(m_rows);
    }
}

std::vector<qint32> SoakWorld::listed() const
{
    std::vector<qint32> ids;
    for (const auto& [id, moment] : m_listed) {
        ids.push_back(id);
    }
    return ids;
}

std::map<qint32, QString> SoakWorld::due() const
{
    std::map<qint32, QString> reminders;
    const QString now = text(m_now);
    for (const auto& [id, row] : m_rows.tasks) {
        if (row.reminderOn && !row.dismissed && row.reminder <= now) {
            reminders[id] = row.reminder;
        }
    }
    return reminders;
}

std::size_t SoakWorld::shownCount(const std::map<qint32, QString>& due) const
{
    // A hidden list that both holds what is no longer due and lacks what is counts as empty.
    const bool isOvertaken = !m_alertVisible
        && !std::includes(due.begin(), due.end(), m_listed.begin(), m_listed.end())
        && !std::includes(m_listed.begin(), m_listed.end(), due.begin(), due.end());
    return isOvertaken ? 0 : m_listed.size();
}

void SoakWorld::tick(Outcome& outcome, bool keepsBetween)
{
    m_ticked = m_now;
    check(outcome, keepsBetween, shownCount(due()));
}

void SoakWorld::showAnew(Outcome& outcome, bool keepsBetween)
{
    const std::map<qint32, QString> now = due();
    if (!std::includes(m_listed.begin(), m_listed.end(), now.begin(), now.end())) {
        check(outcome, keepsBetween, 0);
    } else if (now == m_listed) {
        list(outcome, now);
        const auto isPlayed = [this](const auto& reminder) {
            return m_rows.tasks.at(reminder.first).played;
        };
        m_owesMark = m_owesMark || !std::all_of(now.begin(), now.end(), isPlayed);
    }
}

void SoakWorld::check(Outcome& outcome, bool keepsBetween, std::size_t shown)
{
    const std::map<qint32, QString> now = due();
    if (now.size() == shown) {
        const auto isSameTask = [](const auto& one, const auto& other) {
            return one.first == other.first;
        };
        if (m_owesMark && std::equal(now.begin(), now.end(), m_listed.begin(), m_listed.end(), isSameTask)) {
            mark(outcome, keepsBetween);
        }
        return;
    }
    list(outcome, now);
    if (now.size() > shown) {
        m_alertVisible = true;
        mark(outcome, keepsBetween);
    } else if (now.empty()) {
        m_alertVisible = false;
        m_owesMark = false;
    }
}

void SoakWorld::list(Outcome& outcome, const std::map<qint32, QString>& now)
{
    m_listed = now;
    for (const auto& [id, moment] : now) {
        const TaskRow& row = m_rows.tasks.at(id);
        const auto fired = m_fired.find(id);
        if (row.played || (fired != m_fired.end() && fired->second == row.reminder)) {
            continue;
        }
        m_fired[id] = row.reminder;
        countRung(id, row.reminder);
        if (!row.sound.isEmpty()) {
            outcome.sounds.append(row.sound);
            const auto before = m_soundedSinceStart.find(id);
            m_doubled += before != m_soundedSinceStart.end() && before->second == row.reminder ? 1 : 0;
            m_soundedSinceStart[id] = row.reminder;
        }
        if (!row.file.isEmpty()) {
            outcome.started.append(row.file);
        }
    }
}

void SoakWorld::mark(Outcome& outcome, bool keepsBetween)
{
    for (const auto& [id, moment] : due()) {
        m_rows.tasks.at(id).played = true;
    }
    m_owesMark = false;
    m_fired.clear();
    commit(outcome, keepsBetween);
}

TaskRow SoakWorld::rowOf(const TaskEntry& entry) const
{
    return {entry.name, entry.description, entry.status, entry.category, text(entry.due), entry.periority,
        entry.reminderOn, text(entry.reminder), entry.sound, entry.file, false, false};
}

bool SoakWorld::bulkMatches(const TaskRow& row, const Step& step) const
{
    const QString now = text(m_now);
    return (step.category == CategoryFilter::All || row.category == step.category)
        && (step.status == TaskStatus::All || row.status == step.status)
        && (step.taskType != TaskType::Active || row.due >= now)
        && (step.taskType != TaskType::Expired || row.due < now) && row.due >= text(step.from)
        && row.due <= text(step.to + 24h - 1min);
}

SoakWorld::Outcome SoakWorld::apply(const Step& step, bool keepsBetween)
{
    using Kind = Step::Kind;
    Outcome outcome;
    m_ticked = {};
    const auto removeListed = [this](qint32 id) {
        m_listed.erase(id);
        m_alertVisible = m_alertVisible && !m_listed.empty();
    };
    // The dialog lets the checker look at once while the alert is shown.
    const auto afterSaving = [&] {
        commit(outcome, keepsBetween);
        if (m_alertVisible) {
            tick(outcome, keepsBetween);
        }
    };
    const auto afterChange = [&] {
        afterSaving();
        if (m_alertVisible) {
            showAnew(outcome, keepsBetween);
        }
    };
    switch (step.kind) {
    case Kind::Pass:
        for (int i = 0; i < step.count; ++i) {
            m_now += 10s;
            tick(outcome, keepsBetween);
        }
        break;
    case Kind::Jump:
        m_now += step.seconds;
        break;
    case Kind::AddTask:
        m_rows.tasks[++m_rows.lastTask] = rowOf(step.entry);
        saveRepeat(m_rows.lastTask, step.entry, nullptr);
        afterSaving();
        break;
    case Kind::EditTask:
    case Kind::EditListed: {
        TaskRow& row = m_rows.tasks.at(step.task);
        TaskRow edited = rowOf(step.entry);
        if (edited.reminder == row.reminder) {
            edited.played = row.played;
            edited.dismissed = row.dismissed;
        }
        const TaskRow before = std::exchange(row, edited);
        saveRepeat(step.task, step.entry, &before);
        afterSaving();
        break;
    }
    case Kind::DeleteTask: {
        outcome.asksWhichTimes = m_rows.repeats.count(step.task) > 0;
        if (!step.thisTime || !complete(step.task)) {
            m_rows.tasks.erase(step.task);
            removeRepeatsOfNone();
        }
        afterChange();
        break;
    }
    case Kind::Complete:
        if (TaskRow& row = m_rows.tasks.at(step.task); row.status == TaskStatus::Completed) {
            row.status = TaskStatus::NotStarted;
        } else if (!complete(step.task)) {
            row.status = TaskStatus::Completed;
            if (due().count(step.task) > 0) {
                row.dismissed = true;
                row.reminderOn = false;
            }
        }
        afterChange();
        break;
    case Kind::Dismiss:
        if (const auto found = m_rows.tasks.find(step.task);
            found != m_rows.tasks.end() && !dismissRepeating(step.task)) {
            found->second.dismissed = true;
            found->second.reminderOn = false;
        }
        removeListed(step.task);
        break;
    case Kind::DismissAll:
        for (const auto& [id, moment] : due()) {
            if (!dismissRepeating(id)) {
                m_rows.tasks.at(id).dismissed = true;
                m_rows.tasks.at(id).reminderOn = false;
            }
        }
        m_alertVisible = false;
        break;
    case Kind::RemindLater:
        if (const auto found = m_rows.tasks.find(step.task); found != m_rows.tasks.end()) {
            found->second.played = false;
            found->second.reminder = text(step.moment);
        }
        m_fired.erase(step.task);
        m_soundedSinceStart.erase(step.task);
        m_putOff.insert(step.task);
        removeListed(step.task);
        break;
    case Kind::BulkDelete:
        outcome.deleted = static_cast<qint32>(
            std::erase_if(m_rows.tasks, [&](const auto& entry) { return bulkMatches(entry.second, step); }));
        removeRepeatsOfNone();
        if (outcome.deleted > 0) {
            afterChange();
        }
        break;
    case Kind::AddCategory:
        m_rows.categories[++m_rows.lastCategory] = step.categoryRow;
        break;
    case Kind::EditCategory:
        m_rows.categories.at(step.category).description = step.categoryRow.description;
        m_rows.categories.at(step.category).icon = step.categoryRow.icon;
        break;
    case Kind::DeleteCategory:
        m_rows.categories.erase(step.category);
        std::erase_if(
            m_rows.tasks, [&](const auto& entry) { return entry.second.category == step.category; });
        removeRepeatsOfNone();
        afterChange();
        break;
    case Kind::Backup:
        m_backups[step.slot] = m_rows;
        break;
    case Kind::Restore: {
        const QStringList settings = m_rows.settings;
        m_rows = m_backups.at(step.slot);
        commit(outcome, keepsBetween);
        m_rows.settings = settings;
        // What had sounded is as it was when the backup was made.
        m_soundedSinceStart.clear();
        m_lastRung.clear();
        m_putOff.clear();
        // The next check lists what is due in it.
        m_listed.clear();
        m_fired.clear();
        m_alertVisible = false;
        m_owesMark = false;
        break;
    }
    case Kind::Settings:
        m_rows.settings = step.settings;
        break;
    case Kind::Restart:
    case Kind::Kill:
        return start(keepsBetween);
    }
    outcome.sounds.sort();
    outcome.started.sort();
    return outcome;
}
