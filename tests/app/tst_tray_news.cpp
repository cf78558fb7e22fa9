#include "ProgramFixture.h"
#include "app/TasksPage.h"
#include "app/TrayNews.h"
#include "data/TaskCodes.h"
#include "reminders/frmAlerts.h"
#include "support/TestMain.h"
#include "widgets/TrayIcon.h"

#include <QTimer>
#include <filesystem>

using namespace std::chrono_literals;

namespace
{

/// The program with its tray icon; time passes by ticks alone.
struct Tray : ProgramFixture {
    void load()
    {
        start();
        program.loadDialogs();
        alerts().findChild<QTimer*>(QStringLiteral("tmrTasksChecker"))->stop();
        QCoreApplication::processEvents();
        database.statements().take();
    }
    frmAlerts& alerts() { return program.alerts(); }
    TrayIcon& icon() { return main().trayIcon(); }
    QString tick()
    {
        alerts().tmrTasksChecker_Timer();
        return icon().news();
    }
    /// The counts among the statements since the last call.
    int counts() { return static_cast<int>(database.statements().take().filter("overdue").size()); }
    TaskBuilder aTaskDueIn(std::chrono::seconds time)
    {
        return aTask(database).dueAt(database.clock().now() + time);
    }
    /// Does something to the data file, which the file system dates no later than what was done before.
    template <typename Change> void changeFile(const Change& change) const
    {
        const std::filesystem::path file = QFile::encodeName(database.dataFile()).toStdString();
        const auto before = std::filesystem::last_write_time(file);
        change();
        std::filesystem::last_write_time(file, before);
    }
    TaskBuilder aDueReminder() { return aTaskDueIn(1h).remindingAt(database.clock().now() - 1min); }
};

} // namespace

class TrayNewsTest : public TestCase
{
    Q_OBJECT

private slots:
    void nothingIsSaidOfNone()
    {
        QCOMPARE(TrayNews::text(0, 0), QString());
        QCOMPARE(TrayNews::text(2, 0), QStringLiteral("2 due"));
        QCOMPARE(TrayNews::text(0, 3), QStringLiteral("3 overdue"));
        QCOMPARE(TrayNews::text(2, 3), QStringLiteral("2 due, 3 overdue"));
    }

    void whatIsDueAndOverdueIsToldFromTheFirstCheckOn()
    {
        Tray f;
        f.aDueReminder().add();
        f.aTaskDueIn(-1h).add();
        f.aTaskDueIn(-2h).add();
        f.aTaskDueIn(-3h).withStatus(TaskStatus::Completed).add();
        f.load();
        QCOMPARE(f.icon().news(), QStringLiteral("1 due, 2 overdue"));
    }

    void idleTicksCountNothing()
    {
        Tray f;
        f.aTaskDueIn(-1h).add();
        f.aTaskDueIn(1min).add();
        f.load();
        for (int i = 0; i < 6; ++i) {
            QCOMPARE(f.tick(), QStringLiteral("1 overdue"));
            f.database.clock().step(10s);
        }
        QCOMPARE(f.counts(), 0);
    }

    void timeThatMakesATaskLateIsNoticed()
    {
        Tray f;
        f.aTaskDueIn(10s).add();
        f.load();
        f.database.clock().step(10s);
        QCOMPARE(f.tick(), QString());
        f.database.clock().step(1s);
        QCOMPARE(f.tick(), QStringLiteral("1 overdue"));
        QCOMPARE(f.counts(), 1);
        f.database.clock().step(-1h);
        QCOMPARE(f.tick(), QString());
    }

    void aChangeOfTheDataFileIsNoticedWhoeverMadeIt()
    {
        Tray f;
        f.load();
        f.changeFile([&f] { f.aTaskDueIn(-1h).add(); });
        QCOMPARE(f.tick(), QStringLiteral("1 overdue"));
        f.changeFile([&f] { f.database.sql(QStringLiteral("update tasks set task_status=2")); });
        QCOMPARE(f.tick(), QString());
    }

    void aDeletedTaskIsNotWaitedForUntilTheNextTick()
    {
        Tray f;
        f.aTaskDueIn(-1h).add();
        f.load();
        f.grid(f.main())->selectOnly(0);
        f.dialogs.expectAsk(QStringLiteral("Are you sure you want to delete this task?"), true);
        f.press(f.main(), "btnTaskDelete");
        QTRY_COMPARE(f.icon().news(), QString());
    }

    void aFailedCountIsTriedAgain()
    {
        Tray f;
        f.load();
        f.changeFile([&f] { f.aTaskDueIn(-1h).add(); });
        f.database.statements().failAt(QStringLiteral("as overdue"));
        QCOMPARE(f.tick(), QString());
        f.database.statements().failAt({});
        QCOMPARE(f.tick(), QStringLiteral("1 overdue"));
    }

    void theBadgeIsWornWhileRemindersAreDueAndTheAlertIsNotInFront()
    {
        Tray f;
        f.load();
        QVERIFY(!f.icon().hasBadge());
        f.aDueReminder().add();
        f.tick();
        QVERIFY(f.alerts().isVisible());
        QVERIFY(!f.icon().hasBadge());
        f.alerts().activateWindow();
        QVERIFY(QTest::qWaitForWindowActive(&f.alerts()));
        f.main().activateWindow();
        QVERIFY(QTest::qWaitForWindowActive(&f.main()));
        QVERIFY(f.icon().hasBadge());
        f.tick();
        QVERIFY(f.icon().hasBadge());
        f.alerts().activateWindow();
        QVERIFY(QTest::qWaitForWindowActive(&f.alerts()));
        QVERIFY(!f.icon().hasBadge());
        f.alerts().close();
        QVERIFY(!f.alerts().isVisible());
        QVERIFY(f.icon().hasBadge());
        f.database.sql(QStringLiteral("update tasks set dismissed=1"));
        f.tick();
        QVERIFY(!f.icon().hasBadge());
    }

    void theBadgeGoesWithTheLastReminder_data()
    {
        QTest::addColumn<QByteArray>("button");
        for (const char* button : {"btnDismiss", "btnDismissAll"}) {
            QTest::newRow(button) << QByteArray(button);
        }
    }
    void theBadgeGoesWithTheLastReminder()
    {
        QFETCH(const QByteArray, button);
        Tray f;
        f.aDueReminder().add();
        f.load();
        f.control<QPushButton>(f.alerts(), button)->click();
        QVERIFY(!f.alerts().isVisible());
        QVERIFY(!f.icon().hasBadge());
        QCoreApplication::processEvents();
        QCOMPARE(f.icon().news(), QString());
    }
};

AMBERTASK_TEST_MAIN(TrayNewsTest)
#include "tst_tray_news.moc"
