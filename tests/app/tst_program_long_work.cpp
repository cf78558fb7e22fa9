#include "ProgramFixture.h"
#include "app/TasksPage.h"
#include "data/TaskCodes.h"
#include "reminders/frmAlerts.h"
#include "support/TestMain.h"

#include <QComboBox>
#include <QDateEdit>
#include <QDialog>
#include <QGuiApplication>
#include <QLabel>
#include <QTimer>
#include <QWindow>

using namespace std::chrono_literals;

namespace
{

QDialog* box()
{
    for (QWidget* window : QApplication::topLevelWidgets()) {
        if (window->objectName() == QLatin1String("progress") && window->isVisible()) {
            return qobject_cast<QDialog*>(window);
        }
    }
    return nullptr;
}

/// So many that the engine tells of them more than once.
constexpr int Many = 4000;
constexpr int InProgress = Many / 2;
constexpr std::chrono::milliseconds Slow = 1s;

/// A program with many tasks; what it does takes long where a test says so.
struct SlowProgram : ProgramFixture {
    SlowProgram()
    {
        database.sql(QStringLiteral(
            "with recursive n(i) as (select 1 union all select i+1 from n where i<%1) "
            "insert into tasks(task_name,task_desc,task_status,cat_id,task_due_date,task_periority,"
            "reminder_on,reminder_date_time) select 'Task '||i,'',i%2,1,'2026-02-01 10:00:00',1,0,"
            "'2099-01-01 00:00:00' from n")
                         .arg(Many));
    }

    void startSlowly()
    {
        workStep = Slow;
        start();
        workStep = {};
    }
    /// With all that follows a start.
    void startQuickly()
    {
        start();
        program.loadDialogs();
        QCoreApplication::processEvents();
    }
    int rows() { return grid(main())->model()->rowCount(); }
    void choose(qint32 status)
    {
        auto* combo = control<QComboBox>(main(), "cmbStatus");
        combo->setCurrentIndex(combo->findData(status));
        emit combo->activated(combo->currentIndex());
    }
    /// Chooses a filter, and the list takes long; `meanwhile` runs in the midst of that.
    template <typename Action> void chooseSlowly(qint32 status, const Action& meanwhile)
    {
        bool isReached = false;
        QTimer::singleShot(0, &main(), [&] {
            isReached = box() != nullptr;
            meanwhile();
        });
        workStep = Slow;
        choose(status);
        workStep = {};
        QVERIFY(isReached);
    }
};

/// Looks for the box whenever events are handled.
struct Onlooker : QTimer {
    Onlooker()
    {
        connect(this, &QTimer::timeout, this, [this] { hasSeenBox = hasSeenBox || box() != nullptr; });
        start(0);
    }

    bool hasSeenBox = false;
};

} // namespace

class ProgramLongWorkTest : public TestCase
{
    Q_OBJECT

private slots:
    void aQuickLoadShowsNoBoxAndHandlesNoEvents()
    {
        SlowProgram f;
        f.startQuickly();
        bool isEventHandled = false;
        const QObject handler;
        QTimer::singleShot(0, &handler, [&] { isEventHandled = true; });
        f.choose(TaskStatus::InProgress);
        QVERIFY(!isEventHandled);
        QCOMPARE(f.rows(), InProgress);
    }

    void aLongLoadShowsTheBoxAndTheListAsItWas()
    {
        SlowProgram f;
        f.startQuickly();
        f.chooseSlowly(TaskStatus::InProgress, [&] {
            QVERIFY(box() != nullptr);
            QCOMPARE(box()->parentWidget(), &f.main());
            QCOMPARE(f.rows(), Many);
        });
        QVERIFY(box() == nullptr);
        QCOMPARE(f.rows(), InProgress);
    }

    void theMainWindowTakesNoInputMeanwhile()
    {
        SlowProgram f;
        f.startQuickly();
        f.grid(f.main())->selectOnly(7);
        f.chooseSlowly(TaskStatus::InProgress, [&] {
            QCOMPARE(QGuiApplication::modalWindow(), box()->windowHandle());
            QTest::keyClick(f.main().windowHandle(), Qt::Key_Down);
            QCOMPARE(f.grid(f.main())->selectedRow(), 7);
        });
    }

