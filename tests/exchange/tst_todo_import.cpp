#include "ExchangeUnderTest.h"
#include "data/TaskCodes.h"
#include "support/CaughtError.h"
#include "support/TestMain.h"

class TodoImportTest : public TestCase
{
    Q_OBJECT

private slots:
    void aTaskOfAnotherProgramComesInWithItsFields();
    void theStatesOfOtherPrograms_data();
    void theStatesOfOtherPrograms();
    void thePrioritiesOfOtherPrograms_data();
    void thePrioritiesOfOtherPrograms();
    void ourStateCountsUntilAnotherProgramHasChangedIt();
    void whenATaskIsDue_data();
    void whenATaskIsDue();
    void aTaskWithoutADueDateIsDueToday();
    void whenATaskReminds_data();
    void whenATaskReminds();
    void aPastReminderOfAnotherProgramComesInAsDismissed();
    void ourOwnReminderComesBackAsItWas();
    void anAlarmThatAnotherProgramHasMovedReminds();
    void anAlarmThatAnotherProgramHasAddedReminds();
    void ofSeveralAlarmsTheNextOneReminds();
    void anotherAlarmsPartsSurviveWithTheReminder();
    void ofTwoAlarmsWithOurStateTheFirstOneStaysTheReminder();
    void anAlarmWithoutATriggerTakesNoReminderAway();
    void aCompletedTaskSaysSoInEveryWayAndTakesNothingForOthers();
    void alarmsOfKAlarmAreTasks();
    void tasksOfOsmoAreEvents();
    void daysOfOrageAreTheOnesBefore();
    void aRepeatingTaskComesInOnceAndKeepsItsRule();
    void whatIsNoTaskIsPassedOver();
    void whatCannotBeReadStaysOutWithItsLineAndReason_data();
    void whatCannotBeReadStaysOutWithItsLineAndReason();
    void aFileThatIsNoCalendarIsRefused_data();
    void aFileThatIsNoCalendarIsRefused();
    void linesMayEndAndFoldAsTheyLike();
    void aLineThatContinuesNoOtherIsPassedOver();
    void anEndOfNothingIsPassedOver();
};

void TodoImportTest::aTaskOfAnotherProgramComesInWithItsFields()
{
    ExchangeUnderTest under;
    under.imported(todoOf("SUMMARY:Buy milk\\, eggs\\; bread\nDESCRIPTION:two\\nlines\nCATEGORIES:Shopping\n"
                          "DUE:20260301T183000\nSTATUS:IN-PROCESS\nPRIORITY:1\n"));
    const TaskRecord task = under.task();
    QCOMPARE(task.name, std::string("Buy milk, eggs; bread"));
    QCOMPARE(task.description, std::string("two\nlines"));
    QCOMPARE(task.category, std::string("Shopping"));
    QCOMPARE(task.uid, std::string("one@example"));
    QVERIFY(task.due == at(3, 1, 18, 30));
    QCOMPARE(task.status, TaskStatus::InProgress);
    QCOMPARE(task.periority, TaskPeriority::High);
    QVERIFY(!task.reminderOn && !task.played && !task.dismissed && task.reminder == task.due);
}

void TodoImportTest::theStatesOfOtherPrograms_data()
{
    QTest::addColumn<QByteArray>("lines");
    QTest::addColumn<qint32>("status");
    QTest::newRow("none") << QByteArray() << TaskStatus::NotStarted;
    QTest::newRow("needs action") << QByteArray("STATUS:NEEDS-ACTION\n") << TaskStatus::NotStarted;
    QTest::newRow("in process") << QByteArray("STATUS:IN-PROCESS\n") << TaskStatus::InProgress;
    QTest::newRow("completed") << QByteArray("STATUS:COMPLETED\n") << TaskStatus::Completed;
    QTest::newRow("small letters") << QByteArray("status:completed\n") << TaskStatus::Completed;
    QTest::newRow("cancelled") << QByteArray("STATUS:CANCELLED\n") << TaskStatus::Completed;
    QTest::newRow("only completed at") << QByteArray("COMPLETED:20260101T100000Z\n") << TaskStatus::Completed;
    QTest::newRow("only all percent") << QByteArray("PERCENT-COMPLETE:100\n") << TaskStatus::Completed;
    QTest::newRow("only some percent") << QByteArray("PERCENT-COMPLETE:20\n") << TaskStatus::InProgress;
    QTest::newRow("no percent") << QByteArray("PERCENT-COMPLETE:0\n") << TaskStatus::NotStarted;
    QTest::newRow("unknown") << QByteArray("STATUS:X-NEW\n") << TaskStatus::NotStarted;
}

