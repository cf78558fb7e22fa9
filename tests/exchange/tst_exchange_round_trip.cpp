#include "ExchangeUnderTest.h"
#include "data/TaskCodes.h"
#include "support/TestMain.h"
#include "tests/data/HardTexts.h"

#include <QRandomGenerator>

namespace
{

/// Texts of letters that mean something to one of the formats, or to a store.
std::string hostileText(QRandomGenerator& random)
{
    static const QStringList pieces{QStringLiteral("\r"), QStringLiteral("\n"), QStringLiteral("\r\n"),
        QStringLiteral("\""), QStringLiteral("\"\""), QStringLiteral(","), QStringLiteral(";"),
        QStringLiteral("\\"), QStringLiteral("\\n"), QStringLiteral("\t"), QStringLiteral(" "),
        QStringLiteral(":"), QStringLiteral("'"), QStringLiteral("END:VTODO"),
        QStringLiteral("\nBEGIN:VALARM"), QStringLiteral("\x01"), QStringLiteral("\x1B[2J"),
        QStringLiteral("\x7F"), QStringLiteral(u"\uFEFF"), QStringLiteral(u"\u2028"),
        QStringLiteral(u"\u0085"), QStringLiteral(u"\u202E"), QStringLiteral(u"\U0001F600"),
        QStringLiteral(u"\u4e2d\u6587"), QStringLiteral("=cmd()"), QStringLiteral("#1/1/2007#"),
        QStringLiteral("<task_name/>"), QStringLiteral("word"), QString(90, QLatin1Char('x'))};
    QString text;
    for (int count = random.bounded(8); count > 0; --count) {
        text += pieces.at(random.bounded(static_cast<int>(pieces.size())));
    }
    return text.toStdString();
}

Moment anyMoment(QRandomGenerator& random)
{
    return at(1, 15, 10, 0) + std::chrono::minutes(random.bounded(-600'000, 600'000));
}

TaskRecord anyTask(QRandomGenerator& random)
{
    TaskRecord task;
    task.name = hostileText(random);
    task.description = hostileText(random);
    task.category = (random.bounded(9) == 0 ? " in " : "in ") + hostileText(random);
    task.sound = hostileText(random);
    task.file = hostileText(random);
    task.status = random.bounded(8) == 0 ? random.bounded(-99, 99) : random.bounded(5);
    task.periority = random.bounded(8) == 0 ? random.bounded(-99, 99) : random.bounded(3);
    task.due = anyMoment(random);
    task.reminder = anyMoment(random);
    task.reminderOn = random.bounded(2) == 1;
    task.played = random.bounded(2) == 1;
    task.dismissed = random.bounded(2) == 1;
    if (task.status != TaskStatus::Completed && random.bounded(4) == 0) {
        task.repeat = Repeat{"FREQ=DAILY;INTERVAL=" + std::to_string(random.bounded(1, 99)),
            anyMoment(random), std::chrono::minutes(random.bounded(-99, 999)), random.bounded(9)};
    }
    return task;
}

void fill(const ExchangeUnderTest& under, const std::vector<TaskRecord>& tasks)
{
    TaskStoring storing(under.engine);
    for (const TaskRecord& task : tasks) {
        storing.put(task);
    }
    storing.finish();
}

QByteArray shown(const TaskRecord& task)
{
    QByteArray text;
    for (const std::string& part : {task.name, task.description, task.category, task.sound, task.file,
             task.uid, task.properties, storedText(task.due), storedText(task.reminder)}) {
        text += QByteArray::fromStdString(part).toPercentEncoding(" ") + '|';
    }
    return text + QByteArray::number(task.status) + '|' + QByteArray::number(task.periority) + '|'
        + QByteArray::number(task.reminderOn) + QByteArray::number(task.played)
        + QByteArray::number(task.dismissed) + '|'
        + (task.repeat ? QByteArray::fromStdString(task.repeat->rule + ' ' + storedText(task.repeat->first))
                    + ' ' + QByteArray::number(static_cast<qint64>(task.repeat->lead.count())) + ' '
                    + QByteArray::number(task.repeat->done)
                       : QByteArray());
}

QByteArrayList shownAll(const ExchangeUnderTest& under)
{
    QByteArrayList all;
    for (const TaskRecord& task : under.tasks()) {
        all.append(shown(task));
    }
    return all;
}

} // namespace

