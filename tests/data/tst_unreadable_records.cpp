#include "data/ClsCategory.h"
#include "data/ClsTask.h"
#include "data/TaskCodes.h"
#include "data/UnreadableRecords.h"
#include "support/CaughtError.h"
#include "support/TestMain.h"
#include "support/Unconstrained.h"

#include <QTest>

namespace
{

/// Keeps what it is told.
class Told final : public UnreadableRecordListener
{
public:
    void recordLeftOut(const UnreadableRecord& record) override { records.push_back(record); }

    std::vector<UnreadableRecord> records;
};

/// Three tasks, the second one in a category of its own; tables of another tool, and a program that listens.
struct Damaged {
    Damaged()
    {
        garden = database.addCategory(QStringLiteral("Garden"));
        aTask(database).named(QStringLiteral("before")).add();
        bad = aTask(database).named(QStringLiteral("Call Bob")).in(garden).add();
        aTask(database).named(QStringLiteral("behind")).add();
        dropConstraints(database);
        engine.unreadable = &told;
    }
    void damageTask(const QString& set) const
    {
        database.sql(QStringLiteral("update tasks set %1 where task_id=%2").arg(set).arg(bad));
    }
    /// The task stays in it.
    void damageCategory(const QString& set) const
    {
        database.sql(QStringLiteral("update categories set %1 where cat_id=%2").arg(set).arg(garden));
        if (set.startsWith(QLatin1String("cat_id"))) {
            database.sql(QStringLiteral("update tasks set %1 where task_id=%2").arg(set).arg(bad));
        }
    }
    std::vector<ClsTask> listed(const DatabaseEngine& of, qint32 sortBy = TaskSort::None) const
    {
        return ClsTask(of).GetTasks(
            CategoryFilter::All, TaskStatus::All, sortBy, false, {}, {}, TaskType::All);
    }
    QStringList names(qint32 sortBy = TaskSort::None) const
    {
        QStringList texts;
        for (const ClsTask& task : listed(engine, sortBy)) {
            texts.append(task.TaskName());
        }
        return texts;
    }

    TestDatabase database;
    Told told;
    DatabaseEngine engine = database.engine();
    qint16 garden = 0;
    qint32 bad = 0;
};

const QStringList TheOthers{QStringLiteral("before"), QStringLiteral("behind")};

UnreadableRecord task(int id, const QString& name = QStringLiteral("Call Bob"))
{
    return {QStringLiteral("tasks"), QString::number(id), name, QStringLiteral("It is so.")};
}

template <typename Damages> void addRows(const Damages& damages)
{
    QTest::addColumn<QString>("set");
    QTest::addColumn<QString>("column");
    for (const Damage& damage : damages) {
        QTest::newRow(damage.what) << QString::fromLatin1(damage.set) << QString::fromLatin1(damage.column);
    }
}

} // namespace

/// Records that hold a value which does not convert.
class UnreadableRecordsTest : public TestCase
{
    Q_OBJECT

private slots:
    void aTaskIsLeftOutAndNamed_data() { addRows(TaskDamages); }
    void aTaskIsLeftOutAndNamed()
    {
        QFETCH(const QString, set);
        QFETCH(const QString, column);
        Damaged f;
        QCOMPARE(f.names().size(), 3);
        f.damageTask(set);
        for (const qint32 sortBy : {TaskSort::None, TaskSort::Name, TaskSort::Status, TaskSort::DueDate}) {
            QCOMPARE(f.names(sortBy), TheOthers);
        }
        QCOMPARE(f.told.records.size(), std::size_t(4));
        const UnreadableRecord& record = f.told.records.front();
        QCOMPARE(record.table, QStringLiteral("tasks"));
        QCOMPARE(record.id,
            column == QLatin1String("task_id") ? QStringLiteral("5000000000") : QString::number(f.bad));
        QCOMPARE(record.name, column == QLatin1String("task_name") ? QString() : QStringLiteral("Call Bob"));
        QVERIFY2(record.reason.contains(column), qPrintable(record.reason));
    }

    void whereNobodyListensItIsAnErrorThatNamesTheTask_data() { addRows(TaskDamages); }
    void whereNobodyListensItIsAnErrorThatNamesTheTask()
    {
        QFETCH(const QString, set);
        QFETCH(const QString, column);
        Damaged f;
        f.damageTask(set);
        for (const bool isForRestore : {false, true}) {
            const auto error = caught([&] {
                isForRestore ? static_cast<void>(ClsTask(f.database.engine()).readAll())
                             : static_cast<void>(f.listed(f.database.engine()));
            });
            QVERIFY(error.has_value());
            QCOMPARE(error->kind(), DatabaseError::Kind::Conversion);
            QVERIFY2(error->text().contains(column), qPrintable(error->text()));
            QVERIFY2(error->text().startsWith(QLatin1String("Task ")), qPrintable(error->text()));
        }
    }

    void aTaskThatIsAskedForByItsIdIsAnErrorThatNamesIt()
    {
        Damaged f;
        f.damageTask(QStringLiteral("task_due_date='0000-00-00'"));
        const auto error = caught([&] { ClsTask(f.engine).GetTaskById(static_cast<qint16>(f.bad)); });
        QVERIFY(error.has_value());
        QCOMPARE(error->text().remove(QChar(0x2068)).remove(QChar(0x2069)),
            QStringLiteral("Task 2, \"Call Bob\": The value of column \"tasks.task_due_date\" is no date and "
                           "time: 0000-00-00."));
        QVERIFY(f.told.records.empty());
    }

