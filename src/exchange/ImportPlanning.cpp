#include "exchange/ImportPlanning.h"

#include "data/ClsTask.h"
#include "data/TaskArchive.h"
#include "data/TaskCodes.h"
#include "exchange/ExchangeTexts.h"
#include "exchange/FileZones.h"
#include "store/ForeignChanges.h"
#include "store/UnicodeCollation.h"
#include "system/Clock.h"

#include <algorithm>
#include <limits>

namespace
{

constexpr int MostNewTasks = std::numeric_limits<qint16>::max();

std::size_t bytesOf(const TaskRecord& task)
{
    return sizeof(ImportedTask) + task.name.size() + task.description.size() + task.category.size()
        + task.sound.size() + task.file.size() + task.uid.size() + task.properties.size()
        + (task.repeat ? task.repeat->rule.size() : 0);
}

bool areEqual(const TaskRecord& one, const TaskRecord& other)
{
    return one.status == other.status && one.periority == other.periority && one.due == other.due
        && one.reminder == other.reminder && one.reminderOn == other.reminderOn && one.played == other.played
        && one.dismissed == other.dismissed && one.name == other.name && one.description == other.description
        && compareIgnoringCase(one.category, other.category) == 0 && one.sound == other.sound
        && one.file == other.file && one.properties == other.properties && one.repeat == other.repeat;
}

/// What the file says, over what is stored.
void overlay(TaskRecord& task, FileTask&& read)
{
    const FileTask::Said& said = read.said;
    const auto set = [](bool isSaid, auto& value, auto&& told) {
        if (isSaid) {
            value = std::forward<decltype(told)>(told);
        }
    };
    set(said.name, task.name, std::move(read.task.name));
    set(said.description, task.description, std::move(read.task.description));
    set(said.category, task.category, std::move(read.task.category));
    set(said.status, task.status, read.task.status);
    set(said.periority, task.periority, read.task.periority);
    set(said.due, task.due, read.task.due);
    set(said.reminderOn, task.reminderOn, read.task.reminderOn);
    set(said.reminder, task.reminder, read.task.reminder);
    set(said.state, task.played, read.task.played);
    set(said.state, task.dismissed, read.task.dismissed);
    set(said.sound, task.sound, std::move(read.task.sound));
    set(said.properties, task.properties, std::move(read.task.properties));
    set(said.repeat, task.repeat, std::move(read.task.repeat));
    // A task may cease to start something; what it is to start has to be confirmed.
    if (said.file && read.task.file.empty()) {
        task.file.clear();
    }
}

} // namespace

bool ImportPlanning::FoldedOrder::operator()(const std::string& left, const std::string& right) const
{
    return compareIgnoringCase(left, right) < 0;
}

ImportPlanning::ImportPlanning(const DatabaseEngine& engine)
    : m_engine(&engine), m_now(engine.clock->now()),
      m_defaultCategory(ExchangeTexts::tr("Imported").toStdString())
{
    TaskArchive::read(engine, std::nullopt, [this](TaskRecord& task) {
        if (!task.uid.empty()) {
            m_stored.emplace(task.uid, task);
        }
    });
    if (engine.foreign != nullptr) {
        m_plan.seen = engine.foreign->latest();
    }
}

void ImportPlanning::leaveOut(qint64 line, std::string_view name, const QString& reason)
{
    ++m_plan.unreadableParts;
    if (m_plan.unreadable.size() < ImportPlan::MostNamed) {
        constexpr std::size_t Shown = 200;
        m_plan.unreadable.append({line, textOf(name.substr(0, Shown)), reason});
    }
}

void ImportPlanning::take(FileTask&& read)
{
    const std::string uid = read.task.uid;
    if (!uid.empty() && !m_seen.insert(uid).second) {
        leaveOut(read.line, read.task.name, ExchangeTexts::tr("A task before it has the same UID."));
        return;
    }
    m_plan.repeating += read.repeats ? 1 : 0;
    m_plan.unknownZones += read.isInUnknownZone ? 1 : 0;
    m_plan.furtherReminders += read.furtherReminders;
    const auto stored = uid.empty() ? m_stored.end() : m_stored.find(uid);
    if (stored == m_stored.end()) {
        takeNew(std::move(read));
    } else {
        takeStored(std::move(read), stored->second);
    }
}