    void theEndOfTheProgramGivesUpTheLoadWithoutAWord()
    {
        SlowProgram f;
        f.startQuickly();
        f.chooseSlowly(TaskStatus::InProgress, [&] { f.program.end(); });
        QVERIFY(f.program.isEnding());
        QCOMPARE(f.rows(), Many);
    }

    void aTickThatComesMeanwhileRunsAfterwards()
    {
        SlowProgram f;
        f.startQuickly();
        aTask(f.database).remindingAt(f.database.clock().now() - 1min).add();
        f.chooseSlowly(TaskStatus::InProgress, [&] {
            f.database.statements().take();
            f.program.alerts().tmrTasksChecker_Timer();
            QCOMPARE(f.database.statements().take(), QStringList());
        });
        QVERIFY(!f.program.alerts().isVisible());
        QTRY_VERIFY(f.program.alerts().isVisible());
    }

    void aFilterThatChangesMeanwhileCounts()
    {
        SlowProgram f;
        f.startQuickly();
        f.chooseSlowly(TaskStatus::InProgress, [&] { f.choose(TaskStatus::Deferred); });
        QCOMPARE(f.rows(), 0);
    }

    void aStartWithALongListShowsTheBox()
    {
        SlowProgram f;
        const Onlooker onlooker;
        f.startSlowly();
        QVERIFY(onlooker.hasSeenBox);
        QCOMPARE(f.rows(), Many);
    }

    void aHiddenStartShowsNone()
    {
        SlowProgram f;
        f.setting(QStringLiteral("minimize_on_start"), 1);
        const Onlooker onlooker;
        f.startSlowly();
        QVERIFY(!onlooker.hasSeenBox);
        QCOMPARE(f.rows(), Many);
    }

    void aStartThatIsEndedMeanwhileTellsItsCaller()
    {
        SlowProgram f;
        QTimer::singleShot(0, this, [&] { f.program.end(); });
        f.workStep = Slow;
        QVERIFY_THROWS_EXCEPTION(Cancelled, f.program.start([] { return false; }));
    }

    void theDialogsAreLoadedAfterTheListThatIsRead()
    {
        SlowProgram f;
        f.start();
        aTask(f.database).remindingAt(f.database.clock().now() - 1min).add();
        f.chooseSlowly(TaskStatus::InProgress, [&] {
            f.database.statements().take();
            f.program.loadDialogs();
            QCOMPARE(f.database.statements().take(), QStringList());
        });
        QTRY_VERIFY(f.program.alerts().isVisible());
    }

    void aCancelledBulkDeletionDeletesNothing()
    {
        SlowProgram f;
        f.startQuickly();
        f.control<QDateEdit>(f.main(), "dtpDateToMaintenance")->setDate(QDate(2030, 1, 1));
        f.dialogs.expectAsk(QStringLiteral("Are you sure you want to delete %1 tasks?").arg(Many), true);
        QTimer canceller;
        bool isCancelled = false;
        connect(&canceller, &QTimer::timeout, this, [&] {
            // The count that comes before has a box, too.
            if (box() != nullptr
                && box()->findChild<QLabel*>()->text() == QLatin1String("Deleting the tasks...")) {
                isCancelled = true;
                box()->findChild<QPushButton*>(QStringLiteral("btnCancel"))->click();
            }
        });
        canceller.start(0);
        f.workStep = Slow;
        f.control<QPushButton>(f.main(), "btnDeleteTasksMaintenance")->click();
        QVERIFY(isCancelled);
        QCOMPARE(f.database.sql(QStringLiteral("select count(*) from tasks")).toInt(), Many);
        QCOMPARE(f.rows(), Many);
    }
};

AMBERTASK_TEST_MAIN(ProgramLongWorkTest)
#include "tst_program_long_work.moc"
