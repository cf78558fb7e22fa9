#include "data/ReminderChecker.h"
#include "support/CaughtError.h"
#include "support/TestDatabase.h"
#include "support/TestMain.h"

#include <QFile>
#include <QTest>

using namespace std::chrono_literals;
using Outcome = ReminderChecker::Outcome;

namespace
{

QStringList namesOf(const ReminderChecker& checker)
{
    QStringList names;
    for (const DueReminder& reminder : checker.due()) {
        names.append(reminder.name);
    }
    return names;
}

} // namespace

Q_DECLARE_METATYPE(ReminderChecker::Outcome)

class tst_reminderchecker : public TestCase
{
    Q_OBJECT

private slots:
    void theTwoStatementsAreWordedExactlyAndShareOneConnection()
    {
        TestDatabase database;
        ReminderChecker checker(database.engine());
        checker.markPlayed();
        QCOMPARE(database.statements().opened(), 1);
        QCOMPARE(database.statements().closed(), 0);
        checker.close();
        QCOMPARE(database.statements().closed(), 1);
        QCOMPARE(database.statements().take(),
            QStringList(
                {QStringLiteral("select * from tasks,categories  where tasks.cat_id=categories.cat_id "
                                "and reminder_date_time <= now() and dismissed =0 and reminder_on=true"),
                    QStringLiteral(
                        "update  tasks set played=1 where reminder_date_time <= now() and dismissed =0 "
                        "and reminder_on=true")}));
        QCOMPARE(database.statements().lastConnectionString(),
            QStringLiteral("Provider=Microsoft.Jet.OLEDB.4.0;Data Source= ") + database.dataFile());
    }

    void aReminderComesWhateverItsStatusHolds()
    {
        TestDatabase database;
        aTask(database).named(QStringLiteral("x")).remindingAt(database.clock().now()).add();
        database.sql(QStringLiteral("update tasks set task_status='waiting for Anna'"));
        QCOMPARE(namesOf(ReminderChecker(database.engine())), QStringList(QStringLiteral("x")));
    }

    void aReminderIsDueFromItsVerySecondOn()
    {
        TestDatabase database;
        aTask(database).named(QStringLiteral("x")).remindingAt(database.clock().now() + 1s).add();
        QCOMPARE(namesOf(ReminderChecker(database.engine())), QStringList());
        database.clock().step(1s);
        QCOMPARE(namesOf(ReminderChecker(database.engine())), QStringList(QStringLiteral("x")));
    }

    void onlyArmedRemindersThatWereNotDismissedAreDueWhetherPlayedOrNot()
    {
        TestDatabase database;
        const Moment past = database.clock().now() - 1h;
        aTask(database).named(QStringLiteral("armed")).remindingAt(past).add();
        aTask(database).named(QStringLiteral("played")).remindingAt(past).played().add();
        aTask(database).named(QStringLiteral("dismissed")).remindingAt(past).dismissed().add();
        const qint32 off = aTask(database).named(QStringLiteral("off")).remindingAt(past).add();
        database.sql(QStringLiteral("update tasks set reminder_on=0 where task_id=%1").arg(off));
        const qint32 lost = aTask(database).named(QStringLiteral("without category")).remindingAt(past).add();
        database.sql(QStringLiteral("update tasks set cat_id=999 where task_id=%1").arg(lost));
        QCOMPARE(namesOf(ReminderChecker(database.engine())),
            QStringList({QStringLiteral("armed"), QStringLiteral("played")}));
    }

    void everyFieldIsRead()
    {
        TestDatabase database;
        const Moment now = database.clock().now();
        const qint16 category = database.addCategory(QStringLiteral("Garden"), 7);
        const qint32 id = aTask(database)
                              .named(QStringLiteral("Anna's \"call\" <b>"))
                              .in(category)
                              .withPeriority(2)
                              .dueAt(now + 90min)
                              .remindingAt(now)
                              .sounding(QStringLiteral("/a b/tone.wav"))
                              .starting(QStringLiteral(" /c d/run "))
                              .played()
                              .add();
        const ReminderChecker checker(database.engine());
        QCOMPARE(checker.due().size(), std::size_t(1));
        const DueReminder& reminder = checker.due().front();
        QCOMPARE(reminder.id, id);
        QCOMPARE(reminder.name, QStringLiteral("Anna's \"call\" <b>"));
        QCOMPARE(reminder.icon, 7);
        QCOMPARE(reminder.periority, 2);
        QVERIFY(reminder.dueDate == now + 90min);
        QCOMPARE(reminder.sound, QStringLiteral("/a b/tone.wav"));
        QCOMPARE(reminder.file, QStringLiteral(" /c d/run "));
        QVERIFY(reminder.played);
        QVERIFY(reminder.reminderOn);
    }

    void aPictureNumberBeyondSixteenBitsHidesNoReminder()
    {
        TestDatabase database;
        aTask(database).remindingAt(database.clock().now()).add();
        database.sql(QStringLiteral("update categories set cat_icon=70000"));
        const ReminderChecker checker(database.engine());
        QCOMPARE(checker.due().size(), std::size_t(1));
    }

    void soundAndFileFireOnlyWhenNamedAndNotYetPlayed()
    {
        DueReminder reminder;
        reminder.reminderOn = true;
        QVERIFY(!reminder.playsSound());
        QVERIFY(!reminder.startsFile());
        reminder.sound = QStringLiteral("a.wav");
        reminder.file = QStringLiteral("run");
        QVERIFY(reminder.playsSound());
        QVERIFY(reminder.startsFile());
        reminder.played = true;
        QVERIFY(!reminder.playsSound());
        QVERIFY(!reminder.startsFile());
        reminder.played = false;
        reminder.reminderOn = false;
        QVERIFY(!reminder.playsSound());
        QVERIFY(reminder.startsFile());
    }

