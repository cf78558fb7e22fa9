#include "data/ClsDatabase.h"
#include "settings/DeadOperation.h"
#include "settings/RestoreUnderTest.h"
#include "support/TestMain.h"

#include <sys/stat.h>

namespace
{

/// Both are 2 in a file in write-ahead mode, else 1.
constexpr int WriteFormat = 18;
constexpr int ReadFormat = 19;

QString journalModeOf(const QByteArray& bytes)
{
    return bytes.at(WriteFormat) == 1 && bytes.at(ReadFormat) == 1 ? QStringLiteral("rollback")
        : bytes.at(WriteFormat) == 2 && bytes.at(ReadFormat) == 2  ? QStringLiteral("write-ahead")
                                                                   : QStringLiteral("none");
}

/// A backup that another program has left in write-ahead mode.
struct WriteAheadBackup : RestoreUnderTest {
    WriteAheadBackup() { execute(backup(), "pragma journal_mode=wal; update tasks set task_desc='wal'"); }
};

} // namespace

/// What lies beside a data file, and how SQLite keeps it.
class TestRestoreJournals : public TestCase
{
    Q_OBJECT

private slots:
    void aBackupInWriteAheadModeIsTurnedToTheRollbackJournal();
    void aBackupInWriteAheadModeStaysAsItIs();
    void aDamagedBackupInWriteAheadModeChangesNothing_data();
    void aDamagedBackupInWriteAheadModeChangesNothing();
    void afterwardsAnOpenConnectionHindersNoBackup();
    void aPipeBesideTheChosenFileIsNeverWaitedFor();
    void aPipeInThePlaceOfTheReplacedFileIsNeverWaitedFor();
    void theJournalOfAFileThatIsNoDatabaseIsKept_data();
    void theJournalOfAFileThatIsNoDatabaseIsKept();
    void theKeptJournalGoesWithItsFile();
    void aFileThatIsKeptWithAJournalIsNoBackup();
    void anOperationThatIsNotFinishedHoldsARestore();
};

void TestRestoreJournals::aBackupInWriteAheadModeIsTurnedToTheRollbackJournal()
{
    WriteAheadBackup test;
    QCOMPARE(journalModeOf(contentOf(test.backup())), QStringLiteral("write-ahead"));
    test.restore(test.backup());
    QCOMPARE(test.tasks(), QStringList(QStringLiteral("before")));
    QCOMPARE(journalModeOf(contentOf(test.database.dataFile())), QStringLiteral("rollback"));
    QCOMPARE(test.database.sql(QStringLiteral("pragma journal_mode")).toString(), QStringLiteral("delete"));
    QCOMPARE(test.database.sql(QStringLiteral("pragma integrity_check")).toString(), QStringLiteral("ok"));
    QCOMPARE(test.files(),
        QStringList({QStringLiteral("copies"), QStringLiteral("data.dat"),
            QStringLiteral("data.dat.before-restore")}));
}

void TestRestoreJournals::aBackupInWriteAheadModeStaysAsItIs()
{
    WriteAheadBackup test;
    const QByteArray backup = contentOf(test.backup());
    test.restore(test.backup());
    QVERIFY(contentOf(test.backup()) == backup);
    QCOMPARE(QDir(test.elsewhere.path()).entryList(QDir::Files), QStringList(QStringLiteral("b.abk")));
}

void TestRestoreJournals::aDamagedBackupInWriteAheadModeChangesNothing_data()
{
    QTest::addColumn<int>("writeFormat");
    QTest::addColumn<int>("left");
    QTest::newRow("cut short") << 2 << 4096;
    QTest::newRow("only its head") << 2 << 100;
    QTest::newRow("of a format that can only be read") << 9 << 0;
}

void TestRestoreJournals::aDamagedBackupInWriteAheadModeChangesNothing()
{
    QFETCH(const int, writeFormat);
    QFETCH(const int, left);
    WriteAheadBackup test;
    QByteArray bytes = contentOf(test.backup());
    bytes[WriteFormat] = static_cast<char>(writeFormat);
    writeText(test.backup(), left == 0 ? bytes : bytes.left(left));
    const QByteArray before = contentOf(test.database.dataFile());
    test.restore(test.backup());
    QVERIFY(contentOf(test.database.dataFile()) == before);
    QCOMPARE(test.files(), QStringList(QStringLiteral("data.dat")));
    QCOMPARE(test.restored.size(), 0);
}

void TestRestoreJournals::afterwardsAnOpenConnectionHindersNoBackup()
{
    WriteAheadBackup test;
    test.restore(test.backup());
    Connection open = ClsDatabase(test.database.engine()).Connect();
    open.open();
    // As a report keeps it, to whose window the records went long ago.
    const RecordSet records = open.execute(QStringLiteral("select * from tasks where task_id=-1"));
    QVERIFY(records.atEnd());
    aTask(test.database).named(QStringLiteral("added meanwhile")).add();
    const QString later = test.elsewhere.filePath(QStringLiteral("later.abk"));
    DataFileCopies(test.database.engine()).backUpTo(later);
    QVERIFY(contentOf(later) == contentOf(test.database.dataFile()));
    test.restore(later);
    QCOMPARE(test.restored.size(), 2);
}

