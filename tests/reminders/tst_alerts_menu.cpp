#include "AlertsFixture.h"
#include "support/ContextMenu.h"
#include "support/TestMain.h"

#include <QAccessible>
#include <QSignalSpy>

using namespace std::chrono_literals;

namespace
{

/// An alert window with three due reminders listed, the first selected.
struct ThreeListed : AlertsFixture {
    ThreeListed()
    {
        for (const char* name : {"a", "b", "c"}) {
            ids.append(aDueTask(QString::fromLatin1(name)).sounding(QStringLiteral("a.wav")).add());
        }
        tick();
        takeSounds();
        database().statements().take();
    }
    ContextMenu menu() { return {*grid(), "mnuAlert"}; }

    QList<qint32> ids;
};

using Rows = QList<int>;

} // namespace

/// The alert's context menu, and what can be done with several reminders at once.
class tst_alerts_menu : public TestCase
{
    Q_OBJECT

private slots:
    void theMenuHasItsEntriesWithTheKeysOfTheButtons()
    {
        ThreeListed alerts;
        QStringList entries;
        for (const QAction* action : alerts.menu().open()->actions()) {
            entries.append(action->objectName() + u' ' + action->shortcut().toString());
        }
        QCOMPARE(entries.join(u'|'),
            QStringLiteral(
                "mnuAlertComplete |mnuAlertOpenItem Ctrl+O|mnuAlertRemindMeLater |mnuAlertDismiss Ctrl+M"));
    }

    void withNothingSelectedTheMenuOffersNothing()
    {
        ThreeListed alerts;
        alerts.grid()->selectOnly(-1);
        for (const QAction* action : alerts.menu().open()->actions()) {
            QVERIFY(!action->isEnabled());
        }
    }

    void assistiveTechnologyOpensTheMenuForTheRowOfACell()
    {
        ThreeListed alerts;
        QAccessibleInterface* seen = QAccessible::queryAccessibleInterface(alerts.grid());
        for (QAccessibleInterface* part : {seen, seen->tableInterface()->cellAt(1, 0)}) {
            part->actionInterface()->doAction(QAccessibleActionInterface::showMenuAction());
            auto* menu = alerts.window.findChild<QMenu*>(QStringLiteral("mnuAlert"));
            QVERIFY(menu != nullptr && menu->isVisible());
            menu->close();
        }
        QCOMPARE(alerts.grid()->selectedRows(), Rows{1});
    }

    void theMenuBeginsWhereItsRowDoes_data()
    {
        QTest::addColumn<Qt::LayoutDirection>("direction");
        QTest::newRow("from left to right") << Qt::LeftToRight;
        QTest::newRow("from right to left") << Qt::RightToLeft;
    }
    void theMenuBeginsWhereItsRowDoes()
    {
        QFETCH(const Qt::LayoutDirection, direction);
        QGuiApplication::setLayoutDirection(direction);
        {
            ThreeListed alerts;
            const QRect menu = alerts.menu().open()->geometry();
            QRect row = alerts.grid()->visualRect(alerts.grid()->currentIndex());
            row.moveTo(alerts.grid()->viewport()->mapToGlobal(row.topLeft()));
            QVERIFY(menu.top() >= row.bottom());
            const bool isLeft = direction == Qt::LeftToRight;
            QCOMPARE(isLeft ? menu.left() : menu.right() + 1, isLeft ? row.left() : row.right());
        }
        QGuiApplication::setLayoutDirection(Qt::LeftToRight);
    }

    void theKeyOfAButtonStillWorksItOnceTheMenuHasBeenOpen()
    {
        ThreeListed alerts;
        alerts.window.activateWindow();
        QVERIFY(QTest::qWaitForWindowActive(&alerts.window));
        alerts.passKeyRest();
        alerts.menu().open()->close();
        QTest::keyClick(alerts.grid(), Qt::Key_M, Qt::ControlModifier);
        // A button is pressed for a moment first.
        QTRY_COMPARE(alerts.names(), QStringList({QStringLiteral("b"), QStringLiteral("c")}));
    }

    void completingSetsTheStatusAndTakesTheReminderOutOfTheList()
    {
        ThreeListed alerts;
        const QSignalSpy dismissed(&alerts.window, &frmAlerts::remindersDismissed);
        alerts.grid()->selectOnly(1);
        alerts.menu().trigger("mnuAlertComplete");
        QCOMPARE(alerts.names(), QStringList({QStringLiteral("a"), QStringLiteral("c")}));
        QCOMPARE(alerts.database().storedOfAll("task_status"), QStringLiteral("0 2 0"));
        QCOMPARE(alerts.database().storedOfAll("dismissed"), QStringLiteral("0 1 0"));
        QCOMPARE(dismissed.count(), 1);
        QCOMPARE(alerts.takeSounds(), QStringList{QStringLiteral("stop")});
        QCOMPARE(alerts.caption(), QStringLiteral("3 Reminders"));
        QCOMPARE(alerts.grid()->selectedRows(), Rows{1});
    }