void TodoImportTest::theStatesOfOtherPrograms()
{
    QFETCH(const QByteArray, lines);
    QFETCH(const qint32, status);
    ExchangeUnderTest under;
    under.imported(todoOf("SUMMARY:Task\n" + lines));
    QCOMPARE(under.task().status, status);
}

void TodoImportTest::thePrioritiesOfOtherPrograms_data()
{
    QTest::addColumn<QByteArray>("lines");
    QTest::addColumn<qint32>("periority");
    QTest::newRow("none") << QByteArray() << TaskPeriority::Normal;
    QTest::newRow("undefined") << QByteArray("PRIORITY:0\n") << TaskPeriority::Normal;
    QTest::newRow("1") << QByteArray("PRIORITY:1\n") << TaskPeriority::High;
    QTest::newRow("4") << QByteArray("PRIORITY:4\n") << TaskPeriority::High;
    QTest::newRow("5") << QByteArray("PRIORITY:5\n") << TaskPeriority::Normal;
    QTest::newRow("6") << QByteArray("PRIORITY:6\n") << TaskPeriority::Low;
    QTest::newRow("9") << QByteArray("PRIORITY:9\n") << TaskPeriority::Low;
    QTest::newRow("no number") << QByteArray("PRIORITY:urgent\n") << TaskPeriority::Normal;
}

void TodoImportTest::thePrioritiesOfOtherPrograms()
{
    QFETCH(const QByteArray, lines);
    QFETCH(const qint32, periority);
    ExchangeUnderTest under;
    under.imported(todoOf("SUMMARY:Task\n" + lines));
    QCOMPARE(under.task().periority, periority);
}

void TodoImportTest::ourStateCountsUntilAnotherProgramHasChangedIt()
{
    ExchangeUnderTest under;
    aTask(under.database).withStatus(TaskStatus::Waiting).add();
    aTask(under.database).withStatus(TaskStatus::Deferred).add();
    const QByteArray file = under.exported(ExchangeFormat::ICalendar);
    QVERIFY(file.contains("STATUS:IN-PROCESS\r\nX-AMBERTASK-STATUS:WAITING\r\n"));
    QVERIFY(file.contains("STATUS:NEEDS-ACTION\r\nX-AMBERTASK-STATUS:DEFERRED\r\n"));
    QByteArray changed = file;
    changed.replace("STATUS:IN-PROCESS", "STATUS:COMPLETED")
        .replace("STATUS:NEEDS-ACTION", "STATUS:IN-PROCESS");
    QCOMPARE(under.imported(changed).changed, 2);
    QCOMPARE(under.database.storedOfAll("task_status"), QStringLiteral("2 1"));
}

void TodoImportTest::whenATaskIsDue_data()
{
    QTest::addColumn<QByteArray>("lines");
    QTest::addColumn<QString>("due");
    const auto row = [](const char* name, const QByteArray& lines, const char* due) {
        QTest::newRow(name) << lines << QString::fromLatin1(due);
    };
    row("at a local time", "DUE:20260301T183000\n", "2026-03-01 18:30:00");
    row("seconds are dropped", "DUE:20260301T235959\n", "2026-03-01 23:59:00");
    row("on a day: at its end", "DUE;VALUE=DATE:20260301\n", "2026-03-01 23:59:00");
    row("a day without a type", "DUE:20260301\n", "2026-03-01 23:59:00");
    row("in UTC", "DUE:20260701T100000Z\n", "2026-07-01 11:00:00");
    row("begin and length", "DTSTART:20260301T100000\nDURATION:PT90M\n", "2026-03-01 11:30:00");
    row("begin alone", "DTSTART:20260301T100000\n", "2026-03-01 10:00:00");
    row("a day of begin", "DTSTART;VALUE=DATE:20260301\n", "2026-03-01 23:59:00");
    row("a leap day", "DUE:20280229T100000\n", "2028-02-29 10:00:00");
}

