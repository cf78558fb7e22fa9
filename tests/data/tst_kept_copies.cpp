#include "data/ClsDatabase.h"
#include "data/CopyThinning.h"
#include "data/DataFileCopies.h"
#include "data/TaskChanges.h"
#include "data/UndoHistory.h"
#include "settings/DeadOperation.h"
#include "support/CancellingProgress.h"
#include "support/CaughtError.h"
#include "support/FullDisk.h"
#include "support/OlderDataFile.h"
#include "support/OrdinaryUser.h"
#include "support/TestMain.h"
#include "system/Progress.h"
#include "tests/data/CopiesUnderTest.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <sys/statvfs.h>

using namespace std::chrono_literals;
using namespace std::chrono;

namespace
{

/// What the disk says that it has free; negative for what it really has.
qint64 freeBytes = -1;

using Change = std::function<void(const CopiesUnderTest&)>;

/// For tests that become another user.
void openToAll(const TestDatabase& database)
{
    constexpr auto All = QFileDevice::ReadOther | QFileDevice::WriteOther | QFileDevice::ExeOther;
    for (const QString& place : {database.folder(), database.dataFile()}) {
        QVERIFY(QFile::setPermissions(place, QFile::permissions(place) | All));
    }
}

const QString FirstOfToday = QStringLiteral("2026-01-15 10-00-00 before first change.dat");

} // namespace

extern "C" int statvfs(const char* path, struct statvfs* answer) noexcept
{
    // The program asks for the bytes that are free and for nothing else.
    Q_UNUSED(path);
    *answer = {};
    answer->f_frsize = 1;
    answer->f_bavail = freeBytes < 0 ? 1'000'000'000'000 : static_cast<fsblkcnt_t>(freeBytes);
    return 0;
}

/// The copies that the program makes by itself.
class TestKeptCopies : public TestCase
{
    Q_OBJECT

private slots:
    void cleanup() { freeBytes = -1; }
    void readingMakesNoCopy();
    void theFirstChangeOfADayIsPrecededByACopyOfWhatWas();
    void aChangeOfEachKindCounts_data();
    void aChangeOfEachKindCounts();
    void furtherChangesOfTheDayMakeNoCopy();
    void afterANewStartOnTheSameDayNoCopyIsMade();
    void theNextDayHasItsCopy();
    void midnightPassesInAnOpenProgram();
    void anHourSetBackMakesNoFurtherCopy();
    void aDaySetBackIsADayOfItsOwn();
    void copiesAndTheirFolderArePrivate();
    void aFolderBehindALinkIsTheUsersOwn();
    void aCopyForAnotherReasonServesForTheDay();
    void anOccasionMakesACopyOfItsOwn();
    void twoInOneSecondHaveTwoNames();
    void whatWasTriedInVainIsNotCopiedTwice();
    void theListNamesMomentOccasionAndSize();
    void otherFilesAreNeitherListedNorRemoved();
    void theEleventhCopyOfADayTakesThePlaceOfTheFirst();
    void aFullDiskStopsNoChange();
    void aNearlyFullDiskIsNotFilled();
    void copiesGiveWayToWhatFillsTheDisk();
    void aFolderThatTakesNoFileStopsNoChange();
    void aFileInThePlaceOfTheFolderStopsNoChange();
    void aCopyInVainIsNoCopyOfTheDay();
    void theReasonIsToldOnceADay();
    void aDeadOperationIsRolledBackBeforeItIsCopied();
    void inWriteAheadModeTheDayHasNoHalfCopy();
    void anotherProcessThatWritesIsWaitedForOrNamed();
    void theLocksStayWhileACopyIsMade();
    void aRestoreKeepsWhatItReplaces();
    void aRefusedRestoreKeepsNothing();
    void aRestoreOverWhatIsNoDataFileKeepsItsJournal();
    void aCancelledCopyCancelsWhatItIsFor();
    void anUpgradeKeepsWhatTheFileWas();
    void noStatementIsTold();
};

