#include "AlertsFixture.h"
#include "reminders/UsualMomentButton.h"
#include "support/TestMain.h"
#include "ui/DateComposition.h"

#include <QAccessible>
#include <QApplication>
#include <QDateEdit>
#include <QMenu>
#include <QPushButton>
#include <QTimeEdit>
#include <QTimer>

using namespace std::chrono_literals;

/// The alert under the keyboard: keys that were meant for something else, and the button with usual moments.
class AlertKeysTest : public TestCase
{
    Q_OBJECT

private slots:
    void keysThatWereMeantForAnotherWindowLoseNothing_data()
    {
        QTest::addColumn<int>("key");
        for (const int key : {int(Qt::Key_Return), int(Qt::Key_Enter), int(Qt::Key_Space),
                 int(Qt::Key_Escape), int(Qt::Key_Delete), int(Qt::Key_Backspace), int(Qt::Key_D),
                 int(Qt::Key_A), int(Qt::Key_R)}) {
            QTest::newRow(qPrintable(QKeySequence(key).toString())) << key;
        }
    }

    void keysThatWereMeantForAnotherWindowLoseNothing()
    {
        QFETCH(int, key);
        AlertsFixture alerts;
        alerts.aDueTask(QStringLiteral("first")).add();
        alerts.aDueTask(QStringLiteral("second")).add();
        alerts.tick();
        alerts.window.activateWindow();
        QVERIFY(QTest::qWaitForWindowActive(&alerts.window));
        QCOMPARE(QApplication::focusWidget(), alerts.grid());
        alerts.database().statements().take();
        QTest::keyClick(QApplication::focusWidget(), Qt::Key(key));
        QCOMPARE(alerts.database().statements().take(), QStringList());
        QVERIFY(alerts.window.isVisible());
        QCOMPARE(alerts.names(), QStringList({QStringLiteral("first"), QStringLiteral("second")}));
        QVERIFY(alerts.host.opened.isEmpty());
        QCOMPARE(QApplication::focusWidget(), alerts.grid());
        QCOMPARE(alerts.grid()->selectedRow(), 0);
    }

    void noButtonIsPressedByEnterFromElsewhere()
    {
        const AlertsFixture alerts;
        for (const QPushButton* button : alerts.window.findChildren<QPushButton*>()) {
            QVERIFY2(!button->isDefault() && !button->autoDefault(), qPrintable(button->objectName()));
        }
    }

    void aUsualMomentFillsThePickersAndStoresNothing()
    {
        AlertsFixture alerts;
        alerts.aDueTask(QStringLiteral("call")).add();
        alerts.tick();
        alerts.database().statements().take();
        choose(alerts, Qt::Key_T);
        QCOMPARE(pickers(alerts), QStringLiteral("2026-01-16 09:00:00"));
        QCOMPARE(alerts.database().statements().take(), QStringList());
        QCOMPARE(alerts.names(), QStringList(QStringLiteral("call")));
    }

    void aUsualMomentAndTheButtonPutTheReminderOff()
    {
        AlertsFixture alerts;
        const qint32 id = alerts.aDueTask(QStringLiteral("call")).add();
        alerts.tick();
        choose(alerts, Qt::Key_1);
        alerts.click(QStringLiteral("btnRemindMeLater"));
        QCOMPARE(
            alerts.stored(id, QStringLiteral("reminder_date_time")), QStringLiteral("2026-01-15 10:15:00"));
        QVERIFY(!alerts.window.isVisible());
    }

    void theMomentIsThatOfTheChoice()
    {
        AlertsFixture alerts;
        alerts.aDueTask(QStringLiteral("call")).add();
        alerts.tick();
        open(alerts, [&alerts](QMenu& menu) {
            alerts.clock().step(10min);
            QTest::keyClick(&menu, Qt::Key_5);
        });
        QCOMPARE(pickers(alerts), QStringLiteral("2026-01-15 10:15:00"));
    }

