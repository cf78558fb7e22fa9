#include "ExchangeUnderTest.h"
#include "data/TaskCodes.h"
#include "support/CaughtError.h"
#include "support/TestMain.h"

namespace
{

constexpr ExchangeFormat Csv = ExchangeFormat::Csv;

} // namespace

class CsvImportTest : public TestCase
{
    Q_OBJECT

private slots:
    void theHeaderNamesAllFields();
    void columnsMayStandInAnyOrder();
    void separatorsMayBeOthers_data();
    void separatorsMayBeOthers();
    void otherNamesOfColumnsAreKnown();
    void fieldsMayHoldLinesAndQuotes();
    void datesMayBeInIsoOrInTheSystemsForm_data();
    void datesMayBeInIsoOrInTheSystemsForm();
    void statesAndPrioritiesMayBeWordsOrCodes();
    void aReminderIsOnWhenItHasAMoment();
    void aPastReminderWithoutItsStateComesInAsDismissed();
    void whatIsNotSaidStaysAsItIs();
    void aRowThatCannotBeReadStaysOutWithItsLine();
    void aQuoteWithoutAnEndIsTold();
    void aFileWithoutNamesIsRefused_data();
    void aFileWithoutNamesIsRefused();
};

void CsvImportTest::theHeaderNamesAllFields()
{
    ExchangeUnderTest under;
    QCOMPARE(under.exported(Csv),
        QByteArray(
            "\"Name\",\"Description\",\"Status\",\"Category\",\"Due\",\"Priority\",\"Reminder\","
            "\"Reminder time\",\"Sound\",\"File\",\"Played\",\"Dismissed\",\"UID\",\"Repeat\",\"Repeats "
            "from\",\"Reminds before\",\"Times done\"\r\n"));
    aTask(under.database)
        .named(QStringLiteral("Say \"hi\", Bob"))
        .withStatus(TaskStatus::Waiting)
        .dueAt(at(3, 1, 12, 0))
        .remindingAt(at(3, 1, 11, 0))
        .add();
    const QByteArray row = under.exported(Csv).split('\n').at(1);
    QVERIFY2(
        row.startsWith("\"Say \"\"hi\"\", Bob\",\"\",\"Waiting on someone else\",\"Personal\","
                       "\"2026-03-01 12:00:00\",\"Normal\",\"yes\",\"2026-03-01 11:00:00\",\"\",\"\",\"no\","
                       "\"no\",\""),
        row.constData());
}

void CsvImportTest::columnsMayStandInAnyOrder()
{
    ExchangeUnderTest under;
    under.imported("Due,Unknown,Priority,UID,Name\r\n2026-03-01 12:00,?,High,,Task\r\n", Csv);
    const TaskRecord task = under.task();
    QCOMPARE(task.name, std::string("Task"));
    QVERIFY(task.due == at(3, 1, 12, 0));
    QCOMPARE(task.periority, TaskPeriority::High);
    QCOMPARE(task.category, std::string("Imported"));
}

void CsvImportTest::separatorsMayBeOthers_data()
{
    QTest::addColumn<QByteArray>("file");
    QTest::newRow("comma") << QByteArray("Name,Due\nTask; a\tb,2026-03-01\n");
    QTest::newRow("semicolon") << QByteArray("Name;Due\n\"Task; a\tb\";2026-03-01\n");
    QTest::newRow("tab") << QByteArray("Name\tDue\n\"Task; a\tb\"\t2026-03-01\n");
    QTest::newRow("quotes in the header")
        << QByteArray("\"Name\";\"a,b,c\";Due\n\"Task; a\tb\";x;2026-03-01\n");
    QTest::newRow("a mark of the byte order")
        << QByteArray("\xEF\xBB\xBFName;Due\n\"Task; a\tb\";2026-03-01");
    QTest::newRow("empty lines") << QByteArray("\n\nName;Due\n\n\r\n\"Task; a\tb\";2026-03-01\n\n");
}

void CsvImportTest::separatorsMayBeOthers()
{
    QFETCH(const QByteArray, file);
    ExchangeUnderTest under;
    under.imported(file, Csv);
    QCOMPARE(under.task().name, std::string("Task; a\tb"));
    QVERIFY(under.task().due == at(3, 1, 23, 59));
}