void TestKeptCopies::readingMakesNoCopy()
{
    const CopiesUnderTest test;
    ClsTask(test.engine).GetTaskById(1);
    DataFileCopies(test.engine).keepPrivate();
    DataFileCopies(test.engine).leaveWriteAheadMode();
    DataFileCopies(test.engine).bringUp();
    QVERIFY(!QFileInfo::exists(test.folder()));
    QVERIFY(test.kept().list().isEmpty());
}

void TestKeptCopies::theFirstChangeOfADayIsPrecededByACopyOfWhatWas()
{
    CopiesUnderTest test;
    test.database.sql(TwoHundredTasks);
    const QByteArray before = test.content();
    test.change();
    QCOMPARE(test.names(), QStringList(FirstOfToday));
    QVERIFY(test.contentOfCopy(FirstOfToday) == before);
    QVERIFY(test.content() != before);
    QCOMPARE(test.failures, QStringList());
}

void TestKeptCopies::aChangeOfEachKindCounts_data()
{
    QTest::addColumn<Change>("change");
    const auto row = [](const char* name, const Change& change) {
        QTest::newRow(name) << change;
    };
    row("a mark of the checker", [](const CopiesUnderTest& test) {
        Connection connection = ClsDatabase(test.engine).Connect();
        connection.open();
        connection.execute(QStringLiteral("update tasks set played=1"));
        connection.close();
    });
    row("several tasks at once", [](const CopiesUnderTest& test) {
        TaskChanges::setStatus(test.engine, {1, 2}, 3);
    });
    row("what is taken back", [](const CopiesUnderTest& test) {
        DatabaseEngine quiet = test.engine;
        quiet.copies = nullptr;
        UndoHistory history(quiet);
        history.run([](const DatabaseEngine& engine) {
            TaskChanges::setStatus(engine, {1}, 3);
            return QString();
        });
        quiet.copies = test.engine.copies;
        history.undo();
    });
    row("what is done again", [](const CopiesUnderTest& test) {
        DatabaseEngine quiet = test.engine;
        quiet.copies = nullptr;
        UndoHistory history(quiet);
        history.run([](const DatabaseEngine& engine) {
            TaskChanges::setStatus(engine, {1}, 3);
            return QString();
        });
        history.undo();
        quiet.copies = test.engine.copies;
        history.redo();
    });
}

void TestKeptCopies::aChangeOfEachKindCounts()
{
    QFETCH(const Change, change);
    CopiesUnderTest test;
    aTask(test.database).add();
    change(test);
    QCOMPARE(test.names(), QStringList(FirstOfToday));
}

void TestKeptCopies::furtherChangesOfTheDayMakeNoCopy()
{
    CopiesUnderTest test;
    test.change();
    test.database.clock().step(13h);
    test.change();
    test.change();
    QCOMPARE(test.names(), QStringList(FirstOfToday));
}

void TestKeptCopies::afterANewStartOnTheSameDayNoCopyIsMade()
{
    CopiesUnderTest test;
    test.change();
    test.database.clock().step(1h);
    DayCopy started(test.engine, [](const QString& why) { QFAIL(qPrintable(why)); });
    test.engine.copies = &started;
    test.change();
    QCOMPARE(test.names(), QStringList(FirstOfToday));
}

void TestKeptCopies::theNextDayHasItsCopy()
{
    CopiesUnderTest test;
    test.change();
    const QByteArray evening = test.content();
    test.database.clock().step(24h);
    test.change();
    QCOMPARE(test.names(), QStringList({FirstOfToday, "2026-01-16 10-00-00 before first change.dat"}));
    QVERIFY(test.contentOfCopy(test.names().last()) == evening);
}

void TestKeptCopies::midnightPassesInAnOpenProgram()
{
    CopiesUnderTest test;
    test.database.clock().set(makeMoment(2026y / January / 15, 23h + 59min + 59s));
    test.change();
    test.database.clock().step(1s);
    test.change();
    QCOMPARE(test.names(),
        QStringList(
            {"2026-01-15 23-59-59 before first change.dat", "2026-01-16 00-00-00 before first change.dat"}));
}

