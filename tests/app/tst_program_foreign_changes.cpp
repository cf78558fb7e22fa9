#include "ProgramFixture.h"
#include "reminders/frmAlerts.h"
#include "support/TestMain.h"
#include "tasks/frmTaskDetails.h"

#include <QComboBox>
#include <QLineEdit>
#include <QMenu>
#include <QScrollBar>
#include <QTimer>

using namespace std::chrono_literals;

namespace
{

/// The program with one task, and another process that changes the data file.
struct WatchingProgram : ProgramFixture {
    WatchingProgram()
    {
        aTask(database).named(QStringLiteral("first")).add();
        start();
        program.loadDialogs();
        // A test ticks.
        control<QTimer>(program.alerts(), "tmrTasksChecker")->setInterval(24h);
        database.statements().take();
    }
    void tick() { program.alerts().tmrTasksChecker_Timer(); }
    QStringList names() { return namesIn(main()); }
    QStringList alerted() { return namesIn(program.alerts()); }
    QStringList namesIn(QWidget& window)
    {
        const QAbstractItemModel& model = *grid(window)->model();
        QStringList names;
        for (int row = 0; row < model.rowCount(); ++row) {
            names.append(model.index(row, 1).data().toString());
        }
        return names;
    }
    /// How often the list was read since the last call.
    qsizetype reads()
    {
        return database.statements().take().filter(QLatin1String("select * from tasks inner join")).size();
    }
};

} // namespace

/// A running copy shows what another process has changed, a command line's import for example, at the next
/// tick.
class ProgramForeignChangesTest : public TestCase
{
    Q_OBJECT

private slots:
    void aTaskOfAnotherProcessIsListedAtTheNextTick()
    {
        WatchingProgram f;
        aTask(f.database).named(QStringLiteral("imported")).add();
        QCOMPARE(f.names(), QStringList{"first"});
        f.tick();
        QCOMPARE(f.names(), (QStringList{"first", "imported"}));
    }

    void aTickWithoutAChangeReadsNoList()
    {
        WatchingProgram f;
        f.tick();
        f.tick();
        QCOMPARE(f.reads(), 0);
    }

    void whatHasBeenShownIsNotReadAgain()
    {
        WatchingProgram f;
        aTask(f.database).add();
        f.tick();
        QCOMPARE(f.reads(), 1);
        f.tick();
        QCOMPARE(f.reads(), 0);
    }

    void theProgramsOwnChangesCauseNoReload()
    {
        WatchingProgram f;
        aTask(f.database).named(QStringLiteral("second")).remindingAt(f.database.clock().now() + 1min).add();
        f.tick();
        f.database.clock().set(f.database.clock().now() + 2min);
        // Marks the reminder as played.
        f.tick();
        f.reads();
        f.grid(f.main())->selectRows({1});
        f.tick();
        QCOMPARE(f.reads(), 0);
        QCOMPARE(f.grid(f.main())->selectedRows(), QList<int>{1});
        f.dialogs.expectAsk(QStringLiteral("Are you sure you want to delete this task?"), true);
        f.press(f.main(), "btnTaskDelete");
        f.tick();
        QCOMPARE(f.reads(), 0);
    }

    void aCategoryOfAnotherProcessIsInAllLists()
    {
        WatchingProgram f;
        f.database.addCategory(QStringLiteral("Imported"));
        f.tick();
        const QList<QComboBox*> combos{f.control<QComboBox>(f.main(), "cmbCategories"),
            f.control<QComboBox>(f.main(), "cmbCategoriesMaintenance"),
            f.control<QComboBox>(f.program.taskDetails(), "cmbCategories")};
        for (const QComboBox* combo : combos) {
            QVERIFY(combo->findText(QStringLiteral("Imported")) >= 0);
        }
        const auto* list = f.control<QAbstractItemView>(f.main(), "lstViewCategories");
        const QAbstractItemModel& model = *list->model();
        QCOMPARE(model.index(model.rowCount() - 1, 0).data().toString(), QStringLiteral("Imported"));
    }

    void aReminderOfAnotherProcessComesUp()
    {
        WatchingProgram f;
        QVERIFY(!f.program.alerts().isVisible());
        aTask(f.database).named(QStringLiteral("due")).remindingAt(f.database.clock().now() - 1min).add();
        f.tick();
        QVERIFY(f.program.alerts().isVisible());
        QCOMPARE(f.alerted(), QStringList{"due"});
    }