void CsvImportTest::otherNamesOfColumnsAreKnown()
{
    ExchangeUnderTest under;
    under.imported("task_name,TASK_DESC,task_status,cat_name,task_due_date,task_periority,reminder_on,"
                   "reminder_date_time,reminder_sound,played,dismissed\n"
                   "Task,about,4,Garden,2026-03-01 12:00:00,2,1,2026-03-01 11:00:00,a.wav,1,0\n",
        Csv);
    const TaskRecord task = under.task();
    QCOMPARE(task.description, std::string("about"));
    QCOMPARE(task.status, TaskStatus::Deferred);
    QCOMPARE(task.category, std::string("Garden"));
    QCOMPARE(task.periority, TaskPeriority::Low);
    QVERIFY(task.reminderOn && task.played && !task.dismissed && task.sound == "a.wav");
    under.database.sql(QStringLiteral("delete from tasks"));
    under.imported("Title,Notes,Deadline\nTask,about,2026-03-01\n", Csv);
    QCOMPARE(under.task().description, std::string("about"));
}

void CsvImportTest::fieldsMayHoldLinesAndQuotes()
{
    ExchangeUnderTest under;
    under.imported("Name,Description\r\n\" Task \",\"one\r\ntwo \"\"quoted\"\"\n\n,;\"\r\n", Csv);
    QCOMPARE(under.task().name, std::string(" Task "));
    QCOMPARE(under.task().description, std::string("one\r\ntwo \"quoted\"\n\n,;"));
}

void CsvImportTest::datesMayBeInIsoOrInTheSystemsForm_data()
{
    QTest::addColumn<QByteArray>("text");
    QTest::addColumn<QString>("due"); // empty when it cannot be read
    const auto row = [](const char* text, const char* due) {
        QTest::newRow(text) << QByteArray(text) << QString::fromLatin1(due);
    };
    row("2026-03-01", "2026-03-01 23:59:00");
    row("2026-03-01 9:05", "2026-03-01 09:05:00");
    row("2026-03-01 09:05:59", "2026-03-01 09:05:00");
    row("2026-03-01T09:05", "2026-03-01 09:05:00");
    row("2026-03-01T09:05:00", "2026-03-01 09:05:00");
    row("01.03.2026", "2026-03-01 23:59:00");
    row("01.03.2026 18:30", "2026-03-01 18:30:00");
    row(" 01.03.2026 18:30:01 ", "2026-03-01 18:30:00");
    row("2026-07-01T10:00:00Z", "2026-07-01 11:00:00");
    row("2026-07-01T10:00+0300", "2026-07-01 08:00:00");
    row("20260701T100000Z", "2026-07-01 11:00:00");
    row("20260731T256000Z", "");
    row("31.02.2026", "");
    row("3/1/2026", "");
    row("2026-03-01 25:00", "");
    row("soon", "");
}

void CsvImportTest::datesMayBeInIsoOrInTheSystemsForm()
{
    QFETCH(const QByteArray, text);
    QFETCH(const QString, due);
    ExchangeUnderTest under;
    const ImportPlan plan = under.planOf("Name,Due\nTask,\"" + text + "\"\n", Csv);
    if (due.isEmpty()) {
        QCOMPARE(plan.unreadableParts, 1);
        QCOMPARE(plan.unreadable.first().line, 2);
        QVERIFY(plan.unreadable.first().reason.contains(QString::fromLatin1(text)));
    } else {
        QCOMPARE(plan.added, 1);
        QCOMPARE(QString::fromStdString(storedText(plan.tasks.front().task.due)), due);
    }
}

void CsvImportTest::statesAndPrioritiesMayBeWordsOrCodes()
{
    ExchangeUnderTest under;
    under.imported("Name,Status,Priority\na,completed,low\nb,2,0\nc,Waiting on someone else,NORMAL\nd,,\n"
                   "e,done,medium\n",
        Csv);
    QCOMPARE(under.database.storedOfAll("task_status"), QStringLiteral("2 2 3 0 2"));
    QCOMPARE(under.database.storedOfAll("task_periority"), QStringLiteral("2 0 1 1 1"));
    const ImportPlan plan = under.planOf("Name,Status\na,whatever\n", Csv);
    QVERIFY(plan.unreadable.first().reason.contains(QLatin1String("\"Status\"")));
}

