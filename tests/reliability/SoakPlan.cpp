#include "SoakWorld.h"

#include "data/TaskCodes.h"

#include <algorithm>
#include <array>
#include <iterator>

using namespace std::chrono_literals;

namespace
{

using Kind = Step::Kind;

constexpr int MostTicks = 60;

int below(std::mt19937& chance, int limit)
{
    return static_cast<int>(chance() % static_cast<unsigned>(limit));
}

template <typename Map> auto anyKey(std::mt19937& chance, const Map& map)
{
    return std::next(map.begin(), below(chance, static_cast<int>(map.size())))->first;
}

QString anyText(std::mt19937& chance, int most)
{
    constexpr std::array Words{"call", "Bob's", "#1/1/2007#", "<task_name/>", "--", "ä", "שלום", "😀", "100%",
        "[x]", "\"", "''", "/*", ";", "milk"};
    QStringList words;
    for (int left = 1 + below(chance, most); left > 0; --left) {
        words.append(QString::fromUtf8(Words[static_cast<std::size_t>(below(chance, Words.size()))]));
    }
    return words.join(u' ');
}

struct Weighed {
    Kind kind;
    int weight;
};

/// How often what happens.
constexpr std::array<Weighed, 19> Weights{{{Kind::Pass, 34}, {Kind::Jump, 3}, {Kind::AddTask, 20},
    {Kind::EditTask, 8}, {Kind::EditListed, 4}, {Kind::DeleteTask, 5}, {Kind::Complete, 4},
    {Kind::Dismiss, 8}, {Kind::DismissAll, 1}, {Kind::RemindLater, 6}, {Kind::BulkDelete, 1},
    {Kind::AddCategory, 2}, {Kind::EditCategory, 1}, {Kind::DeleteCategory, 1}, {Kind::Backup, 1},
    {Kind::Restore, 1}, {Kind::Settings, 2}, {Kind::Restart, 1}, {Kind::Kill, 1}}};

Kind anyKind(std::mt19937& chance)
{
    int total = 0;
    for (const Weighed& weighed : Weights) {
        total += weighed.weight;
    }
    int drawn = below(chance, total);
    for (const Weighed& weighed : Weights) {
        drawn -= weighed.weight;
        if (drawn < 0) {
            return weighed.kind;
        }
    }
    return Kind::Pass;
}

} // namespace

QString Step::text() const
{
    constexpr std::array Names{"pass", "jump", "add task", "edit task", "edit listed task", "delete task",
        "complete", "dismiss", "dismiss all", "remind later", "bulk delete", "add category", "edit category",
        "delete category", "backup", "restore", "settings", "restart", "kill"};
    return QStringLiteral("%1 (count %2, seconds %3, task %4, category %5)")
        .arg(QLatin1String(Names[static_cast<std::size_t>(kind)]))
        .arg(count)
        .arg(seconds.count())
        .arg(task)
        .arg(category);
}

TaskEntry SoakWorld::anyEntry(std::mt19937& chance, qint16 category) const
{
    TaskEntry entry;
    entry.name = anyText(chance, 4);
    entry.description = below(chance, 3) == 0 ? anyText(chance, 30) : QString();
    entry.category = category;
    entry.status = below(chance, 5);
    entry.periority = below(chance, 3);
    entry.due = toMinute(m_now) + std::chrono::minutes(below(chance, 4 * 24 * 60) - 24 * 60);
    entry.reminderOn = below(chance, 3) > 0;
    entry.reminder =
        toMinute(m_now) + std::chrono::minutes(1 + below(chance, below(chance, 4) == 0 ? 2000 : 60));
    if (below(chance, 2) == 0) {
        entry.sound = QStringLiteral("%1.wav").arg(below(chance, 1'000'000));
    }
    if (below(chance, 4) == 0) {
        entry.file = QStringLiteral("%1.sh").arg(below(chance, 1'000'000));
    }
    // Often as it is, otherwise never or one of the first: each day, weekday, week or second week.
    entry.repeat = below(chance, 2) == 0 ? -1 : below(chance, 5);
    return entry;
}

qint32 SoakWorld::anyTask(std::mt19937& chance) const
{
    // Few of them repeat.
    if (!m_rows.repeats.empty() && below(chance, 2) == 0) {
        return anyKey(chance, m_rows.repeats);
    }
    return anyKey(chance, m_rows.tasks);
}

qint16 SoakWorld::anyCategory(std::mt19937& chance) const
{
    return anyKey(chance, m_rows.categories);
}

Step SoakWorld::planWithoutRestart(std::mt19937& chance) const
{
    for (;;) {
        Step step = plan(chance);
        if (step.kind != Kind::Restart && step.kind != Kind::Kill) {
            return step;
        }
    }
}

