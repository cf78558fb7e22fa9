#include "data/DataFileCopies.h"
#include "data/DayCopy.h"
#include "data/KeptCopies.h"
#include "reliability/DataFileState.h"
#include "reliability/Sweep.h"
#include "settings/DeadOperation.h"
#include "support/OlderDataFile.h"
#include "support/TestMain.h"
#include "support/TestPictures.h"

#include <QTest>
#include <cerrno>
#include <filesystem>

namespace
{

/// The rows of the data file. Whatever has a copy's name is whole: it is one of `contents` or, as an
/// operation that is taken back may leave other bytes in pages that are free, holds the rows `before`.
std::string stateWithCopies(
    const std::string& folder, const std::vector<QByteArray>& contents, const std::string& before = {})
{
    const std::string copies = folder + "/copies";
    if (std::filesystem::exists(copies)) {
        for (const auto& entry : std::filesystem::directory_iterator(copies)) {
            const std::string name = entry.path().filename().string();
            const QByteArray bytes = bytesOf(QString::fromStdString(entry.path().string()));
            if (name.front() != '.' && std::count(contents.begin(), contents.end(), bytes) == 0
                && (before.empty() || dataFileState(copies, name) != before)) {
                throw std::runtime_error("half a copy: " + name);
            }
        }
    }
    return dataFileState(folder);
}

/// A change of a program that has just started.
Operation firstChangeOf(const TestDatabase& database, std::vector<QByteArray> contents)
{
    return {[&database] {
                QStringList failures;
                DayCopy day(database.engine(), [&](const QString& why) { failures.append(why); });
                DatabaseEngine engine = database.engine();
                engine.copies = &day;
                return told([&] {
                    ClsTask task(engine);
                    task.setTaskName(QStringLiteral("new"));
                    task.setCategoryId(1);
                    task.Add();
                });
            },
        [contents = std::move(contents)](
            const std::string& folder) { return stateWithCopies(folder, contents); },
        {},
        [&database] {
            if (KeptCopies(database.engine()).list().isEmpty()) {
                throw std::runtime_error("no copy");
            }
        }};
}

} // namespace

class TestCopyFaults : public TestCase
{
    Q_OBJECT

private slots:
    void theDaysFirstChangeIsMadeAndItsCopyIsWholeOrNotThere();
    void aFaultAmongTheCopiesStopsNoChange();
    void theDaysFirstChangeOverADeadOperationCopiesNothingOfIt();
    void droppingOldCopiesHarmsNeitherTheChangeNorTheOthers();
    void aCopyBeforeADeletionIsWholeOrNotThere();
    void aCopyBeforeARestoreIsWholeOrNotThere();
    void aCopyBeforeAnUpgradeIsWholeOrNotThere();
    void cleanupTestCase() { qInfo("all: %s", qPrintable(m_all.text())); }

private:
    SweepTotals m_all;
};

void TestCopyFaults::theDaysFirstChangeIsMadeAndItsCopyIsWholeOrNotThere()
{
    const TestDatabase database;
    database.sql(TwoHundredTasks);
    m_all.tryEverything(database.folder(), firstChangeOf(database, {bytesOf(database.dataFile())}));
}

void TestCopyFaults::aFaultAmongTheCopiesStopsNoChange()
{
    const TestDatabase database;
    database.sql(TwoHundredTasks);
    const DiskImage start = imageOf(database.folder().toStdString());
    FaultyDisk disk(database.folder().toStdString());
    int refused = 0;
    int without = 0;
    std::size_t call = 0;
    do {
        for (const int error : {EIO, ENOSPC, EACCES, EROFS}) {
            writeImage(start, database.folder().toStdString());
            QStringList failures;
            DayCopy day(database.engine(), [&](const QString& why) { failures.append(why); });
            DatabaseEngine engine = database.engine();
            engine.copies = &day;
            disk.watch({call + 1, error});
            const Told said = told([&] { ClsTask(engine).DeleteById(3); });
            disk.stopWatching();
            if (!disk.hasRefused() || disk.calls()[call].path.rfind("copies", 0) != 0) {
                continue;
            }
            ++refused;
            QCOMPARE(said, Told::Success);
            QCOMPARE(database.sql(QStringLiteral("select count(*) from tasks")).toInt(), 199);
            // There is a copy, or it was said that there is none; the former even if it may not be durable.
            QVERIFY(failures.isEmpty() != KeptCopies(database.engine()).list().isEmpty());
            without += failures.isEmpty() ? 0 : 1;
        }
        ++call;
    } while (disk.hasRefused());
    QVERIFY2(refused > 40, qPrintable(QString::number(refused)));
    QVERIFY2(without > 20 && without < refused, qPrintable(QString::number(without)));
    writeImage(start, database.folder().toStdString());
}

