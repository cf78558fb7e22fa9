#include "AlertsFixture.h"
#include "data/ClsTask.h"
#include "data/TaskCodes.h"
#include "support/TestMain.h"
#include "system/Progress.h"

#include <QTest>

using namespace std::chrono_literals;

namespace
{

/// Does something when it is told for the first time.
class OnceToldProgress final : public Progress
{
public:
    explicit OnceToldProgress(std::function<void()> act) : m_act(std::move(act)) { }
    void advance(qint64 /*done*/, qint64 /*total*/) override
    {
        if (!std::exchange(m_told, true)) {
            m_act();
        }
    }
    bool wasTold() const { return m_told; }

private:
    std::function<void()> m_act;
    bool m_told = false;
};

} // namespace

class tst_alerts_tick : public TestCase
{
    Q_OBJECT

private slots:
    void twoDueRemindersComeUpWithTheFirstSelectedBothSoundsStartedAndBothMarked()
    {
        AlertsFixture alerts;
        const qint32 first =
            alerts.aDueTask(QStringLiteral("First")).sounding(QStringLiteral("one.wav")).add();
        const qint32 second =
            alerts.aDueTask(QStringLiteral("Second")).sounding(QStringLiteral("two.wav")).add();
        alerts.tick();
        QVERIFY(alerts.window.isVisible());
        QCOMPARE(alerts.caption(), QStringLiteral("2 Reminders"));
        QCOMPARE(alerts.names(), QStringList({QStringLiteral("First"), QStringLiteral("Second")}));
        QCOMPARE(alerts.grid()->selectedRow(), 0);
        QCOMPARE(alerts.takeSounds(),
            QStringList({QStringLiteral("play one.wav"), QStringLiteral("play two.wav")}));
        QVERIFY(alerts.isPlayed(first));
        QVERIFY(alerts.isPlayed(second));
        QCOMPARE(alerts.database().statements().take(), QStringList({DueQuery, MarkPlayed}));
    }

    void aTickInTheMidstOfABulkDeletionSoundsOnceAndTheNextMarksIt()
    {
        AlertsFixture alerts;
        const qint32 due = alerts.aDueTask(QStringLiteral("Due")).sounding(QStringLiteral("one.wav")).add();
        alerts.database().sql(QStringLiteral(
            "with recursive n(i) as (select 1 union all select i+1 from n where i<4000) "
            "insert into tasks(task_name,task_desc,task_status,cat_id,task_due_date,task_periority,"
            "reminder_on,reminder_date_time) select 'Task '||i,'',3,1,'2026-01-15 11:00:00',1,0,"
            "'2099-01-01 00:00:00' from n"));
        OnceToldProgress midst([&] { alerts.tick(); });
        DatabaseEngine engine = alerts.database().engine();
        engine.progress = &midst;
        const Moment today = startOfDay(alerts.now());
        QCOMPARE(ClsTask(engine).DeleteTasks(
                     CategoryFilter::All, TaskStatus::Waiting, today, today, TaskType::All),
            4000);
        QVERIFY(midst.wasTold());
        QCOMPARE(alerts.names(), QStringList(QStringLiteral("Due")));
        QVERIFY2(!alerts.isPlayed(due), "the deletion holds the file");
        alerts.tick();
        QVERIFY(alerts.isPlayed(due));
        QCOMPARE(alerts.takeSounds(), QStringList(QStringLiteral("play one.wav")));
        QCOMPARE(alerts.database().sql(QStringLiteral("select count(*) from tasks")).toInt(), 1);
    }

    void theNextTickWithTheSameTwoDoesNothing()
    {
        AlertsFixture alerts;
        alerts.aDueTask(QStringLiteral("First")).sounding(QStringLiteral("one.wav")).add();
        alerts.aDueTask(QStringLiteral("Second")).sounding(QStringLiteral("two.wav")).add();
        alerts.tick();
        alerts.takeSounds();
        alerts.database().statements().take();
        alerts.window.hide();
        alerts.grid()->selectOnly(1);
        alerts.tick();
        QCOMPARE(alerts.database().statements().take(), QStringList(DueQuery));
        QCOMPARE(alerts.takeSounds(), QStringList());
        QVERIFY(!alerts.window.isVisible());
        QCOMPARE(alerts.grid()->selectedRow(), 1);
    }

