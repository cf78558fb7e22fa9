#include "ExchangeUnderTest.h"
#include "data/TaskCodes.h"
#include "support/TestMain.h"

using namespace std::chrono_literals;
using Rules = ExchangeUnderTest::Rules;

/// Rules of tasks in files.
class TodoRepeatsTest : public TestCase
{
    Q_OBJECT

private slots:
    void aRuleMakesTheTaskRepeat();
    void aTaskWithoutADueMomentRepeatsFromItsBeginning();
    void whatIsNotDoneHereComesInOnceAndIsKept_data();
    void whatIsNotDoneHereComesInOnceAndIsKept();
    void aChangedRuleIsWritten();
    void aTaskThatHasMovedOnBeginsWhereItIsDue();
    void aDayStaysADay();
    void whatOthersChangeCountsFromThere();
    void aRuleThatOthersRemoveIsRemoved();
    void aSeriesOfOthersTakesThePlaceOfKeptLines();
    void aPastReminderComesForTheNextTime();
    void csvSaysTheRule();
    void aFileWithoutRulesAsksForNone();
};

void TodoRepeatsTest::aRuleMakesTheTaskRepeat()
{
    ExchangeUnderTest under(Rules::Daily);
    const ImportPlan plan = under.planOf(
        todoOf("SUMMARY:Task\nDTSTART:20260301T100000\nDUE:20260301T110000\nRRULE:FREQ=DAILY;INTERVAL=2\n"
               "BEGIN:VALARM\nACTION:DISPLAY\nDESCRIPTION:x\nTRIGGER;RELATED=END:-PT15M\nEND:VALARM\n"));
    QCOMPARE(plan.repeating, 0);
    under.carriedOut(plan);
    QVERIFY((under.task().repeat == Repeat{"FREQ=DAILY;INTERVAL=2", at(3, 1, 11, 0), 15min, 0}));
    QVERIFY(under.task().properties.find("RRULE") == std::string::npos);
    QVERIFY(under.repeating.isUsed() == true);
    const QByteArray written = under.exported(ExchangeFormat::ICalendar);
    QVERIFY(written.contains("RRULE:FREQ=DAILY;INTERVAL=2\r\n"));
    QVERIFY(written.contains("DTSTART:20260301T100000\r\n") && written.count("DTSTART") == 1);
    QCOMPARE(under.planOf(written).same, 1);
}

void TodoRepeatsTest::aTaskWithoutADueMomentRepeatsFromItsBeginning()
{
    ExchangeUnderTest under(Rules::Daily);
    under.imported(todoOf("SUMMARY:Task\nDTSTART:20260301T100000\nRRULE:FREQ=DAILY\n"));
    QVERIFY((under.task().repeat == Repeat{"FREQ=DAILY", at(3, 1, 10, 0), 0min, 0}));
}

void TodoRepeatsTest::whatIsNotDoneHereComesInOnceAndIsKept_data()
{
    QTest::addColumn<QByteArray>("lines");
    QTest::newRow("another rule") << QByteArray("DUE:20260301T110000\nRRULE:FREQ=SECONDLY\n");
    QTest::newRow("two rules") << QByteArray(
        "DUE:20260301T110000\nRRULE:FREQ=DAILY\nRRULE:FREQ=DAILY;INTERVAL=9\n");
    QTest::newRow("a day left out") << QByteArray(
        "DUE:20260301T110000\nRRULE:FREQ=DAILY\nEXDATE:20260302T110000\n");
    QTest::newRow("a further day") << QByteArray(
        "RDATE:20260302T180000\nDUE:20260301T110000\nRRULE:FREQ=DAILY\n");
    QTest::newRow("with a parameter") << QByteArray("DUE:20260301T110000\nRRULE;X-A=B:FREQ=DAILY\n");
    QTest::newRow("from no moment on") << QByteArray("RRULE:FREQ=DAILY\n");
    QTest::newRow("over") << QByteArray("DUE:20260301T110000\nSTATUS:COMPLETED\nRRULE:FREQ=DAILY\n");
    QTest::newRow("days of the beginning")
        << QByteArray("DTSTART:20260227T110000\nDUE:20260301T110000\nRRULE:FREQ=DAILY;BYDAY=FR\n");
    QTest::newRow("due at none of its moments")
        << QByteArray("DUE:20260301T110000\nRRULE:FREQ=DAILY;COUNT=0\n");
}

