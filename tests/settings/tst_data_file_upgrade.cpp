#include "data/ClsDatabase.h"
#include "data/DataFileRoad.h"
#include "settings/DeadOperation.h"
#include "settings/RestoreUnderTest.h"
#include "store/RollbackJournal.h"
#include "support/CancellingProgress.h"
#include "support/CaughtError.h"
#include "support/OlderDataFile.h"
#include "support/OrdinaryUser.h"
#include "support/TestMain.h"

#include <sys/stat.h>

namespace
{

/// A data file of an earlier version with a task.
struct OlderFile {
    OlderFile()
    {
        aTask(database).named(QStringLiteral("kept")).add();
        makeOlder(database);
        before = contentOf(database.dataFile());
    }
    DataFileCopies copies() const { return DataFileCopies(database.engine()); }
    QString copy() const { return database.dataFile() + QStringLiteral(".before-upgrade"); }
    int version() const { return database.sql(QStringLiteral("pragma user_version")).toInt(); }
    void setModes(mode_t ofFile, mode_t ofFolder) const
    {
        QCOMPARE(chmod(QFile::encodeName(database.dataFile()).constData(), ofFile), 0);
        QCOMPARE(chmod(QFile::encodeName(database.folder()).constData(), ofFolder), 0);
    }

    TestDatabase database;
    QByteArray before;
};

int modeOf(const QString& file)
{
    struct stat status {
    };
    return stat(QFile::encodeName(file).constData(), &status) == 0 ? static_cast<int>(status.st_mode & 0777)
                                                                   : -1;
}

int versionIn(const QString& file)
{
    constexpr int UserVersion = 60; // in the file's head
    return static_cast<unsigned char>(contentOf(file).at(UserVersion + 3));
}

} // namespace

/// What becomes of a data file of an earlier version, at a start and by a restore.
class TestDataFileUpgrade : public TestCase
{
    Q_OBJECT

private slots:
    void aPresentFileKeepsItsBytesAndHasNoCopy()
    {
        const MaintenancePageUnderTest test;
        const QByteArray before = contentOf(test.database.dataFile());
        DataFileCopies(test.database.engine()).bringUp();
        QVERIFY(contentOf(test.database.dataFile()) == before);
        QCOMPARE(test.files(), QStringList(QStringLiteral("data.dat")));
    }

    void anOlderFileIsKeptAsItWasAndPrivate()
    {
        const OlderFile older;
        const mode_t mask = umask(0);
        older.copies().bringUp();
        umask(mask);
        QCOMPARE(older.version(), DataFileVersion);
        QVERIFY(contentOf(older.copy()) == older.before);
        QCOMPARE(modeOf(older.copy()), 0600);
    }

    void aFileWhoseTasksGetNewIdsIsKeptAsItWas()
    {
        const TestDatabase database;
        addTasksUpTo(database, 10, 30001);
        const QByteArray before = contentOf(database.dataFile());
        DataFileCopies(database.engine()).bringUp();
        QCOMPARE(database.sql(QStringLiteral("select max(task_id) from tasks")).toInt(), 10);
        QVERIFY(contentOf(database.dataFile() + QStringLiteral(".before-upgrade")) == before);
    }

    void theLatestCopyTakesThePlaceOfAnEarlierOne()
    {
        const OlderFile older;
        writeText(older.copy(), "of long ago");
        older.copies().bringUp();
        QVERIFY(contentOf(older.copy()) == older.before);
    }

    void theCopyLiesBesideTheFileBehindALink()
    {
        const OlderFile older;
        const QTemporaryDir elsewhere;
        const QString place = elsewhere.filePath(QStringLiteral("mine.dat"));
        QVERIFY(
            QFile::rename(older.database.dataFile(), place) && QFile::link(place, older.database.dataFile()));
        older.copies().bringUp();
        QCOMPARE(versionIn(place), DataFileVersion);
        QVERIFY(QFileInfo(older.database.dataFile()).isSymLink());
        QVERIFY(contentOf(place + QStringLiteral(".before-upgrade")) == older.before);
    }

