#include "data/ClsCategory.h"
#include "data/ReminderChecker.h"
#include "data/SettingsStore.h"
#include "data/TaskArchive.h"
#include "data/TaskCodes.h"
#include "reliability/DataFileState.h"
#include "reliability/Sweep.h"
#include "support/TestDatabase.h"
#include "support/TestMain.h"
#include "system/RuntimeError.h"

#include <QTest>

namespace
{

using namespace std::chrono_literals;

using Action = std::function<void(const DatabaseEngine&)>;

void require(bool holds, const char* what)
{
    if (!holds) {
        throw std::logic_error(what);
    }
}

ClsTask enteredTask(const DatabaseEngine& engine)
{
    ClsTask task(engine);
    task.setTaskName(QStringLiteral("Call Bob's office"));
    task.setDescription(QString(3000, u'd'));
    task.setCategoryId(2);
    task.setDueDateTime(engine.clock->now() + 24h);
    task.setReminderDateTime(engine.clock->now() + 23h);
    task.setReminderOn(true);
    task.setReminderSound(QStringLiteral("/sounds/bell.wav"));
    return task;
}

void updateTask(const DatabaseEngine& engine, bool dateChanged)
{
    ClsTask task = enteredTask(engine);
    task.setId(1);
    task.setDateChanged(dateChanged);
    task.Update();
}

ClsCategory enteredCategory(const DatabaseEngine& engine)
{
    ClsCategory category(engine);
    category.setCatName(QStringLiteral("Garden"));
    category.setDescription(QStringLiteral("Everything that grows"));
    category.setIconId(7);
    return category;
}

void saveSettings(const DatabaseEngine& engine)
{
    SettingsRecord shown;
    shown.skin = QStringLiteral("Lemon");
    shown.always_on_top = true;
    SettingsRecord record;
    try {
        SettingsStore(engine).save(shown, record);
    } catch (const RuntimeError&) {
        require(record.skin.isEmpty(), "the record says what was not stored");
        throw;
    }
    require(record.skin == shown.skin, "the record does not say what was stored");
}

void markPlayed(const DatabaseEngine& engine)
{
    ReminderChecker checker(engine);
    require(checker.due().size() == 2, "not all that is due is read");
    checker.markPlayed();
    checker.close();
}

void importTasks(const DatabaseEngine& engine)
{
    TaskRecord task;
    task.due = task.reminder = engine.clock->now();
    task.properties = "X-OTHER:kept\n";
    TaskStoring storing(engine);
    for (const char* uid : {"1", "2", "3"}) {
        task.uid = uid;
        task.name = std::string("Imported ") + uid;
        task.category = task.uid == "3" ? "Garden" : "Work";
        task.id = task.uid == "1" ? 1 : 0;
        storing.put(task);
    }
    require(storing.finish() == 1, "the category is not made");
}

struct NamedAction {
    const char* name;
    Action action;
};

const std::vector<NamedAction>& actions()
{
    static const Moment January1 = toMoment(QDate(2026, 1, 1));
    static const Moment January31 = toMoment(QDate(2026, 1, 31));
    static const std::vector<NamedAction> All{
        {"add a task",
            [](const DatabaseEngine& engine) {
                enteredTask(engine).Add();
            }},
        {"update a task",
            [](const DatabaseEngine& engine) {
                updateTask(engine, false);
            }},
        {"update a task and arm it again",
            [](const DatabaseEngine& engine) {
                updateTask(engine, true);
            }},
        {"delete a task",
            [](const DatabaseEngine& engine) {
                ClsTask(engine).DeleteById(2);
            }},
        {"delete tasks in bulk",
            [](const DatabaseEngine& engine) {
                ClsTask(engine).DeleteTasks(
                    CategoryFilter::All, TaskStatus::All, January1, January31, TaskType::All);
            }},
        {"read a task",
            [](const DatabaseEngine& engine) {
                require(ClsTask(engine).GetTaskById(1)->TaskName() == QLatin1String("first"), "wrong task");
            }},
        {"list the tasks",
            [](const DatabaseEngine& engine) {
                require(ClsTask(engine)
                            .GetTasks(CategoryFilter::All, TaskStatus::All, TaskSort::Name, false, {}, {},
                                TaskType::All)
                            .size()
                        == 4,
                    "wrong list");
            }},
        {"count the tasks",
            [](const DatabaseEngine& engine) {
                require(ClsTask(engine).GetTasksCount(
                            CategoryFilter::All, TaskStatus::All, January1, January31, TaskType::All)
                        == 4,
                    "wrong count");
            }},
        {"add a category",
            [](const DatabaseEngine& engine) {
                require(!enteredCategory(engine).Add(), "taken for there");
            }},
        {"add a category that is there",
            [](const DatabaseEngine& engine) {
                ClsCategory category = enteredCategory(engine);
                category.setCatName(QStringLiteral("WORK"));
                require(category.Add(), "taken for new");
            }},
        {"update a category",
            [](const DatabaseEngine& engine) {
                ClsCategory category = enteredCategory(engine);
                category.setId(2);
                category.Update();
            }},
        {"delete a category with its tasks",
            [](const DatabaseEngine& engine) {
                ClsCategory(engine).DeleteById(1);
            }},
        {"read a category",
            [](const DatabaseEngine& engine) {
                require(ClsCategory(engine).GetCatById(2)->CatName() == QLatin1String("Work"), "wrong one");
            }},
        {"list the categories",
            [](const DatabaseEngine& engine) {
                require(ClsCategory(engine).GetAllCategories().size() == 4, "wrong list");
            }},
        {"read the settings",
            [](const DatabaseEngine& engine) {
                require(SettingsStore(engine).read().skin == QLatin1String("Aqua"), "wrong settings");
            }},
        {"save the settings", saveSettings},
        {"mark what is displayed", markPlayed},
        {"import tasks", importTasks},
    };
    return All;
}

Operation operationOf(const DatabaseEngine& engine, const Action& action)
{
    return {[&engine, action] { return told([&] { action(engine); }); },
        [](const std::string& folder) {
            return dataFileState(folder);
        }};
}

} // namespace