class ExchangeRoundTripTest : public TestCase
{
    Q_OBJECT

private slots:
    void everythingOfATaskComesBackIntoAnEmptyStore_data() { addFormats(); }
    void everythingOfATaskComesBackIntoAnEmptyStore();
    void hardTextsComeBack_data() { addFormats(); }
    void hardTextsComeBack();
    void whatHasJustBeenExportedIsTheSame_data() { addFormats(); }
    void whatHasJustBeenExportedIsTheSame();
    void anExportRestoresWhatHasBeenChangedSince_data() { addFormats(); }
    void anExportRestoresWhatHasBeenChangedSince();
    void unknownPropertiesOfOthersComeBackAsTheyWere();
    void whatOthersSayOtherwiseStaysTheirsUntilItIsChanged();

private:
    static void addFormats();
};

void ExchangeRoundTripTest::addFormats()
{
    QTest::addColumn<ExchangeFormat>("format");
    QTest::newRow("iCalendar") << ExchangeFormat::ICalendar;
    QTest::newRow("CSV") << ExchangeFormat::Csv;
}

void ExchangeRoundTripTest::everythingOfATaskComesBackIntoAnEmptyStore()
{
    QFETCH(const ExchangeFormat, format);
    QRandomGenerator random(2026);
    std::vector<TaskRecord> tasks;
    for (int i = 0; i < 1000; ++i) {
        tasks.push_back(anyTask(random));
    }
    ExchangeUnderTest from(ExchangeUnderTest::Rules::Daily);
    fill(from, tasks);
    QVERIFY(from.database.sql(QStringLiteral("select count(*) from repeats")).toInt() > 100);
    const QByteArray file = from.exported(format);
    ExchangeUnderTest to(ExchangeUnderTest::Rules::Daily);
    ImportPlan plan = to.planOf(file, format);
    QCOMPARE(plan.unreadableParts, 0);
    QCOMPARE(plan.dismissed, 0);
    plan.takePrograms(true);
    QCOMPARE(to.carriedOut(plan).added, 1000);
    const QByteArrayList wanted = shownAll(from);
    const QByteArrayList found = shownAll(to);
    QCOMPARE(found.size(), wanted.size());
    for (qsizetype i = 0; i < wanted.size(); ++i) {
        QCOMPARE(found.at(i), wanted.at(i));
    }
}

void ExchangeRoundTripTest::hardTextsComeBack()
{
    QFETCH(const ExchangeFormat, format);
    std::vector<TaskRecord> tasks;
    for (const QString& text : hardTexts() + QStringList{longTextOfQuotes()}) {
        TaskRecord task;
        task.name = task.description = task.sound = task.file = text.toStdString();
        task.category = "Work";
        task.due = task.reminder = at(1, 20, 9, 0);
        tasks.push_back(task);
    }
    ExchangeUnderTest from;
    fill(from, tasks);
    ExchangeUnderTest to;
    ImportPlan plan = to.planOf(from.exported(format), format);
    plan.takePrograms(true);
    to.carriedOut(plan);
    QVERIFY(shownAll(to) == shownAll(from));
}

void ExchangeRoundTripTest::whatHasJustBeenExportedIsTheSame()
{
    QFETCH(const ExchangeFormat, format);
    QRandomGenerator random(7);
    std::vector<TaskRecord> tasks;
    for (int i = 0; i < 300; ++i) {
        tasks.push_back(anyTask(random));
    }
    ExchangeUnderTest under(ExchangeUnderTest::Rules::Daily);
    fill(under, tasks);
    const ImportPlan plan = under.planOf(under.exported(format), format);
    QCOMPARE(plan.same, 300);
    QCOMPARE(plan.added + plan.changed, 0);
    QVERIFY(plan.isEmpty() && plan.programs().empty());
}

