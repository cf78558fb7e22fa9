#include "store/Connection.h"
#include "support/TestDatabase.h"
#include "support/TestMain.h"
#include "system/Progress.h"

#include <QTest>

namespace
{

constexpr int Tasks = 3000;

/// Counts the calls, and cancels from a given one on.
class Counter final : public Progress
{
public:
    void advance(qint64, qint64) override
    {
        if (++told >= cancelsAt) {
            throw Cancelled();
        }
    }

    int told = 0;
    int cancelsAt = std::numeric_limits<int>::max();
};

/// A data file with many unsorted tasks, and a DatabaseEngine whose progress is counted.
struct ToldFile {
    ToldFile()
    {
        database.sql(QStringLiteral(
            "with recursive n(i) as (select 1 union all select i+1 from n where i<%1) "
            "insert into tasks(task_name,task_desc,task_status,cat_id,task_due_date,task_periority,"
            "reminder_on,reminder_date_time) select 'Task '||(i*7919%%1),'',0,1,'2026-02-01 10:00:00',1,0,"
            "'2099-01-01 00:00:00' from n")
                         .arg(Tasks));
    }
    Connection opened()
    {
        Connection connection(
            engine, QStringLiteral("Provider=Microsoft.Jet.OLEDB.4.0;Data Source= ") + database.dataFile());
        connection.open();
        return connection;
    }
    /// How often progress is told until the last row is read.
    int tellingsOf(const QString& statement)
    {
        progress.told = 0;
        Connection connection = opened();
        for (RecordSet records = connection.execute(statement); !records.atEnd(); records.moveNext()) { }
        return progress.told;
    }
    int taskCount() { return database.sql(QStringLiteral("select count(*) from tasks")).toInt(); }

    TestDatabase database;
    Counter progress;
    bool sound = false;
    DatabaseEngine engine{database.folder(), &database.clock(), nullptr, &progress, &sound};
};

} // namespace

/// Progress during statements that take long.
class ToldProgressTest : public TestCase
{
    Q_OBJECT

private slots:
    void aLongQueryTellsWhileItIsRead()
    {
        ToldFile file;
        QVERIFY(file.tellingsOf(QStringLiteral("select * from tasks")) > 1);
    }

    void aQueryThatIsCancelledEndsSo()
    {
        ToldFile file;
        const int all = file.tellingsOf(QStringLiteral("select * from tasks"));
        for (int at = 1; at <= all; ++at) {
            file.progress.cancelsAt = at;
            QVERIFY_THROWS_EXCEPTION(Cancelled, file.tellingsOf(QStringLiteral("select * from tasks")));
        }
    }

    void aCancelledDeletionDeletesNothing()
    {
        ToldFile file;
        file.sound = true;
        file.progress.cancelsAt = 1;
        Connection connection = file.opened();
        QVERIFY_THROWS_EXCEPTION(
            Cancelled, connection.execute(QStringLiteral("delete from tasks where task_status = 0")));
        connection.close();
        QCOMPARE(file.taskCount(), Tasks);
    }

    void theCheckBeforeTheFirstWritingIsCancelledLikeAStatement()
    {
        ToldFile file;
        file.progress.cancelsAt = 1;
        Connection connection = file.opened();
        QVERIFY_THROWS_EXCEPTION(
            Cancelled, connection.execute(QStringLiteral("delete from tasks where task_id = 1")));
        connection.close();
        QVERIFY(!file.sound);
        QCOMPARE(file.taskCount(), Tasks);
        file.progress.cancelsAt = std::numeric_limits<int>::max();
        file.opened().execute(QStringLiteral("delete from tasks where task_id = 1"));
        QCOMPARE(file.taskCount(), Tasks - 1);
    }
};

AMBERTASK_TEST_MAIN(ToldProgressTest)
#include "tst_told_progress.moc"