    void oneOfTwoDismissedElsewhereIsRedrawnWithoutSoundOrRaising()
    {
        AlertsFixture alerts;
        const qint32 first =
            alerts.aDueTask(QStringLiteral("First")).sounding(QStringLiteral("one.wav")).add();
        alerts.aDueTask(QStringLiteral("Second")).sounding(QStringLiteral("two.wav")).add();
        alerts.tick();
        alerts.takeSounds();
        alerts.database().statements().take();
        alerts.window.hide();
        alerts.database().sql(QStringLiteral("update tasks set dismissed=1 where task_id=%1").arg(first));
        alerts.tick();
        QCOMPARE(alerts.caption(), QStringLiteral("1 Reminder"));
        QCOMPARE(alerts.names(), QStringList(QStringLiteral("Second")));
        QCOMPARE(alerts.takeSounds(), QStringList());
        QVERIFY(!alerts.window.isVisible());
        QCOMPARE(alerts.database().statements().take(), QStringList(DueQuery));
        QCOMPARE(alerts.grid()->selectedRow(), -1);
    }

    void theLastDueReminderGoingAwayHidesTheWindow()
    {
        AlertsFixture alerts;
        const qint32 id = alerts.aDueTask(QStringLiteral("Only")).add();
        alerts.tick();
        QVERIFY(alerts.window.isVisible());
        alerts.database().sql(QStringLiteral("delete from tasks where task_id=%1").arg(id));
        alerts.tick();
        QCOMPARE(alerts.caption(), QStringLiteral("0 Reminders"));
        QVERIFY(!alerts.window.isVisible());
        QCOMPARE(alerts.rows(), 0);
    }

    void aReminderWithoutSoundAndFileComesUpSilently()
    {
        AlertsFixture alerts;
        alerts.aDueTask(QStringLiteral("Silent")).add();
        alerts.tick();
        QVERIFY(alerts.window.isVisible());
        QCOMPARE(alerts.caption(), QStringLiteral("1 Reminder"));
        QCOMPARE(alerts.takeSounds(), QStringList());
        QVERIFY(alerts.wave == nullptr);
        QCOMPARE(alerts.world.shell.started, QStringList());
    }

    void aPlayedReminderIsListedAgainAfterARestartButFiresNothing()
    {
        AlertsFixture alerts;
        alerts.aDueTask(QStringLiteral("Old"))
            .sounding(QStringLiteral("one.wav"))
            .starting(QStringLiteral("run"))
            .played()
            .add();
        alerts.tick();
        QVERIFY(alerts.window.isVisible());
        QCOMPARE(alerts.names(), QStringList(QStringLiteral("Old")));
        QCOMPARE(alerts.takeSounds(), QStringList());
        QCOMPARE(alerts.world.shell.started, QStringList());
    }

    void aPriorityCodeOutsideTheRangeHasNoIcon()
    {
        AlertsFixture alerts;
        alerts.aDueTask(QStringLiteral("High")).withPeriority(0).add();
        alerts.aDueTask(QStringLiteral("Odd")).withPeriority(3).add();
        alerts.tick();
        const QAbstractItemModel* model = alerts.grid()->model();
        QCOMPARE(model->index(0, 2).data(Qt::DecorationRole).value<QIcon>().cacheKey(),
            alerts.world.images.icon(19).cacheKey());
        QVERIFY(!model->index(1, 2).data(Qt::DecorationRole).isValid());
    }

    void theCategoryPictureStandsBeforeTheName()
    {
        AlertsFixture alerts;
        alerts.aDueTask(QStringLiteral("x")).in(alerts.database().addCategory(QStringLiteral("c"), 9)).add();
        alerts.tick();
        QCOMPARE(alerts.grid()->model()->index(0, 1).data(Qt::DecorationRole).value<QIcon>().cacheKey(),
            alerts.world.images.icon(9).cacheKey());
    }

    void theMultimediaControlIsSetUpForAWaveThatNothingWaitsFor()
    {
        AlertsFixture alerts;
        alerts.aDueTask(QStringLiteral("x")).sounding(QStringLiteral("a.wav")).add();
        auto* mmc = alerts.control<MMControl>(QStringLiteral("mmc"));
        mmc->Notify = mmc->Wait = mmc->Shareable = true;
        alerts.tick();
        QVERIFY(!mmc->Notify);
        QVERIFY(!mmc->Wait);
        QVERIFY(!mmc->Shareable);
        QCOMPARE(mmc->DeviceType, QStringLiteral("WaveAudio"));
        QCOMPARE(mmc->FileName, QStringLiteral("a.wav"));
    }