bool SoakWorld::isDueThisSecond(Moment moment) const
{
    const QString now = QString::fromStdString(storedText(moment));
    return std::any_of(m_rows.tasks.begin(), m_rows.tasks.end(), [&now](const auto& task) {
        return task.second.reminderOn && !task.second.dismissed && task.second.reminder == now;
    });
}

int SoakWorld::anyWait(std::mt19937& chance) const
{
    const int any = 1 + below(chance, MostTicks);
    if (below(chance, 3) != 0) {
        return any;
    }
    // Chance alone seldom meets the very second of a reminder.
    for (int ticks = 1; ticks <= MostTicks; ++ticks) {
        if (isDueThisSecond(m_now + ticks * 10s)) {
            return ticks;
        }
    }
    return any;
}

Step SoakWorld::plan(std::mt19937& chance) const
{
    Step step;
    step.kind = anyKind(chance);
    if (step.kind == Kind::Pass && isDueThisSecond(m_now) && below(chance, 4) == 0) {
        step.kind = Kind::DismissAll;
    }
    const auto passInstead = [&] {
        step.kind = Kind::Pass;
        step.count = anyWait(chance);
        return step;
    };
    const bool hasTasks = !m_rows.tasks.empty();
    switch (step.kind) {
    case Kind::Pass:
        return passInstead();
    case Kind::Jump: {
        constexpr std::array<std::chrono::seconds, 7> Jumps{1h, -1h, 8h, 30min, -30min, 36h, -26h};
        step.seconds = Jumps[static_cast<std::size_t>(below(chance, Jumps.size()))];
        return step;
    }
    case Kind::AddTask:
        step.entry = anyEntry(chance, anyCategory(chance));
        return step;
    case Kind::EditTask:
    case Kind::EditListed: {
        if (!hasTasks || (step.kind == Kind::EditListed && (m_listed.empty() || !m_alertVisible))) {
            return passInstead();
        }
        step.task = step.kind == Kind::EditTask
            ? anyTask(chance)
            : std::next(m_listed.begin(), below(chance, static_cast<int>(m_listed.size())))->first;
        const auto found = m_rows.tasks.find(step.task);
        if (found == m_rows.tasks.end()) {
            return passInstead();
        }
        step.entry = anyEntry(chance, anyCategory(chance));
        if (found->second.reminderOn && below(chance, 2) == 0) {
            // All but the reminder's moment, which may lie in the past then.
            step.entry.reminder = *momentFromStoredText(found->second.reminder.toStdString());
        }
        return step;
    }
    case Kind::DeleteTask:
        if (!hasTasks) {
            return passInstead();
        }
        step.task = anyTask(chance);
        step.thisTime = m_rows.repeats.count(step.task) > 0 && below(chance, 3) > 0;
        return step;
    case Kind::Complete:
        if (!hasTasks) {
            return passInstead();
        }
        step.task = anyTask(chance);
        return step;
    case Kind::Dismiss:
    case Kind::RemindLater:
        if (m_listed.empty() || !m_alertVisible) {
            return passInstead();
        }
        step.task = std::next(m_listed.begin(), below(chance, static_cast<int>(m_listed.size())))->first;
        step.moment = toMinute(m_now) + std::chrono::minutes(1 + below(chance, 30));
        return step;
    case Kind::DismissAll:
        return m_alertVisible ? step : passInstead();
    case Kind::BulkDelete: {
        step.category = below(chance, 2) == 0 ? anyCategory(chance) : qint16{CategoryFilter::All};
        step.status = below(chance, 6);
        step.taskType = below(chance, 3);
        step.from = startOfDay(m_now) - std::chrono::days(below(chance, 3));
        step.to = step.from + std::chrono::days(below(chance, 2));
        return step;
    }
    case Kind::AddCategory:
        step.categoryRow = {anyText(chance, 2) + QStringLiteral(" %1").arg(m_rows.lastCategory + 1),
            anyText(chance, 3), below(chance, 12)};
        return m_rows.categories.size() < 12 ? step : passInstead();
    case Kind::EditCategory:
        step.category = anyCategory(chance);
        step.categoryRow = {QString(), anyText(chance, 3), below(chance, 12)};
        return step;
    case Kind::DeleteCategory:
        step.category = anyCategory(chance);
        return m_rows.categories.size() > 3 ? step : passInstead();
    case Kind::Backup:
        step.slot = QString::number(below(chance, 3));
        return step;
    case Kind::Restore:
        if (m_backups.empty()) {
            return passInstead();
        }
        step.slot = anyKey(chance, m_backups);
        return step;
    case Kind::Settings:
        for (int column = 0; column < 11; ++column) {
            step.settings.append(column == 3 ? QStringLiteral("Aqua") : QString::number(below(chance, 2)));
        }
        return step;
    case Kind::Restart:
    case Kind::Kill:
        return step;
    }
    return step;
}
