#include "AlertsFixture.h"
#include "support/TestMain.h"
#include "widgets/MomentMenu.h"

#include <QAccessible>
#include <QApplication>
#include <QDateEdit>
#include <QMenu>
#include <QPushButton>
#include <QSignalSpy>
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
        for (const int key :
            {int(Qt::Key_Return), int(Qt::Key_Enter), int(Qt::Key_Space), int(Qt::Key_Escape),
                int(Qt::Key_Delete), int(Qt::Key_Backspace), int(Qt::Key_D), int(Qt::Key_M), int(Qt::Key_A),
                int(Qt::Key_R), int(Qt::Key_F2), Qt::Key_D | int(Qt::CTRL), Qt::Key_Z | int(Qt::CTRL),
                Qt::Key_N | int(Qt::CTRL), Qt::Key_P | int(Qt::CTRL), Qt::Key_C | int(Qt::CTRL)}) {
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
        const QKeyCombination keys = QKeyCombination::fromCombined(key);
        QTest::keyClick(QApplication::focusWidget(), keys.key(), keys.keyboardModifiers());
        QCOMPARE(alerts.database().statements().take(), QStringList());
        QVERIFY(alerts.window.isVisible());
        QCOMPARE(alerts.names(), QStringList({QStringLiteral("first"), QStringLiteral("second")}));
        QVERIFY(alerts.host.opened.isEmpty());
        QCOMPARE(QApplication::focusWidget(), alerts.grid());
        QCOMPARE(alerts.grid()->selectedRow(), 0);
    }

    void forHalfASecondAfterItCameUpTheButtonsActOnNoKey_data()
    {
        QTest::addColumn<QString>("button");
        for (const char* name :
            {"btnOpenItem", "btnDismiss", "btnDismissAll", "btnRemindMeLater", "btnUsualMoment", "btnHelp"}) {
            QTest::newRow(name) << QString::fromLatin1(name);
        }
    }

    void forHalfASecondAfterItCameUpTheButtonsActOnNoKey()
    {
        QFETCH(const QString, button);
        AlertsFixture alerts;
        alerts.window.setHelpEnabled(true);
        const auto* rest = alerts.control<QTimer>(QStringLiteral("tmrKeyRest"));
        QVERIFY(!rest->isActive());
        QCOMPARE(rest->interval(), 500);
        comeUpActive(alerts);
        QVERIFY(rest->isActive());
        auto* pressed = alerts.control<QPushButton>(button);
        const QSignalSpy presses(pressed, &QPushButton::pressed);
        const QKeyCombination keys = pressed->shortcut()[0];
        pressed->setFocus();
        for (const int key : {int(Qt::Key_Space), int(Qt::Key_Return), int(Qt::Key_Select)}) {
            QTest::keyClick(pressed, Qt::Key(key));
        }
        QTest::keyClick(&alerts.window, keys.key(), keys.keyboardModifiers());
        QCOMPARE(presses.count(), 0);

        alerts.passKeyRest();
        // Of the button with the menu a key would open that and wait for a choice.
        if (pressed->menu() == nullptr) {
            alerts.control<QDateEdit>(QStringLiteral("dtpReminderDate"))->setDate(QDate(2027, 1, 1));
            QTest::keyClick(&alerts.window, keys.key(), keys.keyboardModifiers());
            QCOMPARE(presses.count(), 1);
            QTRY_VERIFY(!pressed->isDown());
        }
    }

    void aKeyThatWasStruckTooEarlyAndIsLetGoLaterPressesNothing()
    {
        AlertsFixture alerts;
        comeUpActive(alerts);
        auto* button = alerts.control<QPushButton>(QStringLiteral("btnDismissAll"));
        button->setFocus();
        QTest::keyPress(button, Qt::Key_Space);
        alerts.passKeyRest();
        QTest::keyRelease(button, Qt::Key_Space);
        QVERIFY(alerts.window.isVisible());
        QTest::keyClick(button, Qt::Key_Space);
        QVERIFY(!alerts.window.isVisible());
    }

    void aHeldKeyWorksOnce_data()
    {
        QTest::addColumn<QString>("button");
        QTest::addColumn<int>("left");
        QTest::newRow("dismiss") << QStringLiteral("btnDismiss") << 1;
        QTest::newRow("remind later") << QStringLiteral("btnRemindMeLater") << 1;
        QTest::newRow("open") << QStringLiteral("btnOpenItem") << 2;
    }

    void aHeldKeyWorksOnce()
    {
        QFETCH(const QString, button);
        QFETCH(const int, left);
        AlertsFixture alerts;
        comeUpActive(alerts);
        alerts.passKeyRest();
        alerts.control<QDateEdit>(QStringLiteral("dtpReminderDate"))->setDate(QDate(2027, 1, 1));
        auto* pressed = alerts.control<QPushButton>(button);
        const QSignalSpy clicks(pressed, &QPushButton::clicked);
        for (const bool isRepeat : {false, true, true}) {
            // The animation of a press swallows the next ones.
            QTRY_VERIFY(!pressed->isDown());
            alerts.grid()->selectOnly(0);
            strike(alerts.grid(), pressed->shortcut()[0], isRepeat);
        }
        QTRY_VERIFY(!pressed->isDown());
        QCOMPARE(clicks.count(), 1);
        QCOMPARE(alerts.rows(), left);
        strike(alerts.grid(), pressed->shortcut()[0], false);
        QTRY_COMPARE(clicks.count(), 2);
    }

    void theMouseWorksAtOnce()
    {
        AlertsFixture alerts;
        comeUpActive(alerts);
        QVERIFY(alerts.control<QTimer>(QStringLiteral("tmrKeyRest"))->isActive());
        alerts.click(QStringLiteral("btnDismissAll"));
        QVERIFY(!alerts.window.isVisible());
    }

    void theNextReminderMakesTheButtonsRestAgain()
    {
        AlertsFixture alerts;
        comeUpActive(alerts);
        alerts.passKeyRest();
        alerts.aDueTask(QStringLiteral("another")).add();
        alerts.tick();
        QVERIFY(alerts.control<QTimer>(QStringLiteral("tmrKeyRest"))->isActive());
    }

    void aCheckThatBringsNothingUpLeavesTheKeysAlone()
    {
        AlertsFixture alerts;
        comeUpActive(alerts);
        alerts.passKeyRest();
        alerts.tick();
        QVERIFY(!alerts.control<QTimer>(QStringLiteral("tmrKeyRest"))->isActive());
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

    void theEveningCannotBeChosenOnceItHasBegun()
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
    static void comeUpActive(AlertsFixture& alerts)
    {
        alerts.aDueTask(QStringLiteral("one")).add();
        alerts.aDueTask(QStringLiteral("two")).add();
        alerts.tick();
        alerts.window.activateWindow();
        QVERIFY(QTest::qWaitForWindowActive(&alerts.window));
    }
    static void strike(QWidget* focused, QKeyCombination keys, bool isRepeat)
    {
        QTest::simulateEvent(focused, true, keys.key(), keys.keyboardModifiers(), QString(), isRepeat);
    }
    static MomentButton* button(const AlertsFixture& alerts)
    {
        return alerts.control<MomentButton>(QStringLiteral("btnUsualMoment"));
    }
    /// Opens the menu by the keyboard and runs `whileOpen`, which closes it.
    template <typename Action> static void open(AlertsFixture& alerts, Action whileOpen)
    {
        alerts.window.activateWindow();
        QVERIFY(QTest::qWaitForWindowActive(&alerts.window));
        alerts.passKeyRest();
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
                if (entry->isEnabled()) {
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