    void aFileIsStartedOnceAsItStandsBlanksIncluded()
    {
        AlertsFixture alerts;
        alerts.aDueTask(QStringLiteral("x")).starting(QStringLiteral(" /my files/run me.sh ")).add();
        alerts.tick();
        alerts.tick();
        QCOMPARE(alerts.world.shell.started, QStringList(QStringLiteral(" /my files/run me.sh ")));
    }

    void aFileThatCannotBeStartedIsNotReportedAndTheRestGoesOn()
    {
        AlertsFixture alerts;
        alerts.world.shell.startSucceeds = false;
        alerts.aDueTask(QStringLiteral("x")).starting(QStringLiteral("missing")).add();
        const qint32 next = alerts.aDueTask(QStringLiteral("y")).starting(QStringLiteral("other")).add();
        alerts.tick();
        QCOMPARE(
            alerts.world.shell.started, QStringList({QStringLiteral("missing"), QStringLiteral("other")}));
        QVERIFY(alerts.isPlayed(next));
    }

    void aNewReminderBesideAnOldOneSoundsAloneAndIsMarked()
    {
        AlertsFixture alerts;
        alerts.aDueTask(QStringLiteral("Old")).sounding(QStringLiteral("old.wav")).add();
        alerts.tick();
        alerts.takeSounds();
        alerts.window.hide();
        const qint32 fresh = alerts.aDueTask(QStringLiteral("New")).sounding(QStringLiteral("new.wav")).add();
        alerts.tick();
        QCOMPARE(alerts.takeSounds(), QStringList(QStringLiteral("play new.wav")));
        QVERIFY(alerts.window.isVisible());
        QVERIFY(alerts.isPlayed(fresh));
        QCOMPARE(alerts.grid()->selectedRow(), 0);
    }

    void oneThatComesWhileAnotherGoesWaitsForTheCountToChange()
    {
        AlertsFixture alerts;
        const qint32 old = alerts.aDueTask(QStringLiteral("Old")).add();
        alerts.tick();
        alerts.database().sql(QStringLiteral("update tasks set dismissed=1 where task_id=%1").arg(old));
        const qint32 swapped =
            alerts.aDueTask(QStringLiteral("Swapped")).sounding(QStringLiteral("s.wav")).add();
        alerts.tick();
        QCOMPARE(alerts.names(), QStringList(QStringLiteral("Old")));
        QCOMPARE(alerts.takeSounds(), QStringList());
        QVERIFY(!alerts.isPlayed(swapped));
        alerts.aDueTask(QStringLiteral("Third")).add();
        alerts.tick();
        QCOMPARE(alerts.names(), QStringList({QStringLiteral("Swapped"), QStringLiteral("Third")}));
        QCOMPARE(alerts.takeSounds(), QStringList(QStringLiteral("play s.wav")));
        QVERIFY(alerts.isPlayed(swapped));
    }

    void aRedrawOfFewerSoundsWhatIsNotPlayedButMarksNothing()
    {
        AlertsFixture alerts;
        alerts.aDueTask(QStringLiteral("a")).add();
        alerts.aDueTask(QStringLiteral("b")).add();
        alerts.tick();
        alerts.database().sql(QStringLiteral("delete from tasks"));
        const qint32 fresh = alerts.aDueTask(QStringLiteral("c")).sounding(QStringLiteral("c.wav")).add();
        alerts.tick();
        QCOMPARE(alerts.takeSounds(), QStringList(QStringLiteral("play c.wav")));
        QVERIFY(!alerts.isPlayed(fresh));
    }

    void afterARedrawOfFewerTheSelectedTaskIsStillSelected()
    {
        AlertsFixture alerts;
        const qint32 first = alerts.aDueTask(QStringLiteral("a")).add();
        const qint32 second = alerts.aDueTask(QStringLiteral("b")).add();
        alerts.aDueTask(QStringLiteral("c")).add();
        alerts.tick();
        alerts.grid()->selectOnly(2);
        alerts.database().sql(QStringLiteral("delete from tasks where task_id=%1").arg(first));
        alerts.tick();
        QCOMPARE(alerts.names(), QStringList({QStringLiteral("b"), QStringLiteral("c")}));
        QCOMPARE(alerts.grid()->selectedRow(), 1);
        QCOMPARE(alerts.grid()->currentIndex().row(), 1);
        alerts.database().sql(QStringLiteral("delete from tasks where task_id=%1").arg(second));
        alerts.tick();
        QCOMPARE(alerts.grid()->selectedRow(), 0);
    }

