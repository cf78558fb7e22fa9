#include "ClockChanges.h"
#include "TimeTravel.h"
#include "support/TestMain.h"

#include <QTest>

using namespace std::chrono_literals;
using std::chrono::sys_days;
using std::chrono::sys_seconds;

namespace
{

constexpr sys_seconds Start = sys_days(std::chrono::January / 15 / 2026) + 10h;

void dueNow(TimeTravel& travel)
{
    travel.remind(QStringLiteral("now"), travel.now());
    travel.start();
    travel.runFor(1min);
    travel.expectSounds({{QStringLiteral("now"), 1}});
}

void startedDaysLate(TimeTravel& travel)
{
    travel.remind(QStringLiteral("days ago"), travel.now() - 72h);
    travel.remind(QStringLiteral("a minute ago"), travel.now() - 1min);
    travel.remind(QStringLiteral("ahead"), travel.now() + 5min);
    travel.start();
    travel.runFor(10min);
    travel.expectSounds(
        {{QStringLiteral("days ago"), 1}, {QStringLiteral("a minute ago"), 1}, {QStringLiteral("ahead"), 1}});
}

void asleepForNineHours(TimeTravel& travel)
{
    travel.start();
    for (int hour = 1; hour <= 8; ++hour) {
        travel.remind(QString::number(hour), travel.now() + std::chrono::hours(hour));
    }
    travel.runFor(1min);
    travel.jump(9h);
    travel.runFor(1min);
    for (int hour = 1; hour <= 8; ++hour) {
        travel.expectSounds({{QString::number(hour), 1}});
    }
}

void clockAnHourForward(TimeTravel& travel)
{
    travel.start();
    travel.remind(QStringLiteral("jumped over"), travel.now() + 30min);
    travel.remind(QStringLiteral("after the jump"), travel.now() + 70min);
    travel.runFor(1min);
    travel.jump(1h);
    travel.runFor(20min);
    travel.expectSounds({{QStringLiteral("jumped over"), 1}, {QStringLiteral("after the jump"), 1}});
}

void clockAnHourBack(TimeTravel& travel)
{
    travel.remind(QStringLiteral("shown before"), travel.now() + 1min);
    travel.remind(QStringLiteral("due long since"), travel.now() - 48h);
    travel.start();
    travel.runFor(2min);
    travel.jump(-1h);
    travel.remind(QStringLiteral("made in the second hour"), travel.now() + 30min);
    travel.runFor(2h);
    travel.expectSounds({{QStringLiteral("shown before"), 1}, {QStringLiteral("due long since"), 1},
        {QStringLiteral("made in the second hour"), 1}});
}

/// A reminder every ten minutes of the wall clock, from two hours before to two hours after `instant`.
void walkPast(TimeTravel& travel, sys_seconds instant)
{
    travel.setInstant(instant - 2h);
    const Moment from = travel.now();
    const auto wallClock = localMoment(instant + 2h) - from;
    int reminders = 0;
    for (auto after = 10min; after < wallClock; after += 10min) {
        travel.remind(QString::number(after.count()), from + after);
        ++reminders;
    }
    travel.start();
    travel.runFor(4h);
    for (int i = 1; i <= reminders; ++i) {
        travel.expectSounds({{QString::number(i * 10), 1}});
    }
}

void clocksGoForward(TimeTravel& travel)
{
    const ClockChange change = forwardInThisZone();
    QVERIFY(change.isReal());
    walkPast(travel, change.instant);
}

void clocksGoBack(TimeTravel& travel)
{
    const ClockChange change = backInThisZone();
    QVERIFY(change.isReal());
    walkPast(travel, change.instant);
}

void setInTheDialogToATimeThatTheClocksSkip(TimeTravel& travel)
{
    const sys_seconds forward = forwardInThisZone().instant;
    travel.setInstant(forward - 1h);
    travel.start();
    const Moment skipped = localMoment(forward - 1s) + 1s + 10min;
    TaskEntry entry = travel.entry(QStringLiteral("skipped"), skipped);
    entry.due = skipped;
    travel.program().addTask(entry);
    QCOMPARE(travel.stored(QStringLiteral("skipped"), "reminder_date_time"),
        QString::fromStdString(storedText(skipped)));
    QCOMPARE(travel.stored(QStringLiteral("skipped"), "task_due_date"),
        QString::fromStdString(storedText(skipped)));
    travel.runFor(2h);
    travel.expectSounds({{QStringLiteral("skipped"), 1}});
}

void zoneChangedWhileRunning(TimeTravel& travel)
{
    const QByteArray zone = qgetenv("TZ");
    travel.start();
    travel.remind(QStringLiteral("due before"), travel.now() - 1min);
    travel.remind(QStringLiteral("in an hour"), travel.now() + 1h);
    travel.remind(QStringLiteral("tomorrow"), travel.now() + 24h);
    travel.runFor(1min);
    for (const char* visited : {"Asia/Tokyo", "America/Los_Angeles", "Pacific/Kiritimati"}) {
        qputenv("TZ", visited);
        travel.runFor(1min);
    }
    qputenv("TZ", zone);
    travel.runFor(1h);
    travel.jump(22h);
    travel.runFor(2h);
    travel.expectSounds({{QStringLiteral("due before"), 1}, {QStringLiteral("in an hour"), 1},
        {QStringLiteral("tomorrow"), 1}});
}

void killedBeforeDismiss(TimeTravel& travel)
{
    const qint32 id = travel.remind(QStringLiteral("shown"), travel.now());
    travel.start();
    travel.runFor(1min);
    travel.program().kill();
    travel.remind(QStringLiteral("fell due meanwhile"), travel.now() + 3h);
    travel.jump(8h);
    travel.start();
    travel.runFor(1min);
    QCOMPARE(travel.program().listed().size(), 2);
    QVERIFY(travel.program().isAlertVisible());
    travel.program().dismiss(id);
    travel.program().kill();
    travel.start();
    travel.runFor(1min);
    QCOMPARE(travel.program().listed().size(), 1);
    travel.expectSounds({{QStringLiteral("shown"), 1}, {QStringLiteral("fell due meanwhile"), 1}});
}

void movedWhileShown(TimeTravel& travel)
{
    const qint32 id = travel.remind(QStringLiteral("moved"), travel.now());
    travel.remind(QStringLiteral("other"), travel.now());
    travel.start();
    travel.runFor(1min);
    travel.program().editListedTask(id, travel.entry(QStringLiteral("moved"), travel.now() + 10min));
    travel.runFor(5min);
    QCOMPARE(travel.program().listed().size(), 1);
    travel.runFor(10min);
    travel.expectSounds({{QStringLiteral("moved"), 2}, {QStringLiteral("other"), 1}});
}

void postponedWhileShown(TimeTravel& travel)
{
    const qint32 id = travel.remind(QStringLiteral("later"), travel.now());
    travel.remind(QStringLiteral("other"), travel.now());
    travel.start();
    travel.runFor(1min);
    travel.program().remindLater(id, travel.now() + 1h);
    travel.runFor(2h);
    travel.expectSounds({{QStringLiteral("later"), 2}, {QStringLiteral("other"), 1}});
}

void renamedWhileShown(TimeTravel& travel)
{
    const Moment moment = travel.now();
    const qint32 id = travel.remind(QStringLiteral("old"), moment);
    travel.start();
    travel.runFor(1min);
    TaskEntry entry = travel.entry(QStringLiteral("old"), moment);
    entry.name = QStringLiteral("new");
    travel.program().editTask(id, entry);
    travel.runFor(1min);
    QCOMPARE(travel.program().listed(), QList<qint32>{id});
    travel.expectSounds({{QStringLiteral("old"), 1}});
}

void deletedWhileShown(TimeTravel& travel)
{
    const qint32 gone = travel.remind(QStringLiteral("gone"), travel.now());
    const qint32 stays = travel.remind(QStringLiteral("stays"), travel.now());
    travel.start();
    travel.runFor(1min);
    travel.program().deleteTask(gone);
    travel.runFor(1min);
    QCOMPARE(travel.program().listed(), QList<qint32>{stays});
    travel.remind(QStringLiteral("next"), travel.now() + 5min);
    travel.runFor(10min);
    travel.expectSounds(
        {{QStringLiteral("gone"), 1}, {QStringLiteral("stays"), 1}, {QStringLiteral("next"), 1}});
}

void categoryDeletedWhileShown(TimeTravel& travel)
{
    const qint16 category = travel.program().database().addCategory(QStringLiteral("doomed"));
    travel.remind(QStringLiteral("gone 1"), travel.now(), category);
    travel.remind(QStringLiteral("gone 2"), travel.now(), category);
    const qint32 stays = travel.remind(QStringLiteral("stays"), travel.now());
    travel.start();
    travel.runFor(1min);
    travel.program().deleteCategory(category);
    travel.runFor(1min);
    QCOMPARE(travel.program().listed(), QList<qint32>{stays});
    travel.expectSounds(
        {{QStringLiteral("gone 1"), 1}, {QStringLiteral("gone 2"), 1}, {QStringLiteral("stays"), 1}});
}

void oneComesWhileTwoGo(TimeTravel& travel)
{
    const qint32 first = travel.remind(QStringLiteral("first"), travel.now());
    const qint32 second = travel.remind(QStringLiteral("second"), travel.now());
    travel.start();
    travel.runFor(1min);
    travel.program().deleteTask(first);
    travel.program().deleteTask(second);
    travel.remind(QStringLiteral("third"), travel.now());
    travel.runFor(1min);
    travel.remind(QStringLiteral("fourth"), travel.now());
    travel.runFor(1min);
    travel.expectSounds({{QStringLiteral("third"), 1}, {QStringLiteral("fourth"), 1}});
}

void aThousandAtOnce(TimeTravel& travel)
{
    constexpr int Many = 1000;
    travel.start();
    travel.remindMany(Many, travel.now() + 5min);
    travel.runFor(10min);
    QCOMPARE(travel.program().listed().size(), Many);
    for (int i = 1; i <= Many; ++i) {
        travel.expectSounds({{QString::number(i), 1}});
    }
    travel.program().dismissAll();
    travel.runFor(1min);
    QCOMPARE(travel.program().listed().size(), 0);
}

void restoredWithDueReminders(TimeTravel& travel)
{
    const QTemporaryDir elsewhere;
    const QString backup = elsewhere.filePath(QStringLiteral("b.abk"));
    travel.remind(QStringLiteral("rung before the backup"), travel.now());
    travel.remind(QStringLiteral("due between backup and restore"), travel.now() + 1h);
    travel.remind(QStringLiteral("due after the restore"), travel.now() + 5h);
    travel.start();
    travel.runFor(1min);
    travel.program().backUp(backup);
    travel.program().dismissAll();
    travel.program().deleteCategory(
        static_cast<qint16>(travel.stored(QStringLiteral("due after the restore"), "cat_id").toInt()));
    travel.runFor(3h);
    QCOMPARE(travel.program().listed().size(), 0);
    travel.program().restore(backup);
    travel.runFor(1min);
    QCOMPARE(travel.program().listed().size(), 2);
    travel.runFor(3h);
    travel.expectSounds({{QStringLiteral("rung before the backup"), 1},
        {QStringLiteral("due between backup and restore"), 1}, {QStringLiteral("due after the restore"), 1}});
}

} // namespace

