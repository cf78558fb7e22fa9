#include "AlertsFixture.h"
#include "data/TaskCodes.h"
#include "support/TestMain.h"

#include <QSignalSpy>
#include <QTest>

using namespace std::chrono_literals;

namespace
{

Moment at(std::chrono::year_month_day day, std::chrono::seconds timeOfDay)
{
    return makeMoment(day, timeOfDay);
}

constexpr auto SpringForward = std::chrono::March / 29 / 2026;
constexpr auto FallBack = std::chrono::October / 25 / 2026;

enum Column { Name = 1, DueDate = 3 };

QVariant ask(const AlertsFixture& alerts, int row, int column, int role)
{
    return alerts.grid()->model()->index(row, column).data(role);
}

RowInk inkOf(const AlertsFixture& alerts, int row)
{
    return static_cast<RowInk>(ask(alerts, row, Name, GridModel::InkRole).toInt());
}

} // namespace

class tst_alerts_clock : public TestCase
{
    Q_OBJECT

private slots:
    void aReminderComesUpWithTheFirstTickAtOrAfterItsMoment()
    {
        AlertsFixture alerts;
        aTask(alerts.database()).named(QStringLiteral("x")).remindingAt(alerts.now() + 5min).add();
        alerts.clock().step(5min - 1s);
        alerts.tick();
        QCOMPARE(alerts.rows(), 0);
        alerts.clock().step(10s);
        alerts.tick();
        QCOMPARE(alerts.names(), QStringList(QStringLiteral("x")));
    }

    void whatIsLateDueTodayAndDoneIsToldByColourFontAndWord()
    {
        AlertsFixture alerts;
        alerts.aDueTask(QStringLiteral("late")).dueAt(alerts.now() - 1s).add();
        alerts.aDueTask(QStringLiteral("today")).dueAt(alerts.now() + 1h).add();
        alerts.aDueTask(QStringLiteral("tomorrow")).dueAt(alerts.now() + 24h).add();
        alerts.aDueTask(QStringLiteral("done")).withStatus(TaskStatus::Completed).add();
        alerts.tick();
        const QList<RowInk> inks{RowInk::Overdue, RowInk::DueToday, RowInk::Usual, RowInk::Done};
        const QStringList words{QStringLiteral("Overdue\n1 minute late"),
            QStringLiteral("Due today\n1 minute late"), QStringLiteral("1 minute late"),
            QStringLiteral("1 minute late")};
        for (int row = 0; row < 4; ++row) {
            QCOMPARE(inkOf(alerts, row), inks[row]);
            QCOMPARE(ask(alerts, row, DueDate, Qt::AccessibleDescriptionRole).toString(), words[row]);
        }
        const auto font = [&alerts](int row, int column) {
            return ask(alerts, row, column, Qt::FontRole).value<QFont>();
        };
        QVERIFY(font(0, Name).bold() && font(0, DueDate).bold());
        QVERIFY(!font(1, Name).bold() && font(1, DueDate).bold());
        QVERIFY(!ask(alerts, 2, DueDate, Qt::FontRole).isValid());
        QVERIFY(font(3, Name).strikeOut());
    }

    void aTaskBecomesLateWhileItsReminderIsListed()
    {
        AlertsFixture alerts;
        alerts.aDueTask(QStringLiteral("today")).dueAt(alerts.now() + 1h).add();
        alerts.tick();
        const QSignalSpy changes(alerts.grid()->model(), &QAbstractItemModel::dataChanged);
        alerts.clock().step(1h);
        alerts.tick();
        QCOMPARE(changes.count(), 0);
        QCOMPARE(inkOf(alerts, 0), RowInk::DueToday);
        alerts.clock().step(1s);
        alerts.tick();
        QCOMPARE(changes.count(), 1);
        QCOMPARE(inkOf(alerts, 0), RowInk::Overdue);
    }