void TodoImportTest::whenATaskIsDue()
{
    QFETCH(const QByteArray, lines);
    QFETCH(const QString, due);
    ExchangeUnderTest under;
    QCOMPARE(under.imported(todoOf("SUMMARY:Task\n" + lines)).added, 1);
    QCOMPARE(QString::fromStdString(storedText(under.task().due)), due);
}

void TodoImportTest::aTaskWithoutADueDateIsDueToday()
{
    ExchangeUnderTest under;
    const QByteArray file = todoOf("SUMMARY:Task\n");
    const ImportPlan plan = under.planOf(file);
    QCOMPARE(plan.withoutDue, 1);
    QVERIFY(summaryOf(plan).contains(QStringLiteral("1 task has no due date and is due today.")));
    under.carriedOut(plan);
    QVERIFY(under.task().due == at(1, 15, 23, 59));
    // The next day it is no other task.
    under.database.clock().step(std::chrono::hours(24));
    QCOMPARE(under.planOf(file).same, 1);
}

void TodoImportTest::whenATaskReminds_data()
{
    QTest::addColumn<QByteArray>("lines");
    QTest::addColumn<QString>("reminder"); // empty when off
    const auto row = [](const char* name, const QByteArray& trigger, const char* reminder) {
        QTest::newRow(name) << "DUE:20260301T180000\nBEGIN:VALARM\nACTION:DISPLAY\n" + trigger
                + "END:VALARM\n"
                            << QString::fromLatin1(reminder);
    };
    row("before it is due", "TRIGGER;RELATED=END:-PT15M\n", "2026-03-01 17:45:00");
    row("without a beginning every trigger counts from the end", "TRIGGER:-PT15M\n", "2026-03-01 17:45:00");
    row("a day before", "TRIGGER;RELATED=END:-P1D\n", "2026-02-28 18:00:00");
    row("after it", "TRIGGER;RELATED=END:PT1H\n", "2026-03-01 19:00:00");
    row("at a moment", "TRIGGER;VALUE=DATE-TIME:20260228T120000Z\n", "2026-02-28 12:00:00");
    row("at a moment in summer", "TRIGGER;VALUE=DATE-TIME:20260628T120000Z\n", "2026-06-28 13:00:00");
    row("no trigger", "", "");
    row("no sense", "TRIGGER:soon\n", "");
    QTest::newRow("by a sound") << QByteArray(
        "DUE:20260301T180000\nBEGIN:VALARM\nACTION:AUDIO\n"
        "TRIGGER;RELATED=END:-PT5M\nATTACH:ftp://example/x.wav\nEND:VALARM\n")
                                << QStringLiteral("2026-03-01 17:55:00");
    QTest::newRow("from the beginning") << QByteArray(
        "DTSTART:20260301T100000\nDUE:20260301T180000\nBEGIN:VALARM\nACTION:DISPLAY\n"
        "TRIGGER:-PT30M\nEND:VALARM\n") << QStringLiteral("2026-03-01 09:30:00");
    QTest::newRow("by a program or mail")
        << QByteArray("DUE:20260301T180000\nBEGIN:VALARM\nACTION:PROCEDURE\n"
                      "TRIGGER:-PT5M\nATTACH:/bin/true\nEND:VALARM\n")
        << QString();
}

void TodoImportTest::whenATaskReminds()
{
    QFETCH(const QByteArray, lines);
    QFETCH(const QString, reminder);
    ExchangeUnderTest under;
    QCOMPARE(under.imported(todoOf("SUMMARY:Task\n" + lines)).added, 1);
    const TaskRecord task = under.task();
    QCOMPARE(task.reminderOn, !reminder.isEmpty());
    if (task.reminderOn) {
        QCOMPARE(QString::fromStdString(storedText(task.reminder)), reminder);
    }
    QVERIFY(!task.dismissed && task.file.empty());
}

void TodoImportTest::aPastReminderOfAnotherProgramComesInAsDismissed()
{
    ExchangeUnderTest under;
    const ImportPlan plan =
        under.planOf(todoOf("SUMMARY:Task\nDUE:20260110T100000\nBEGIN:VALARM\nACTION:DISPLAY\n"
                            "TRIGGER;RELATED=END:-PT15M\nEND:VALARM\n"));
    QCOMPARE(plan.dismissed, 1);
    QVERIFY(summaryOf(plan).contains(QStringLiteral("1 reminder is past and comes in as dismissed.")));
    under.carriedOut(plan);
    QVERIFY(under.task().reminderOn && under.task().dismissed && under.task().played);
}

