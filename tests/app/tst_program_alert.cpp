#include "ProgramFixture.h"
#include "reminders/frmAlerts.h"
#include "support/RecordedNotifications.h"
#include "support/TestMain.h"
#include "tasks/frmTaskDetails.h"
#include "widgets/WindowPlacement.h"

#include <QCheckBox>
#include <QComboBox>
#include <QLineEdit>
#include <QListWidget>
#include <QTimer>

using namespace std::chrono_literals;

namespace
{

/// The program with an alert that lists one task, alone in its category; another one reminds in a minute.
struct AlertedProgram : ProgramFixture {
    AlertedProgram()
    {
        doomed = database.addCategory(QStringLiteral("doomed"));
        aTask(database)
            .named(QStringLiteral("listed"))
            .in(doomed)
            .remindingAt(database.clock().now() - 1min)
            .add();
        aTask(database)
            .named(QStringLiteral("next"))
            .remindingAt(database.clock().now() + 1min)
            .sounding(QStringLiteral("bell.wav"))
            .add();
        start();
        program.loadDialogs();
        // A test ticks.
        control<QTimer>(program.alerts(), "tmrTasksChecker")->setInterval(24h);
    }
    void deleteListed(const QString& way)
    {
        if (way == QLatin1String("task")) {
            dialogs.expectAsk(QStringLiteral("Are you sure you want to delete this task?"), true);
            grid(main())->selectOnly(0);
            press(main(), "btnTaskDelete");
        } else if (way == QLatin1String("category")) {
            auto* list = control<QListWidget>(main(), "lstViewCategories");
            list->setCurrentItem(list->findItems(QStringLiteral("doomed"), Qt::MatchExactly).first());
            dialogs.expectAsk(QStringLiteral("Are you sure you want to delete 'doomed' category, all tasks "
                                             "under this category will be deleted?"),
                true);
            press(main(), "btnDeleteCat");
        } else {
            control<QComboBox>(main(), "cmbCategoriesMaintenance")->setCurrentText(QStringLiteral("doomed"));
            dialogs.expectAsk(QStringLiteral("Are you sure you want to delete 1 tasks?"), true);
            press(main(), "btnDeleteTasksMaintenance");
        }
        QVERIFY(dialogs.allUsed());
    }
    QStringList alerted()
    {
        const QAbstractItemModel& model = *grid(program.alerts())->model();
        QStringList names;
        for (int row = 0; row < model.rowCount(); ++row) {
            names.append(model.index(row, 1).data().toString());
        }
        return names;
    }
    qint16 doomed = 0;
};

} // namespace

/// What the rest of the program has to do with the alert window.
class ProgramAlertTest : public TestCase
{
    Q_OBJECT

private slots:
    void aTaskSavedWhileTheAlertIsHiddenWaitsForTheTick()
    {
        ProgramFixture f;
        f.start();
        f.program.loadDialogs();
        f.press(f.main(), "btnTaskAdd");
        frmTaskDetails& dialog = f.program.taskDetails();
        f.control<QLineEdit>(dialog, "txtTask")->setText(QStringLiteral("due at once"));
        f.control<QComboBox>(dialog, "cmbCategories")->setCurrentIndex(0);
        f.control<QCheckBox>(dialog, "chkEnableReminder")->click();
        f.press(dialog, "btnOk");
        QVERIFY(!dialog.isVisible());
        QVERIFY(!f.program.alerts().isVisible());
        f.program.alerts().tmrTasksChecker_Timer();
        QVERIFY(f.program.alerts().isVisible());
    }