    void afterHoursAsleepEverythingMissedComesUpAtOnce()
    {
        AlertsFixture alerts;
        for (int hour = 1; hour <= 3; ++hour) {
            aTask(alerts.database())
                .named(QString::number(hour))
                .remindingAt(alerts.now() + std::chrono::hours(hour))
                .sounding(QStringLiteral("%1.wav").arg(hour))
                .add();
        }
        alerts.tick();
        alerts.clock().step(9h);
        alerts.tick();
        QCOMPARE(alerts.caption(), QStringLiteral("3 Reminders"));
        QCOMPARE(alerts.takeSounds(),
            QStringList(
                {QStringLiteral("play 1.wav"), QStringLiteral("play 2.wav"), QStringLiteral("play 3.wav")}));
        alerts.tick();
        QCOMPARE(alerts.takeSounds(), QStringList());
    }

    void aClockSetForwardAYearMissesNothing()
    {
        AlertsFixture alerts;
        aTask(alerts.database()).named(QStringLiteral("x")).remindingAt(alerts.now() + 24h).add();
        alerts.tick();
        alerts.clock().step(24h * 365);
        alerts.tick();
        QCOMPARE(alerts.names(), QStringList(QStringLiteral("x")));
    }

    void aClockSetBackTakesTheReminderAwayAndBringsItBackSilently()
    {
        AlertsFixture alerts;
        aTask(alerts.database())
            .named(QStringLiteral("x"))
            .remindingAt(alerts.now())
            .sounding(QStringLiteral("x.wav"))
            .add();
        alerts.tick();
        alerts.takeSounds();
        alerts.clock().step(-2h);
        alerts.tick();
        QCOMPARE(alerts.caption(), QStringLiteral("0 Reminders"));
        QVERIFY(!alerts.window.isVisible());
        alerts.clock().step(2h);
        alerts.tick();
        QVERIFY(alerts.window.isVisible());
        QCOMPARE(alerts.names(), QStringList(QStringLiteral("x")));
        QCOMPARE(alerts.takeSounds(), QStringList());
    }

    void aReminderInsideTheSkippedHourComesUpWhenTheClocksGoForward()
    {
        AlertsFixture alerts;
        alerts.clock().set(at(SpringForward, 59min + 55s));
        aTask(alerts.database())
            .named(QStringLiteral("01:30, which does not exist"))
            .remindingAt(at(SpringForward, 1h + 30min))
            .sounding(QStringLiteral("x.wav"))
            .add();
        alerts.tick();
        QCOMPARE(alerts.rows(), 0);
        alerts.clock().set(at(SpringForward, 2h + 5s));
        alerts.tick();
        QCOMPARE(alerts.rows(), 1);
        QCOMPARE(alerts.takeSounds(), QStringList(QStringLiteral("play x.wav")));
    }

    void aReminderInsideTheRepeatedHourSoundsOnce()
    {
        AlertsFixture alerts;
        alerts.clock().set(at(FallBack, 1h + 30min));
        aTask(alerts.database())
            .named(QStringLiteral("x"))
            .remindingAt(at(FallBack, 1h + 30min))
            .sounding(QStringLiteral("x.wav"))
            .add();
        alerts.tick();
        QCOMPARE(alerts.takeSounds(), QStringList(QStringLiteral("play x.wav")));
        alerts.clock().set(at(FallBack, 1h));
        alerts.tick();
        QVERIFY(!alerts.window.isVisible());
        alerts.clock().set(at(FallBack, 1h + 30min));
        alerts.tick();
        QVERIFY(alerts.window.isVisible());
        QCOMPARE(alerts.takeSounds(), QStringList());
    }

    void aReminderAtTheLastSecondOfTheYearCrossesIt()
    {
        AlertsFixture alerts;
        alerts.clock().set(at(std::chrono::December / 31 / 2026, 23h + 59min + 58s));
        aTask(alerts.database())
            .named(QStringLiteral("x"))
            .remindingAt(at(std::chrono::December / 31 / 2026, 23h + 59min + 59s))
            .add();
        alerts.tick();
        QCOMPARE(alerts.rows(), 0);
        alerts.clock().step(10s);
        alerts.tick();
        QCOMPARE(alerts.rows(), 1);
    }
};

AMBERTASK_TEST_MAIN(tst_alerts_clock)
#include "tst_alerts_clock.moc"