using Story = void (*)(TimeTravel&);
Q_DECLARE_METATYPE(Story)

class RemindersThroughTimeTest : public TestCase
{
    Q_OBJECT

private slots:
    void nothingIsMissedAndNothingSoundsTwice_data();
    void nothingIsMissedAndNothingSoundsTwice();
};

void RemindersThroughTimeTest::nothingIsMissedAndNothingSoundsTwice_data()
{
    QTest::addColumn<Story>("story");
    QTest::newRow("due now") << Story(dueNow);
    QTest::newRow("started days late") << Story(startedDaysLate);
    QTest::newRow("asleep for nine hours") << Story(asleepForNineHours);
    QTest::newRow("clock set an hour forward") << Story(clockAnHourForward);
    QTest::newRow("clock set an hour back") << Story(clockAnHourBack);
    QTest::newRow("clocks go forward") << Story(clocksGoForward);
    QTest::newRow("clocks go back") << Story(clocksGoBack);
    QTest::newRow("set to a time that the clocks skip") << Story(setInTheDialogToATimeThatTheClocksSkip);
    QTest::newRow("zone changed while running") << Story(zoneChangedWhileRunning);
    QTest::newRow("killed before dismiss") << Story(killedBeforeDismiss);
    QTest::newRow("moved while shown") << Story(movedWhileShown);
    QTest::newRow("postponed while shown") << Story(postponedWhileShown);
    QTest::newRow("renamed while shown") << Story(renamedWhileShown);
    QTest::newRow("deleted while shown") << Story(deletedWhileShown);
    QTest::newRow("category deleted while shown") << Story(categoryDeletedWhileShown);
    QTest::newRow("one comes while two go") << Story(oneComesWhileTwoGo);
    QTest::newRow("a thousand at once") << Story(aThousandAtOnce);
    QTest::newRow("restored with due reminders") << Story(restoredWithDueReminders);
}

void RemindersThroughTimeTest::nothingIsMissedAndNothingSoundsTwice()
{
    QFETCH(const Story, story);
    TimeTravel travel(Start);
    story(travel);
    QCOMPARE(travel.faults().join(u'\n'), QString());
}

AMBERTASK_TEST_MAIN(RemindersThroughTimeTest)
#include "tst_reminders_through_time.moc"