void TodoRepeatsTest::whatIsNotDoneHereComesInOnceAndIsKept()
{
    QFETCH(const QByteArray, lines);
    ExchangeUnderTest under(Rules::Daily);
    const ImportPlan plan = under.planOf(todoOf("SUMMARY:Task\n" + lines));
    QCOMPARE(plan.added, 1);
    QCOMPARE(plan.repeating, 1);
    under.carriedOut(plan);
    QVERIFY(!under.task().repeat);
    QCOMPARE(under.database.sql(QStringLiteral("select count(*) from repeats")).toInt(), 0);
    const QByteArray written = under.exported(ExchangeFormat::ICalendar);
    for (const QByteArray& line : lines.split('\n')) {
        QVERIFY2(line.startsWith("DUE") || written.contains(line + "\r\n"), line);
    }
    // The import has given the task a due moment; from there the rule counts.
    QCOMPARE(under.planOf(written).same, lines.startsWith("RRULE") ? 0 : 1);
}

void TodoRepeatsTest::aChangedRuleIsWritten()
{
    ExchangeUnderTest under(Rules::Daily);
    under.imported(todoOf("SUMMARY:Task\nDUE:20260301T110000\nRRULE:FREQ=DAILY\n"));
    under.database.sql(QStringLiteral("update repeats set rule='FREQ=DAILY;INTERVAL=3'"));
    QByteArray written = under.exported(ExchangeFormat::ICalendar);
    QVERIFY(written.contains("RRULE:FREQ=DAILY;INTERVAL=3\r\n") && written.count("RRULE") == 1);
    under.database.sql(QStringLiteral("delete from repeats"));
    written = under.exported(ExchangeFormat::ICalendar);
    QVERIFY(!written.contains("RRULE") && !written.contains("DTSTART"));
    // What cannot stand in a file does not.
    under.database.sql(QStringLiteral(
        "insert into repeats values(1,'FREQ=DAILY'||char(10)||'X:\"y','2026-03-01 11:00:00',0,0)"));
    QVERIFY(!under.exported(ExchangeFormat::ICalendar).contains("FREQ"));
}

void TodoRepeatsTest::aTaskThatHasMovedOnBeginsWhereItIsDue()
{
    ExchangeUnderTest under(Rules::Daily);
    under.imported(
        todoOf("SUMMARY:Task\nDTSTART:20260301T100000\nDUE:20260301T110000\nRRULE:FREQ=DAILY;COUNT=9\n"));
    under.database.sql(QStringLiteral("update tasks set task_due_date='2026-03-05 11:00:00', "
                                      "reminder_date_time='2026-03-05 11:00:00'; update repeats set done=4"));
    const QByteArray written = under.exported(ExchangeFormat::ICalendar);
    QVERIFY(written.contains("DTSTART;X-AMBERTASK-ASSUMED=TRUE:20260305T110000\r\n"));
    QCOMPARE(written.count("DTSTART"), 1);
    ExchangeUnderTest other(Rules::Daily);
    other.imported(written);
    QVERIFY((other.task().repeat == Repeat{"FREQ=DAILY;COUNT=9", at(3, 1, 11, 0), 0min, 4}));
}

void TodoRepeatsTest::aDayStaysADay()
{
    ExchangeUnderTest under(Rules::Daily);
    under.imported(todoOf("SUMMARY:Task\nDUE;VALUE=DATE:20260301\nRRULE:FREQ=DAILY\n"));
    const QByteArray written = under.exported(ExchangeFormat::ICalendar);
    QVERIFY(written.contains("DTSTART;X-AMBERTASK-ASSUMED=TRUE;VALUE=DATE:20260301\r\n"));
    QCOMPARE(under.planOf(written).same, 1);
}

void TodoRepeatsTest::whatOthersChangeCountsFromThere()
{
    ExchangeUnderTest under(Rules::Daily);
    under.imported(todoOf("SUMMARY:Task\nDUE:20260301T110000\nRRULE:FREQ=DAILY;COUNT=9\n"));
    under.database.sql(QStringLiteral("update repeats set done=4, first_moment='2026-02-25 11:00:00'"));
    const QByteArray written = under.exported(ExchangeFormat::ICalendar);
    const auto repeatAfter = [&under](const QByteArray& file) {
        const ImportPlan plan = under.planOf(file);
        return plan.changed == 1 ? plan.tasks.front().task.repeat : std::nullopt;
    };
    QVERIFY((repeatAfter(QByteArray(written).replace("DUE:20260301", "DUE:20260302"))
        == Repeat{"FREQ=DAILY;COUNT=9", at(3, 2, 11, 0), 24h, 0}));
    QVERIFY((repeatAfter(QByteArray(written).replace("RRULE:FREQ=DAILY;COUNT=9", "RRULE:FREQ=DAILY"))
        == Repeat{"FREQ=DAILY", at(3, 1, 11, 0), 0min, 0}));
    // A program that drops what it does not know has changed nothing.
    const qsizetype own = written.indexOf("X-AMBERTASK-REPEAT");
    const qsizetype next = written.indexOf("\r\nSTATUS", own);
    QVERIFY(own > 0 && next > own);
    QCOMPARE(under.planOf(QByteArray(written).remove(own, next + 2 - own)).same, 1);
}