void TestCopyFaults::theDaysFirstChangeOverADeadOperationCopiesNothingOfIt()
{
    const TestDatabase database;
    database.sql(TwoHundredTasks);
    const QByteArray before = bytesOf(database.dataFile());
    const QTemporaryDir program;
    leaveDeadOperation(database.dataFile(), program.path());
    QVERIFY(QFile::remove(program.filePath(QStringLiteral("work.dat"))));
    TestDatabase dead(program.path());
    m_all.tryEverything(program.path(), firstChangeOf(dead, {before}));
}

void TestCopyFaults::droppingOldCopiesHarmsNeitherTheChangeNorTheOthers()
{
    constexpr qsizetype Most = 12;
    TestDatabase database;
    const KeptCopies kept(database.engine());
    std::vector<QByteArray> contents;
    for (qsizetype month = 0; month < Most; ++month) {
        contents.push_back(bytesOf(database.dataFile()));
        QCOMPARE(kept.keep(CopyOccasion::Deletion), QString());
        database.sql(QStringLiteral("update settings set skin=skin||'x'"));
        database.clock().step(std::chrono::hours(31 * 24));
    }
    QCOMPARE(kept.list().size(), Most);
    contents.push_back(bytesOf(database.dataFile()));
    Operation change = firstChangeOf(database, contents);
    change.checkDone = [&] {
        if (kept.list().size() != Most) {
            throw std::runtime_error("the oldest has not been dropped");
        }
    };
    change.stateOf = [state = change.stateOf](const std::string& folder) {
        if (std::distance(std::filesystem::directory_iterator(folder + "/copies"), {}) < Most) {
            throw std::runtime_error("copies are lost");
        }
        return state(folder);
    };
    m_all.tryEverything(database.folder(), change);
}

void TestCopyFaults::aCopyBeforeADeletionIsWholeOrNotThere()
{
    const TestDatabase database;
    database.sql(TwoHundredTasks);
    const std::vector<QByteArray> contents{bytesOf(database.dataFile())};
    m_all.tryEverything(database.folder(),
        {[&] {
             return told([&] {
                 KeptCopies(database.engine()).keep(CopyOccasion::Deletion);
                 ClsTask(database.engine()).DeleteById(3);
             });
         },
            [contents](const std::string& folder) { return stateWithCopies(folder, contents); }, {},
            [&] {
                if (KeptCopies(database.engine()).list().size() != 1) {
                    throw std::runtime_error("no copy");
                }
            }});
}

void TestCopyFaults::aCopyBeforeARestoreIsWholeOrNotThere()
{
    const TestDatabase database;
    const QString backup = database.folder() + QStringLiteral("/b.abk");
    DataFileCopies(database.engine()).backUpTo(backup);
    database.sql(TwoHundredTasks);
    const std::vector<QByteArray> contents{bytesOf(database.dataFile())};
    m_all.tryEverything(database.folder(),
        {[&] { return told([&] { DataFileCopies(database.engine()).restoreFrom(backup); }); },
            [contents](const std::string& folder) {
                return stateWithCopies(folder, contents);
            }});
}

void TestCopyFaults::aCopyBeforeAnUpgradeIsWholeOrNotThere()
{
    const TestDatabase database;
    addTasksUpTo(database, 40, 200);
    makeOlder(database);
    const std::vector<QByteArray> contents{bytesOf(database.dataFile())};
    const std::string before = dataFileState(database.folder().toStdString());
    m_all.tryEverything(database.folder(),
        {[&] {
             DataFileCopies(database.engine()).bringUp();
             return Told::Nothing;
         },
            [contents, before](const std::string& folder) {
                return stateWithCopies(folder, contents, before);
            }});
}

AMBERTASK_TEST_MAIN(TestCopyFaults)
#include "tst_copy_faults.moc"