    void aCategoryIsLeftOutWithItsTasksAndNamed_data() { addRows(CategoryDamages); }
    void aCategoryIsLeftOutWithItsTasksAndNamed()
    {
        QFETCH(const QString, set);
        QFETCH(const QString, column);
        Damaged f;
        f.damageCategory(set);
        QStringList categories;
        for (const ClsCategory& category : ClsCategory(f.engine).GetAllCategories()) {
            categories.append(category.CatName());
        }
        QCOMPARE(categories,
            QStringList({QStringLiteral("Personal"), QStringLiteral("Work"), QStringLiteral("Shopping"),
                QStringLiteral("Appointments")}));
        QCOMPARE(f.names(), TheOthers);
        QCOMPARE(f.told.records.size(), std::size_t(2));
        for (const UnreadableRecord& record : f.told.records) {
            QCOMPARE(record.table, QStringLiteral("categories"));
            QVERIFY2(record.reason.contains(column), qPrintable(record.reason));
            QCOMPARE(record.id, f.told.records.front().id);
        }
        const auto error = caught([&] { ClsCategory(f.database.engine()).GetAllCategories(); });
        QVERIFY(error.has_value());
        QVERIFY2(error->text().contains(column), qPrintable(error->text()));
        QVERIFY2(error->text().startsWith(QLatin1String("Category ")), qPrintable(error->text()));
    }

    void aFailureOfTheFileIsNoRecordToBeLeftOut()
    {
        Damaged f;
        f.database.sql(QStringLiteral("alter table tasks rename column played to p"));
        QVERIFY(caught([&] { f.listed(f.engine); }).has_value());
        QVERIFY(f.told.records.empty());
    }

    void eachRecordIsToldOnce()
    {
        UnreadableRecords records;
        QCOMPARE(records.takeText(), QString());
        records.recordLeftOut(task(7));
        records.recordLeftOut(task(7, QStringLiteral("renamed")));
        const QString text = records.takeText();
        QCOMPARE(text.count(QStringLiteral("Task 7")), 1);
        QVERIFY2(text.contains(QStringLiteral("Call Bob")) && text.contains(QStringLiteral("It is so.")),
            qPrintable(text));
        QVERIFY2(text.contains(QStringLiteral("restore a backup")), qPrintable(text));
        records.recordLeftOut(task(7));
        QCOMPARE(records.takeText(), QString());
        records.recordLeftOut(task(8));
        QVERIFY(!records.takeText().contains(QStringLiteral("Task 7")));
        records.recordLeftOut({QStringLiteral("categories"), QStringLiteral("7"), {}, {}});
        QVERIFY(records.takeText().contains(QStringLiteral("Category 7")));
    }

    void ofMoreThanAreReadTheNumberIsTold()
    {
        UnreadableRecords records;
        for (int id = 1; id <= UnreadableRecords::MostNamed + 33; ++id) {
            records.recordLeftOut(task(id));
        }
        const QString text = records.takeText();
        QCOMPARE(text.count(QStringLiteral("Task ")), UnreadableRecords::MostNamed);
        QVERIFY2(text.contains(QStringLiteral("\nand 33 more\n")), qPrintable(text));
        records.recordLeftOut(task(1000));
        QVERIFY(!records.takeText().contains(QStringLiteral("more\n")));
    }

    void whatIsKnownIsForgottenWithTheDataFile()
    {
        UnreadableRecords records;
        records.recordLeftOut(task(7));
        records.takeText();
        records.recordLeftOut(task(8));
        records.forget();
        QCOMPARE(records.takeText(), QString());
        records.recordLeftOut(task(7));
        QVERIFY(records.takeText().contains(QStringLiteral("Task 7")));
    }

    void thatTasksGoWithTheirCategoryIsSaidWhereOneIsNamed()
    {
        UnreadableRecords records;
        const QString said = QStringLiteral("tasks of a category");
        records.recordLeftOut(task(7));
        QVERIFY(!records.takeText().contains(said));
        records.recordLeftOut({QStringLiteral("categories"), QStringLiteral("7"), {}, {}});
        QVERIFY(records.takeText().contains(said));
    }

    void settingsAreToldApart()
    {
        UnreadableRecords records;
        records.recordLeftOut(
            {QStringLiteral("settings"), QStringLiteral("show_grid"), {}, QStringLiteral("The grid.")});
        const QString text = records.takeText();
        QVERIFY2(text.contains(QStringLiteral("The grid.")) && text.contains(QStringLiteral("Save Settings")),
            qPrintable(text));
        QVERIFY2(!text.contains(QStringLiteral("restore")), qPrintable(text));
    }

    void aLongNameIsShortened()
    {
        Damaged f;
        f.damageTask(
            QStringLiteral("task_status='abc', task_name=replace(hex(zeroblob(4000000)),'00',char(128512))"));
        f.names();
        const QString name = f.told.records.front().name;
        QVERIFY(name.size() < 60);
        QVERIFY(name.endsWith(QChar(0x2026)) && name.isValidUtf16());
    }
};

AMBERTASK_TEST_MAIN(UnreadableRecordsTest)
#include "tst_unreadable_records.moc"