    void theEveningIsLeftOutOnceItHasBegun()
    {
        AlertsFixture alerts;
        alerts.aDueTask(QStringLiteral("call")).add();
        alerts.tick();
        QCOMPARE(entries(alerts),
            QStringList({QStringLiteral("In 5 minutes"), QStringLiteral("In 15 minutes"),
                QStringLiteral("In 1 hour"), QStringLiteral("This evening"),
                QStringLiteral("Tomorrow morning"), QStringLiteral("Next week")}));
        alerts.clock().step(8h);
        QVERIFY(!entries(alerts).contains(QStringLiteral("This evening")));
        alerts.clock().step(8h);
        QVERIFY(entries(alerts).contains(QStringLiteral("This evening")));
    }

    void anEveningThatBeginsWhileTheMenuIsOpenChangesNothing()
    {
        AlertsFixture alerts;
        alerts.aDueTask(QStringLiteral("call")).add();
        alerts.tick();
        const QString before = pickers(alerts);
        open(alerts, [&alerts](QMenu& menu) {
            alerts.clock().step(8h);
            QTest::keyClick(&menu, Qt::Key_E);
        });
        QCOMPARE(pickers(alerts), before);
    }

    void escapeClosesTheMenuAloneAndKeepsThePickers()
    {
        AlertsFixture alerts;
        alerts.aDueTask(QStringLiteral("call")).add();
        alerts.tick();
        const QString before = pickers(alerts);
        choose(alerts, Qt::Key_Escape);
        QVERIFY(alerts.window.isVisible());
        QCOMPARE(pickers(alerts), before);
    }

    void assistiveTechnologyOpensTheMenuWithoutWaitingForTheChoice()
    {
        AlertsFixture alerts;
        alerts.aDueTask(QStringLiteral("call")).add();
        alerts.tick();
        alerts.window.activateWindow();
        QVERIFY(QTest::qWaitForWindowActive(&alerts.window));
        QMenu* menu = button(alerts)->menu();
        QAccessibleInterface* seen = QAccessible::queryAccessibleInterface(button(alerts));
        QCOMPARE(seen->role(), QAccessible::ButtonMenu);
        connect(menu, &QMenu::aboutToShow, menu,
            [menu] { QTimer::singleShot(0, menu, [menu] { QTest::keyClick(menu, Qt::Key_T); }); });
        const QString before = pickers(alerts);
        seen->actionInterface()->doAction(QAccessibleActionInterface::showMenuAction());
        QCOMPARE(pickers(alerts), before);
        QTRY_COMPARE(pickers(alerts), QStringLiteral("2026-01-16 09:00:00"));
        QVERIFY(!menu->isVisible());
    }

private:
    static UsualMomentButton* button(const AlertsFixture& alerts)
    {
        return alerts.control<UsualMomentButton>(QStringLiteral("btnUsualMoment"));
    }
    /// Opens the menu by the keyboard and runs `whileOpen`, which closes it.
    template <typename Action> static void open(AlertsFixture& alerts, Action whileOpen)
    {
        alerts.window.activateWindow();
        QVERIFY(QTest::qWaitForWindowActive(&alerts.window));
        bool opened = false;
        QMenu* menu = button(alerts)->menu();
        QTimer::singleShot(0, menu, [&] {
            opened = menu->isVisible();
            whileOpen(*menu);
        });
        button(alerts)->setFocus();
        QTest::keyClick(button(alerts), Qt::Key_Space);
        QVERIFY(opened);
        QVERIFY(!menu->isVisible());
    }
    static void choose(AlertsFixture& alerts, Qt::Key key)
    {
        open(alerts, [key](QMenu& menu) { QTest::keyClick(&menu, key); });
    }
    static QStringList entries(AlertsFixture& alerts)
    {
        QStringList shown;
        open(alerts, [&shown](QMenu& menu) {
            for (const QAction* entry : menu.actions()) {
                if (entry->isVisible()) {
                    shown.append(entry->text().remove(u'&'));
                }
            }
            QTest::keyClick(&menu, Qt::Key_Escape);
        });
        return shown;
    }
    static QString pickers(const AlertsFixture& alerts)
    {
        return QString::fromStdString(
            storedText(composeMoment(alerts.control<QDateEdit>(QStringLiteral("dtpReminderDate"))->date(),
                alerts.control<QTimeEdit>(QStringLiteral("dtpReminderTime"))->time())));
    }
};

AMBERTASK_TEST_MAIN(AlertKeysTest)
#include "tst_alerts_keys.moc"