void TodoImportTest::ourOwnReminderComesBackAsItWas()
{
    ExchangeUnderTest from;
    aTask(from.database).named(QStringLiteral("fires")).remindingAt(at(1, 14, 9, 0)).add();
    aTask(from.database).named(QStringLiteral("played")).remindingAt(at(1, 14, 9, 0)).played().add();
    aTask(from.database)
        .named(QStringLiteral("done"))
        .remindingAt(at(1, 14, 9, 0))
        .played()
        .dismissed()
        .add();
    ExchangeUnderTest to;
    const ImportPlan plan = to.planOf(from.exported(ExchangeFormat::ICalendar));
    QCOMPARE(plan.dismissed, 0);
    to.carriedOut(plan);
    QCOMPARE(to.database.storedOfAll("reminder_on||played||dismissed"), QStringLiteral("100 110 111"));
}

void TodoImportTest::anAlarmThatAnotherProgramHasMovedReminds()
{
    ExchangeUnderTest under;
    aTask(under.database).dueAt(at(3, 1, 12, 0)).remindingAt(at(3, 1, 11, 0)).played().dismissed().add();
    QByteArray file = under.exported(ExchangeFormat::ICalendar);
    QVERIFY(file.contains("TRIGGER;RELATED=END:-PT1H\r\n"));
    QCOMPARE(under.planOf(file).same, 1);
    under.imported(file.replace("-PT1H", "-PT2H"));
    const TaskRecord task = under.task();
    QVERIFY(task.reminderOn && task.reminder == at(3, 1, 10, 0) && !task.played && !task.dismissed);
}

void TodoImportTest::anAlarmThatAnotherProgramHasAddedReminds()
{
    ExchangeUnderTest under;
    aTask(under.database).dueAt(at(3, 1, 12, 0)).add();
    QByteArray file = under.exported(ExchangeFormat::ICalendar);
    file.replace("END:VTODO", "BEGIN:VALARM\r\nACTION:DISPLAY\r\nTRIGGER:-PT2H\r\nEND:VALARM\r\nEND:VTODO");
    under.imported(file);
    QVERIFY(under.task().reminderOn && under.task().reminder == at(3, 1, 10, 0));
}

void TodoImportTest::ofSeveralAlarmsTheNextOneReminds()
{
    const auto alarm = [](const char* trigger) {
        return QByteArray("BEGIN:VALARM\nACTION:DISPLAY\nTRIGGER;VALUE=DATE-TIME:") + trigger
            + "\nEND:VALARM\n";
    };
    ExchangeUnderTest under;
    const QByteArray file = todoOf("SUMMARY:Task\nDUE:20260301T180000\n" + alarm("20260301T120000Z")
        + alarm("20260110T120000Z") + alarm("20260201T120000Z") + alarm("20260202T120000Z"));
    const ImportPlan plan = under.planOf(file);
    QCOMPARE(plan.furtherReminders, 3);
    under.carriedOut(plan);
    QVERIFY(under.task().reminder == at(2, 1, 12, 0));
    QCOMPARE(under.exported(ExchangeFormat::ICalendar).count("BEGIN:VALARM"), 4);
    QCOMPARE(under.planOf(file).same, 1);
    QCOMPARE(under.planOf(under.exported(ExchangeFormat::ICalendar)).same, 1);
    // Switched off here, it stays off, whatever alarms the others have.
    under.database.sql(QStringLiteral("update tasks set reminder_on=0"));
    ExchangeUnderTest to;
    to.imported(under.exported(ExchangeFormat::ICalendar));
    QVERIFY(!to.task().reminderOn && to.task().reminder == at(2, 1, 12, 0));
}