    void whatADeadProcessLeftIsTakenBackFirst()
    {
        const OlderFile older;
        older.database.sql(TwoHundredTasks);
        const QByteArray sound = contentOf(older.database.dataFile());
        const QTemporaryDir dead;
        leaveDeadOperation(older.database.dataFile(), dead.path());
        for (const char* name : {"data.dat", "data.dat-journal"}) {
            writeText(older.database.folder() + u'/' + QLatin1String(name),
                contentOf(dead.filePath(QLatin1String(name))));
        }
        older.copies().bringUp();
        QVERIFY(contentOf(older.copy()) == sound);
        QCOMPARE(older.database.sql(QStringLiteral("select count(*) from tasks")).toInt(), 201);
        QCOMPARE(older.version(), DataFileVersion);
    }

    void aFileInWriteAheadModeIsBroughtUpToo()
    {
        const OlderFile older;
        older.database.sql(QStringLiteral("pragma journal_mode=wal"));
        older.copies().bringUp();
        QCOMPARE(older.version(), DataFileVersion);
        QCOMPARE(versionIn(older.copy()), 1);
        QVERIFY(!isInWriteAheadMode(older.copy()) && !isInWriteAheadMode(older.database.dataFile()));
    }

    void aReadOnlyFileServesAsItIs_data()
    {
        QTest::addColumn<int>("ofFile");
        QTest::addColumn<int>("ofFolder");
        QTest::newRow("the file") << 0444 << 0777;
        QTest::newRow("the folder") << 0666 << 0555;
        QTest::newRow("both") << 0444 << 0555;
    }
    void aReadOnlyFileServesAsItIs()
    {
        QFETCH(const int, ofFile);
        QFETCH(const int, ofFolder);
        const OlderFile older;
        older.setModes(static_cast<mode_t>(ofFile), static_cast<mode_t>(ofFolder));
        QCOMPARE(asAnOrdinaryUser([&] {
            older.copies().bringUp();
            return ClsTask(older.database.engine()).GetTaskById(1)->TaskName() == QLatin1String("kept");
        }),
            0);
        older.setModes(0600, 0700);
        QVERIFY(contentOf(older.database.dataFile()) == older.before);
        QVERIFY(!QFile::exists(older.copy()));
    }

    void aFileThatSomebodyWritesToServesAsItIs()
    {
        const OlderFile older;
        {
            Connection other = ClsDatabase(older.database.engine()).Connect();
            other.open();
            other.execute(QStringLiteral("update settings set skin='Aqua'"));
            older.copies().bringUp();
        }
        QVERIFY(contentOf(older.database.dataFile()) == older.before);
        older.copies().bringUp();
        QCOMPARE(older.version(), DataFileVersion);
    }

    void aDamagedFileIsNeitherCopiedNorChanged()
    {
        const OlderFile older;
        execute(older.database.dataFile(),
            "pragma writable_schema=1; update sqlite_schema set rootpage=4711 "
            "where name='tasks_by_reminder'");
        const QByteArray damaged = contentOf(older.database.dataFile());
        bool sound = false;
        DatabaseEngine engine = older.database.engine();
        engine.knownSound = &sound;
        DataFileCopies(engine).bringUp();
        QVERIFY(contentOf(older.database.dataFile()) == damaged);
        QVERIFY(!QFile::exists(older.copy()));
    }

    void aCancelledUpgradeLeavesTheFileAsItIs()
    {
        const OlderFile older;
        addTasksUpTo(older.database, 9000, 32767);
        const QByteArray before = contentOf(older.database.dataFile());
        for (const auto at : {CancellingProgress::At::FirstStep, CancellingProgress::At::UnknownLength}) {
            CancellingProgress progress(at);
            older.copies().bringUp(&progress);
            QVERIFY(contentOf(older.database.dataFile()) == before);
        }
        older.copies().bringUp();
        QCOMPARE(older.version(), DataFileVersion);
    }

