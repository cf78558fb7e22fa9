#include "reliability/AgreeableUser.h"
#include "reliability/DataFileState.h"
#include "reliability/Sweep.h"
#include "reminders/AlertsFixture.h"
#include "support/TestMain.h"
#include "widgets/GridView.h"

#include <QTest>

namespace
{

using namespace std::chrono_literals;

void require(bool holds, const char* what)
{
    if (!holds) {
        throw std::logic_error(what);
    }
}

std::string stateIn(const std::string& folder)
{
    return dataFileState(folder);
}

/// An alert window over three due reminders, two of them with a sound, made anew for each try.
struct FaultyAlerts : AgreeableServices {
    FaultyAlerts()
    {
        for (const char* name : {"first", "second", "third"}) {
            TaskBuilder task = aTask(database);
            task.named(QLatin1String(name)).remindingAt(database.clock().now() - 1min);
            if (QLatin1String(name) != QLatin1String("third")) {
                task.sounding(QLatin1String(name) + QLatin1String(".wav"));
            }
            task.add();
        }
    }
    void makeWindow()
    {
        window = std::make_unique<frmAlerts>(
            faced, host, [this] { return std::make_unique<RecordedWave>(sounds); });
        QObject::connect(
            window.get(), &frmAlerts::remindersDismissed, window.get(), [this] { ++dismissals; });
        sounds.clear();
    }
    void tick() { window->tmrTasksChecker_Timer(); }
    QStringList names() const
    {
        QStringList all;
        const QAbstractItemModel* rows = window->findChild<GridView*>(QStringLiteral("grdTasks"))->model();
        for (int row = 0; row < rows->rowCount(); ++row) {
            all.append(rows->index(row, 1).data().toString());
        }
        return all;
    }
    /// Presses the button. After an error the list is as it was, and nobody is told.
    Told press(const char* button)
    {
        const qsizetype errorsBefore = user.errors.size();
        const QStringList before = names();
        dismissals = 0;
        window->findChild<QAbstractButton*>(QLatin1String(button))->click();
        require(user.errors.size() <= errorsBefore + 1, "one failure was reported twice");
        if (user.errors.size() == errorsBefore) {
            return Told::Success;
        }
        require(names() == before && window->isVisible() && dismissals == 0, "the list changed on an error");
        return Told::Failure;
    }

    RecordedAlertsHost host;
    QStringList sounds;
    std::unique_ptr<frmAlerts> window;
    int dismissals = 0;
};

} // namespace

class TestAlertFaults : public TestCase
{
    Q_OBJECT

private slots:
    void aFailedTickIsSilentAndTheNextMakesUpForIt();
    void aDismissedReminderStaysDismissed();
    void allRemindersAreDismissedOrNone();
    void aPostponedReminderStaysPostponed();
    void cleanupTestCase() { qInfo("all: %s", qPrintable(m_all.text())); }

private:
    void trySweep(const TestServices& services, Operation operation, bool cutsPower = false)
    {
        Sweep sweep(services.database.folder().toStdString(), std::move(operation));
        sweep.everyFault();
        if (cutsPower) {
            sweep.everyPowerCut(2 * sweeps());
        }
        m_all += sweep.figures();
        qInfo("%s", qPrintable(sweep.figures().text()));
        QVERIFY2(sweep.complaints().isEmpty(), qPrintable(sweep.complaints()));
    }
    /// The window has come up, and the row is selected.
    static std::function<void()> listed(FaultyAlerts& alerts)
    {
        return [&alerts] {
            alerts.makeWindow();
            alerts.tick();
            alerts.window->findChild<GridView*>(QStringLiteral("grdTasks"))->selectOnly(1);
        };
    }

    Sweep::Figures m_all;
};

void TestAlertFaults::aFailedTickIsSilentAndTheNextMakesUpForIt()
{
    FaultyAlerts alerts;
    const QStringList all{QStringLiteral("first"), QStringLiteral("second"), QStringLiteral("third")};
    trySweep(alerts,
        {[&] {
             alerts.tick();
             require(alerts.user.errors.isEmpty() && alerts.user.told.isEmpty(), "something was said");
             require(alerts.names().isEmpty() || alerts.names() == all, "some reminders are missing");
             require(alerts.names().isEmpty() != alerts.window->isVisible(), "the window hides reminders");
             return Told::Nothing;
         },
            stateIn, [&] { alerts.makeWindow(); },
            [&] {
                require(alerts.names() == all, "the reminders are not listed");
                require(alerts.sounds
                        == QStringList({QStringLiteral("play first.wav"), QStringLiteral("play second.wav")}),
                    "the sounds have not been played once each");
            }},
        true);
}

void TestAlertFaults::aDismissedReminderStaysDismissed()
{
    FaultyAlerts alerts;
    alerts.database.sql(QStringLiteral("update tasks set played=1"));
    trySweep(alerts,
        {[&] { return alerts.press("btnDismiss"); }, stateIn, listed(alerts),
            [&] {
                require(alerts.names() == QStringList({QStringLiteral("first"), QStringLiteral("third")}),
                    "the wrong row went");
                require(alerts.dismissals == 1, "the task list was not told");
            }});
}

void TestAlertFaults::allRemindersAreDismissedOrNone()
{
    FaultyAlerts alerts;
    alerts.database.sql(QStringLiteral("update tasks set played=1"));
    trySweep(alerts,
        {[&] { return alerts.press("btnDismissAll"); }, stateIn, listed(alerts),
            [&] {
                require(!alerts.window->isVisible(), "the window still shows");
                require(alerts.dismissals == 1, "the task list was not told");
            }});
}

void TestAlertFaults::aPostponedReminderStaysPostponed()
{
    FaultyAlerts alerts;
    alerts.database.sql(QStringLiteral("update tasks set played=1"));
    trySweep(alerts,
        {[&] { return alerts.press("btnRemindMeLater"); }, stateIn, listed(alerts),
            [&] {
                require(alerts.names() == QStringList({QStringLiteral("first"), QStringLiteral("third")}),
                    "the wrong row went");
            }});
}

AMBERTASK_TEST_MAIN(TestAlertFaults)
#include "tst_alert_faults.moc"