    void whatTheUserChangesInTheListLeavesTheNotificationAtOnce()
    {
        RecordedDesktop desktop;
        ProgramFixture f({}, desktop.factory());
        for (const char* name : {"a", "b"}) {
            aTask(f.database)
                .named(QString::fromLatin1(name))
                .remindingAt(f.database.clock().now() - 1min)
                .add();
        }
        f.start();
        f.program.loadDialogs();
        QVERIFY(desktop.isTold());
        QVERIFY(!f.program.alerts().isVisible());
        auto* complete = f.menu("mnuListComplete");
        f.grid(f.main())->selectRows({0});
        complete->trigger();
        QCOMPARE(desktop.lines(), QStringList(QStringLiteral("b")));
        f.grid(f.main())->selectRows({1});
        complete->trigger();
        QVERIFY(!desktop.isTold());
        QVERIFY(!f.program.alerts().isVisible());
    }

    void aReminderComesThoughAListedTaskIsDeleted_data()
    {
        QTest::addColumn<QString>("way");
        QTest::addColumn<bool>("isDueBefore");
        for (const char* way : {"task", "category", "bulk"}) {
            QTest::addRow("%s", way) << QString::fromLatin1(way) << false;
            QTest::addRow("%s, between two ticks", way) << QString::fromLatin1(way) << true;
        }
    }
    void aReminderComesThoughAListedTaskIsDeleted()
    {
        QFETCH(const QString, way);
        QFETCH(const bool, isDueBefore);
        AlertedProgram f;
        QCOMPARE(f.alerted(), QStringList(QStringLiteral("listed")));
        if (isDueBefore) {
            f.database.clock().step(2min);
        }
        f.deleteListed(way);
        if (!isDueBefore) {
            f.database.clock().step(2min);
        }
        f.program.alerts().tmrTasksChecker_Timer();
        QCOMPARE(f.alerted(), QStringList(QStringLiteral("next")));
        QVERIFY(f.program.alerts().isVisible());
        QCOMPARE(f.played.size(), 1);
        f.program.alerts().tmrTasksChecker_Timer();
        QCOMPARE(f.played.size(), 1);
        QCOMPARE(f.database.storedOfAll("played"), QStringLiteral("1"));
    }

    void aTaskDeletedInTheListLeavesTheAlertAtOnce()
    {
        AlertedProgram f;
        f.deleteListed(QStringLiteral("task"));
        QVERIFY(!f.program.alerts().isVisible());
        f.program.alerts().tmrTasksChecker_Timer();
        QCOMPARE(f.alerted(), QStringList());
    }

    void afterOkTheMainWindowThatLiesInFrontHasTheKeyboard()
    {
        ProgramFixture f;
        aTask(f.database).remindingAt(f.database.clock().now() - 1min).add();
        f.start();
        f.program.loadDialogs();
        openItem(f);
        frmTaskDetails& dialog = f.program.taskDetails();
        QTRY_COMPARE(QApplication::activeWindow(), &dialog);
        f.press(dialog, "btnOk");
        QVERIFY(!dialog.isVisible());
        QVERIFY(QTest::qWaitForWindowActive(&f.main()));
        QVERIFY(f.program.alerts().isVisible());
    }

    void afterOkOfADialogThatHadNotTheKeyboardNobodyIsActivated()
    {
        ProgramFixture f;
        aTask(f.database).remindingAt(f.database.clock().now() - 1min).add();
        f.start();
        f.program.loadDialogs();
        openItem(f);
        f.program.alerts().focusGrid();
        QVERIFY(QTest::qWaitForWindowActive(&f.program.alerts()));
        f.press(f.program.taskDetails(), "btnOk");
        QCoreApplication::processEvents();
        QVERIFY(f.program.alerts().isActiveWindow());
    }

    void afterOkAMinimizedMainWindowStaysSo()
    {
        ProgramFixture f;
        aTask(f.database).remindingAt(f.database.clock().now() - 1min).add();
        f.start();
        f.program.loadDialogs();
        openItem(f);
        f.main().showMinimized();
        frmTaskDetails& dialog = f.program.taskDetails();
        dialog.activateWindow();
        QVERIFY(QTest::qWaitForWindowActive(&dialog));
        f.press(dialog, "btnOk");
        QCoreApplication::processEvents();
        QVERIFY(f.main().isMinimized());
        QVERIFY(!f.main().isActiveWindow());
    }