    void aLaterFileIsRefused()
    {
        const OlderFile older;
        execute(older.database.dataFile(), "pragma user_version=99");
        const QByteArray later = contentOf(older.database.dataFile());
        QVERIFY(caught<LaterDataFileError>([&] { older.copies().bringUp(); }));
        QVERIFY(contentOf(older.database.dataFile()) == later);
        QVERIFY(!QFile::exists(older.copy()));
    }

    void anOlderBackupIsRestoredAndBroughtUp_data()
    {
        QTest::addColumn<QByteArray>("sql");
        for (const OlderDataFile& older : OlderDataFiles) {
            QTest::newRow(older.name) << QByteArray(older.sql);
        }
    }
    void anOlderBackupIsRestoredAndBroughtUp()
    {
        QFETCH(const QByteArray, sql);
        RestoreUnderTest test;
        execute(test.backup(), sql.constData());
        const QByteArray backup = contentOf(test.backup());
        test.restore(test.backup());
        QCOMPARE(test.tasks(), QStringList(QStringLiteral("before")));
        QCOMPARE(versionIn(test.database.dataFile()), DataFileVersion);
        QVERIFY(contentOf(test.backup()) == backup);
        QVERIFY(contentOf(test.pathOf(QStringLiteral("data.dat.before-upgrade"))) == backup);
        QCOMPARE(test.files(),
            (QStringList{QStringLiteral("copies"), QStringLiteral("data.dat"),
                QStringLiteral("data.dat.before-restore"), QStringLiteral("data.dat.before-upgrade")}));
        QVERIFY(test.said().startsWith(QLatin1String("Restored 1 task from")));
    }

    void aBackupWithTheLastIdIsRestoredWithNewOnes()
    {
        RestoreUnderTest test;
        execute(test.backup(), "update tasks set task_id=32767");
        test.restore(test.backup());
        QCOMPARE(test.database.sql(QStringLiteral("select task_id from tasks")).toInt(), 1);
    }

    void anOlderBackupIsRestoredWhereThereIsNoDataFile()
    {
        RestoreUnderTest test;
        execute(test.backup(), OlderDataFiles[0].sql);
        QVERIFY(QFile::remove(test.database.dataFile()));
        test.restore(test.backup());
        QCOMPARE(versionIn(test.database.dataFile()), DataFileVersion);
    }

    void theCopyOfAnUpgradeCanBeRestored()
    {
        RestoreUnderTest test;
        test.database.sql(QStringLiteral("pragma user_version=1"));
        const QByteArray before = contentOf(test.database.dataFile());
        DataFileCopies(test.database.engine()).bringUp();
        test.database.sql(QStringLiteral("delete from tasks"));
        const QString copy = test.pathOf(QStringLiteral("data.dat.before-upgrade"));
        test.restore(copy);
        QCOMPARE(test.tasks(), QStringList(QStringLiteral("after")));
        QCOMPARE(versionIn(test.database.dataFile()), DataFileVersion);
        QVERIFY(contentOf(copy) == before);
    }

    void aLaterBackupIsRefusedInTheLine()
    {
        RestoreUnderTest test;
        execute(test.backup(), "alter table tasks drop column played; pragma user_version=99");
        const QByteArray before = contentOf(test.database.dataFile());
        test.restore(test.backup());
        QCOMPARE(test.restored.size(), 0);
        QCOMPARE(test.said(),
            QStringLiteral("Nothing was restored: The data file was made by a later version of Ambertask; "
                           "this version cannot use it."));
        QVERIFY(contentOf(test.database.dataFile()) == before);
        QCOMPARE(test.files(), QStringList(QStringLiteral("data.dat")));
    }
};

AMBERTASK_TEST_MAIN(TestDataFileUpgrade)
#include "tst_data_file_upgrade.moc"
