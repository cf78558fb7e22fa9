#include "ExchangeUnderTest.h"
#include "data/DataFileRoad.h"
#include "data/UndoHistory.h"
#include "store/DatabaseError.h"
#include "store/ForeignChanges.h"
#include "support/CaughtError.h"
#include "support/TestMain.h"
#include "tests/support/OlderDataFile.h"

namespace
{

QByteArray todosUpTo(int count)
{
    QByteArray lines;
    for (int i = 0; i < count; ++i) {
        const QByteArray number = QByteArray::number(i);
        lines +=
            "BEGIN:VTODO\nUID:" + number + "\nSUMMARY:Task " + number + "\nDUE:20260301T100000\nEND:VTODO\n";
    }
    return calendarOf(lines);
}

const QByteArray WithProgram = todoOf("SUMMARY:Task\nDUE:20260301T100000\nX-AMBERTASK-FILE:/bin/rm\n");

} // namespace

class ImportPlanTest : public TestCase
{
    Q_OBJECT

private slots:
    void thePlanStoresNothing();
    void aSecondImportChangesAndAddsNothingAgain();
    void anImportIsOneOperationAndOneStepBack();
    void categoriesAreMadeOnceInWhateverLetterCase();
    void aProgramIsNotTakenUnlessItIsConfirmed();
    void aProgramThatIsStoredNeedsNoConfirmation();
    void anotherProgramThanTheStoredOneNeedsConfirmation();
    void moreThanThereIsRoomForIsRefusedBeforeAnythingIsStored();
    void asManyAsThereIsRoomForComeIn();
    void aTaskThatIsGoneMeanwhileStopsTheWholeImport();
    void whatAnotherProgramChangesMeanwhileOutdatesThePlan();
    void whatThisProgramChangesDoesNot();
    void aDeletedTaskComesBackWithItsOriginByUndo();
    void anImportOfAnotherProcessLeavesTheRuleOfADeletedTask();
    void aTaskThatIsGoneIsImportedAnew();
    void newIdsKeepEachTaskItsOrigin();
    void tasksGetTheirUidOnceAndKeepIt();
    void aDataFileThatCannotBeWrittenIsExported();
    void aDataFileOfAnEarlierVersionIsExportedAndImportedTo();
    void onlyTheChosenTasksAreExportedInTheirOrder();
    void theSummaryIsOneSentenceForEachThing();
};

void ImportPlanTest::thePlanStoresNothing()
{
    ExchangeUnderTest under;
    const auto before = under.database.rows(QStringLiteral("select * from categories,sqlite_sequence"));
    const ImportPlan plan = under.planOf(todosUpTo(3));
    QCOMPARE(plan.added, 3);
    QCOMPARE(plan.newCategories, QStringList{QStringLiteral("Imported")});
    QVERIFY(under.tasks().empty());
    QCOMPARE(under.database.rows(QStringLiteral("select * from categories,sqlite_sequence")), before);
}

void ImportPlanTest::aSecondImportChangesAndAddsNothingAgain()
{
    ExchangeUnderTest under;
    QCOMPARE(under.imported(todosUpTo(3)).added, 3);
    const ImportPlan again = under.planOf(todosUpTo(4));
    QCOMPARE(again.same, 3);
    QCOMPARE(again.added, 1);
    const ImportPlan changed = under.planOf(todosUpTo(3).replace("Task 1", "Other"));
    QCOMPARE(changed.changed, 1);
    QCOMPARE(changed.same, 2);
    const qint32 id = under.tasks().at(1).id;
    QCOMPARE(changed.tasks.front().task.id, id);
    QCOMPARE(under.carriedOut(changed).changed, 1);
    QCOMPARE(under.tasks().at(1).name, std::string("Other"));
    QCOMPARE(under.tasks().at(1).id, id);
}

void ImportPlanTest::anImportIsOneOperationAndOneStepBack()
{
    ExchangeUnderTest under;
    under.imported(todosUpTo(2));
    const auto stored = [&under] {
        return under.database.rows(QStringLiteral("select * from tasks left join task_origins on "
                                                  "task_id=of_task left join categories using (cat_id)"));
    };
    const auto before = stored();
    UndoHistory history(under.database.engine());
    const ImportPlan plan = under.planOf(todosUpTo(500).replace("Task 1\r", "Other\r"));
    const int opened = under.database.statements().opened();
    history.run([&](const DatabaseEngine& engine) {
        under.exchange.carryOut(plan, engine, nullptr);
        return QStringLiteral("imported");
    });
    QCOMPARE(under.database.statements().opened(), opened + 1);
    const auto after = stored();
    QVERIFY(after.size() == 500 && after != before);
    history.undo();
    QCOMPARE(stored(), before);
    history.redo();
    QCOMPARE(stored(), after);
}