void TestKeptCopies::anHourSetBackMakesNoFurtherCopy()
{
    CopiesUnderTest test;
    test.database.clock().set(makeMoment(2026y / January / 15, 12h));
    test.change();
    // Back over midnight and over it again.
    test.database.clock().set(makeMoment(2026y / January / 16, 30min));
    test.change();
    QCOMPARE(test.names().size(), 2);
    test.database.clock().step(-1h);
    test.change();
    test.database.clock().step(1h);
    test.change();
    QCOMPARE(test.names().size(), 2);
}

void TestKeptCopies::aDaySetBackIsADayOfItsOwn()
{
    CopiesUnderTest test;
    test.change();
    const QByteArray before = test.content();
    test.database.clock().step(-48h);
    test.change();
    QCOMPARE(test.names(), QStringList({"2026-01-13 10-00-00 before first change.dat", FirstOfToday}));
    QVERIFY(test.contentOfCopy(test.names().first()) == before);
}

void TestKeptCopies::copiesAndTheirFolderArePrivate()
{
    CopiesUnderTest test;
    constexpr auto Others = QFileDevice::ReadGroup | QFileDevice::WriteGroup | QFileDevice::ExeGroup
        | QFileDevice::ReadOther | QFileDevice::WriteOther | QFileDevice::ExeOther;
    const auto isPrivate = [&] {
        return !(QFile::permissions(test.folder()) & Others)
            && !(QFile::permissions(test.folder() + u'/' + test.names().first()) & Others);
    };
    QFile::setPermissions(test.database.dataFile(), QFile::permissions(test.database.dataFile()) | Others);
    const mode_t before = umask(0);
    test.change();
    umask(before);
    QVERIFY(isPrivate());
    // A folder that was there before.
    QVERIFY(QFile::setPermissions(test.folder(), QFile::permissions(test.folder()) | Others));
    test.kept().keep(CopyOccasion::Deletion);
    QVERIFY(isPrivate());
}

void TestKeptCopies::aFolderBehindALinkIsTheUsersOwn()
{
    CopiesUnderTest test;
    const QTemporaryDir elsewhere;
    const auto open = QFile::permissions(elsewhere.path()) | QFileDevice::ReadGroup | QFileDevice::ExeGroup;
    QVERIFY(QFile::setPermissions(elsewhere.path(), open));
    QVERIFY(QFile::link(elsewhere.path(), test.folder()));
    test.change();
    QVERIFY(QFileInfo::exists(elsewhere.filePath(FirstOfToday)));
    QCOMPARE(QFile::permissions(elsewhere.path()), open);
}

void TestKeptCopies::aCopyForAnotherReasonServesForTheDay()
{
    CopiesUnderTest test;
    const QByteArray before = test.content();
    QCOMPARE(test.kept().keep(CopyOccasion::Deletion), QString());
    test.change();
    QCOMPARE(test.names(), QStringList("2026-01-15 10-00-00 before deletion.dat"));
    QVERIFY(test.contentOfCopy(test.names().first()) == before);
}

void TestKeptCopies::anOccasionMakesACopyOfItsOwn()
{
    CopiesUnderTest test;
    test.change();
    const QByteArray before = test.content();
    test.database.clock().step(5min);
    QCOMPARE(test.kept().keep(CopyOccasion::Import), QString());
    QCOMPARE(test.names(), QStringList({FirstOfToday, "2026-01-15 10-05-00 before import.dat"}));
    QVERIFY(test.contentOfCopy(test.names().last()) == before);
}

void TestKeptCopies::twoInOneSecondHaveTwoNames()
{
    CopiesUnderTest test;
    QList<QByteArray> contents;
    for (int i = 0; i < 3; ++i) {
        contents.prepend(test.content());
        QCOMPARE(test.kept().keep(CopyOccasion::Restore), QString());
        test.change();
    }
    const QList<KeptCopy> copies = test.kept().list();
    QCOMPARE(copies.size(), 3);
    for (int i = 0; i < 3; ++i) {
        QVERIFY2(contentOf(copies[i].path) == contents[i], qPrintable(copies[i].path));
    }
}

