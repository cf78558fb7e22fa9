#include "data/DataFileCopies.h"
#include "reliability/DataFileState.h"
#include "reliability/Sweep.h"
#include "settings/DeadOperation.h"
#include "support/OlderDataFile.h"
#include "support/TestMain.h"
#include "support/TestPictures.h"

#include <QTest>
#include <cerrno>

namespace
{

constexpr auto BeforeUpgrade = "data.dat.before-upgrade";

/// The rows of the data file with its version.
std::string stateOf(const std::string& folder, const std::string& name)
{
    constexpr int LastOfUserVersion = 63;
    const std::string rows = dataFileState(folder, name);
    const QByteArray bytes = bytesOf(QString::fromStdString(folder + '/' + name));
    return std::to_string(bytes.at(LastOfUserVersion)) + '\n' + rows;
}

/// An upgrade says nothing; the file is of the one version or of the other, and never without a copy of what
/// it was.
Operation upgradeOf(const TestDatabase& database)
{
    const std::string before = stateOf(database.folder().toStdString(), "data.dat");
    return {[&database] {
                DataFileCopies(database.engine()).bringUp();
                return Told::Nothing;
            },
        [before](const std::string& folder) {
            std::string state = stateOf(folder, "data.dat");
            if (state != before && stateOf(folder, BeforeUpgrade) != before) {
                throw std::runtime_error("what the file was is lost");
            }
            return state;
        }};
}

} // namespace

class TestUpgradeFaults : public TestCase
{
    Q_OBJECT

private slots:
    void anOlderFileIsBroughtUpWholeOrNotAtAll();
    void newIdsAreGivenToAllTasksOrToNone();
    void anUpgradeOverADeadOperationIsWholeOrNotAtAll();
    void aRestoreOfAnOlderFileIsWholeOrNotAtAll();
    void onAFullDiskTheOlderFileServes();
    void cleanupTestCase() { qInfo("all: %s", qPrintable(m_all.text())); }

private:
    SweepTotals m_all;
};

void TestUpgradeFaults::anOlderFileIsBroughtUpWholeOrNotAtAll()
{
    const TestDatabase database;
    addTasksUpTo(database, 40, 200);
    makeOlder(database);
    m_all.tryEverything(database.folder(), upgradeOf(database));
}

void TestUpgradeFaults::newIdsAreGivenToAllTasksOrToNone()
{
    const TestDatabase database;
    addTasksUpTo(database, 40, 32767);
    // The copy of an earlier upgrade gives way.
    QVERIFY(QFile::copy(database.dataFile(), database.folder() + u'/' + QLatin1String(BeforeUpgrade)));
    database.sql(QStringLiteral("update tasks set task_name=task_name||'!'"));
    m_all.tryEverything(database.folder(), upgradeOf(database));
}

void TestUpgradeFaults::anUpgradeOverADeadOperationIsWholeOrNotAtAll()
{
    const TestDatabase database;
    database.sql(TwoHundredTasks);
    makeOlder(database);
    const QTemporaryDir program;
    leaveDeadOperation(database.dataFile(), program.path());
    QVERIFY(QFile::remove(program.filePath(QStringLiteral("work.dat"))));
    const DiskImage dead = imageOf(program.path().toStdString());
    const TestDatabase older(program.path());
    const Operation upgrade = upgradeOf(older);
    writeImage(dead, program.path().toStdString());
    m_all.tryEverything(program.path(), upgrade);
}

void TestUpgradeFaults::aRestoreOfAnOlderFileIsWholeOrNotAtAll()
{
    const QTemporaryDir root;
    QVERIFY(QDir(root.path()).mkdir(QStringLiteral("program")));
    const TestDatabase source;
    addTasksUpTo(source, 10, 40);
    QVERIFY(QFile::copy(source.dataFile(), root.filePath(QStringLiteral("program/data.dat"))));
    source.sql(QStringLiteral("update tasks set task_name='older'"));
    makeOlder(source);
    QVERIFY(QFile::copy(source.dataFile(), root.filePath(QStringLiteral("b.abk"))));
    const TestDatabase program(root.filePath(QStringLiteral("program")));
    // The restore has succeeded whether or not its upgrade has: the next start does that.
    m_all.tryEverything(root.path(),
        {[&] {
             return told([&] {
                 DataFileCopies(program.engine()).restoreFrom(root.filePath(QStringLiteral("b.abk")));
             });
         },
            [](const std::string& folder) {
                const TestDatabase after(QString::fromStdString(folder + "/program"));
                DataFileCopies(after.engine()).bringUp();
                return stateOf(folder + "/program", "data.dat");
            }});
}

void TestUpgradeFaults::onAFullDiskTheOlderFileServes()
{
    const TestDatabase database;
    addTasksUpTo(database, 40, 32767);
    makeOlder(database);
    const QByteArray before = bytesOf(database.dataFile());
    FaultyDisk disk(database.folder().toStdString());
    std::size_t call = 0;
    int kept = 0;
    do {
        disk.watch({++call, ENOSPC, FaultyDisk::Lasting::ForThisKind});
        DataFileCopies(database.engine()).bringUp();
        disk.stopWatching();
        if (bytesOf(database.dataFile()) == before) {
            ++kept;
            QCOMPARE(ClsTask(database.engine()).GetTaskById(32767)->TaskName(), QStringLiteral("task 0"));
        } else {
            writeFile(database.folder(), QStringLiteral("data.dat"), before);
        }
    } while (disk.hasRefused());
    QVERIFY2(kept >= 3, qPrintable(QString::number(kept)));
}

AMBERTASK_TEST_MAIN(TestUpgradeFaults)
#include "tst_upgrade_faults.moc"