void TestRestoreJournals::aPipeBesideTheChosenFileIsNeverWaitedFor()
{
    RestoreUnderTest test;
    const QString pipe = test.backup() + QStringLiteral("-journal");
    QCOMPARE(mkfifo(QFile::encodeName(pipe).constData(), 0600), 0);
    test.restore(test.backup());
    QCOMPARE(test.restored.size(), 0);
    QCOMPARE(test.tasks(), QStringList(QStringLiteral("after")));
}

void TestRestoreJournals::aPipeInThePlaceOfTheReplacedFileIsNeverWaitedFor()
{
    RestoreUnderTest test;
    const QString pipe = test.database.dataFile() + QStringLiteral(".before-restore");
    QCOMPARE(mkfifo(QFile::encodeName(pipe).constData(), 0600), 0);
    // Only then the two are compared: the restore of before may have died in between.
    writeText(test.database.dataFile(), "no database");
    test.restore(test.backup());
    QCOMPARE(test.restored.size(), 0);
}

void TestRestoreJournals::theJournalOfAFileThatIsNoDatabaseIsKept_data()
{
    QTest::addColumn<QByteArray>("content");
    QTest::addColumn<QString>("companion");
    QTest::newRow("empty, with a journal") << QByteArray() << QStringLiteral("-journal");
    QTest::newRow("empty, with a write-ahead log") << QByteArray() << QStringLiteral("-wal");
    QTest::newRow("cut within its head, with a journal")
        << QByteArray("SQLite fo") << QStringLiteral("-journal");
    QTest::newRow("cut within its head, with a write-ahead log")
        << QByteArray("SQLite fo") << QStringLiteral("-wal");
    QTest::newRow("overwritten, with a journal") << QByteArray(8192, '\x55') << QStringLiteral("-journal");
}

void TestRestoreJournals::theJournalOfAFileThatIsNoDatabaseIsKept()
{
    QFETCH(const QByteArray, content);
    QFETCH(const QString, companion);
    RestoreUnderTest test;
    writeText(test.database.dataFile(), content);
    writeText(test.database.dataFile() + companion, "what is left of an operation");
    test.restore(test.backup());
    QCOMPARE(test.restored.size(), 1);
    QCOMPARE(test.tasks(), QStringList(QStringLiteral("before")));
    QVERIFY(contentOf(test.database.dataFile()) == contentOf(test.backup()));
    const QString replaced = QStringLiteral("data.dat.before-restore");
    QCOMPARE(test.files(), QStringList({QStringLiteral("data.dat"), replaced, replaced + companion}));
    QCOMPARE(contentOf(test.pathOf(replaced)), content);
    QCOMPARE(contentOf(test.pathOf(replaced + companion)), QByteArray("what is left of an operation"));
}

void TestRestoreJournals::theKeptJournalGoesWithItsFile()
{
    RestoreUnderTest test;
    writeText(test.database.dataFile(), "");
    writeText(test.database.dataFile() + QStringLiteral("-journal"), "what is left of an operation");
    test.restore(test.backup());
    const QByteArray restored = contentOf(test.database.dataFile());
    test.restore(test.backup());
    QCOMPARE(test.restored.size(), 2);
    QCOMPARE(test.files(),
        QStringList({QStringLiteral("copies"), QStringLiteral("data.dat"),
            QStringLiteral("data.dat.before-restore")}));
    QVERIFY(contentOf(test.pathOf(QStringLiteral("data.dat.before-restore"))) == restored);
}

void TestRestoreJournals::aFileThatIsKeptWithAJournalIsNoBackup()
{
    RestoreUnderTest test;
    writeText(test.database.dataFile(), "");
    writeText(test.database.dataFile() + QStringLiteral("-journal"), "what is left of an operation");
    test.restore(test.backup());
    test.restore(test.pathOf(QStringLiteral("data.dat.before-restore")));
    QCOMPARE(test.restored.size(), 1);
    QCOMPARE(test.tasks(), QStringList(QStringLiteral("before")));
}

void TestRestoreJournals::anOperationThatIsNotFinishedHoldsARestore()
{
    RestoreUnderTest test;
    test.database.sql(TwoHundredTasks);
    sqlite3* opened = nullptr;
    QCOMPARE(sqlite3_open(QFile::encodeName(test.database.dataFile()).constData(), &opened), SQLITE_OK);
    const std::unique_ptr<sqlite3, int (*)(sqlite3*)> other(opened, sqlite3_close);
    // With a cache of one page, changed pages go to the file before the commit.
    QCOMPARE(sqlite3_exec(opened, "pragma cache_size=1; begin immediate; delete from tasks", nullptr, nullptr,
                 nullptr),
        SQLITE_OK);
    test.restore(test.backup());
    QCOMPARE(test.restored.size(), 0);
    QCOMPARE(test.files(), QStringList({QStringLiteral("data.dat"), QStringLiteral("data.dat-journal")}));
    QCOMPARE(sqlite3_exec(opened, "rollback", nullptr, nullptr, nullptr), SQLITE_OK);
    QCOMPARE(test.tasks().first(), QStringLiteral("after"));
}

AMBERTASK_TEST_MAIN(TestRestoreJournals)
#include "tst_restore_journals.moc"
