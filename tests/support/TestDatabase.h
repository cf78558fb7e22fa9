#pragma once

#include "data/ClsTask.h"
#include "data/RepeatRules.h"
#include "store/DatabaseEngine.h"
#include "support/RecordedStatements.h"
#include "support/SteppedClock.h"

#include <QTemporaryDir>
#include <QVariantList>
#include <optional>

/// A program folder of its own with a fresh copy of the shipped data file, a clock that stands at 15 January
/// 2026, 10:00:00, and a record of all statements.
class TestDatabase
{
public:
    TestDatabase();
    /// On an existing program folder, which is not removed.
    explicit TestDatabase(const QString& folder);

    QString folder() const { return m_folder; }
    QString dataFile() const { return m_folder + QStringLiteral("/data.dat"); }
    const DatabaseEngine& engine() const { return m_engine; }
    SteppedClock& clock() { return m_clock; }
    Repeating& repeating() { return m_repeating; }
    RecordedStatements& statements() { return m_statements; }

    /// Runs plain SQL on a connection of its own, unrecorded; fails the test on an error. Returns the first
    /// column of the first row, if any.
    QVariant sql(const QString& statement) const;
    /// All rows of a query.
    QList<QVariantList> rows(const QString& statement) const;
    /// The values of an expression for all tasks in the order of their ids, with blanks between them.
    QString storedOfAll(const char* expression) const;

    void removeAllCategories() const;
    /// Adds a category and answers its id.
    qint16 addCategory(const QString& name, int icon = 0) const;

private:
    std::optional<QTemporaryDir> m_ownFolder;
    QString m_folder;
    SteppedClock m_clock;
    RecordedStatements m_statements;
    Repeating m_repeating;
    DatabaseEngine m_engine;
};

/// Builds a task for a test: aTask(db).named("x").dueAt(...).remindingAt(...).add().
class TaskBuilder
{
public:
    explicit TaskBuilder(TestDatabase& database);

    TaskBuilder& named(const QString& name);
    TaskBuilder& describedAs(const QString& description);
    TaskBuilder& in(qint16 category);
    TaskBuilder& withStatus(qint32 status);
    TaskBuilder& withPeriority(qint32 periority);
    TaskBuilder& dueAt(Moment moment);
    /// Switches the reminder on.
    TaskBuilder& remindingAt(Moment moment);
    TaskBuilder& sounding(const QString& wave);
    TaskBuilder& starting(const QString& file);
    TaskBuilder& played();
    TaskBuilder& dismissed();
    /// From its due moment on, with the lead of its reminder.
    TaskBuilder& repeating(const std::string& rule = "FREQ=DAILY");
    /// Stores the task and returns its id, without a trace among the recorded statements.
    qint32 add();

private:
    TestDatabase& m_database;
    ClsTask m_task;
    bool m_played = false;
    bool m_dismissed = false;
    std::string m_rule;
};

/// A task due one hour after the database's clock in the first category, reminder off.
TaskBuilder aTask(TestDatabase& database);
