#include "data/ClsDatabase.h"
#include "settings/RestoreUnderTest.h"
#include "support/CaughtError.h"
#include "support/OrdinaryUser.h"
#include "support/TestMain.h"

#include <sys/stat.h>

namespace
{

using Database = std::unique_ptr<sqlite3, int (*)(sqlite3*)>;

/// Both bytes are 2 in a file in write-ahead mode, else 1.
bool isInWriteAheadMode(const QString& file)
{
    return contentOf(file).mid(18, 2) == QByteArray(2, '\x02');
}

/// Another program's connection to the data file.
Database openElsewhere(const QString& file)
{
    sqlite3* opened = nullptr;
    sqlite3_open(QFile::encodeName(file).constData(), &opened);
    return {opened, sqlite3_close};
}

bool ran(const Database& database, const char* sql)
{
    return sqlite3_exec(database.get(), sql, nullptr, nullptr, nullptr) == SQLITE_OK;
}

/// A data file with the task "stored", in write-ahead mode; the change of its name to "changed" lies in the
/// log beside it alone, as when the other program has died.
struct WriteAheadFile : MaintenancePageUnderTest {
    WriteAheadFile()
    {
        aTask(database).named(QStringLiteral("stored")).add();
        execute(database.dataFile(), "pragma journal_mode=wal");
        const Database other = openElsewhere(database.dataFile());
        QVERIFY(ran(other, "pragma wal_autocheckpoint=0; update tasks set task_name='changed'"));
        for (const char* suffix : {"", "-wal", "-shm"}) {
            QVERIFY(
                QFile::copy(file(suffix), elsewhere.filePath(QStringLiteral("f") + QLatin1String(suffix))));
        }
    }
    /// Puts that file in place.
    void die() const
    {
        for (const char* suffix : {"", "-wal", "-shm"}) {
            QFile::remove(file(suffix));
            QVERIFY(
                QFile::copy(elsewhere.filePath(QStringLiteral("f") + QLatin1String(suffix)), file(suffix)));
        }
        QVERIFY(QFileInfo(file("-wal")).size() > 0);
    }
    QString file(const char* suffix) const { return database.dataFile() + QLatin1String(suffix); }
    DataFileCopies copies() const { return DataFileCopies(database.engine()); }
    QString backup() const { return elsewhere.filePath(QStringLiteral("b.abk")); }

    QTemporaryDir elsewhere;
};

QString taskIn(const QString& file)
{
    const QTemporaryDir folder;
    if (!QFile::copy(file, folder.filePath(QStringLiteral("data.dat")))) {
        return QStringLiteral("(no such file)");
    }
    return TestDatabase(folder.path()).sql(QStringLiteral("select task_name from tasks")).toString();
}

} // namespace

/// A data file that another program has turned to write-ahead mode.
class TestWriteAhead : public TestCase
{
    Q_OBJECT

private slots:
    void itIsTurnedBack()
    {
        const WriteAheadFile test;
        QVERIFY(isInWriteAheadMode(test.database.dataFile()));
        test.copies().leaveWriteAheadMode();
        QVERIFY(!isInWriteAheadMode(test.database.dataFile()));
        QCOMPARE(taskIn(test.database.dataFile()), QStringLiteral("changed"));
        QCOMPARE(test.files(), QStringList(QStringLiteral("data.dat")));
    }

    void theFormatForReadersDecides()
    {
        const WriteAheadFile test;
        QByteArray bytes = contentOf(test.database.dataFile());
        writeText(test.database.dataFile(), bytes.replace(18, 1, QByteArray(1, '\x01')));
        test.copies().leaveWriteAheadMode();
        QCOMPARE(contentOf(test.database.dataFile()).mid(18, 2), QByteArray(2, '\x01'));
        QCOMPARE(taskIn(test.database.dataFile()), QStringLiteral("changed"));
    }

    void whatADeadProcessLeftBesideItIsKept()
    {
        const WriteAheadFile test;
        test.die();
        test.copies().leaveWriteAheadMode();
        QVERIFY(!isInWriteAheadMode(test.database.dataFile()));
        QCOMPARE(taskIn(test.database.dataFile()), QStringLiteral("changed"));
        QCOMPARE(test.files(), QStringList(QStringLiteral("data.dat")));
        QCOMPARE(
            test.database.sql(QStringLiteral("pragma integrity_check")).toString(), QStringLiteral("ok"));
    }

