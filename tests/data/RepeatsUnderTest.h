#pragma once

#include "data/RepeatRules.h"
#include "data/TaskRepeats.h"
#include "data/UndoHistory.h"
#include "store/Connection.h"
#include "support/TestDatabase.h"

/// A data file in which tasks can repeat. The clock stands at 15 January 2026, 10:00.
struct RepeatsUnderTest {
    RepeatsUnderTest()
    {
        engine = database.engine();
        engine.repeating = &repeating;
    }
    RepeatsUnderTest(const RepeatsUnderTest&) = delete;
    RepeatsUnderTest& operator=(const RepeatsUnderTest&) = delete;

    Moment now() const { return engine.clock->now(); }
    /// Adds a task that repeats as `rule` says from its due moment on, and reminds `lead` before.
    qint32 add(Moment due, const char* rule = "FREQ=DAILY", std::chrono::minutes lead = {})
    {
        const qint32 id = aTask(database).dueAt(due).remindingAt(due - lead).played().withStatus(1).add();
        Connection connection(
            engine, QStringLiteral("Provider=Microsoft.Jet.OLEDB.4.0;Data Source= ") + database.dataFile());
        connection.open();
        TaskRepeats::store(engine, connection, id, {rule, due, lead, 0});
        connection.close();
        database.statements().take();
        return id;
    }
    /// Status, due moment, reminder and the flags of its state, with how often it is done behind it.
    QString stateOf(qint32 id) const
    {
        return database
            .sql(QStringLiteral(
                "select task_status||' '||substr(task_due_date,6,11)||' '||substr(reminder_date_time,6,11)"
                "||' '||reminder_on||played||dismissed||coalesce(' '||done,'') from tasks left join repeats "
                "on task_id=of_task where task_id=%1")
                     .arg(id))
            .toString();
    }
    QList<QVariantList> everything() const
    {
        return database.rows(QStringLiteral("select * from tasks order by task_id"))
            + database.rows(QStringLiteral("select * from repeats order by of_task"));
    }

    TestDatabase database;
    Repeating repeating;
    DatabaseEngine engine;
};
