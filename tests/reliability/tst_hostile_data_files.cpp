#include "app/RecordedMachine.h"
#include "data/ClsCategory.h"
#include "data/ClsTask.h"
#include "data/DataFileCopies.h"
#include "data/ReminderChecker.h"
#include "data/SettingsStore.h"
#include "data/TaskCodes.h"
#include "reminders/frmAlerts.h"
#include "support/CaughtError.h"
#include "support/TestMain.h"
#include "support/TestPictures.h"
#include "system/RuntimeError.h"

#include <QTest>

// Data files with more in them than the program puts there: rules that another program could have added to
// act whenever this one reads or writes. They are not acted upon; where the program cannot work beside them
// it says so and changes nothing.

namespace
{

const QString Prepared = QStringLiteral(
    "create table canary(x); insert into canary values('alive');"
    "insert into tasks(task_name,task_desc,cat_id,task_due_date,reminder_on,reminder_date_time) "
    "values('first','one',1,'2026-01-15 11:00:00',1,'2026-01-15 09:00:00'),"
    "('second','two',2,'2026-01-16 11:00:00',0,'2026-01-16 09:00:00'),"
    "('third','three',3,'2026-01-17 11:00:00',0,'2026-01-17 09:00:00');");
/// Makes the table anew with the records it has.
const QString TasksAnew =
    QStringLiteral("create table t as select * from tasks; drop table tasks;"
                   "create table tasks(task_id integer primary key autoincrement,task_name text%1,task_desc "
                   "text,task_status integer,cat_id integer%2,task_due_date text,task_periority integer,"
                   "reminder_on integer,reminder_date_time text,reminder_sound text default '',reminder_file "
                   "text default '',played integer default 0,dismissed integer default 0%3);"
                   "insert into tasks(task_id,task_name,task_desc,task_status,cat_id,task_due_date,"
                   "task_periority,reminder_on,reminder_date_time) select task_id,task_name,task_desc,"
                   "task_status,cat_id,task_due_date,task_periority,reminder_on,reminder_date_time from t;"
                   "drop table t;");

QString tasksWith(const QString& name, const QString& category, const QString& atTheEnd)
{
    return TasksAnew.arg(name, category, atTheEnd);
}

/// SQLite would not make such an index.
QString indexOf(QString expression)
{
    return QStringLiteral("create index x on tasks(abs(task_id)); pragma writable_schema=1;"
                          "update sqlite_schema set sql='create index x on tasks(%1)' where name='x';")
        .arg(expression.replace(QLatin1String("'"), QLatin1String("''")));
}

/// All that the operations below leave alone.
QList<QVariantList> untouched(const TestDatabase& database)
{
    return database.rows(QStringLiteral("select task_id,task_name,task_desc,cat_id,task_due_date,reminder_on,"
                                        "reminder_date_time,dismissed from tasks where task_id < 3"))
        + database.rows(QStringLiteral("select cat_id,cat_name from categories where cat_id < 4"))
        + database.rows(QStringLiteral("select x from canary"));
}

ClsTask newTask(const DatabaseEngine& engine)
{
    ClsTask task(engine);
    task.setTaskName(QStringLiteral("first"));
    task.setDescription(QStringLiteral("another one"));
    task.setCategoryId(1);
    task.setPeriority(TaskPeriority::Normal);
    task.setDueDateTime(engine.clock->now());
    task.setReminderOn(true);
    task.setReminderDateTime(engine.clock->now());
    return task;
}

/// Reads and writes each table in every way that the program does, and starts it. What refuses is noted.
class EveryOperation
{
public:
    explicit EveryOperation(RecordedMachine& machine)
        : m_machine(machine), m_engine(machine.database.engine())
    {
        note("start", [&] { start(); });
        note("add task", [&] { newTask(m_engine).Add(); });
        note("change task", [&] {
            ClsTask task = newTask(m_engine);
            task.setTaskName(QStringLiteral("second"));
            task.setId(3);
            task.Update();
        });
        note("delete task", [&] { ClsTask(m_engine).DeleteById(3); });
        note("list tasks", [&] { ClsTask(m_engine).readAll(); });
        note("remind", [&] {
            ReminderChecker(m_engine).due();
            ReminderChecker(m_engine).close();
        });
        ClsCategory category(m_engine);
        category.setCatName(QStringLiteral("new"));
        note("add category", [&] { category.Add(); });
        note("delete category", [&] { category.DeleteById(4); });
        note("save settings", [&] {
            SettingsRecord record = SettingsStore(m_engine).read();
            SettingsStore(m_engine).save(record, record);
        });
    }
    QStringList refused() const { return m_refused; }
    QString reasons() const { return m_reasons.join(u'\n'); }

private:
    void start()
    {
        Program program(m_machine.machine());
        program.start([] { return false; });
        program.loadDialogs();
        program.alerts().tmrTasksChecker_Timer();
        program.unload();
    }
    void note(const char* name, const std::function<void()>& operation)
    {
        try {
            operation();
        } catch (const RuntimeError& error) {
            m_refused.append(QLatin1String(name));
            m_reasons.append(error.text());
        }
    }

