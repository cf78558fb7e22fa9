#include "categories/CustomIcons.h"
#include "data/ClsDatabase.h"
#include "data/ClsTask.h"
#include "data/DataFileCopies.h"
#include "reliability/DataFileState.h"
#include "reliability/Sweep.h"
#include "settings/DeadOperation.h"
#include "settings/Skins.h"
#include "support/CaughtError.h"
#include "support/ScriptedDialogs.h"
#include "support/TestDatabase.h"
#include "support/TestMain.h"
#include "support/TestPictures.h"
#include "system/FileReplace.h"
#include "system/Registry.h"
#include "system/RuntimeError.h"

#include <QStandardPaths>
#include <QTest>
#include <algorithm>
#include <cerrno>
#include <filesystem>

namespace
{

constexpr auto BeforeRestore = "data.dat.before-restore";

/// The content of a file, or "none".
std::string contentIn(const std::string& folder, const std::string& name)
{
    const std::string path = folder + '/' + name;
    return std::filesystem::exists(path) ? bytesOf(QString::fromStdString(path)).toStdString() : "none";
}

/// The rows of a data file, or "none".
std::string rowsIn(const std::string& folder, const std::string& name)
{
    return std::filesystem::exists(folder + '/' + name) ? dataFileState(folder, name) : "none";
}

/// A folder with a program folder in "program", a folder for other files in "elsewhere", and the folder of
/// the user's configuration in "config".
struct Place {
    Place()
    {
        for (const char* name : {"program", "elsewhere", "config"}) {
            QDir(root.path()).mkdir(QLatin1String(name));
        }
        aTask(database).named(QStringLiteral("before")).add();
        copyDataFile(QStringLiteral("elsewhere/b.abk"));
        database.sql(QStringLiteral("update tasks set task_name='after'"));
        copyDataFile(QStringLiteral("program/data.dat"));
    }

    QString path(const QString& name) const { return root.filePath(name); }
    void copyDataFile(const QString& name) const { QVERIFY(QFile::copy(database.dataFile(), path(name))); }
    Operation backup(const QString& name) const
    {
        return {[this, name] { return told([&] { DataFileCopies(engine).backUpTo(path(name)); }); },
            [name](const std::string& folder) {
                return dataFileState(folder + "/program") + '/' + rowsIn(folder, name.toStdString());
            }};
    }
    /// The data file that was replaced has to be found beside the new one, and no other file may take its
    /// name.
    Operation restore() const
    {
        const std::string replaced = rowsIn(root.path().toStdString(), "program/data.dat");
        const std::string kept = rowsIn(root.path().toStdString() + "/program", BeforeRestore);
        return {[this] {
                    return told(
                        [&] { DataFileCopies(engine).restoreFrom(path(QStringLiteral("elsewhere/b.abk"))); });
                },
            [replaced, kept](const std::string& folder) {
                const std::string state = dataFileState(folder + "/program");
                const std::string beside = rowsIn(folder + "/program", BeforeRestore);
                if (beside != replaced && (beside != kept || state != replaced)) {
                    throw std::runtime_error("what was replaced is lost");
                }
                return state;
            }};
    }

    TestDatabase database;
    QTemporaryDir root;
    DatabaseEngine engine{root.filePath(QStringLiteral("program")), database.engine().clock, nullptr};
};

} // namespace