    void aSelectedTaskThatIsGoneLeavesNoneSelected()
    {
        AlertsFixture alerts;
        const qint32 first = alerts.aDueTask(QStringLiteral("a")).add();
        alerts.aDueTask(QStringLiteral("b")).add();
        alerts.tick();
        alerts.database().sql(QStringLiteral("delete from tasks where task_id=%1").arg(first));
        alerts.tick();
        QCOMPARE(alerts.grid()->selectedRow(), -1);
    }

    void whatARedrawOfFewerHasSoundedDoesNotSoundAgainWhenMoreAreDue()
    {
        AlertsFixture alerts;
        alerts.aDueTask(QStringLiteral("a")).add();
        alerts.aDueTask(QStringLiteral("b")).add();
        alerts.tick();
        alerts.database().sql(QStringLiteral("delete from tasks"));
        alerts.aDueTask(QStringLiteral("c"))
            .sounding(QStringLiteral("c.wav"))
            .starting(QStringLiteral("c.sh"))
            .add();
        alerts.tick();
        QCOMPARE(alerts.takeSounds(), QStringList(QStringLiteral("play c.wav")));
        alerts.aDueTask(QStringLiteral("d")).sounding(QStringLiteral("d.wav")).add();
        alerts.tick();
        QCOMPARE(alerts.takeSounds(), QStringList(QStringLiteral("play d.wav")));
        QCOMPARE(alerts.world.shell.started, QStringList(QStringLiteral("c.sh")));
    }

    void withoutRemindersNothingIsShown()
    {
        AlertsFixture alerts;
        QCOMPARE(alerts.caption(), QStringLiteral("0 Reminders"));
        alerts.tick();
        QVERIFY(!alerts.window.isVisible());
        QCOMPARE(alerts.grid()->model()->columnCount(), 4);
        QCOMPARE(alerts.database().statements().take(), QStringList(DueQuery));
    }

    void theWindowBecomesTopmostOnlyWhenTheSettingSaysSo()
    {
        AlertsFixture plain;
        plain.aDueTask(QStringLiteral("x")).add();
        plain.tick();
        QVERIFY(!plain.window.windowFlags().testFlag(Qt::WindowStaysOnTopHint));

        AlertsFixture topmost;
        topmost.world.alwaysOnTop = true;
        topmost.aDueTask(QStringLiteral("x")).add();
        topmost.tick();
        QVERIFY(topmost.window.isVisible());
        QVERIFY(topmost.window.windowFlags().testFlag(Qt::WindowStaysOnTopHint));
    }

    void loadingChecksAtOnceAndStartsTheTimer()
    {
        AlertsFixture alerts;
        const auto* timer = alerts.control<QTimer>(QStringLiteral("tmrTasksChecker"));
        QVERIFY(!timer->isActive());
        alerts.aDueTask(QStringLiteral("x")).add();
        alerts.window.load();
        QVERIFY(alerts.window.isVisible());
        QVERIFY(timer->isActive());
        QCOMPARE(timer->interval(), 10000);
        QVERIFY(!timer->isSingleShot());
    }

    void theTimerRunsTheTickAndCanBeSwitchedOffAndOn()
    {
        AlertsFixture alerts;
        auto* timer = alerts.control<QTimer>(QStringLiteral("tmrTasksChecker"));
        alerts.window.load();
        alerts.aDueTask(QStringLiteral("x")).add();
        QVERIFY(QMetaObject::invokeMethod(timer, "timeout"));
        QVERIFY(alerts.window.isVisible());

        alerts.window.setCheckerEnabled(false);
        QVERIFY(!timer->isActive());
        alerts.window.setCheckerEnabled(true);
        const int id = timer->timerId();
        alerts.window.setCheckerEnabled(true);
        QCOMPARE(timer->timerId(), id);
    }

    void aHundredRemindersAreAllListed()
    {
        AlertsFixture alerts;
        for (int i = 0; i < 100; ++i) {
            alerts.aDueTask(QString::number(i)).add();
        }
        alerts.tick();
        QCOMPARE(alerts.caption(), QStringLiteral("100 Reminders"));
        QCOMPARE(alerts.rows(), 100);
        QCOMPARE(alerts.cell(99, 1), QStringLiteral("99"));
    }
};

AMBERTASK_TEST_MAIN(tst_alerts_tick)
#include "tst_alerts_tick.moc"
