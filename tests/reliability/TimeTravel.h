#pragma once

#include "RunningProgram.h"
#include "system/Clock.h"

#include <QStringList>
#include <chrono>
#include <utility>
#include <vector>

/// The program, and a clock that a test moves as a machine's clock moves: in universal time, which the zone
/// of the process turns into the local time that the program sees. Watches at every tick that exactly the
/// reminders that are due are listed.
class TimeTravel
{
public:
    explicit TimeTravel(std::chrono::sys_seconds instant) { setInstant(instant); }

    RunningProgram& program() { return m_program; }
    void start() { m_program.start(); }
    Moment now() { return m_program.database().clock().now(); }

    void setInstant(std::chrono::sys_seconds instant);
    /// The clock is set, or the machine slept: no tick in between.
    void jump(std::chrono::seconds by) { setInstant(m_instant + by); }
    /// Time passes, with a tick every ten seconds and one at once.
    void runFor(std::chrono::seconds time);

    /// Stores a task, behind the back of the program, whose reminder plays "<name>.wav" and starts
    /// "<name>.sh".
    qint32 remind(const QString& name, Moment moment, qint16 category = 0);
    /// Stores `count` such tasks at once, named "1", "2" and so on.
    void remindMany(int count, Moment moment);
    /// The same task as a user would enter it.
    TaskEntry entry(const QString& name, Moment moment);
    /// A column of the task of that name.
    QString stored(const QString& name, const char* column);

    /// How often the reminder of each name is to have sounded and started its file by now.
    void expectSounds(const std::vector<std::pair<QString, int>>& expected);
    /// What went wrong so far.
    QStringList faults() const { return m_faults; }

private:
    void tick();
    QList<qint32> due();
    qint16 firstCategory();

    RunningProgram m_program;
    std::chrono::sys_seconds m_instant;
    QStringList m_faults;
};