class TestReplacementFaults : public TestCase
{
    Q_OBJECT

private slots:
    void initTestCase() { QStandardPaths::setTestModeEnabled(false); }
    void aBackupUnderANewNameIsWholeOrNotThere();
    void aBackupReplacesAnOlderOneWholeOrNotAtAll();
    void aBackupAfterADeadOperationIsWholeOrNotThere();
    void aFullDiskIsToldInWords();
    void aBackupAfterEveryPowerCutHoldsTheOldStateOrTheNew();
    void aRestoreReplacesTheDataFileWholeOrNotAtAll();
    void aRestoreOverADeadOperationIsWholeOrNotAtAll();
    void aSecondRestoreKeepsWhatItReplaces();
    void aRestoreFromWriteAheadModeIsWholeOrNotAtAll();
    void aDataFileThatLeavesWriteAheadModeKeepsItsRecords();
    void aRestoreOverAnEmptyFileKeepsItsJournal();
    void aSkinIsAddedWholeOrNotAtAll();
    void aDriveWithoutPermissionsTakesABackup();
    void aCustomIconIsStoredWholeOrNotAtAll();
    void theSessionEntryIsWrittenWholeOrNotAtAll();
    void theSessionEntryIsReplacedWholeOrNotAtAll();
    void theSessionEntryIsRemovedOrStays();
    void cleanupTestCase() { qInfo("all: %s", qPrintable(m_all.text())); }

private:
    void tryEntry(const Place& place, const std::function<void(Registry&)>& action)
    {
        qputenv("XDG_CONFIG_HOME", QFile::encodeName(place.path(QStringLiteral("config"))));
        const std::unique_ptr<Registry> registry = makeSystemRegistry();
        m_all.tryEverything(place.root.path(),
            {[&] {
                 action(*registry);
                 return Told::Nothing;
             },
                [](const std::string& folder) {
                    return contentIn(folder, "config/autostart/Ambertask.desktop");
                }});
    }

    SweepTotals m_all;
};

void TestReplacementFaults::aBackupUnderANewNameIsWholeOrNotThere()
{
    const Place place;
    m_all.tryEverything(place.root.path(), place.backup(QStringLiteral("elsewhere/new.abk")));
}

void TestReplacementFaults::aBackupReplacesAnOlderOneWholeOrNotAtAll()
{
    const Place place;
    m_all.tryEverything(place.root.path(), place.backup(QStringLiteral("elsewhere/b.abk")));
}

void TestReplacementFaults::aFullDiskIsToldInWords()
{
    const Place place;
    FaultyDisk disk(place.path(QStringLiteral("elsewhere")).toStdString());
    int told = 0;
    std::size_t call = 0;
    do {
        disk.watch({++call, ENOSPC, FaultyDisk::Lasting::ForThisKind});
        const auto error = caught<FileError>(
            [&] { DataFileCopies(place.engine).backUpTo(place.path(QStringLiteral("elsewhere/new.abk"))); });
        disk.stopWatching();
        // A full disk can still say what lies on it.
        const bool asks = call <= disk.calls().size() && disk.calls()[call - 1].kind == FileCall::Status;
        if (error && !asks) {
            QCOMPARE(error->why(), QStringLiteral("the disk is full"));
            ++told;
        }
    } while (disk.hasRefused());
    QVERIFY2(told >= 3, qPrintable(QString::number(told)));
}

void TestReplacementFaults::aBackupAfterADeadOperationIsWholeOrNotThere()
{
    const Place place;
    place.database.sql(TwoHundredTasks);
    QVERIFY(QFile::remove(place.path(QStringLiteral("program/data.dat"))));
    leaveDeadOperation(place.database.dataFile(), place.path(QStringLiteral("program")));
    QVERIFY(QFile::remove(place.path(QStringLiteral("program/work.dat"))));
    m_all.tryEverything(place.root.path(), place.backup(QStringLiteral("elsewhere/b.abk")));
}

void TestReplacementFaults::aBackupAfterEveryPowerCutHoldsTheOldStateOrTheNew()
{
    const Place place;
    // The backup is the first to open what the power cut left.
    const auto backedUp = [&](const std::string& folder) {
        const QString program = QString::fromStdString(folder) + QStringLiteral("/program");
        const DatabaseEngine lost{program, place.engine.clock, nullptr};
        const QString target = QString::fromStdString(folder) + QStringLiteral("/elsewhere/after.abk");
        DataFileCopies(lost).backUpTo(target);
        const std::string state = dataFileState(folder, "elsewhere/after.abk");
        QFile::remove(target);
        return state;
    };
    m_all.tryEverything(place.root.path(),
        {[&] {
             return told([&] {
                 ClsTask task(place.engine);
                 task.setTaskName(QString(5000, u'x'));
                 task.setCategoryId(1);
                 task.Add();
             });
         },
            backedUp});
}

void TestReplacementFaults::aRestoreReplacesTheDataFileWholeOrNotAtAll()
{
    const Place place;
    m_all.tryEverything(place.root.path(), place.restore());
}