void TestKeptCopies::whatWasTriedInVainIsNotCopiedTwice()
{
    CopiesUnderTest test;
    for (int i = 0; i < 3; ++i) {
        QCOMPARE(test.kept().keep(CopyOccasion::Restore), QString());
        test.database.clock().step(1min);
    }
    QCOMPARE(test.names().size(), 1);
}

void TestKeptCopies::theListNamesMomentOccasionAndSize()
{
    CopiesUnderTest test;
    const Moment start = test.database.clock().now();
    const QList<CopyOccasion> occasions{
        CopyOccasion::Restore, CopyOccasion::Import, CopyOccasion::Deletion, CopyOccasion::Upgrade};
    test.change();
    for (const CopyOccasion occasion : occasions) {
        test.database.clock().step(1s);
        QCOMPARE(test.kept().keep(occasion), QString());
        test.change();
    }
    const QList<KeptCopy> copies = test.kept().list();
    QCOMPARE(copies.size(), 5);
    QCOMPARE(copies.last().occasion, CopyOccasion::Day);
    for (int i = 0; i < 4; ++i) {
        QCOMPARE(copies[i].occasion, occasions[3 - i]);
        QCOMPARE(copies[i].moment, start + seconds(4 - i));
        QCOMPARE(copies[i].size, QFileInfo(copies[i].path).size());
        QCOMPARE(QFileInfo(copies[i].path).absolutePath(), test.folder());
    }
}

void TestKeptCopies::otherFilesAreNeitherListedNorRemoved()
{
    CopiesUnderTest test;
    const QStringList others{QStringLiteral("2020-01-15 10-00-00 before lunch.dat"),
        QStringLiteral("2020-01-15 10-00-00 before restore.abk"),
        QStringLiteral("2020-02-30 10-00-00 before restore.dat"),
        QStringLiteral("2020-01-15 25-00-00 before restore.dat"),
        QStringLiteral("my 2020-01-15 10-00-00 before restore.dat"), QStringLiteral("notes.txt")};
    for (const QString& other : others) {
        writeText(test.folder() + u'/' + other, "mine");
    }
    QVERIFY(QDir(test.folder()).mkdir(QStringLiteral("2020-01-16 10-00-00 before restore.dat")));
    QVERIFY(QFile::link(test.database.dataFile(), test.folder() + "/2020-01-17 10-00-00 before restore.dat"));
    for (int day = 0; day < 400; ++day) {
        test.change();
        test.database.clock().step(24h);
    }
    for (const QString& other : others) {
        QCOMPARE(test.contentOfCopy(other), QByteArray("mine"));
    }
    QCOMPARE(test.names().size(), test.kept().list().size() + others.size() + 2);
    QVERIFY(test.kept().list().size() < 30);
}

void TestKeptCopies::theEleventhCopyOfADayTakesThePlaceOfTheFirst()
{
    CopiesUnderTest test;
    for (int i = 0; i < 12; ++i) {
        QCOMPARE(test.kept().keep(CopyOccasion::Deletion), QString());
        test.change();
        test.database.clock().step(1min);
    }
    QCOMPARE(test.names().size(), 10);
    QCOMPARE(test.names().first(), QStringLiteral("2026-01-15 10-02-00 before deletion.dat"));
}