/// What the reminder is when the file does not say whether it has been played and dismissed.
void ImportPlanning::settleReminder(TaskRecord& task, const FileTask::Said& said)
{
    if (said.state) {
        return;
    }
    task.played = task.dismissed = task.reminderOn && task.reminder < m_now;
    if (task.repeat && task.dismissed) {
        // It reminds of the next one.
        if (const auto next = RepeatRules::next(*task.repeat, std::max(task.due, m_now + task.repeat->lead));
            next && isStorable(*next - task.repeat->lead)) {
            task.reminder = *next - task.repeat->lead;
            task.played = task.dismissed = false;
        }
    }
    m_plan.dismissed += task.dismissed ? 1 : 0;
}

/// How a task repeats of which a row of a table says the rule.
std::optional<Repeat> ImportPlanning::repeatBy(const RuleOfFile& said, const TaskRecord& task)
{
    using namespace std::chrono;
    if (said.rule.empty() || m_engine->repeating == nullptr) {
        return std::nullopt;
    }
    if (task.status == TaskStatus::Completed || !RepeatRules::isUsable(said.rule)) {
        ++m_plan.repeating;
        return std::nullopt;
    }
    return Repeat{said.rule, said.first.value_or(task.due),
        said.lead ? minutes(*said.lead) : floor<minutes>(task.due - task.reminder), said.done.value_or(0)};
}

void ImportPlanning::takeNew(FileTask&& read)
{
    if (++m_plan.added > MostNewTasks) {
        throw NoRoomError(
            ExchangeTexts::tr("The file holds more than %1 tasks that are new. Nothing was stored.")
                .arg(MostNewTasks));
    }
    const FileTask::Said said = read.said;
    ImportedTask imported;
    imported.task = std::move(read.task);
    TaskRecord& task = imported.task;
    imported.program = std::exchange(task.file, {});
    if (!said.category) {
        task.category = m_defaultCategory;
    }
    if (!said.due) {
        task.due = said.reminder ? task.reminder : startOfDay(m_now) + EndOfDay;
        m_plan.withoutDue += said.reminder ? 0 : 1;
    }
    if (!said.reminder) {
        task.reminder = task.due;
    }
    if (said.rule) {
        task.repeat = repeatBy(read.rule, task);
    }
    settleReminder(task, said);
    add(std::move(imported));
}

void ImportPlanning::takeStored(FileTask&& read, const TaskRecord& stored)
{
    const FileTask::Said said = read.said;
    ImportedTask imported;
    if (said.file && read.task.file != stored.file) {
        imported.program = read.task.file;
    }
    imported.task = stored;
    const RuleOfFile rule = std::move(read.rule);
    const bool isOwnRepeat = read.isOwnRepeat || rule.first;
    overlay(imported.task, std::move(read));
    if (said.rule) {
        imported.task.repeat = repeatBy(rule, imported.task);
    }
    if (imported.task.repeat && stored.repeat && !isOwnRepeat
        && imported.task.repeat->rule == stored.repeat->rule && imported.task.due == stored.due) {
        // Where it counts from is known here alone.
        imported.task.repeat = stored.repeat;
    }
    if (!said.state
        && (imported.task.reminder != stored.reminder || imported.task.reminderOn != stored.reminderOn)) {
        settleReminder(imported.task, said);
    }
    const bool isSame = areEqual(imported.task, stored);
    imported.outcome = isSame ? ImportedTask::Outcome::Same : ImportedTask::Outcome::Changed;
    ++(isSame ? m_plan.same : m_plan.changed);
    if (!isSame || !imported.program.empty()) {
        add(std::move(imported));
    }
}

void ImportPlanning::add(ImportedTask&& imported)
{
    m_bytes += bytesOf(imported.task);
    if (m_bytes > MostBytes) {
        throw RuntimeError(ExchangeTexts::tr("The file is too large. Nothing was stored."));
    }
    if (m_categories.insert(imported.task.category).second) {
        m_categoriesInOrder.push_back(imported.task.category);
    }
    m_plan.tasks.push_back(std::move(imported));
}

ImportPlan ImportPlanning::finish()
{
    const qint32 room = TaskArchive::room(*m_engine);
    if (m_plan.added > room) {
        throw NoRoomError(
            ExchangeTexts::tr("The file holds %1 tasks that are new, and there is room for %2. Nothing was "
                              "stored. Delete tasks that you no longer need, then end Ambertask and start it "
                              "again.")
                .arg(m_plan.added)
                .arg(room));
    }
    for (const std::string& name : TaskArchive::withoutCategory(*m_engine, m_categoriesInOrder)) {
        m_plan.newCategories.append(textOf(name));
    }
    return std::move(m_plan);
}