void TestReplacementFaults::aRestoreOverADeadOperationIsWholeOrNotAtAll()
{
    const Place place;
    place.database.sql(TwoHundredTasks);
    QVERIFY(QFile::remove(place.path(QStringLiteral("program/data.dat"))));
    leaveDeadOperation(place.database.dataFile(), place.path(QStringLiteral("program")));
    QVERIFY(QFile::remove(place.path(QStringLiteral("program/work.dat"))));
    const DiskImage dead = imageOf(place.root.path().toStdString());
    const Operation restore = place.restore();
    writeImage(dead, place.root.path().toStdString());
    m_all.tryEverything(place.root.path(), restore);
}

void TestReplacementFaults::aSecondRestoreKeepsWhatItReplaces()
{
    const Place place;
    place.database.sql(QStringLiteral("update tasks set task_name='long ago'"));
    place.copyDataFile(QStringLiteral("program/data.dat.before-restore"));
    m_all.tryEverything(place.root.path(), place.restore());
}

void TestReplacementFaults::aRestoreFromWriteAheadModeIsWholeOrNotAtAll()
{
    const Place place;
    constexpr int Formats = 18;
    const QString backup = place.path(QStringLiteral("elsewhere/b.abk"));
    QByteArray bytes = bytesOf(backup);
    writeFile(place.path(QStringLiteral("elsewhere")), QStringLiteral("b.abk"),
        bytes.replace(Formats, 2, QByteArray(2, '\x02')));
    Operation restore = place.restore();
    restore.stateOf = [state = restore.stateOf](const std::string& folder) {
        const std::string mode = contentIn(folder, "program/data.dat").substr(Formats, 2);
        return mode == "\x01\x01" ? state(folder) : throw std::runtime_error("not in rollback mode");
    };
    m_all.tryEverything(place.root.path(), restore);
}

void TestReplacementFaults::aDataFileThatLeavesWriteAheadModeKeepsItsRecords()
{
    const Place place;
    // What another program leaves that died with its last change beside the file.
    const QString file = place.database.dataFile();
    place.database.sql(QStringLiteral("pragma journal_mode=wal"));
    sqlite3* opened = nullptr;
    QCOMPARE(sqlite3_open(QFile::encodeName(file).constData(), &opened), SQLITE_OK);
    const std::unique_ptr<sqlite3, int (*)(sqlite3*)> other(opened, sqlite3_close);
    QCOMPARE(sqlite3_exec(opened, "pragma wal_autocheckpoint=0; update tasks set task_name='changed'",
                 nullptr, nullptr, nullptr),
        SQLITE_OK);
    QVERIFY(QFile::remove(place.path(QStringLiteral("program/data.dat"))));
    place.copyDataFile(QStringLiteral("program/data.dat"));
    QVERIFY(QFile::copy(file + QStringLiteral("-wal"), place.path(QStringLiteral("program/data.dat-wal"))));
    const auto recordsOf = [](const std::string& folder) {
        const std::string state = dataFileState(folder + "/program");
        return state.find("text changed|") != std::string::npos
            ? state
            : throw std::runtime_error("the last change is lost");
    };
    // A journal that nothing is taken back from can stay until something is stored.
    m_all.tryEverything(place.root.path(),
        {[&place] {
             DataFileCopies(place.engine).leaveWriteAheadMode();
             return told([&] {
                 Connection connection = ClsDatabase(place.engine).Connect();
                 connection.open();
                 connection.execute(QStringLiteral("update settings set skin=skin||'x'"));
                 connection.execute(QStringLiteral("update settings set skin=substr(skin,1,length(skin)-1)"));
                 connection.close();
             });
         },
            recordsOf});
}