void TestKeptCopies::aFullDiskStopsNoChange()
{
    CopiesUnderTest test;
    aTask(test.database).add();
    // Its last pages are not written by a change of the other task.
    aTask(test.database).describedAs(QString(100'000, u'x')).add();
    {
        const FullDisk full(static_cast<rlim_t>(test.content().size() / 2));
        TaskChanges::setStatus(test.engine, {1}, 3);
    }
    QCOMPARE(test.database.sql(QStringLiteral("select task_status from tasks where task_id=1")).toInt(), 3);
    QCOMPARE(test.names(), QStringList());
    QCOMPARE(test.failures, QStringList(QStringLiteral("the file would be too large")));
}

void TestKeptCopies::aNearlyFullDiskIsNotFilled()
{
    CopiesUnderTest test;
    freeBytes = test.content().size() * 11 - 1;
    test.change();
    QCOMPARE(test.failures, QStringList(QStringLiteral("the disk is nearly full")));
    QCOMPARE(test.kept().keep(CopyOccasion::Restore), QStringLiteral("the disk is nearly full"));
    QCOMPARE(test.names(), QStringList());
    freeBytes = test.content().size() * 11;
    QCOMPARE(test.kept().keep(CopyOccasion::Restore), QString());
}

void TestKeptCopies::copiesGiveWayToWhatFillsTheDisk()
{
    CopiesUnderTest test;
    for (int day = 0; day < 7; ++day) {
        test.change();
        test.database.clock().step(24h);
    }
    QCOMPARE(test.names().size(), 7);
    const QString newest = test.names().last();
    freeBytes = 0;
    test.change();
    QCOMPARE(test.failures, QStringList(QStringLiteral("the disk is nearly full")));
    QCOMPARE(test.names(), QStringList(newest));
}

void TestKeptCopies::aFolderThatTakesNoFileStopsNoChange()
{
    const CopiesUnderTest test;
    openToAll(test.database);
    QVERIFY(QDir().mkdir(test.folder()));
    QVERIFY(QFile::setPermissions(test.folder(), QFileDevice::ReadOwner | QFileDevice::ExeOwner));
    QCOMPARE(asAnOrdinaryUser([&] {
        QStringList failures;
        DayCopy day(test.engine, [&](const QString& why) { failures.append(why); });
        DatabaseEngine engine = test.engine;
        engine.copies = &day;
        TaskChanges::setStatus(engine, {1}, 3);
        return failures == QStringList(QStringLiteral("there is no permission for that"));
    }),
        0);
}

void TestKeptCopies::aCopyInVainIsNoCopyOfTheDay()
{
    CopiesUnderTest test;
    writeText(test.folder(), "not a folder");
    QVERIFY(!test.kept().keep(CopyOccasion::Deletion).isEmpty());
    test.change();
    // Whoever asked for the copy tells why there is none.
    QCOMPARE(test.failures, QStringList());
    QVERIFY(QFile::remove(test.folder()));
    test.change();
    QCOMPARE(test.names().size(), 1);
    test.change();
    QCOMPARE(test.names().size(), 1);
}

void TestKeptCopies::aFileInThePlaceOfTheFolderStopsNoChange()
{
    CopiesUnderTest test;
    writeText(test.folder(), "not a folder");
    test.change();
    QCOMPARE(test.database.sql(QStringLiteral("select count(*) from tasks")).toInt(), 1);
    QCOMPARE(test.failures, QStringList(QStringLiteral("it is not a folder")));
    QCOMPARE(contentOf(test.folder()), QByteArray("not a folder"));
    QVERIFY(QFile::remove(test.folder()));
    QVERIFY(QFile::link(test.database.folder() + QStringLiteral("/nowhere"), test.folder()));
    QVERIFY(!test.kept().keep(CopyOccasion::Deletion).isEmpty());
}

void TestKeptCopies::theReasonIsToldOnceADay()
{
    CopiesUnderTest test;
    freeBytes = 0;
    test.change();
    test.change();
    QCOMPARE(test.failures.size(), 1);
    test.database.clock().step(24h);
    test.change();
    QCOMPARE(test.failures.size(), 2);
    // Whoever asked for a copy is told why there is none, and nobody is told again.
    test.database.clock().step(24h);
    QVERIFY(!test.kept().keep(CopyOccasion::Deletion).isEmpty());
    test.change();
    QCOMPARE(test.failures.size(), 2);
}

void TestKeptCopies::aDeadOperationIsRolledBackBeforeItIsCopied()
{
    CopiesUnderTest test;
    test.database.sql(TwoHundredTasks);
    const QByteArray before = test.content();
    const QTemporaryDir dead;
    leaveDeadOperation(test.database.dataFile(), dead.path());
    for (const bool atOnce : {false, true}) {
        const QTemporaryDir place;
        for (const char* name : {"data.dat", "data.dat-journal"}) {
            QVERIFY(QFile::copy(dead.filePath(QLatin1String(name)), place.filePath(QLatin1String(name))));
        }
        test.engine.programFolder = place.path();
        if (atOnce) {
            QCOMPARE(test.kept().keep(CopyOccasion::Import), QString());
        } else {
            test.change();
        }
        const QList<KeptCopy> copies = test.kept().list();
        QCOMPARE(copies.size(), 1);
        QVERIFY(contentOf(copies.first().path) == before);
    }
}

void TestKeptCopies::inWriteAheadModeTheDayHasNoHalfCopy()
{
    CopiesUnderTest test;
    sqlite3* opened = nullptr;
    QCOMPARE(sqlite3_open(QFile::encodeName(test.database.dataFile()).constData(), &opened), SQLITE_OK);
    std::unique_ptr<sqlite3, int (*)(sqlite3*)> other(opened, sqlite3_close);
    QCOMPARE(sqlite3_exec(opened, "pragma journal_mode=wal; update settings set skin='Lemon'", nullptr,
                 nullptr, nullptr),
        SQLITE_OK);
    test.change();
    QCOMPARE(test.failures, QStringList(QStringLiteral("another program is using it")));
    QCOMPARE(test.names(), QStringList());
    QCOMPARE(test.database.sql(QStringLiteral("select count(*) from tasks")).toInt(), 1);
    QCOMPARE(test.kept().keep(CopyOccasion::Deletion), QStringLiteral("another program is using it"));
    QCOMPARE(test.names(), QStringList());
    // As soon as nobody uses it any more it is one file again.
    other.reset();
    QCOMPARE(test.kept().keep(CopyOccasion::Deletion), QString());
    QCOMPARE(test.database.sql(QStringLiteral("pragma journal_mode")).toString(), QStringLiteral("delete"));
    QVERIFY(test.contentOfCopy(test.names().first()) == test.content());
}

void TestKeptCopies::anotherProcessThatWritesIsWaitedForOrNamed()
{
    CopiesUnderTest test;
    sqlite3* opened = nullptr;
    QCOMPARE(sqlite3_open(QFile::encodeName(test.database.dataFile()).constData(), &opened), SQLITE_OK);
    const std::unique_ptr<sqlite3, int (*)(sqlite3*)> other(opened, sqlite3_close);
    QCOMPARE(sqlite3_exec(opened, "begin immediate", nullptr, nullptr, nullptr), SQLITE_OK);
    const QString why = test.kept().keep(CopyOccasion::Import);
    QVERIFY2(why.contains(QLatin1String("another program is using it")), qPrintable(why));
    QCOMPARE(test.names(), QStringList());
    QCOMPARE(sqlite3_exec(opened, "rollback", nullptr, nullptr, nullptr), SQLITE_OK);
    QCOMPARE(test.kept().keep(CopyOccasion::Import), QString());
}

void TestKeptCopies::theLocksStayWhileACopyIsMade()
{
    CopiesUnderTest test;
    openToAll(test.database);
    Connection writing = ClsDatabase(test.engine).Connect();
    writing.open();
    writing.execute(QStringLiteral("update settings set skin='Lemon'"));
    QCOMPARE(test.names(), QStringList(FirstOfToday));
    // A process of its own sees what locks of this one are left.
    QCOMPARE(asAnOrdinaryUser([&] {
        QFile file(test.database.dataFile());
        struct flock lock = {};
        lock.l_type = F_WRLCK;
        lock.l_whence = SEEK_SET;
        return file.open(QIODevice::ReadOnly) && fcntl(file.handle(), F_GETLK, &lock) == 0
            && lock.l_type != F_UNLCK;
    }),
        0);
    writing.close();
}

void TestKeptCopies::aRestoreKeepsWhatItReplaces()
{
    CopiesUnderTest test;
    const QTemporaryDir elsewhere;
    const QString backup = elsewhere.filePath(QStringLiteral("b.abk"));
    DataFileCopies(test.engine).backUpTo(backup);
    test.change();
    const QByteArray before = test.content();
    test.database.clock().step(1min);
    QCOMPARE(DataFileCopies(test.engine).restoreFrom(backup).noCopy, QString());
    QCOMPARE(test.names(), QStringList({FirstOfToday, "2026-01-15 10-01-00 before restore.dat"}));
    QVERIFY(test.contentOfCopy(test.names().last()) == before);
    freeBytes = 0;
    test.change();
    test.change();
    QCOMPARE(
        DataFileCopies(test.engine).restoreFrom(backup).noCopy, QStringLiteral("the disk is nearly full"));
    QVERIFY(test.content() == contentOf(backup));
}

void TestKeptCopies::aRefusedRestoreKeepsNothing()
{
    CopiesUnderTest test;
    const QTemporaryDir elsewhere;
    const QString letter = elsewhere.filePath(QStringLiteral("letter.abk"));
    writeText(letter, "Dear Sir or Madam");
    QVERIFY(caught<RuntimeError>([&] { DataFileCopies(test.engine).restoreFrom(letter); }).has_value());
    QCOMPARE(test.names(), QStringList());
}

void TestKeptCopies::aRestoreOverWhatIsNoDataFileKeepsItsJournal()
{
    CopiesUnderTest test;
    const QTemporaryDir elsewhere;
    const QString backup = elsewhere.filePath(QStringLiteral("b.abk"));
    DataFileCopies(test.engine).backUpTo(backup);
    writeText(test.database.dataFile(), "no data file");
    writeText(test.database.dataFile() + QStringLiteral("-journal"), "of an operation");
    QCOMPARE(DataFileCopies(test.engine).restoreFrom(backup).noCopy, QString());
    QCOMPARE(contentOf(test.database.dataFile() + QStringLiteral(".before-restore-journal")),
        QByteArray("of an operation"));
    QCOMPARE(test.names(), QStringList());
}

void TestKeptCopies::aCancelledCopyCancelsWhatItIsFor()
{
    CopiesUnderTest test;
    CancellingProgress progress(CancellingProgress::At::FirstStep);
    QVERIFY(caught<Cancelled>([&] { test.kept().keep(CopyOccasion::Deletion, &progress); }).has_value());
    QCOMPARE(test.names(), QStringList());
}

void TestKeptCopies::anUpgradeKeepsWhatTheFileWas()
{
    CopiesUnderTest test;
    addTasksUpTo(test.database, 10, 40);
    makeOlder(test.database);
    const QByteArray before = test.content();
    DataFileCopies(test.engine).bringUp();
    QVERIFY(test.content() != before);
    QCOMPARE(test.names(), QStringList("2026-01-15 10-00-00 before upgrade.dat"));
    QVERIFY(test.contentOfCopy(test.names().first()) == before);
    // Nothing is to be done at the next start.
    test.database.clock().step(24h);
    DataFileCopies(test.engine).bringUp();
    QCOMPARE(test.names().size(), 1);
}

void TestKeptCopies::noStatementIsTold()
{
    CopiesUnderTest test;
    test.database.statements().take();
    const int opened = test.database.statements().opened();
    test.kept().keep(CopyOccasion::Deletion);
    QCOMPARE(test.database.statements().take(), QStringList());
    QCOMPARE(test.database.statements().opened(), opened);
    test.database.clock().step(24h);
    test.change();
    QCOMPARE(test.database.statements().opened(), opened + 1);
    QCOMPARE(test.names().size(), 2);
}

AMBERTASK_TEST_MAIN(TestKeptCopies)
#include "tst_kept_copies.moc"
