#pragma once

#include "data/DataFileCopies.h"
#include "settings/MaintenancePageUnderTest.h"

#include <sqlite3.h>

/// Runs plain SQL on a file.
inline void execute(const QString& file, const char* sql)
{
    sqlite3* opened = nullptr;
    QCOMPARE(sqlite3_open(QFile::encodeName(file).constData(), &opened), SQLITE_OK);
    const std::unique_ptr<sqlite3, int (*)(sqlite3*)> database(opened, sqlite3_close);
    char* error = nullptr;
    QVERIFY2(sqlite3_exec(opened, sql, nullptr, nullptr, &error) == SQLITE_OK, error);
}

/// A page whose data file holds the task "after", and a backup with the task "before".
struct RestoreUnderTest : MaintenancePageUnderTest {
    RestoreUnderTest()
    {
        aTask(database).named(QStringLiteral("before")).add();
        DataFileCopies(database.engine()).backUpTo(backup());
        database.sql(QStringLiteral("delete from tasks"));
        aTask(database).named(QStringLiteral("after")).add();
    }
    QString backup() const { return elsewhere.filePath(QStringLiteral("b.abk")); }
    void restore(const QString& file)
    {
        dialogs.expectOpen(file);
        press("btnRestore");
    }

    QTemporaryDir elsewhere;
};