void TodoImportTest::anotherAlarmsPartsSurviveWithTheReminder()
{
    ExchangeUnderTest under;
    under.imported(todoOf("SUMMARY:Task\nDUE:20260301T180000\nBEGIN:VALARM\nUID:a\nACTION:AUDIO\nX-SNOOZE:5\n"
                          "TRIGGER:-PT15M\nATTACH:x.wav\nEND:VALARM\n"));
    const QByteArray file = under.exported(ExchangeFormat::ICalendar);
    QCOMPARE(file.count("BEGIN:VALARM"), 1);
    QVERIFY(file.contains("BEGIN:VALARM\r\nUID:a\r\nACTION:AUDIO\r\nX-SNOOZE:5\r\nATTACH:x.wav\r\n"
                          "TRIGGER;RELATED=END:-PT15M\r\n"));
    QCOMPARE(under.planOf(file).same, 1);
    under.database.sql(QStringLiteral("update tasks set reminder_on=0"));
    QVERIFY(!under.exported(ExchangeFormat::ICalendar).contains("VALARM"));
}

void TodoImportTest::ofTwoAlarmsWithOurStateTheFirstOneStaysTheReminder()
{
    // As another program leaves them that duplicates an alarm with all its lines.
    const auto alarm = [](const char* trigger, const char* moment) {
        return QByteArray("BEGIN:VALARM\nACTION:DISPLAY\nDESCRIPTION:Task\nTRIGGER;RELATED=END:") + trigger
            + "\nX-AMBERTASK-REMINDER:" + moment + "\nEND:VALARM\n";
    };
    ExchangeUnderTest under;
    under.imported(todoOf("SUMMARY:Task\nDUE:20260301T180000\n" + alarm("-PT1H", "20260301T170000")
        + alarm("-PT2H", "20260301T160000")));
    QVERIFY(under.task().reminder == at(3, 1, 17, 0));
    ExchangeUnderTest to;
    to.imported(under.exported(ExchangeFormat::ICalendar));
    QVERIFY(to.task().reminder == at(3, 1, 17, 0));
}

void TodoImportTest::anAlarmWithoutATriggerTakesNoReminderAway()
{
    ExchangeUnderTest under;
    under.imported(todoOf("SUMMARY:Task\nDUE:20260301T180000\nBEGIN:VALARM\nACTION:EMAIL\nEND:VALARM\n"
                          "BEGIN:VALARM\nACTION:DISPLAY\nTRIGGER:-PT1H\nEND:VALARM\n"));
    QVERIFY(under.task().reminderOn);
    ExchangeUnderTest to;
    to.imported(under.exported(ExchangeFormat::ICalendar));
    QVERIFY(to.task().reminderOn && to.task().reminder == at(3, 1, 17, 0));
}

void TodoImportTest::aCompletedTaskSaysSoInEveryWayAndTakesNothingForOthers()
{
    ExchangeUnderTest under;
    aTask(under.database).withStatus(TaskStatus::Completed).add();
    const QByteArray file = under.exported(ExchangeFormat::ICalendar);
    QVERIFY(file.contains("STATUS:COMPLETED\r\nPERCENT-COMPLETE:100\r\n"
                          "COMPLETED;X-AMBERTASK-ASSUMED=TRUE:20260115T100000Z\r\n"));
    under.database.clock().step(std::chrono::hours(1));
    QCOMPARE(under.planOf(file).same, 1);
}

void TodoImportTest::alarmsOfKAlarmAreTasks()
{
    const auto alarm = [](const QByteArray& type) {
        return "BEGIN:VEVENT\nUID:" + type + "\nX-KDE-KALARM-TYPE:" + type
            + "\nDURATION:PT0S\nDTSTART:20310714T151500\nTRANSP:TRANSPARENT\nBEGIN:VALARM\n"
              "DESCRIPTION:Buy\\, cook\\nand\\neat\nACTION:DISPLAY\nTRIGGER:PT0S\nX-KDE:1\nEND:VALARM\n"
              "END:VEVENT\n";
    };
    const QByteArray file = calendarOf(alarm("ACTIVE") + alarm("ARCHIVED"))
                                .replace("-//Somebody//Else//EN", "-//K//NONSGML KAlarm 3.5//EN");
    ExchangeUnderTest under;
    const ImportPlan plan = under.planOf(file);
    QVERIFY(plan.added == 1 && plan.passedOver == 1);
    under.carriedOut(plan);
    const TaskRecord task = under.task();
    QCOMPARE(task.name, std::string("Buy, cook"));
    QCOMPARE(task.description, std::string("and\neat"));
    QCOMPARE(storedText(task.due), std::string("2031-07-14 15:15:00"));
    QVERIFY(task.reminderOn && task.reminder == task.due);
    QVERIFY(!under.exported(ExchangeFormat::ICalendar).contains("TRANSP"));
    QCOMPARE(under.planOf(under.exported(ExchangeFormat::ICalendar)).same, 1);
}

