#pragma once

#include <QFile>
#include <QTest>
#include <memory>
#include <sqlite3.h>

/// Enough tasks that a data file has pages to spare.
inline const QString TwoHundredTasks =
    QStringLiteral("insert into tasks(task_name,cat_id,task_due_date,reminder_date_time) "
                   "with recursive n(i) as (select 1 union all select i+1 from n where i<200) "
                   "select printf('task %d %s', i, hex(zeroblob(150))), 1, '2026-01-15 11:00:00', "
                   "'2026-01-15 11:00:00' from n");

/// Leaves in `folder` what a process leaves that died in the middle of deleting all tasks: a data file with
/// some of the change in it, and the journal that takes it back. `dataFile` is not changed.
inline void leaveDeadOperation(const QString& dataFile, const QString& folder)
{
    const QString work = folder + QStringLiteral("/work.dat");
    QVERIFY(QFile::copy(dataFile, work));
    sqlite3* opened = nullptr;
    QCOMPARE(sqlite3_open(QFile::encodeName(work).constData(), &opened), SQLITE_OK);
    const std::unique_ptr<sqlite3, int (*)(sqlite3*)> database(opened, sqlite3_close);
    // With a cache of one page, changed pages go to the file before the commit.
    QCOMPARE(sqlite3_exec(opened,
                 "pragma cache_size=1; begin immediate; delete from tasks; delete from categories;", nullptr,
                 nullptr, nullptr),
        SQLITE_OK);
    QVERIFY(QFile::copy(work, folder + QStringLiteral("/data.dat")));
    QVERIFY(QFile::copy(work + QStringLiteral("-journal"), folder + QStringLiteral("/data.dat-journal")));
    QVERIFY(QFile(folder + QStringLiteral("/data.dat-journal")).size() > 512);
    sqlite3_exec(opened, "rollback", nullptr, nullptr, nullptr);
}