class TestStoreFaults : public TestCase
{
    Q_OBJECT

private slots:
    void everyFaultAndEveryDeathLeavesTheOldStateOrTheNew_data() { listActions(); }
    void everyFaultAndEveryDeathLeavesTheOldStateOrTheNew();
    void everyPowerCutLeavesTheOldStateOrTheNew_data() { listActions(); }
    void everyPowerCutLeavesTheOldStateOrTheNew();
    void anOperationLargerThanTheCacheIsWholeToo();
    void cleanupTestCase() { qInfo("all: %s", qPrintable(m_all.text())); }

private:
    static void listActions();
    static void addTasks(TestDatabase& database);
    void expectNoComplaints(const Sweep& sweep);

    Sweep::Figures m_all;
};

void TestStoreFaults::listActions()
{
    QTest::addColumn<int>("action");
    for (std::size_t i = 0; i < actions().size(); ++i) {
        QTest::newRow(actions()[i].name) << static_cast<int>(i);
    }
}

void TestStoreFaults::addTasks(TestDatabase& database)
{
    const Moment past = database.clock().now() - 1h;
    aTask(database).named(QStringLiteral("first")).in(1).remindingAt(past).add();
    aTask(database).named(QStringLiteral("second")).in(1).remindingAt(past).add();
    aTask(database).named(QStringLiteral("third")).in(2).add();
    aTask(database).named(QStringLiteral("fourth")).in(3).describedAs(QString(9000, u'x')).add();
}

void TestStoreFaults::expectNoComplaints(const Sweep& sweep)
{
    m_all += sweep.figures();
    qInfo("%s", qPrintable(sweep.figures().text()));
    QVERIFY2(sweep.complaints().isEmpty(), qPrintable(sweep.complaints()));
}

void TestStoreFaults::everyFaultAndEveryDeathLeavesTheOldStateOrTheNew()
{
    QFETCH(const int, action);
    TestDatabase database;
    addTasks(database);
    Sweep sweep(database.folder().toStdString(),
        operationOf(database.engine(), actions()[static_cast<std::size_t>(action)].action));
    sweep.everyFault();
    sweep.everyDeath();
    expectNoComplaints(sweep);
}

void TestStoreFaults::everyPowerCutLeavesTheOldStateOrTheNew()
{
    QFETCH(const int, action);
    TestDatabase database;
    addTasks(database);
    Sweep sweep(database.folder().toStdString(),
        operationOf(database.engine(), actions()[static_cast<std::size_t>(action)].action));
    sweep.everyPowerCut(8 * sweeps());
    expectNoComplaints(sweep);
}

void TestStoreFaults::anOperationLargerThanTheCacheIsWholeToo()
{
    TestDatabase database;
    addTasks(database);
    // Changed pages go to the file before the commit.
    Sweep sweep(
        database.folder().toStdString(), operationOf(database.engine(), [](const DatabaseEngine& engine) {
            ClsTask task = enteredTask(engine);
            task.setId(4);
            task.setDescription(QString(2'400'000, u'y'));
            task.Update();
        }));
    sweep.everyFault(static_cast<std::size_t>(12 * sweeps()));
    sweep.everyPowerCut(2 * sweeps(), static_cast<std::size_t>(12 * sweeps()));
    expectNoComplaints(sweep);
}

AMBERTASK_TEST_MAIN(TestStoreFaults)
#include "tst_store_faults.moc"