void TodoImportTest::tasksOfOsmoAreEvents()
{
    const auto event = [](const QByteArray& number) {
        return "BEGIN:VEVENT\nUID:" + number + "\nPRIORITY:" + number
            + "\nCATEGORIES:Work\nSUMMARY:Task\nDESCRIPTION:One line\nDTSTAMP:00000000T000000\n"
              "DTSTART;VALUE=DATE:20310715\nDTEND;VALUE=DATE:20310715\nEND:VEVENT\n";
    };
    ExchangeUnderTest under;
    under.imported(calendarOf(event("0") + event("1") + event("2"))
                       .replace("-//Somebody//Else//EN", "//Clay//NONSGML Osmo PIM//EN"));
    QCOMPARE(under.database.storedOfAll("task_periority"), QStringLiteral("2 1 0"));
    QCOMPARE(under.tasks().front().name, std::string("Task"));
    QCOMPARE(storedText(under.tasks().front().due), std::string("2031-07-15 23:59:00"));
    QVERIFY(!under.exported(ExchangeFormat::ICalendar).contains("DTEND"));
}

void TodoImportTest::daysOfOrageAreTheOnesBefore()
{
    ExchangeUnderTest under;
    const ImportPlan plan = under.planOf(
        calendarOf("BEGIN:VTODO\nUID:a\nSUMMARY:A\nDTSTART;VALUE=DATE:20261123\nDUE;VALUE=DATE:20310716\n"
                   "END:VTODO\nBEGIN:VTODO\nUID:b\nSUMMARY:B\nDTSTART:20251123T100000\nEND:VTODO\n")
            .replace("-//Somebody//Else//EN", "-//Xfce//Orage//EN"));
    QCOMPARE(storedText(plan.tasks.at(0).task.due), std::string("2031-07-15 23:59:00"));
    QCOMPARE(plan.withoutDue, 1);
    QVERIFY(plan.tasks.at(1).task.due == at(1, 15, 23, 59));
}

void TodoImportTest::aRepeatingTaskComesInOnceAndKeepsItsRule()
{
    ExchangeUnderTest under;
    const ImportPlan plan = under.planOf(
        todoOf("SUMMARY:Task\nDTSTART:20260301T100000\nDUE:20260301T110000\nRRULE:FREQ=SECONDLY\n"
               "END:VTODO\nBEGIN:VTODO\nUID:one@example\nRECURRENCE-ID:20260302T100000\nSUMMARY:Once\n"));
    QCOMPARE(plan.added, 1);
    QCOMPARE(plan.repeating, 1);
    QCOMPARE(plan.passedOver, 1);
    under.carriedOut(plan);
    QVERIFY(under.task().due == at(3, 1, 11, 0));
    QVERIFY(under.exported(ExchangeFormat::ICalendar).contains("RRULE:FREQ=SECONDLY\r\n"));
}

void TodoImportTest::whatIsNoTaskIsPassedOver()
{
    ExchangeUnderTest under;
    const ImportPlan plan = under.planOf(
        calendarOf("X-WR-CALNAME:Mine\nBEGIN:VEVENT\nUID:e\nSUMMARY:Event\nBEGIN:VALARM\nACTION:DISPLAY\n"
                   "TRIGGER:-PT5M\nEND:VALARM\nEND:VEVENT\nBEGIN:VTODO\nUID:t\nSUMMARY:Task\nEND:VTODO\n"
                   "BEGIN:VJOURNAL\nUID:j\nEND:VJOURNAL\nBEGIN:X-ELSE\nEND:X-ELSE\n"));
    QCOMPARE(plan.passedOver, 3);
    QCOMPARE(plan.added, 1);
    QCOMPARE(plan.unreadableParts, 0);
}

