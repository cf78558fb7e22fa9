#include "store/Hardening.h"
#include "support/TestDatabase.h"
#include "support/TestMain.h"

#include <QFile>
#include <QTest>
#include <memory>
#include <sqlite3.h>

namespace
{

using Handle = std::unique_ptr<sqlite3, int (*)(sqlite3*)>;

/// The data file, opened with journals that a commit empties.
Handle opened(const TestDatabase& database)
{
    sqlite3* made = nullptr;
    openDatabase(database.dataFile(), made);
    Handle handle(made, sqlite3_close_v2);
    if (hardenConnection(made) != SQLITE_OK || emptyJournals(made) != SQLITE_OK) {
        qFatal("%s", sqlite3_errmsg(made));
    }
    return handle;
}

int run(const Handle& handle, const char* statements)
{
    return sqlite3_exec(handle.get(), statements, nullptr, nullptr, nullptr);
}

} // namespace

class EmptiedJournalsTest : public TestCase
{
    Q_OBJECT

private slots:
    void aCommitLeavesAnEmptyJournal()
    {
        const TestDatabase database;
        const QString journal = database.dataFile() + QStringLiteral("-journal");
        const Handle handle = opened(database);
        QCOMPARE(run(handle, "begin; update settings set skin='Lemon'"), SQLITE_OK);
        QVERIFY(QFile(journal).size() > 0);
        QCOMPARE(run(handle, "commit"), SQLITE_OK);
        QVERIFY(QFile::exists(journal));
        QCOMPARE(QFile(journal).size(), 0);
    }

    void anEmptyJournalTakesNothingBack()
    {
        const TestDatabase database;
        QCOMPARE(run(opened(database), "update settings set skin='Lemon'"), SQLITE_OK);
        QCOMPARE(
            database.sql(QStringLiteral("select skin from settings")).toString(), QStringLiteral("Lemon"));
    }

    void aFileInWriteAheadModeStaysInIt()
    {
        const TestDatabase database;
        database.sql(QStringLiteral("pragma journal_mode=wal"));
        QCOMPARE(run(opened(database), "update settings set skin='Lemon'"), SQLITE_OK);
        QCOMPARE(database.sql(QStringLiteral("pragma journal_mode")).toString(), QStringLiteral("wal"));
    }
};

AMBERTASK_TEST_MAIN(EmptiedJournalsTest)
#include "tst_emptied_journals.moc"
