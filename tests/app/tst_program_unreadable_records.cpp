#include "ProgramFixture.h"
#include "app/TasksPage.h"
#include "app/drTasks.h"
#include "categories/frmCategoryDetails.h"
#include "data/DataFileCopies.h"
#include "reminders/frmAlerts.h"
#include "support/TestMain.h"
#include "support/Unconstrained.h"
#include "tasks/frmTaskDetails.h"

#include <QCheckBox>
#include <QComboBox>
#include <QListWidget>
#include <QRadioButton>
#include <random>

namespace
{

/// The whole program over a data file of which another tool has spoiled some records.
struct SpoiledProgram : ProgramFixture {
    SpoiledProgram()
    {
        aTask(database).named(QStringLiteral("Alpha")).add();
        spoiled = aTask(database).named(QStringLiteral("Call Bob")).add();
        aTask(database).named(QStringLiteral("Zebra")).add();
        DataFileCopies(database.engine()).backUpTo(backup());
        dropConstraints(database);
    }
    void spoil(const QString& set) const
    {
        database.sql(QStringLiteral("update tasks set %1 where task_id=%2").arg(set).arg(spoiled));
    }
    /// Waits until the window has been seen and what follows from that is done.
    void startSeen()
    {
        start();
        QTRY_VERIFY(dialogs.allUsed());
    }
    QStringList listed()
    {
        QStringList names;
        const QAbstractItemModel* model = grid(main())->model();
        for (int row = 0; row < model->rowCount(); ++row) {
            names.append(model->index(row, 1).data().toString());
        }
        return names;
    }
    QStringList reported()
    {
        QStringList names;
        press(main(), "btnTaskPrint");
        for (const std::vector<QString>& record : reportWindow->content.records) {
            names.append(record[1]);
        }
        return names;
    }
    void choose(const char* combo, int index)
    {
        auto* box = control<QComboBox>(main(), combo);
        box->setCurrentIndex(index);
        emit box->activated(index);
    }

    QString backup() const { return elsewhere.filePath(QStringLiteral("good.abk")); }

    QTemporaryDir elsewhere;
    qint32 spoiled = 0;
};

/// Due, but not today, so the list does not show it.
const QString ReminderThatCannotRing =
    QStringLiteral("reminder_on=1, reminder_date_time='2026-01-15 09:00:00', played=null, "
                   "task_due_date='2026-01-20 09:00:00'");
const QStringList TheOthers{QStringLiteral("Alpha"), QStringLiteral("Zebra")};

} // namespace

/// What the program makes of records that hold a value which does not convert.
class UnreadableRecordsInTheProgramTest : public TestCase
{
    Q_OBJECT

private slots:
    void theProgramStartsAndNamesTheTask_data()
    {
        QTest::addColumn<QString>("set");
        QTest::addColumn<QString>("column");
        for (const Damage& damage : TaskDamages) {
            const QString column = QString::fromLatin1(damage.column);
            // A start gives the tasks new ids instead.
            if (column != QLatin1String("task_id")) {
                QTest::newRow(damage.what) << QString::fromLatin1(damage.set) << column;
            }
        }
    }
    void theProgramStartsAndNamesTheTask()
    {
        QFETCH(const QString, set);
        QFETCH(const QString, column);
        SpoiledProgram f;
        f.spoil(set);
        f.dialogs.expectExclamationWith(column);
        f.startSeen();
        QCOMPARE(f.listed(), TheOthers);
        QCOMPARE(f.reported(), TheOthers);
    }

    void aTaskWhoseIdIsTooLargeGetsAnotherAndIsListed()
    {
        SpoiledProgram f;
        f.spoil(QStringLiteral("task_id=5000000000"));
        f.startSeen();
        QCOMPARE(f.listed().size(), TheOthers.size() + 1);
        QCOMPARE(f.reported().size(), TheOthers.size() + 1);
    }

    void oneBoxNamesAllAndNoReloadNamesThemAgain()
    {
        SpoiledProgram f;
        aTask(f.database).named(QStringLiteral("Other")).add();
        f.spoil(QStringLiteral("task_due_date='0000-00-00'"));
        f.database.sql(
            QStringLiteral("update tasks set task_id=4, task_status='abc' where task_name='Other'"));
        f.database.sql(QStringLiteral("update categories set cat_id=40000 where cat_id=4"));
        f.dialogs.expectExclamationWith(QStringLiteral("Call Bob"));
        f.startSeen();
        for (int i = 0; i < 3; ++i) {
            f.program.mainWindow().LoadTasks();
            f.program.mainWindow().LoadCategories();
            f.choose("cmbSort", i);
        }
        QCoreApplication::processEvents();
        QCOMPARE(f.listed(), TheOthers);
    }

    void whatTurnsUpLaterIsNamedThenAndAlone()
    {
        SpoiledProgram f;
        f.start();
        QVERIFY(QTest::qWaitForWindowExposed(&f.main()));
        QCoreApplication::processEvents();
        QCOMPARE(f.listed().size(), 3);
        f.spoil(QStringLiteral("task_due_date=''"));
        f.dialogs.expectExclamationWith(QStringLiteral("\"tasks.task_due_date\" is empty"));
        f.choose("cmbSort", 1);
        QTRY_VERIFY(f.dialogs.allUsed());
        QCOMPARE(f.listed(), TheOthers);
        f.choose("cmbSort", 0);
        QCoreApplication::processEvents();
    }