void ExchangeRoundTripTest::anExportRestoresWhatHasBeenChangedSince()
{
    QFETCH(const ExchangeFormat, format);
    QRandomGenerator random(11);
    std::vector<TaskRecord> tasks;
    for (int i = 0; i < 100; ++i) {
        tasks.push_back(anyTask(random));
        tasks.back().file.clear();
    }
    ExchangeUnderTest under(ExchangeUnderTest::Rules::Daily);
    fill(under, tasks);
    const QByteArray file = under.exported(format);
    const QByteArrayList before = shownAll(under);
    under.database.sql(
        QStringLiteral("update tasks set task_name='other', task_desc='', task_status=(task_status+1)%5, "
                       "cat_id=1, task_due_date='2030-01-01 00:00:00', reminder_on=1-reminder_on, "
                       "reminder_date_time='2030-01-01 00:00:00', reminder_sound='x', reminder_file='y', "
                       "played=1-played, dismissed=1-dismissed; "
                       "delete from repeats where of_task%2=0; "
                       "update repeats set rule='FREQ=DAILY', first_moment='2030-01-01 00:00:00', lead=7"));
    QCOMPARE(under.imported(file, format).changed, 100);
    QCOMPARE(shownAll(under), before);
}

void ExchangeRoundTripTest::unknownPropertiesOfOthersComeBackAsTheyWere()
{
    const QByteArray others("X-A;X-B=\"c;d\":one, two; three\\, four\n"
                            "CREATED:20250101T000000Z\n"
                            "SEQUENCE:7\n"
                            "RRULE:FREQ=WEEKLY;BYDAY=MO\n"
                            "LOCATION;LANGUAGE=de:Küche\n"
                            "ATTENDEE;CN=\"Somebody, Else\":mailto:a@example\n"
                            "BEGIN:X-PART\nX-IN:it\nBEGIN:X-DEEPER\nX-Y:z\nEND:X-DEEPER\nEND:X-PART\n"
                            "BEGIN:VALARM\nACTION:EMAIL\nTRIGGER:-PT1H\nSUMMARY:mail\nEND:VALARM\n");
    ExchangeUnderTest from;
    from.imported(todoOf("SUMMARY:Task\nDUE:20260301T100000\n" + others));
    QCOMPARE(QByteArray::fromStdString(from.task().properties), others);
    const QByteArray written = from.exported(ExchangeFormat::ICalendar);
    QVERIFY(QByteArray(written).replace("\r\n ", "").contains(QByteArray(others).replace("\n", "\r\n")));
    ExchangeUnderTest to;
    to.imported(written);
    QCOMPARE(shown(to.task()), shown(from.task()));
}

void ExchangeRoundTripTest::whatOthersSayOtherwiseStaysTheirsUntilItIsChanged()
{
    ExchangeUnderTest under;
    under.imported(todoOf("SUMMARY;LANGUAGE=en:Task\nDUE;VALUE=DATE:20260301\nPRIORITY:3\nSTATUS:CANCELLED\n"
                          "COMPLETED:20260110T090000Z\nCATEGORIES:Work,Garden\n"));
    const QByteArray as = under.exported(ExchangeFormat::ICalendar);
    for (const char* line : {"SUMMARY;LANGUAGE=en:Task\r\n", "DUE;VALUE=DATE:20260301\r\n", "PRIORITY:3\r\n",
             "STATUS:CANCELLED\r\n", "COMPLETED:20260110T090000Z\r\n", "CATEGORIES:Work\r\n",
             "CATEGORIES:Garden\r\n"}) {
        QVERIFY2(as.contains(line), line);
    }
    for (const char* name : {"SUMMARY", "DUE", "PRIORITY", "STATUS", "PERCENT-COMPLETE"}) {
        QCOMPARE(as.count(QByteArray("\r\n") + name), 1);
    }
    QCOMPARE(under.planOf(as).same, 1);
    under.database.sql(
        QStringLiteral("update tasks set task_name='New', task_due_date='2026-03-02 10:00:00', "
                       "task_periority=2, task_status=1"));
    const QByteArray now = under.exported(ExchangeFormat::ICalendar);
    for (const char* line :
        {"SUMMARY:New\r\n", "DUE:20260302T100000\r\n", "PRIORITY:9\r\n", "STATUS:IN-PROCESS\r\n"}) {
        QVERIFY2(now.contains(line), line);
    }
    QVERIFY(!now.contains("COMPLETED") && !now.contains("CANCELLED") && !now.contains("LANGUAGE"));
}

AMBERTASK_TEST_MAIN(ExchangeRoundTripTest)

#include "tst_exchange_round_trip.moc"