    void aReminderInThePlaceOfAListedOneComesUp()
    {
        WatchingProgram f;
        aTask(f.database).named(QStringLiteral("due")).remindingAt(f.database.clock().now() - 1min).add();
        f.tick();
        f.database.sql(QStringLiteral("update tasks set dismissed=1"));
        aTask(f.database)
            .named(QStringLiteral("another"))
            .remindingAt(f.database.clock().now() - 2min)
            .sounding(QStringLiteral("bell.wav"))
            .add();
        f.tick();
        QCOMPARE(f.alerted(), QStringList{"another"});
        QVERIFY(f.program.alerts().isVisible());
        QCOMPARE(f.played.size(), 1);
        QCOMPARE(f.database.storedOfAll("played"), QStringLiteral("0 1 1"));
    }

    void aListedReminderThatIsToSoundAgainSoundsOnceAndIsMarkedSo()
    {
        WatchingProgram f;
        aTask(f.database)
            .named(QStringLiteral("due"))
            .remindingAt(f.database.clock().now() - 1min)
            .sounding(QStringLiteral("bell.wav"))
            .add();
        f.tick();
        f.database.sql(QStringLiteral("update tasks set played=0"));
        f.tick();
        QCOMPARE(f.played.size(), 2);
        f.tick();
        QCOMPARE(f.played.size(), 2);
        QCOMPARE(f.database.storedOfAll("played"), QStringLiteral("0 1"));
    }

    void aListedReminderThatWasRenamedIsShownSoAndKeepsItsSelection()
    {
        WatchingProgram f;
        for (const char* name : {"one", "two"}) {
            aTask(f.database)
                .named(QString::fromLatin1(name))
                .remindingAt(f.database.clock().now() - 1min)
                .add();
        }
        f.tick();
        f.program.alerts().hide();
        f.grid(f.program.alerts())->selectOnly(1);
        f.database.sql(QStringLiteral("update tasks set task_name='three' where task_name='two'"));
        f.tick();
        QCOMPARE(f.alerted(), (QStringList{"one", "three"}));
        QCOMPARE(f.grid(f.program.alerts())->selectedRows(), QList<int>{1});
        QVERIFY(!f.program.alerts().isVisible());
    }

    void anOpenMenuKeepsItsRows()
    {
        WatchingProgram f;
        aTask(f.database).named(QStringLiteral("imported")).add();
        QMenu menu;
        menu.addAction(QStringLiteral("about the selected row"));
        menu.popup({});
        f.tick();
        QCOMPARE(f.names(), QStringList{"first"});
        menu.close();
        f.tick();
        QCOMPARE(f.names(), (QStringList{"first", "imported"}));
    }

    void theSelectionAndThePlaceStay()
    {
        WatchingProgram f;
        for (int i = 0; i < 100; ++i) {
            aTask(f.database).named(QString::number(i)).add();
        }
        f.tick();
        GridView& grid = *f.grid(f.main());
        grid.selectRows({70, 72});
        grid.goTo(71);
        QScrollBar& bar = *grid.verticalScrollBar();
        bar.setValue(bar.maximum() / 3);
        const int place = bar.value();
        QVERIFY(place > 0);
        f.database.sql(QStringLiteral("delete from tasks where task_name='first'"));
        f.tick();
        QCOMPARE(f.names().size(), 100);
        QCOMPARE(grid.selectedRows(), (QList<int>{69, 71}));
        QCOMPARE(grid.currentIndex().row(), 70);
        QCOMPARE(bar.value(), place);
    }

    void whatCannotBeReadNowIsReadByTheNextTick()
    {
        WatchingProgram f;
        aTask(f.database).named(QStringLiteral("imported")).add();
        f.database.statements().failAt(QStringLiteral("select * from tasks inner join"));
        f.tick();
        QCOMPARE(f.names(), QStringList{"first"});
        f.database.statements().failAt({});
        f.tick();
        QCOMPARE(f.names(), (QStringList{"first", "imported"}));
    }

    void inputThatIsNotSavedStays()
    {
        WatchingProgram f;
        f.grid(f.main())->selectOnly(0);
        f.press(f.main(), "btnTaskEdit");
        auto* name = f.control<QLineEdit>(f.program.taskDetails(), "txtTask");
        name->setText(QStringLiteral("half typed"));
        aTask(f.database).named(QStringLiteral("imported")).add();
        f.tick();
        QCOMPARE(f.names(), (QStringList{"first", "imported"}));
        QCOMPARE(name->text(), QStringLiteral("half typed"));
        QVERIFY(f.program.taskDetails().isVisible());
    }
};

AMBERTASK_TEST_MAIN(ProgramForeignChangesTest)
#include "tst_program_foreign_changes.moc"