void TodoImportTest::whatCannotBeReadStaysOutWithItsLineAndReason_data()
{
    QTest::addColumn<QByteArray>("lines");
    QTest::addColumn<QString>("reason");
    QTest::newRow("a day that does not exist")
        << QByteArray("DUE:20260230T100000\n") << QStringLiteral("due date");
    QTest::newRow("no date") << QByteArray("DUE:tomorrow\n") << QStringLiteral("due date");
    QTest::newRow("bytes") << QByteArray("DESCRIPTION:\xff\xfe\n") << QStringLiteral("UTF-8");
    QTest::newRow("a zero byte") << QByteArray("DESCRIPTION:a\0b\n", 16) << QStringLiteral("UTF-8");
    QTest::newRow("an alarm without an end") << QByteArray("BEGIN:VALARM\n") << QStringLiteral("no end");
    QTest::newRow("another one of that UID")
        << QByteArray("END:VTODO\nBEGIN:VTODO\nUID:bad\nSUMMARY:Again\n") << QStringLiteral("UID");
}

void TodoImportTest::whatCannotBeReadStaysOutWithItsLineAndReason()
{
    QFETCH(const QByteArray, lines);
    QFETCH(const QString, reason);
    ExchangeUnderTest under;
    const ImportPlan plan = under.planOf(calendarOf("BEGIN:VTODO\nUID:good\nSUMMARY:Good\nEND:VTODO\n"
                                                    "BEGIN:VTODO\nUID:bad\nSUMMARY:Bad\n"
        + lines + "END:VTODO\nBEGIN:VTODO\nUID:last\nSUMMARY:Last\nEND:VTODO\n"));
    QCOMPARE(plan.unreadableParts, 1);
    const UnreadablePart& part = plan.unreadable.first();
    QVERIFY2(part.reason.contains(reason), qPrintable(part.reason));
    QVERIFY(part.line == 8 || part.line == 12);
    QVERIFY(part.name == QLatin1String("Bad") || part.name == QLatin1String("Again"));
    QCOMPARE(plan.added, reason == QLatin1String("UID") ? 3 : 2);
}

void TodoImportTest::aFileThatIsNoCalendarIsRefused_data()
{
    QTest::addColumn<QByteArray>("bytes");
    QTest::newRow("nothing") << QByteArray();
    QTest::newRow("a letter") << QByteArray("Dear Bob,\n");
    QTest::newRow("a task alone") << QByteArray("BEGIN:VTODO\r\nEND:VTODO\r\n");
    QTest::newRow("zeros") << QByteArray(100'000, '\0');
}

void TodoImportTest::aFileThatIsNoCalendarIsRefused()
{
    QFETCH(const QByteArray, bytes);
    ExchangeUnderTest under;
    const auto error = caught<RuntimeError>([&] { under.planOf(bytes); });
    QVERIFY(error && error->text().contains(QLatin1String("iCalendar")));
}

void TodoImportTest::linesMayEndAndFoldAsTheyLike()
{
    ExchangeUnderTest under;
    QByteArray file = calendarOf("BEGIN:VTODO\nUID:t\nSUM\n MARY:Caf\xc3\n \xa9 and\n\t more\n\nEND:VTODO\n");
    for (const QByteArray& bytes :
        {file, QByteArray(file).replace("\r\n", "\n"), "\xEF\xBB\xBF" + file, file.chopped(2)}) {
        const ImportPlan plan = under.planOf(bytes);
        QCOMPARE(plan.added, 1);
        QCOMPARE(plan.tasks.front().task.name, std::string("Caf\xc3\xa9 and more"));
    }
}

void TodoImportTest::aLineThatContinuesNoOtherIsPassedOver()
{
    ExchangeUnderTest under;
    under.imported(todoOf("X-A:1\nSUMMARY;LANGUAGE=en:Task\n\r X-B:2\n"));
    QCOMPARE(under.task().name, std::string("Task"));
    ExchangeUnderTest to;
    to.imported(under.exported(ExchangeFormat::ICalendar));
    QCOMPARE(to.task().name, std::string("Task"));
}

void TodoImportTest::anEndOfNothingIsPassedOver()
{
    ExchangeUnderTest under;
    under.imported(
        todoOf("SUMMARY:Task\nDUE:20260301T180000\nBEGIN:VALARM\nEND:\nACTION:DISPLAY\nTRIGGER:-PT1H\n"
               "BEGIN:\nEND:VALARM\n"));
    QVERIFY(under.task().reminderOn);
    ExchangeUnderTest to;
    to.imported(under.exported(ExchangeFormat::ICalendar));
    QVERIFY(to.task().reminderOn);
}

AMBERTASK_TEST_MAIN(TodoImportTest)

#include "tst_todo_import.moc"