    RecordedMachine& m_machine;
    const DatabaseEngine& m_engine;
    QStringList m_refused;
    QStringList m_reasons;
};

const QStringList Everything{QStringLiteral("start"), QStringLiteral("add task"),
    QStringLiteral("change task"), QStringLiteral("delete task"), QStringLiteral("list tasks"),
    QStringLiteral("remind"), QStringLiteral("add category"), QStringLiteral("delete category"),
    QStringLiteral("save settings")};

} // namespace

class HostileDataFilesTest : public TestCase
{
    Q_OBJECT

private slots:
    void whatIsAddedIsNotActedUpon_data();
    void whatIsAddedIsNotActedUpon();
    void whatCannotBeServedIsRefusedClearlyAndChangesNothing_data();
    void whatCannotBeServedIsRefusedClearlyAndChangesNothing();
};

void HostileDataFilesTest::whatIsAddedIsNotActedUpon_data()
{
    QTest::addColumn<QString>("sql");
    for (const char* table : {"tasks", "categories", "settings"}) {
        for (const char* moment : {"before", "after"}) {
            for (const char* change : {"insert", "update", "delete"}) {
                const QString name =
                    QStringLiteral("trigger %1 %2 on %3")
                        .arg(QLatin1String(moment), QLatin1String(change), QLatin1String(table));
                QTest::newRow(qPrintable(name))
                    << QStringLiteral(
                           "create trigger x %1 %2 on %3 begin delete from canary; update tasks set "
                           "task_desc='stolen'; update categories set cat_name='stolen'; end;")
                           .arg(QLatin1String(moment), QLatin1String(change), QLatin1String(table));
            }
        }
    }
    QTest::newRow("a trigger that refuses everything")
        << QStringLiteral("create trigger x before insert on tasks begin select raise(abort,'no'); end;");
    QTest::newRow("a trigger that never ends") << QStringLiteral(
        "create trigger x after update on tasks begin update tasks set played=1-played; end;");
    QTest::newRow("a view") << QStringLiteral("create view v as select * from tasks,tasks t2,tasks t3;");
    QTest::newRow("a table for searching texts")
        << QStringLiteral("create virtual table notes using fts5(body); insert into notes values('x');");
    QTest::newRow("an index of an expression")
        << QStringLiteral("create index x on tasks(lower(task_desc), abs(task_id));");
    QTest::newRow("an index of a part")
        << QStringLiteral("create index x on tasks(task_desc) where cat_id=1;");
    QTest::newRow("a column that is worked out")
        << QStringLiteral("alter table tasks add column x generated always as (upper(task_desc)) virtual;");
    QTest::newRow("tasks that go with the settings") << tasksWith(
        {}, {}, QStringLiteral(",foreign key(task_name) references settings(skin) on delete cascade"));
    QTest::newRow("tasks that go with a category")
        << tasksWith({}, QStringLiteral(" references categories(cat_id) on delete set null"), {});
}

void HostileDataFilesTest::whatIsAddedIsNotActedUpon()
{
    QFETCH(const QString, sql);
    RecordedMachine machine;
    machine.database.sql(Prepared + sql);
    const QList<QVariantList> before = untouched(machine.database);
    const QTemporaryDir elsewhere;
    const QString backup = elsewhere.filePath(QStringLiteral("b.abk"));
    DataFileCopies(machine.database.engine()).backUpTo(backup);

    const EveryOperation all(machine);
    QCOMPARE(all.reasons(), QString());
    QCOMPARE(untouched(machine.database), before);
    QCOMPARE(machine.database.sql(QStringLiteral("select count(*) from tasks")).toInt(), 3);
    QCOMPARE(machine.database.sql(QStringLiteral("select task_desc from tasks where task_id=4")).toString(),
        QStringLiteral("another one"));

    // As a backup it may be taken, and then nothing of it has been acted upon either.
    DataFileCopies(machine.database.engine()).restoreFrom(backup);
    QCOMPARE(untouched(machine.database), before);
}