    void aCategoryThatIsSpoiltLaterIsOfferedNowhere()
    {
        SpoiledProgram f;
        f.start();
        QVERIFY(QTest::qWaitForWindowExposed(&f.main()));
        QCoreApplication::processEvents();
        auto* categories = f.control<QComboBox>(f.main(), "cmbCategories");
        const int offered = categories->count();
        f.database.sql(QStringLiteral("update categories set cat_icon='abc' where cat_id=1"));
        f.dialogs.expectExclamationWith(QStringLiteral("cat_icon"));
        f.choose("cmbSort", 1);
        QTRY_VERIFY(f.dialogs.allUsed());
        QCOMPARE(categories->count(), offered - 1);
        QCOMPARE(f.control<QListWidget>(f.main(), "lstViewCategories")->count(), offered - 2);
    }

    void aHiddenStartWaitsForTheUser()
    {
        SpoiledProgram f;
        f.setting(QStringLiteral("minimize_on_start"), 1);
        f.spoil(QStringLiteral("task_status='abc'"));
        f.start();
        QCoreApplication::processEvents();
        f.dialogs.expectExclamationWith(QStringLiteral("task_status"));
        f.menu("mnuShow")->trigger();
        QTRY_VERIFY(f.dialogs.allUsed());
    }

    void aCategoryThatIsNotShownIsOfferedNowhere_data()
    {
        QTest::addColumn<QString>("set");
        QTest::addColumn<QString>("column");
        for (const Damage& damage : CategoryDamages) {
            QTest::newRow(damage.what)
                << QString::fromLatin1(damage.set) << QString::fromLatin1(damage.column);
        }
    }
    void aCategoryThatIsNotShownIsOfferedNowhere()
    {
        QFETCH(const QString, set);
        QFETCH(const QString, column);
        SpoiledProgram f;
        f.database.sql(QStringLiteral("update tasks set cat_id=4 where task_id=%1").arg(f.spoiled));
        f.database.sql(QStringLiteral("update categories set %1 where cat_id=4").arg(set));
        if (set.startsWith(QLatin1String("cat_id"))) {
            f.database.sql(QStringLiteral("update tasks set %1 where cat_id=4").arg(set));
        }
        f.dialogs.expectExclamationWith(column);
        f.startSeen();
        f.program.loadDialogs();
        QCOMPARE(f.listed(), TheOthers);
        QCOMPARE(f.reported(), TheOthers);
        QCOMPARE(f.control<QListWidget>(f.main(), "lstViewCategories")->count(), 3);
        for (const char* combo : {"cmbCategories", "cmbCategoriesMaintenance"}) {
            QCOMPARE(f.control<QComboBox>(f.main(), combo)->count(), 4);
        }
        QCOMPARE(f.control<QComboBox>(f.program.taskDetails(), "cmbCategories")->count(), 3);
    }

    void theListAndTheReportAgreeWhateverTheFilters()
    {
        SpoiledProgram f;
        std::mt19937 chance(20260115);
        const auto below = [&chance](std::size_t limit) {
            return chance() % limit;
        };
        for (int i = 0; i < 120; ++i) {
            aTask(f.database)
                .named(QStringLiteral("Task %1").arg(i))
                .in(static_cast<qint16>(1 + below(4)))
                .withStatus(static_cast<qint32>(below(5)))
                .dueAt(f.database.clock().now() + std::chrono::hours(24) * (i % 5 - 2))
                .add();
            f.database.sql(QStringLiteral("update tasks set task_id=%1 where task_id is null").arg(1000 + i));
            if (below(3) == 0) {
                const Damage& damage = TaskDamages[below(std::size(TaskDamages) - 1)];
                f.database.sql(QStringLiteral("update tasks set %1 where task_id=%2")
                                   .arg(QLatin1String(damage.set))
                                   .arg(1000 + i));
            }
        }
        f.database.sql(QStringLiteral("update categories set cat_name=null where cat_id=3"));
        f.dialogs.expectExclamationWith(QStringLiteral("more"));
        f.startSeen();
        QSet<QString> everListed;
        for (const char* kind : {"opnAllTasks", "opnActiveTasks", "opnExpiredTasks"}) {
            f.control<QRadioButton>(f.main(), kind)->setChecked(true);
            for (const char* date : {"opnAllDate", "opnSpecificDate"}) {
                f.control<QRadioButton>(f.main(), date)->setChecked(true);
                for (int i = 0; i < 8; ++i) {
                    f.choose("cmbCategories", static_cast<int>(below(4)));
                    f.choose("cmbStatus", static_cast<int>(below(6)));
                    f.choose("cmbSort", static_cast<int>(below(5)));
                    const QStringList list = f.listed();
                    QCOMPARE(f.reported(), list);
                    everListed += QSet<QString>(list.cbegin(), list.cend());
                }
            }
        }
        QVERIFY(everListed.size() > 30);
    }