void TodoRepeatsTest::aRuleThatOthersRemoveIsRemoved()
{
    ExchangeUnderTest under(Rules::Daily);
    under.imported(todoOf("SUMMARY:Task\nDUE:20260301T110000\nRRULE:FREQ=DAILY\n"));
    QCOMPARE(under.imported(todoOf("SUMMARY:Task\nDUE:20260301T110000\n")).changed, 1);
    QVERIFY(!under.task().repeat);
}

void TodoRepeatsTest::aSeriesOfOthersTakesThePlaceOfKeptLines()
{
    ExchangeUnderTest under(Rules::Daily);
    under.imported(todoOf("SUMMARY:Task\nDUE:20260301T110000\nRRULE:FREQ=SECONDLY\nEXDATE:20260301\n"));
    under.database.sql(
        QStringLiteral("insert into repeats values(1,'FREQ=DAILY','2026-03-01 11:00:00',0,0)"));
    under.repeating.setUsed(true);
    const QByteArray written = under.exported(ExchangeFormat::ICalendar);
    QVERIFY(written.contains("RRULE:FREQ=DAILY\r\n") && written.count("RRULE") == 1);
    QVERIFY(!written.contains("EXDATE"));
}

void TodoRepeatsTest::aPastReminderComesForTheNextTime()
{
    ExchangeUnderTest under(Rules::Daily);
    const QByteArray file =
        todoOf("SUMMARY:Task\nDUE:20260101T110000\nRRULE:FREQ=DAILY\n"
               "BEGIN:VALARM\nACTION:DISPLAY\nDESCRIPTION:x\nTRIGGER;RELATED=END:-PT2H\nEND:VALARM\n");
    const ImportPlan plan = under.planOf(file);
    QCOMPARE(plan.dismissed, 0);
    under.carriedOut(plan);
    const TaskRecord task = under.task();
    QVERIFY(task.due == at(1, 1, 11, 0) && task.reminder == at(1, 16, 9, 0));
    QVERIFY(task.reminderOn && !task.dismissed && !task.played);
    QVERIFY(task.repeat && task.repeat->lead == 2h);
    QCOMPARE(under.planOf(file).same, 1);
}

void TodoRepeatsTest::csvSaysTheRule()
{
    ExchangeUnderTest under(Rules::Daily);
    const ImportPlan plan =
        under.planOf("Name,Due,Reminder time,Recurrence\nA,2026-03-01 11:00,2026-03-01 10:50,FREQ=DAILY\n"
                     "B,2026-03-01,,\nC,2026-03-01,,FREQ=SECONDLY\n",
            ExchangeFormat::Csv);
    QCOMPARE(plan.added, 3);
    QCOMPARE(plan.repeating, 1);
    under.carriedOut(plan);
    const std::vector<TaskRecord> tasks = under.tasks();
    QVERIFY((tasks.at(0).repeat == Repeat{"FREQ=DAILY", at(3, 1, 11, 0), 10min, 0}));
    QVERIFY(!tasks.at(1).repeat && !tasks.at(2).repeat);
    under.database.sql(QStringLiteral("update repeats set done=7, lead=3"));
    const QByteArray written = under.exported(ExchangeFormat::Csv);
    QVERIFY(written.contains("\"FREQ=DAILY\",\"2026-03-01 11:00:00\",\"3\",\"7\"\r\n"));
    QCOMPARE(under.planOf(written, ExchangeFormat::Csv).same, 3);
    const ImportPlan moved =
        under.planOf(QByteArray(written).replace("\"3\",\"7\"", "\"4\",\"8\""), ExchangeFormat::Csv);
    QCOMPARE(moved.changed, 1);
    QVERIFY((moved.tasks.front().task.repeat == Repeat{"FREQ=DAILY", at(3, 1, 11, 0), 4min, 8}));
    QCOMPARE(under.planOf(QByteArray(written).replace("\"3\",\"7\"", "\"x\",\"7\""), ExchangeFormat::Csv)
                 .unreadableParts,
        1);
    const ImportPlan without =
        under.planOf(QByteArray(written).replace("FREQ=DAILY", ""), ExchangeFormat::Csv);
    QCOMPARE(without.changed, 1);
    QVERIFY(!without.tasks.front().task.repeat);
}

void TodoRepeatsTest::aFileWithoutRulesAsksForNone()
{
    ExchangeUnderTest under;
    under.engine.repeating = &under.repeating;
    QCOMPARE(under.imported(todoOf("SUMMARY:Task\nDUE:20260301T110000\n")).added, 1);
    QCOMPARE(under.imported("Name\nTask\n", ExchangeFormat::Csv).added, 1);
    for (const QString& statement : under.database.statements().take()) {
        QVERIFY2(!statement.contains(QLatin1String("repeats")), qPrintable(statement));
    }
}

AMBERTASK_TEST_MAIN(TodoRepeatsTest)

#include "tst_todo_repeats.moc"