    void aReminderThatComesLeavesAnOpenMenuItsRow()
    {
        ThreeListed alerts;
        alerts.grid()->selectOnly(2);
        QAction* complete = alerts.menu().entry("mnuAlertComplete");
        alerts.aDueTask(QStringLiteral("d")).add();
        alerts.tick();
        QCOMPARE(alerts.rows(), 4);
        complete->trigger();
        QCOMPARE(alerts.database().storedOfAll("task_status"), QStringLiteral("0 0 2 0"));
    }

    void severalAreCompletedDismissedOrPutOffAsOneStep_data()
    {
        QTest::addColumn<QString>("entry");
        QTest::addColumn<QString>("done");
        QTest::newRow("complete") << QStringLiteral("mnuAlertComplete")
                                  << QStringLiteral("2 tasks completed");
        QTest::newRow("dismiss") << QStringLiteral("mnuAlertDismiss")
                                 << QStringLiteral("2 reminders dismissed");
        QTest::newRow("remind later") << QString() << QStringLiteral("2 reminders postponed");
    }

    void severalAreCompletedDismissedOrPutOffAsOneStep()
    {
        QFETCH(QString, entry);
        QFETCH(QString, done);
        ThreeListed alerts;
        const QString before =
            alerts.database().storedOfAll("task_status || dismissed || reminder_date_time");
        alerts.grid()->selectRows({0, 2});
        if (entry.isEmpty()) {
            alerts.menu().chooseFrom("mnuAlertRemindMeLater", QStringLiteral("In 1 &hour"));
        } else {
            alerts.menu().trigger(entry.toLatin1().constData());
        }
        QCOMPARE(alerts.names(), QStringList{QStringLiteral("b")});
        QCOMPARE(alerts.grid()->selectedRows(), Rows{0});
        QVERIFY(alerts.window.isVisible());
        QCOMPARE(alerts.world.undo.undoText(), done);
        alerts.world.undo.undo();
        QVERIFY(!alerts.world.undo.canUndo());
        QCOMPARE(alerts.database().storedOfAll("task_status || dismissed || reminder_date_time"), before);
    }

    void theButtonsActOnAllThatAreSelected()
    {
        ThreeListed alerts;
        alerts.grid()->selectAll();
        alerts.click(QStringLiteral("btnDismiss"));
        QCOMPARE(alerts.database().storedOfAll("dismissed"), QStringLiteral("1 1 1"));
        QVERIFY(!alerts.window.isVisible());
        QCOMPARE(alerts.rows(), 0);
    }

    void openItemOpensTheCurrentOne()
    {
        ThreeListed alerts;
        alerts.grid()->selectOnly(0);
        QTest::keyClick(alerts.grid(), Qt::Key_Down, Qt::ShiftModifier);
        alerts.menu().trigger("mnuAlertOpenItem");
        QCOMPARE(alerts.host.opened, QList<qint16>{static_cast<qint16>(alerts.ids[1])});
    }

    void theSelectedRemindersStaySelectedWhileTheyAreListed()
    {
        ThreeListed alerts;
        alerts.grid()->selectRows({1, 2});
        alerts.database().sql(QStringLiteral("delete from tasks where task_name='a'"));
        alerts.tick();
        QCOMPARE(alerts.names(), QStringList({QStringLiteral("b"), QStringLiteral("c")}));
        QCOMPARE(alerts.grid()->selectedRows(), Rows({0, 1}));
        alerts.database().sql(QStringLiteral("delete from tasks where task_name='b'"));
        alerts.tick();
        QCOMPARE(alerts.grid()->selectedRows(), Rows{0});
    }

    void aChangeThatFailsLeavesTheListAsItWas()
    {
        ThreeListed alerts;
        alerts.grid()->selectRows({0, 1});
        alerts.database().sql(QStringLiteral("alter table tasks rename to elsewhere"));
        alerts.world.dialogs.expectError(QStringLiteral("tasks"));
        alerts.menu().trigger("mnuAlertComplete");
        QCOMPARE(alerts.rows(), 3);
        QCOMPARE(alerts.grid()->selectedRows(), Rows({0, 1}));
    }
};

AMBERTASK_TEST_MAIN(tst_alerts_menu)
#include "tst_alerts_menu.moc"