    void theOutcomeComparesTheDueWithTheShown_data()
    {
        QTest::addColumn<int>("shown");
        QTest::addColumn<int>("due");
        QTest::addColumn<Outcome>("outcome");
        QTest::newRow("none, none") << 0 << 0 << Outcome::Nothing;
        QTest::newRow("the same number") << 2 << 2 << Outcome::Nothing;
        QTest::newRow("the first") << 0 << 1 << Outcome::BringUp;
        QTest::newRow("more") << 1 << 3 << Outcome::BringUp;
        QTest::newRow("fewer, but some") << 3 << 1 << Outcome::Redraw;
        QTest::newRow("none left") << 3 << 0 << Outcome::Hide;
    }

    void theOutcomeComparesTheDueWithTheShown()
    {
        QFETCH(int, shown);
        QFETCH(int, due);
        TestDatabase database;
        for (int i = 0; i < due; ++i) {
            aTask(database).remindingAt(database.clock().now()).add();
        }
        QTEST(ReminderChecker(database.engine()).outcome(shown), "outcome");
    }

    void aReminderThatFallsDueDuringTheCheckIsNotMarkedUnseen()
    {
        TestDatabase database;
        const Moment now = database.clock().now();
        const qint32 listed = aTask(database).remindingAt(now).add();
        const qint32 meanwhile = aTask(database).remindingAt(now + 1s).add();
        ReminderChecker checker(database.engine());
        database.clock().step(1s);
        checker.markPlayed();
        checker.close();
        const QString played = QStringLiteral("select played from tasks where task_id=%1");
        QCOMPARE(database.sql(played.arg(listed)).toInt(), 1);
        QCOMPARE(database.sql(played.arg(meanwhile)).toInt(), 0);
    }

    void aCheckThatEndsBeforeTheMarkLeavesTheReminderArmed()
    {
        TestDatabase database;
        aTask(database).remindingAt(database.clock().now()).sounding(QStringLiteral("a.wav")).add();
        {
            const ReminderChecker cutOff(database.engine());
            QVERIFY(cutOff.due().front().playsSound());
        }
        QVERIFY(ReminderChecker(database.engine()).due().front().playsSound());
    }

    void aMissingDataFileIsReported()
    {
        TestDatabase database;
        QVERIFY(QFile::remove(database.dataFile()));
        const auto error = caught([&] { ReminderChecker checker(database.engine()); });
        QVERIFY(error.has_value());
        QVERIFY(error->kind() == DatabaseError::Kind::Storage);
    }

    void aRecordThatCannotBeReadHidesNoOther_data()
    {
        QTest::addColumn<QString>("damage");
        QTest::newRow("a text for a moment") << QStringLiteral("task_due_date='soon'");
        QTest::newRow("a day that does not exist") << QStringLiteral("task_due_date='2026-02-30 10:00:00'");
        QTest::newRow("a number for a moment") << QStringLiteral("task_due_date=46000");
        QTest::newRow("bytes for a moment") << QStringLiteral("task_due_date=x'00'");
        QTest::newRow("a text for a number") << QStringLiteral("task_periority='urgent'");
        QTest::newRow("a number out of range") << QStringLiteral("task_periority=5000000000");
        QTest::newRow("bytes for a text") << QStringLiteral("task_name=x'ff00'");
        QTest::newRow("an id out of range") << QStringLiteral("task_id=5000000000");
        QTest::newRow("a null for a moment") << QStringLiteral("task_due_date=null");
        QTest::newRow("a null for a text") << QStringLiteral("reminder_sound=null");
    }

    void aRecordThatCannotBeReadHidesNoOther()
    {
        QFETCH(const QString, damage);
        TestDatabase database;
        const Moment now = database.clock().now();
        aTask(database).named(QStringLiteral("before")).remindingAt(now).add();
        const qint32 bad = aTask(database).named(QStringLiteral("bad")).remindingAt(now).add();
        aTask(database).named(QStringLiteral("behind")).remindingAt(now).add();
        // A table as other tools make it, without constraints.
        database.sql(QStringLiteral("create table copy as select * from tasks; drop table tasks;"
                                    "alter table copy rename to tasks;"));
        database.sql(QStringLiteral("update tasks set %1 where task_id=%2").arg(damage).arg(bad));
        ReminderChecker checker(database.engine());
        QCOMPARE(namesOf(checker), QStringList({QStringLiteral("before"), QStringLiteral("behind")}));
        QCOMPARE(checker.outcome(0), Outcome::BringUp);
        QCOMPARE(checker.outcome(2), Outcome::Nothing);
        checker.close();
    }

    void aColumnThatIsMissingIsAnError()
    {
        TestDatabase database;
        database.sql(QStringLiteral("alter table tasks rename column reminder_sound to sound"));
        const auto error = caught([&] { ReminderChecker checker(database.engine()); });
        QVERIFY(error.has_value());
        QVERIFY(error->text().contains(QStringLiteral("reminder_sound")));
        QCOMPARE(database.statements().opened(), database.statements().closed());
    }
};

AMBERTASK_TEST_MAIN(tst_reminderchecker)
#include "tst_reminderchecker.moc"