    void aFileThatSomebodyHasOpenStaysAndServesBoth()
    {
        const WriteAheadFile test;
        const Database other = openElsewhere(test.database.dataFile());
        QVERIFY(ran(other, "select * from tasks"));
        test.copies().leaveWriteAheadMode();
        QVERIFY(isInWriteAheadMode(test.database.dataFile()));
        QVERIFY(ran(other, "update tasks set task_name='by the other'"));
        Connection connection = ClsDatabase(test.database.engine()).Connect();
        connection.open();
        connection.execute(QStringLiteral("update tasks set task_desc='ours'"));
        connection.close();
        QCOMPARE(
            test.database.sql(QStringLiteral("select task_name || ',' || task_desc from tasks")).toString(),
            QStringLiteral("by the other,ours"));
    }

    void aFileThatMayOnlyBeReadStays()
    {
        const WriteAheadFile test;
        QCOMPARE(chmod(QFile::encodeName(test.database.dataFile()).constData(), 0444), 0);
        QCOMPARE(chmod(QFile::encodeName(test.database.folder()).constData(), 0755), 0);
        const QByteArray before = contentOf(test.database.dataFile());
        QCOMPARE(asAnOrdinaryUser([&] {
            test.copies().leaveWriteAheadMode();
            return true;
        }),
            0);
        QVERIFY(contentOf(test.database.dataFile()) == before);
    }

    void anyOtherFileIsLeftAlone_data()
    {
        QTest::addColumn<QByteArray>("content");
        const TestDatabase database;
        const QByteArray sound = contentOf(database.dataFile());
        QTest::newRow("in rollback-journal mode") << sound;
        QTest::newRow("empty") << QByteArray();
        QTest::newRow("cut short") << sound.left(19);
        QTest::newRow("of another kind") << QByteArray(100, '\x02');
    }
    void anyOtherFileIsLeftAlone()
    {
        QFETCH(const QByteArray, content);
        const MaintenancePageUnderTest test;
        writeText(test.database.dataFile(), content);
        // Nothing of it would be left, were the file opened.
        writeText(test.pathOf(QStringLiteral("data.dat-journal")), "of something else");
        DataFileCopies(test.database.engine()).leaveWriteAheadMode();
        QVERIFY(contentOf(test.database.dataFile()) == content);
        QCOMPARE(test.files(), QStringList({QStringLiteral("data.dat"), QStringLiteral("data.dat-journal")}));
    }

    void aMissingFileIsNotMade()
    {
        const MaintenancePageUnderTest test;
        QVERIFY(QFile::remove(test.database.dataFile()));
        DataFileCopies(test.database.engine()).leaveWriteAheadMode();
        QCOMPARE(test.files(), QStringList());
    }

    void aBackupHoldsWhatADeadProcessLeftBesideIt()
    {
        const WriteAheadFile test;
        test.die();
        test.copies().backUpTo(test.backup());
        QCOMPARE(taskIn(test.backup()), QStringLiteral("changed"));
        QVERIFY(!isInWriteAheadMode(test.backup()));
        QVERIFY(!isInWriteAheadMode(test.database.dataFile()));
    }

    void aBackupHoldsWhatSomebodyHasJustStoredWhoHasItOpen()
    {
        const WriteAheadFile test;
        const Database other = openElsewhere(test.database.dataFile());
        QVERIFY(ran(other, "pragma wal_autocheckpoint=0; update tasks set task_name='just now'"));
        test.copies().backUpTo(test.backup());
        QCOMPARE(taskIn(test.backup()), QStringLiteral("just now"));
        QVERIFY(ran(other, "update tasks set task_name='later'"));
        QCOMPARE(test.database.sql(QStringLiteral("select task_name from tasks")).toString(),
            QStringLiteral("later"));
    }

    void noBackupIsMadeOfWhatSomebodyIsReadingMeanwhile()
    {
        const WriteAheadFile test;
        const Database reader = openElsewhere(test.database.dataFile());
        QVERIFY(ran(reader, "begin; select * from tasks"));
        const Database other = openElsewhere(test.database.dataFile());
        QVERIFY(ran(other, "pragma wal_autocheckpoint=0; update tasks set task_name='just now'"));
        writeText(test.backup(), "older");
        QVERIFY(caught<RuntimeError>([&] { test.copies().backUpTo(test.backup()); }).has_value());
        QCOMPARE(contentOf(test.backup()), QByteArray("older"));
    }

    void aBackupOfItIsRestored()
    {
        WriteAheadFile test;
        test.die();
        {
            const Database other = openElsewhere(test.database.dataFile());
            QVERIFY(ran(other, "select * from tasks"));
            test.copies().backUpTo(test.backup());
        }
        test.database.sql(QStringLiteral("delete from tasks"));
        test.dialogs.expectOpen(test.backup());
        test.press("btnRestore");
        QCOMPARE(test.restored.size(), 1);
        QCOMPARE(test.tasks(), QStringList(QStringLiteral("changed")));
        QVERIFY(!isInWriteAheadMode(test.database.dataFile()));
    }
};

AMBERTASK_TEST_MAIN(TestWriteAhead)
#include "tst_write_ahead.moc"