void HostileDataFilesTest::whatCannotBeServedIsRefusedClearlyAndChangesNothing_data()
{
    QTest::addColumn<QString>("sql");
    QTest::addColumn<QStringList>("refused");
    QTest::addColumn<QString>("reason");
    const QStringList allOfTasks{QStringLiteral("start"), QStringLiteral("add task"),
        QStringLiteral("change task"), QStringLiteral("delete task"), QStringLiteral("list tasks"),
        QStringLiteral("remind"), QStringLiteral("delete category")};
    const QStringList writing{QStringLiteral("add task"), QStringLiteral("change task")};

    QTest::newRow("a view in the place of the tasks")
        << QStringLiteral("alter table tasks rename to t; create view tasks as select * from t;"
                          "create trigger x instead of insert on tasks begin delete from canary; end;"
                          "create trigger y instead of update on tasks begin delete from canary; end;"
                          "create trigger z instead of delete on tasks begin delete from canary; end;")
        << allOfTasks << QStringLiteral("view");
    QTest::newRow("a table of another engine in the place of the tasks") << QStringLiteral(
        "create table t as select * from tasks; drop table tasks;"
        "create virtual table tasks using fts5(task_id,task_name,task_desc,task_status,cat_id,"
        "task_due_date,task_periority,reminder_on,reminder_date_time,reminder_sound,"
        "reminder_file,played,dismissed);"
        "insert into tasks select * from t; drop table t;") << allOfTasks << QStringLiteral("fts5");
    for (const char* answer : {"replace", "ignore"}) {
        QTest::newRow(qPrintable(QStringLiteral("equal names, on conflict ") + QLatin1String(answer)))
            << tasksWith(QStringLiteral(" unique on conflict ") + QLatin1String(answer), {}, {}) << writing
            << QStringLiteral("tasks");
    }
    QTest::newRow("equal names replace each other in a table of another kind")
        << tasksWith({}, {}, QStringLiteral(",unique(task_name,cat_id) on conflict replace")) << writing
        << QStringLiteral("tasks");
    QTest::newRow("equal names replace each other, said to be a rule of another table")
        << tasksWith(QStringLiteral(" unique on conflict replace"), {}, {})
            + QStringLiteral(
                "pragma writable_schema=1; update sqlite_schema set tbl_name='settings' where sql is null;")
        << writing << QStringLiteral("tasks");
    const QString inTheOrderOfNames = QStringLiteral(
        "create table t as select * from tasks; drop table tasks; create table tasks(task_id integer not "
        "null default 9,"
        "task_name text primary key on conflict "
        "replace,task_desc,task_status,cat_id,task_due_date,task_periority,"
        "reminder_on,reminder_date_time,reminder_sound,reminder_file,played default 0,dismissed default 0) "
        "WITHOUT /* any */ RowID; insert into tasks select * from t; drop table t;");
    QTest::newRow("equal names replace each other in a table in their order")
        << inTheOrderOfNames << writing << QStringLiteral("tasks");
    QTest::newRow("the same, defined by what is no text") << inTheOrderOfNames
            + QStringLiteral("pragma writable_schema=1; update sqlite_schema set sql=cast(sql as blob) where "
                             "name='tasks';") << writing << QStringLiteral("tasks");
    QTest::newRow("a rule that no new record keeps")
        << tasksWith({}, {}, QStringLiteral(",check(task_id<4)")) << QStringList(QStringLiteral("add task"))
        << QStringLiteral("CHECK");
    QTest::newRow("a name that is worked out") << QStringLiteral(
        "alter table tasks drop column task_name; alter table tasks add column task_name text "
        "generated always as ('first') virtual;")
                                               << writing << QStringLiteral("generated");
    QTest::newRow("a column too large to be worked out")
        << QStringLiteral("alter table tasks add column x generated always as (zeroblob(900000000)) virtual;")
        << QStringList{QStringLiteral("start"), QStringLiteral("add task"), QStringLiteral("change task"),
               QStringLiteral("list tasks"), QStringLiteral("remind")}
        << QStringLiteral("too big");
    QTest::newRow("an index of a function that the engine does not have")
        << indexOf(QStringLiteral("nobody_knows(task_id)"))
        << QStringList{QStringLiteral("add task"), QStringLiteral("delete task"),
               QStringLiteral("delete category")}
        << QStringLiteral("nobody_knows");
    for (const char* expression : {"now()", "load_extension('x')", "random()"}) {
        QTest::newRow(qPrintable(QStringLiteral("an index of ") + QLatin1String(expression)))
            << indexOf(QLatin1String(expression)) << Everything << QStringLiteral("malformed");
    }
}

void HostileDataFilesTest::whatCannotBeServedIsRefusedClearlyAndChangesNothing()
{
    QFETCH(const QString, sql);
    QFETCH(const QStringList, refused);
    QFETCH(const QString, reason);
    RecordedMachine machine;
    machine.database.sql(Prepared + sql);
    const QByteArray hostile = bytesOf(machine.database.dataFile());
    const bool isOpened = refused != Everything;
    const QList<QVariantList> before = isOpened ? untouched(machine.database) : QList<QVariantList>();

    const EveryOperation all(machine);
    QVERIFY2(all.refused() == refused, qPrintable(all.refused().join(u',')));
    QVERIFY2(all.reasons().contains(reason), qPrintable(all.reasons()));
    QVERIFY(
        isOpened ? untouched(machine.database) == before : bytesOf(machine.database.dataFile()) == hostile);

    // A restore refuses it and leaves what was there.
    const TestDatabase target;
    const QByteArray present = bytesOf(target.dataFile());
    const QString backup = writeFile(machine.database.folder(), QStringLiteral("b.abk"), hostile);
    QVERIFY(caught<RuntimeError>([&] { DataFileCopies(target.engine()).restoreFrom(backup); }));
    QVERIFY(bytesOf(target.dataFile()) == present);
}

AMBERTASK_TEST_MAIN(HostileDataFilesTest)
#include "tst_hostile_data_files.moc"