    void maintenanceWorksBesideThemAndARestoreMakesAllWellAgain()
    {
        SpoiledProgram f;
        const QString spoiled = f.elsewhere.filePath(QStringLiteral("spoiled.abk"));
        f.spoil(QStringLiteral("task_due_date='0000-00-00'"));
        f.dialogs.expectExclamationWith(QStringLiteral("Call Bob"));
        f.startSeen();
        f.dialogs.expectSave(spoiled);
        f.press(f.main(), "btnBackup");
        QVERIFY(QFile::exists(spoiled));
        f.dialogs.expectOpen(f.backup());
        f.press(f.main(), "btnRestore");
        QCOMPARE(f.listed().size(), 3);
        // A record of the same id in another data file is another record.
        f.spoil(QStringLiteral("task_due_date='0000-00-00'"));
        f.dialogs.expectExclamationWith(QStringLiteral("Call Bob"));
        f.program.mainWindow().LoadTasks();
        QTRY_VERIFY(f.dialogs.allUsed());
    }

    void aRestoreOfSuchAFileSaysWhichRecordItIs()
    {
        SpoiledProgram f;
        f.spoil(QStringLiteral("task_due_date='0000-00-00'"));
        const QString spoiled = f.elsewhere.filePath(QStringLiteral("spoiled.abk"));
        DataFileCopies(f.database.engine()).backUpTo(spoiled);
        const auto reason = [&] {
            try {
                DataFileCopies(f.database.engine()).restoreFrom(spoiled);
            } catch (const RuntimeError& error) {
                return error.text();
            }
            return QString();
        }();
        QVERIFY2(reason.contains(QStringLiteral("Call Bob"))
                && reason.contains(QStringLiteral("task_due_date"))
                && reason.contains(QString::number(f.spoiled)),
            qPrintable(reason));
    }

    void aReminderRingsThoughTheListCannotShowItsTask()
    {
        SpoiledProgram f;
        f.database.sql(QStringLiteral("update tasks set reminder_on=1, reminder_date_time='2026-01-15 "
                                      "09:00:00', task_desc=null where task_id=%1")
                           .arg(f.spoiled));
        f.dialogs.expectExclamationWith(QStringLiteral("task_desc"));
        f.startSeen();
        f.program.alerts().tmrTasksChecker_Timer();
        QCOMPARE(f.program.alerts().windowTitle(), QStringLiteral("1 Reminder"));
        // Its task is not to be opened, and what keeps it is said.
        f.dialogs.expectError(QStringLiteral("Call Bob"));
        f.press(f.program.alerts(), "btnOpenItem");
        QVERIFY(!f.program.taskDetails().isVisible());
    }

    void aReminderThatCannotRingIsNamedThoughTheFilterHidesItsTask()
    {
        SpoiledProgram f;
        f.setting(QStringLiteral("show_today_tasks"), 1);
        f.spoil(ReminderThatCannotRing);
        f.dialogs.expectExclamationWith(QStringLiteral("\"tasks.played\" is no whole number"));
        f.startSeen();
    }

    void aCheckOfTheRemindersBringsUpNoBox()
    {
        SpoiledProgram f;
        f.setting(QStringLiteral("show_today_tasks"), 1);
        f.start();
        QVERIFY(QTest::qWaitForWindowExposed(&f.main()));
        QCoreApplication::processEvents();
        f.spoil(ReminderThatCannotRing);
        f.program.alerts().tmrTasksChecker_Timer();
        QCoreApplication::processEvents();
        f.dialogs.expectExclamationWith(QStringLiteral("tasks.played"));
        f.choose("cmbSort", 1);
        QTRY_VERIFY(f.dialogs.allUsed());
    }

    void settingsThatCannotBeReadAreThoseOfANewDataFile()
    {
        SpoiledProgram f;
        f.database.sql(QStringLiteral("update settings set show_grid='abc', always_on_top='no', "
                                      "minimize_on_start='', skin=x'00', show_ballon_icon=0"));
        f.dialogs.expectExclamationWith(QStringLiteral("settings.always_on_top"));
        f.startSeen();
        QVERIFY(f.main().isShown());
        QVERIFY(f.grid(f.main())->showGrid());
        QVERIFY(f.control<QCheckBox>(f.main(), "chkShowGrid")->isChecked());
        QVERIFY(!f.control<QCheckBox>(f.main(), "chkOnTop")->isChecked());
        QVERIFY(!f.control<QCheckBox>(f.main(), "chkShowBallon")->isChecked());
        QCOMPARE(f.control<QComboBox>(f.main(), "cmbSkins")->currentText(), QStringLiteral("Aqua"));
        f.press(f.main(), "btnSave");
        QCOMPARE(f.database
                     .sql(QStringLiteral("select typeof(show_grid)||typeof(skin)||always_on_top||"
                                         "minimize_on_start from settings"))
                     .toString(),
            QStringLiteral("integertext00"));
    }
};

AMBERTASK_TEST_MAIN(UnreadableRecordsInTheProgramTest)
#include "tst_program_unreadable_records.moc"
