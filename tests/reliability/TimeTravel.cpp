#include "TimeTravel.h"

#include <algorithm>

using namespace std::chrono_literals;

namespace
{

QString wave(const QString& name)
{
    return name + QStringLiteral(".wav");
}

QString script(const QString& name)
{
    return name + QStringLiteral(".sh");
}

} // namespace

void TimeTravel::setInstant(std::chrono::sys_seconds instant)
{
    m_instant = instant;
    m_program.database().clock().set(localMoment(instant));
}

void TimeTravel::runFor(std::chrono::seconds time)
{
    tick();
    for (const auto end = m_instant + time; m_instant < end;) {
        setInstant(m_instant + 10s);
        tick();
    }
}

void TimeTravel::tick()
{
    m_program.tick();
    const QList<qint32> expected = due();
    QList<qint32> listed = m_program.listed();
    std::sort(listed.begin(), listed.end());
    if (listed != expected) {
        m_faults.append(QStringLiteral("at %1 the alert lists %2 reminders, %3 are due")
                            .arg(QString::fromStdString(storedText(now())))
                            .arg(listed.size())
                            .arg(expected.size()));
    }
    if (!expected.isEmpty() && !m_program.isAlertVisible()) {
        m_faults.append(QStringLiteral("the alert is not shown"));
    }
}

QList<qint32> TimeTravel::due()
{
    QList<qint32> ids;
    for (const QVariantList& row : m_program.database().rows(
             QStringLiteral("select task_id from tasks natural join categories where reminder_on=1 and "
                            "dismissed=0 and reminder_date_time<='%1' order by 1")
                 .arg(QString::fromStdString(storedText(now()))))) {
        ids.append(row.first().toInt());
    }
    return ids;
}

qint16 TimeTravel::firstCategory()
{
    return static_cast<qint16>(
        m_program.database().sql(QStringLiteral("select min(cat_id) from categories")).toInt());
}

qint32 TimeTravel::remind(const QString& name, Moment moment, qint16 category)
{
    return aTask(m_program.database())
        .named(name)
        .in(category == 0 ? firstCategory() : category)
        .dueAt(moment)
        .remindingAt(moment)
        .sounding(wave(name))
        .starting(script(name))
        .add();
}

void TimeTravel::remindMany(int count, Moment moment)
{
    const QString at = QString::fromStdString(storedText(moment));
    m_program.database().sql(
        QStringLiteral("insert into tasks(task_name,cat_id,task_due_date,reminder_on,reminder_date_time,"
                       "reminder_sound,reminder_file) "
                       "with recursive n(i) as (select 1 union all select i+1 from n where i<%1) "
                       "select i, %2, '%3', 1, '%3', i||'.wav', i||'.sh' from n")
            .arg(QString::number(count), QString::number(firstCategory()), at));
}

TaskEntry TimeTravel::entry(const QString& name, Moment moment)
{
    TaskEntry entry;
    entry.name = name;
    entry.category = firstCategory();
    entry.due = now();
    entry.reminderOn = true;
    entry.reminder = moment;
    entry.sound = wave(name);
    entry.file = script(name);
    return entry;
}

QString TimeTravel::stored(const QString& name, const char* column)
{
    return m_program.database()
        .sql(QStringLiteral("select %1 from tasks where task_name='%2'").arg(QLatin1String(column), name))
        .toString();
}

void TimeTravel::expectSounds(const std::vector<std::pair<QString, int>>& expected)
{
    for (const auto& [name, times] : expected) {
        const auto sounded = m_program.machine().played.count(wave(name));
        const auto started = m_program.machine().shell.started.count(script(name));
        if (sounded != times || started != times) {
            m_faults.append(QStringLiteral("\"%1\" sounded %2 times and started its file %3 times, not %4")
                                .arg(name)
                                .arg(sounded)
                                .arg(started)
                                .arg(times));
        }
    }
}