    void withoutAlwaysOnTopNoWindowStaysTopmost()
    {
        ProgramFixture f;
        f.setting(QStringLiteral("always_on_top"), 1);
        aTask(f.database).remindingAt(f.database.clock().now() - 1min).add();
        f.start();
        f.program.loadDialogs();
        f.press(f.main(), "btnTaskAdd");
        f.press(f.main(), "btnTaskPrint");
        f.press(f.main(), "btnHelpTasks");
        f.menu("mnuAbout")->trigger();
        const QWidgetList opened = {&f.program.alerts(), &f.program.taskDetails(), f.reportWindow.data(),
            f.helpWindow.data(), aboutBox()};
        for (const QWidget* window : opened) {
            QVERIFY2(isTopmost(window), qPrintable(window->windowTitle()));
        }
        f.control<QCheckBox>(f.main(), "chkOnTop")->setChecked(false);
        f.press(f.main(), "btnSave");
        QVERIFY(!isTopmost(&f.main()));
        for (const QWidget* window : opened) {
            QVERIFY2(!isTopmost(window), qPrintable(window->windowTitle()));
            QVERIFY2(window->isVisible(), qPrintable(window->windowTitle()));
        }
    }

    void whatIsOpenWhenAlwaysOnTopIsSwitchedOnStaysAboveTheMainWindow()
    {
        ProgramFixture f;
        aTask(f.database).remindingAt(f.database.clock().now() - 1min).add();
        f.start();
        f.program.loadDialogs();
        f.press(f.main(), "btnTaskPrint");
        f.press(f.main(), "btnHelpTasks");
        f.menu("mnuAbout")->trigger();
        f.control<QCheckBox>(f.main(), "chkOnTop")->setChecked(true);
        f.press(f.main(), "btnSave");
        QVERIFY(isTopmost(&f.main()));
        for (const QWidget* window :
            {static_cast<QWidget*>(&f.program.alerts()), static_cast<QWidget*>(f.reportWindow.data()),
                static_cast<QWidget*>(f.helpWindow.data()), aboutBox()}) {
            QVERIFY2(isTopmost(window), qPrintable(window->windowTitle()));
        }
    }

    void theQuestionAboutUnsavedInputStaysAboveTheTopmostMainWindow()
    {
        ProgramFixture f;
        f.setting(QStringLiteral("always_on_top"), 1);
        aTask(f.database).remindingAt(f.database.clock().now() - 1min).add();
        f.start();
        f.program.loadDialogs();
        openItem(f);
        frmTaskDetails& dialog = f.program.taskDetails();
        QVERIFY(!isTopmost(&dialog));
        f.control<QLineEdit>(dialog, "txtTask")->setText(QStringLiteral("changed"));
        f.dialogs.expectUnsaved(
            QStringLiteral("The changes to 'changed' are not saved."), MessageBoxes::Unsaved::Keep);
        f.press(f.main(), "btnTaskAdd");
        QVERIFY(f.dialogs.allUsed());
        QVERIFY(isTopmost(&dialog));
    }

    void savedWithAlwaysOnTopTheAlertStaysTopmost()
    {
        ProgramFixture f;
        f.setting(QStringLiteral("always_on_top"), 1);
        aTask(f.database).remindingAt(f.database.clock().now() - 1min).add();
        f.start();
        f.program.loadDialogs();
        f.press(f.main(), "btnSave");
        QVERIFY(isTopmost(&f.program.alerts()));
    }

private:
    static void openItem(ProgramFixture& f)
    {
        f.press(f.program.alerts(), "btnOpenItem");
        QVERIFY(f.program.taskDetails().isVisible());
    }
    static QWidget* aboutBox()
    {
        for (QWidget* window : QApplication::topLevelWidgets()) {
            if (window->objectName() == QLatin1String("frmAbout")) {
                return window;
            }
        }
        return nullptr;
    }
};

AMBERTASK_TEST_MAIN(ProgramAlertTest)
#include "tst_program_alert.moc"