void ImportPlanTest::categoriesAreMadeOnceInWhateverLetterCase()
{
    ExchangeUnderTest under;
    const ImportPlan plan =
        under.planOf(QByteArray("Name,Category\na,WORK\nb,Garten\nc,GARTEN\nd,\u00c4pfel\ne,\u00e4pfel\n"),
            ExchangeFormat::Csv);
    QCOMPARE(plan.newCategories, (QStringList{QStringLiteral("Garten"), QStringLiteral(u"\u00c4pfel")}));
    QCOMPARE(under.carriedOut(plan).categories, 2);
    QCOMPARE(under.database.storedOfAll("cat_id"), QStringLiteral("2 5 5 6 6"));
}

void ImportPlanTest::aProgramIsNotTakenUnlessItIsConfirmed()
{
    ExchangeUnderTest under;
    ImportPlan plan = under.planOf(WithProgram);
    QCOMPARE(plan.programs().size(), std::size_t(1));
    QCOMPARE(plan.programs().front()->program, std::string("/bin/rm"));
    QVERIFY(!plan.programs().front()->takesProgram);
    QCOMPARE(under.carriedOut(plan).programs, 0);
    QVERIFY(under.task().file.empty());
    QVERIFY(!under.database.sql(QStringLiteral("select properties from task_origins"))
                 .toString()
                 .contains(QLatin1String("/bin/rm")));
    // The same file offers it again.
    plan = under.planOf(WithProgram);
    QVERIFY(plan.same == 1 && plan.isEmpty() && plan.programs().size() == 1);
    plan.takePrograms(true);
    QVERIFY(!plan.isEmpty());
    QCOMPARE(under.carriedOut(plan).programs, 1);
    QCOMPARE(under.task().file, std::string("/bin/rm"));
}

void ImportPlanTest::aProgramThatIsStoredNeedsNoConfirmation()
{
    ExchangeUnderTest under;
    aTask(under.database).starting(QStringLiteral("/usr/bin/true")).add();
    QByteArray file = under.exported(ExchangeFormat::ICalendar);
    const ImportPlan plan = under.planOf(file.replace("SUMMARY:", "SUMMARY:New "));
    QVERIFY(plan.changed == 1 && plan.programs().empty());
    under.carriedOut(plan);
    QCOMPARE(under.task().file, std::string("/usr/bin/true"));
}

void ImportPlanTest::anotherProgramThanTheStoredOneNeedsConfirmation()
{
    ExchangeUnderTest under;
    aTask(under.database).starting(QStringLiteral("/usr/bin/true")).add();
    QByteArray file = under.exported(ExchangeFormat::ICalendar);
    const ImportPlan plan = under.planOf(file.replace("/usr/bin/true", "/bin/rm"));
    QCOMPARE(plan.programs().size(), std::size_t(1));
    under.carriedOut(plan);
    QCOMPARE(under.task().file, std::string("/usr/bin/true"));
}