void TestReplacementFaults::aRestoreOverAnEmptyFileKeepsItsJournal()
{
    const Place place;
    const QString program = place.path(QStringLiteral("program"));
    writeFile(program, QStringLiteral("data.dat"), "");
    writeFile(program, QStringLiteral("data.dat-journal"), "dead");
    m_all.tryEverything(place.root.path(),
        {[&] {
             return told([&] {
                 DataFileCopies(place.engine).restoreFrom(place.path(QStringLiteral("elsewhere/b.abk")));
             });
         },
            [](const std::string& folder) {
                const std::string beside = contentIn(folder, "program/data.dat-journal");
                const std::string kept = contentIn(folder, "program/data.dat.before-restore-journal");
                if ((beside == "dead") == (kept == "dead")) {
                    throw std::runtime_error("the journal is lost or there twice");
                }
                const bool isEmpty = contentIn(folder, "program/data.dat").empty();
                if (!isEmpty && beside != "none") {
                    throw std::runtime_error("the journal lies beside the new file");
                }
                return isEmpty ? std::string("empty") : dataFileState(folder + "/program");
            }});
}

void TestReplacementFaults::aSkinIsAddedWholeOrNotAtAll()
{
    const Place place;
    const QString skin = place.path(QStringLiteral("elsewhere/Lemon.skf"));
    QVERIFY(QFile::copy(QStringLiteral(AMBERTASK_SHIPPED_SKINS "/Lemon.skf"), skin));
    writeFile(place.path(QStringLiteral("program/Skins")), QStringLiteral("Lemon.skf"), "an older one");
    ScriptedDialogs dialogs;
    const Skins skins(ProgramFiles(place.engine.programFolder), dialogs);
    m_all.tryEverything(place.root.path(),
        {[&] { return told([&] { skins.add(skin); }); },
            [](const std::string& folder) {
                return contentIn(folder, "program/Skins/Lemon.skf");
            }});
}

void TestReplacementFaults::aDriveWithoutPermissionsTakesABackup()
{
    const Place place;
    const auto backUp = [&] {
        DataFileCopies(place.engine).backUpTo(place.path(QStringLiteral("elsewhere/c.abk")));
    };
    FaultyDisk disk(place.path(QStringLiteral("elsewhere")).toStdString());
    disk.watch({});
    backUp();
    disk.stopWatching();
    const auto first = std::find_if(disk.calls().begin(), disk.calls().end(),
        [](const FaultyDisk::Call& call) { return call.kind == FileCall::ChangeMode; });
    QVERIFY(first != disk.calls().end());
    const auto number = static_cast<std::size_t>(first - disk.calls().begin()) + 1;
    disk.watch({number, ENOTSUP, FaultyDisk::Lasting::ForThisKind});
    backUp();
    disk.stopWatching();
    QVERIFY(disk.hasRefused());
    QCOMPARE(contentIn(place.root.path().toStdString(), "elsewhere/c.abk"),
        contentIn(place.root.path().toStdString(), "program/data.dat"));
}

void TestReplacementFaults::aCustomIconIsStoredWholeOrNotAtAll()
{
    const Place place;
    const QString picture =
        writeFile(place.path(QStringLiteral("elsewhere")), QStringLiteral("p.gif"), gifOf());
    const CustomIcons icons(place.engine.programFolder);
    m_all.tryEverything(place.root.path(),
        {[&] { return told([&] { icons.store(picture, QStringLiteral("icon7.gif"), {}, {}); }); },
            [](const std::string& folder) {
                return contentIn(folder, "program/custom icons/icon7.gif");
            }});
}

void TestReplacementFaults::theSessionEntryIsWrittenWholeOrNotAtAll()
{
    const Place place;
    tryEntry(place, [&](Registry& registry) { writeRunEntry(registry, place.engine.programFolder); });
}

void TestReplacementFaults::theSessionEntryIsReplacedWholeOrNotAtAll()
{
    const Place place;
    writeFile(place.path(QStringLiteral("config/autostart")), QStringLiteral("Ambertask.desktop"), "old");
    tryEntry(place, [&](Registry& registry) { writeRunEntry(registry, place.engine.programFolder); });
}

void TestReplacementFaults::theSessionEntryIsRemovedOrStays()
{
    const Place place;
    writeFile(place.path(QStringLiteral("config/autostart")), QStringLiteral("Ambertask.desktop"), "old");
    tryEntry(place, [](Registry& registry) { deleteRunEntry(registry); });
}

AMBERTASK_TEST_MAIN(TestReplacementFaults)
#include "tst_replacement_faults.moc"