void CsvImportTest::aReminderIsOnWhenItHasAMoment()
{
    ExchangeUnderTest under;
    under.imported("Name,Due,Reminder time\na,2026-03-01 12:00,2026-03-01 11:00\nb,2026-03-01 12:00,\n", Csv);
    QCOMPARE(under.database.storedOfAll("reminder_on"), QStringLiteral("1 0"));
    QCOMPARE(under.database.storedOfAll("substr(reminder_date_time,12,5)"), QStringLiteral("11:00 12:00"));
}

void CsvImportTest::aPastReminderWithoutItsStateComesInAsDismissed()
{
    ExchangeUnderTest under;
    const ImportPlan plan = under.planOf("Name,Reminder time\na,2026-01-01 11:00\n", Csv);
    QCOMPARE(plan.dismissed, 1);
    QVERIFY(plan.tasks.front().task.dismissed);
}

void CsvImportTest::whatIsNotSaidStaysAsItIs()
{
    ExchangeUnderTest under;
    aTask(under.database)
        .named(QStringLiteral("Task"))
        .describedAs(QStringLiteral("long"))
        .withStatus(TaskStatus::Waiting)
        .remindingAt(at(1, 10, 9, 0))
        .played()
        .dismissed()
        .sounding(QStringLiteral("a.wav"))
        .starting(QStringLiteral("a.sh"))
        .add();
    under.exported(Csv);
    TaskRecord before = under.task();
    QCOMPARE(under.imported("UID,Name\n" + QByteArray::fromStdString(before.uid) + ",New\n", Csv).changed, 1);
    const TaskRecord after = under.task();
    QCOMPARE(after.name, std::string("New"));
    QVERIFY(after.description == before.description && after.status == before.status
        && after.due == before.due && after.reminderOn && after.played && after.dismissed
        && after.sound == before.sound && after.file == before.file && after.reminder == before.reminder);
}

void CsvImportTest::aRowThatCannotBeReadStaysOutWithItsLine()
{
    ExchangeUnderTest under;
    const ImportPlan plan = under.planOf("Name,Description,Reminder\n\"a\n\nb\",x,no\n\nbad,y,perhaps\n"
                                         "worse,\xff,no\nc,z,yes\n",
        Csv);
    QCOMPARE(plan.added, 2);
    QCOMPARE(plan.unreadableParts, 2);
    QCOMPARE(plan.unreadable.at(0).line, 6);
    QCOMPARE(plan.unreadable.at(0).name, QStringLiteral("bad"));
    QCOMPARE(plan.unreadable.at(1).line, 7);
    QVERIFY(plan.unreadable.at(1).reason.contains(QLatin1String("UTF-8")));
}

void CsvImportTest::aQuoteWithoutAnEndIsTold()
{
    ExchangeUnderTest under;
    const ImportPlan plan = under.planOf("Name,Description\na,b\nc,\"d\ne,f\n", Csv);
    QCOMPARE(plan.added, 1);
    QCOMPARE(plan.unreadable.first().line, 3);
    QVERIFY(plan.unreadable.first().reason.contains(QLatin1String("quote")));
}

void CsvImportTest::aFileWithoutNamesIsRefused_data()
{
    QTest::addColumn<QByteArray>("file");
    QTest::newRow("nothing") << QByteArray();
    QTest::newRow("no header") << QByteArray("Buy milk,2026-03-01\n");
    QTest::newRow("a calendar") << calendarOf({});
    QTest::newRow("a database") << QByteArray("SQLite format 3\0\x10", 17);
}

void CsvImportTest::aFileWithoutNamesIsRefused()
{
    QFETCH(const QByteArray, file);
    ExchangeUnderTest under;
    const auto error = caught<RuntimeError>([&] { under.planOf(file, Csv); });
    QVERIFY(error && error->text().contains(QLatin1String("\"Name\"")));
}

AMBERTASK_TEST_MAIN(CsvImportTest)

#include "tst_csv_import.moc"