void ImportPlanTest::moreThanThereIsRoomForIsRefusedBeforeAnythingIsStored()
{
    ExchangeUnderTest under;
    addTasksUpTo(under.database, 10, 32'760);
    const auto error = caught<NoRoomError>([&] { under.planOf(todosUpTo(8)); });
    QVERIFY(error && error->text().contains(u'8') && error->text().contains(u'7'));
    ImportPlan plan = under.planOf(todosUpTo(7));
    aTask(under.database).add();
    QVERIFY(caught<NoRoomError>([&] { under.carriedOut(plan); }));
    QCOMPARE(under.database.sql(QStringLiteral("select count(*) from tasks")).toInt(), 11);
    QCOMPARE(under.database.sql(QStringLiteral("select count(*) from categories")).toInt(), 4);
    // However many there are, it ends.
    QVERIFY(caught<NoRoomError>([&] { under.planOf(todosUpTo(40'000)); }));
}

void ImportPlanTest::asManyAsThereIsRoomForComeIn()
{
    ExchangeUnderTest under;
    QCOMPARE(under.imported(todosUpTo(32'767)).added, 32'767);
    QCOMPARE(under.database.sql(QStringLiteral("select max(task_id) from tasks")).toInt(), 32'767);
    QCOMPARE(under.planOf(todosUpTo(32'767)).same, 32'767);
    QCOMPARE(under.imported(todosUpTo(32'767).replace("SUMMARY:", "SUMMARY:New ")).changed, 32'767);
}

void ImportPlanTest::aTaskThatIsGoneMeanwhileStopsTheWholeImport()
{
    ExchangeUnderTest under;
    under.imported(todosUpTo(2));
    const ImportPlan plan = under.planOf(todosUpTo(5).replace("Task 1", "Other"));
    under.database.sql(QStringLiteral("delete from tasks where task_id=2"));
    const auto error = caught<RuntimeError>([&] { under.carriedOut(plan); });
    QVERIFY(error && error->text().contains(QLatin1String("Other")));
    QCOMPARE(under.tasks().size(), std::size_t(1));
}

void ImportPlanTest::whatAnotherProgramChangesMeanwhileOutdatesThePlan()
{
    ExchangeUnderTest under;
    ForeignChanges foreign;
    under.engine.foreign = &foreign;
    under.imported(todoOf("SUMMARY:Task\nDUE:20260301T100000\n"));
    const QByteArray another = todoOf("SUMMARY:Another\nDUE:20260301T100000\n");
    const ImportPlan plan = under.planOf(another);
    under.database.sql(QStringLiteral("update tasks set dismissed=1"));
    QVERIFY(caught<PlanOutdatedError>([&] { under.carriedOut(plan); }));
    QVERIFY(under.task().dismissed && under.task().name == "Task");
    under.carriedOut(under.planOf(another));
    QVERIFY(under.task().dismissed && under.task().name == "Another");
}

void ImportPlanTest::whatThisProgramChangesDoesNot()
{
    ExchangeUnderTest under;
    ForeignChanges foreign;
    under.engine.foreign = &foreign;
    const ImportPlan plan = under.planOf(todosUpTo(1));
    under.imported(todosUpTo(2));
    under.carriedOut(plan);
    QCOMPARE(under.tasks().size(), 3U);
}

void ImportPlanTest::aDeletedTaskComesBackWithItsOriginByUndo()
{
    ExchangeUnderTest under;
    under.imported(todoOf("SUMMARY:Task\nX-KEPT:yes\n"));
    const TaskRecord before = under.task();
    UndoHistory history(under.database.engine());
    history.run([&](const DatabaseEngine& engine) {
        ClsTask(engine).DeleteById(static_cast<qint16>(before.id));
        return QStringLiteral("deleted");
    });
    history.run([&](const DatabaseEngine& engine) {
        under.exchange.carryOut(under.planOf(todosUpTo(1)), engine, nullptr);
        return QStringLiteral("imported");
    });
    history.undo();
    history.undo();
    QVERIFY(under.task().uid == before.uid && under.task().properties == "X-KEPT:yes\n");
}

void ImportPlanTest::anImportOfAnotherProcessLeavesTheRuleOfADeletedTask()
{
    ExchangeUnderTest under(ExchangeUnderTest::Rules::Daily);
    under.imported(todoOf("SUMMARY:Task\nDUE:20260301T100000\nRRULE:FREQ=WEEKLY\nX-KEPT:yes\n"));
    const TaskRecord before = under.task();
    QVERIFY(before.repeat);
    UndoHistory history(under.engine);
    history.run([&](const DatabaseEngine& engine) {
        ClsTask(engine).DeleteById(static_cast<qint16>(before.id));
        return QStringLiteral("deleted");
    });
    under.imported(todoOf("SUMMARY:Other\nDUE:20260301T100000\nRRULE:FREQ=DAILY\n", "two@example"));
    history.undo();
    QCOMPARE(under.tasks().size(), 2U);
    QVERIFY(under.tasks().front() == before);
}

void ImportPlanTest::aTaskThatIsGoneIsImportedAnew()
{
    ExchangeUnderTest under;
    under.imported(todosUpTo(3));
    under.database.sql(QStringLiteral("delete from tasks where task_id=2"));
    const ImportPlan plan = under.planOf(todosUpTo(3));
    QVERIFY(plan.added == 1 && plan.same == 2);
    under.carriedOut(plan);
    QCOMPARE(under.tasks().size(), 3U);
    QVERIFY(under.tasks().back().id == 4 && under.tasks().back().uid == "1");
}

void ImportPlanTest::newIdsKeepEachTaskItsOrigin()
{
    ExchangeUnderTest under;
    addTasksUpTo(under.database, 1000, 32'767);
    under.exported(ExchangeFormat::ICalendar);
    const auto uids = [&under] {
        return under.database.rows(QStringLiteral(
            "select task_name,uid from tasks join task_origins on task_id=of_task order by 1"));
    };
    const auto before = uids();
    QCOMPARE(before.size(), 1000);
    under.database.sql(QStringLiteral("delete from tasks where task_id=2"));
    bringDataFileUp(under.database.engine());
    QCOMPARE(under.database.sql(QStringLiteral("select max(task_id) from tasks")).toInt(), 999);
    QCOMPARE(under.database.sql(QStringLiteral("select count(*) from task_origins")).toInt(), 999);
    auto wanted = before;
    wanted.removeIf(
        [](const QVariantList& row) { return row.first().toString() == QLatin1String("task 999"); });
    QCOMPARE(uids(), wanted);
}

void ImportPlanTest::tasksGetTheirUidOnceAndKeepIt()
{
    ExchangeUnderTest under;
    aTask(under.database).add();
    aTask(under.database).add();
    under.exported(ExchangeFormat::Csv);
    const auto first = under.tasks();
    QVERIFY(!first[0].uid.empty() && first[0].uid != first[1].uid);
    const QByteArray file = under.exported(ExchangeFormat::ICalendar);
    QVERIFY(file.contains("UID:" + QByteArray::fromStdString(first[0].uid) + "\r\n"));
    QVERIFY(under.tasks()[1].uid == first[1].uid);
}

void ImportPlanTest::aDataFileThatCannotBeWrittenIsExported()
{
    ExchangeUnderTest under;
    aTask(under.database).named(QStringLiteral("Task")).add();
    Connection other(under.database.engine(),
        QStringLiteral("Provider=Microsoft.Jet.OLEDB.4.0;Data Source= ") + under.database.dataFile());
    other.open();
    other.execute(QStringLiteral("update tasks set task_desc='locked'"));
    const QByteArray file = under.exported(ExchangeFormat::ICalendar);
    other.abandon();
    QVERIFY(file.contains("SUMMARY:Task\r\n") && file.contains("\r\nUID:"));
    QVERIFY(under.task().uid.empty());
}

void ImportPlanTest::aDataFileOfAnEarlierVersionIsExportedAndImportedTo()
{
    ExchangeUnderTest under;
    makeOlder(under.database);
    aTask(under.database).named(QStringLiteral("Task")).add();
    QVERIFY(under.exported(ExchangeFormat::ICalendar).contains("SUMMARY:Task\r\n"));
    QCOMPARE(under.imported(todosUpTo(2)).added, 2);
    QCOMPARE(under.tasks().size(), std::size_t(3));
}

void ImportPlanTest::onlyTheChosenTasksAreExportedInTheirOrder()
{
    ExchangeUnderTest under;
    for (int i = 1; i <= 5; ++i) {
        aTask(under.database).named(QStringLiteral("Task %1").arg(i)).add();
    }
    const QByteArray file = under.exported(ExchangeFormat::Csv, {QList<qint32>{4, 77, 2}});
    const QByteArrayList rows = file.split('\n');
    QCOMPARE(rows.size(), 4);
    QVERIFY(rows.at(1).startsWith("\"Task 4\"") && rows.at(2).startsWith("\"Task 2\""));
    QCOMPARE(under.database.sql(QStringLiteral("select count(*) from task_origins")).toInt(), 2);
    QCOMPARE(under.exported(ExchangeFormat::Csv, {QList<qint32>{}}).split('\n').size(), 2);
}

void ImportPlanTest::theSummaryIsOneSentenceForEachThing()
{
    QCOMPARE(summaryOf({}), QStringList{QStringLiteral("The file holds no task.")});
    ImportPlan plan;
    plan.added = 1;
    plan.changed = 2;
    plan.unreadableParts = 3;
    QCOMPARE(summaryOf(plan),
        (QStringList{QStringLiteral("1 task is new."), QStringLiteral("2 tasks are changed."),
            QStringLiteral("3 tasks cannot be read and stay out.")}));
}

AMBERTASK_TEST_MAIN(ImportPlanTest)

#include "tst_import_plan.moc"
