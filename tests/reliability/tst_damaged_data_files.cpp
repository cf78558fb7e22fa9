#include "Damage.h"
#include "app/RecordedMachine.h"
#include "data/ClsCategory.h"
#include "data/ClsTask.h"
#include "data/DataFileCopies.h"
#include "data/ReminderChecker.h"
#include "data/SettingsStore.h"
#include "data/TaskCodes.h"
#include "reminders/frmAlerts.h"
#include "support/TestMain.h"
#include "support/TestPictures.h"
#include "system/RuntimeError.h"

#include <QElapsedTimer>
#include <QTest>
#include <algorithm>

namespace
{

constexpr int PageSize = 4096;
constexpr qint64 Deadline = 10'000; ///< milliseconds for all that is done with one file
const QString DataFile = QStringLiteral("data.dat");

/// A data file with every kind of page: leaves and inner nodes of tables and of the index, texts over several
/// pages, free pages. Some reminders are due.
void fill(const TestDatabase& database)
{
    database.sql(
        QStringLiteral("insert into tasks(task_name,task_desc,cat_id,task_due_date,reminder_on,"
                       "reminder_date_time,reminder_sound) "
                       "with recursive n(i) as (select 1 union all select i+1 from n where i<400) "
                       "select 'task '||i, hex(zeroblob(i%90)), 1+i%4, '2026-01-15 11:00:00', i%3=0, "
                       "'2026-01-15 '||(10+i%10)||':00:00', 'a.wav' from n;"
                       "insert into tasks(task_name,task_desc,cat_id,task_due_date,reminder_date_time) "
                       "values('long',hex(zeroblob(6000)),1,'2026-01-15 11:00:00','2026-01-15 11:00:00');"
                       "delete from tasks where task_id between 100 and 200"));
}

QByteArray filledFile()
{
    TestDatabase database;
    fill(database);
    return bytesOf(database.dataFile());
}

std::vector<ClsTask> allTasks(const DatabaseEngine& engine)
{
    return ClsTask(engine).GetTasks(
        CategoryFilter::All, TaskStatus::All, TaskSort::None, false, {}, {}, TaskType::All);
}

QStringList textsOf(const std::vector<ClsTask>& tasks)
{
    QStringList texts;
    for (const ClsTask& task : tasks) {
        texts.append(QString::number(task.Id()) + task.TaskName() + task.Description());
    }
    return texts;
}

void readEverything(const DatabaseEngine& engine)
{
    SettingsStore(engine).read();
    ClsCategory(engine).GetAllCategories();
    allTasks(engine);
    ReminderChecker(engine).close();
}

void addTask(const DatabaseEngine& engine, const QString& description)
{
    ClsTask task(engine);
    task.setTaskName(QStringLiteral("007"));
    task.setDescription(description);
    task.setCategoryId(1);
    task.setDueDateTime(engine.clock->now());
    task.setReminderOn(true);
    task.setReminderDateTime(engine.clock->now());
    task.Add();
}

/// What is wrong with a data file that a restore has accepted; empty when it serves wholly.
QString whatIsWrongWith(const TestDatabase& database)
{
    const DatabaseEngine& engine = database.engine();
    try {
        readEverything(engine);
        const QString due =
            QStringLiteral("select count(*) from tasks natural join categories where reminder_on "
                           "and not dismissed and reminder_date_time <= '2026-01-15 10:00:00'");
        if (ReminderChecker(engine).due().size() != database.sql(due).toUInt()) {
            return QStringLiteral("a due reminder is not found");
        }
        const std::size_t tasks = allTasks(engine).size();
        addTask(engine, {});
        const ClsTask added = allTasks(engine).back();
        if (allTasks(engine).size() != tasks + 1 || added.TaskName() != QLatin1String("007")) {
            return QStringLiteral("a new task is not as it was entered");
        }
        const std::vector<DueReminder> reminders = ReminderChecker(engine).due();
        if (std::none_of(reminders.begin(), reminders.end(),
                [&](const DueReminder& reminder) { return reminder.id == added.Id() && !reminder.played; })) {
            return QStringLiteral("a new reminder does not sound");
        }
        ClsCategory category(engine);
        category.setCatName(QStringLiteral("new"));
        if (category.Add()) {
            return QStringLiteral("a new category is there already");
        }
        SettingsRecord record = SettingsStore(engine).read();
        SettingsStore(engine).save(record, record);
        readEverything(engine);
    } catch (const RuntimeError& error) {
        return error.text();
    }
    return {};
}

/// Message boxes and error reports that are only counted.
class CountedBoxes final : public MessageBoxes, public ErrorReport
{
public:
    void tell(QWidget*, Icon, const QString&) override { ++shown; }
    bool ask(QWidget*, const QString&) override { return false; }
    Unsaved askAboutUnsaved(QWidget*, const QString&) override { return Unsaved::Keep; }
    Times askWhichTimes(QWidget*, const QString&) override { return Times::None; }
    void report(const QString&) override { ++shown; }
    int shown = 0;
};

} // namespace

class DamagedDataFilesTest : public TestCase
{
    Q_OBJECT

private slots:
    void aDamagedDataFileIsReadOrRefusedAndStaysAsItIs();
    void aDamagedDataFileLosesNothingByWhatIsWritten();
    void aDamagedBackupIsRefusedOrServesWholly();
    void theProgramRunsOnADamagedDataFileOrSaysWhyNot();

private:
    /// Some of all damages of a filled data file; `times` of them, or more when the sweeps are to be long.
    std::vector<Damage> someDamages(std::size_t times)
    {
        return someOf(damagedPages(m_sound, PageSize, 40, m_chance), times, m_chance);
    }

    const QByteArray m_sound = filledFile();
    std::mt19937 m_chance{20260115};
};

void DamagedDataFilesTest::aDamagedDataFileIsReadOrRefusedAndStaysAsItIs()
{
    TestDatabase database;
    int refused = 0;
    const std::vector<Damage> damages = someDamages(500);
    for (const Damage& damage : damages) {
        writeFile(database.folder(), DataFile, damage.bytes);
        QElapsedTimer timer;
        timer.start();
        try {
            readEverything(database.engine());
        } catch (const RuntimeError& error) {
            QVERIFY2(!error.text().isEmpty(), qPrintable(damage.what));
            ++refused;
        }
        QVERIFY2(timer.elapsed() < Deadline, qPrintable(damage.what));
        QVERIFY2(bytesOf(database.dataFile()) == damage.bytes, qPrintable(damage.what));
    }
    qInfo("%zu damaged files read, %d of them refused", damages.size(), refused);
}

void DamagedDataFilesTest::aDamagedDataFileLosesNothingByWhatIsWritten()
{
    int refused = 0;
    const std::vector<Damage> damages = someDamages(200);
    for (const Damage& damage : damages) {
        TestDatabase database;
        writeFile(database.folder(), DataFile, damage.bytes);
        bool sound = false;
        DatabaseEngine engine = database.engine();
        engine.knownSound = &sound;
        QStringList before;
        try {
            before = textsOf(allTasks(engine));
            // Enough to use the free pages up.
            for (int i = 0; i < 30; ++i) {
                addTask(engine, QString(3000, u'x'));
            }
        } catch (const RuntimeError&) {
            ++refused;
            QVERIFY2(
                before.isEmpty() || bytesOf(database.dataFile()) == damage.bytes, qPrintable(damage.what));
            continue;
        }
        const QStringList after = textsOf(allTasks(engine));
        QVERIFY2(after.size() == before.size() + 30 && after.mid(0, before.size()) == before,
            qPrintable(damage.what));
    }
    qInfo("%zu damaged files written to, %d of them refused", damages.size(), refused);
}

void DamagedDataFilesTest::aDamagedBackupIsRefusedOrServesWholly()
{
    const TestDatabase database;
    const QByteArray before = bytesOf(database.dataFile());
    const QTemporaryDir elsewhere;
    int refused = 0;
    const std::vector<Damage> damages = someDamages(500);
    for (const Damage& damage : damages) {
        const QString backup = writeFile(elsewhere.path(), QStringLiteral("b.abk"), damage.bytes);
        QElapsedTimer timer;
        timer.start();
        try {
            DataFileCopies(database.engine()).restoreFrom(backup);
        } catch (const RuntimeError&) {
            ++refused;
            QVERIFY2(timer.elapsed() < Deadline, qPrintable(damage.what));
            QVERIFY2(bytesOf(database.dataFile()) == before, qPrintable(damage.what));
            continue;
        }
        QVERIFY2(bytesOf(database.dataFile()) == damage.bytes, qPrintable(damage.what));
        // The restore itself does not ask for that where it can prove it at a lower cost.
        QVERIFY2(database.sql(QStringLiteral("pragma integrity_check")).toString() == QLatin1String("ok"),
            qPrintable(damage.what));
        const QString wrong = whatIsWrongWith(database);
        QVERIFY2(wrong.isEmpty(), qPrintable(damage.what + QStringLiteral(": ") + wrong));
        writeFile(database.folder(), DataFile, before);
    }
    qInfo("%zu damaged backups, %d of them refused", damages.size(), refused);
}

void DamagedDataFilesTest::theProgramRunsOnADamagedDataFileOrSaysWhyNot()
{
    int refused = 0;
    int boxes = 0;
    const std::vector<Damage> damages = someDamages(60);
    for (const Damage& damage : damages) {
        RecordedMachine machine;
        writeFile(machine.database.folder(), DataFile, damage.bytes);
        CountedBoxes box;
        const Machine real = machine.machine();
        Program program({real.engine, box, real.fileDialogs, box, real.shell, real.registry, real.waveBackend,
            real.hasNotificationArea, real.helpWindow, real.reportWindow});
        try {
            program.start([] { return false; });
        } catch (const RuntimeError& error) {
            QVERIFY2(!error.text().isEmpty(), qPrintable(damage.what));
            ++refused;
            continue;
        }
        program.loadDialogs();
        program.alerts().tmrTasksChecker_Timer();
        boxes += box.shown > 0 ? 1 : 0;
        program.unload();
    }
    qInfo(
        "%zu starts on damaged files, %d of them refused, %d with a report", damages.size(), refused, boxes);
}

AMBERTASK_TEST_MAIN(DamagedDataFilesTest)
#include "tst_damaged_data_files.moc"
