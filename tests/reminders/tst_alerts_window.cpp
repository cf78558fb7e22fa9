#include "AlertsFixture.h"
#include "reminders/FlashBand.h"
#include "support/ClosedWindow.h"
#include "support/TestMain.h"

#include <QDateEdit>
#include <QGroupBox>
#include <QHeaderView>
#include <QLabel>
#include <QMenu>
#include <QMessageBox>
#include <QPushButton>
#include <QTest>
#include <QTimeEdit>
#include <QtTest/qtestspontaneevent.h>
#include <cmath>

using namespace std::chrono_literals;

namespace
{

/// An alert window that came up with two reminders and is active; its flasher ticks only when a test says so.
struct ShownAlerts : AlertsFixture {
    ShownAlerts()
    {
        flasher()->setInterval(24h);
        aDueTask(QStringLiteral("First")).sounding(QStringLiteral("one.wav")).add();
        aDueTask(QStringLiteral("Second")).add();
        tick();
        takeSounds();
        isActive = QTest::qWaitForWindowActive(&window);
    }
    QTimer* flasher() const { return control<QTimer>(QStringLiteral("tmrFlasher")); }
    FlashBand* band() const { return window.findChild<FlashBand*>(); }
    void flash() { QMetaObject::invokeMethod(flasher(), "timeout"); }
    QDateEdit* date() const { return control<QDateEdit>(QStringLiteral("dtpReminderDate")); }
    QTimeEdit* time() const { return control<QTimeEdit>(QStringLiteral("dtpReminderTime")); }
    Moment pickedMoment() const { return toMoment(date()->date(), time()->time()); }

    bool isActive = false;
};

QImage picture(QWidget* widget)
{
    return widget->grab().toImage();
}

} // namespace

class tst_alerts_window : public TestCase
{
    Q_OBJECT

private slots:
    void theColumnsHaveTheirShareOfTheGridsWidth_data()
    {
        QTest::addColumn<int>("windowWidth");
        for (const int width : {620, 701, 877, 1234}) {
            QTest::addRow("%d pixels", width) << width;
        }
    }

    void theColumnsHaveTheirShareOfTheGridsWidth()
    {
        QFETCH(int, windowWidth);
        ShownAlerts alerts;
        alerts.window.resize(windowWidth, 400);
        QCoreApplication::processEvents();
        const GridView* grid = alerts.grid();
        QVERIFY(grid->width() > windowWidth / 2);
        QVERIFY(grid->isColumnHidden(0));
        const int room = grid->viewport()->width();
        const auto expected = [room](int divisor) {
            return static_cast<int>(std::lround(room / (1.0 / 26 + 1.0 / 200 + 1.0 / 48) / divisor));
        };
        QCOMPARE(grid->columnWidth(1), room - expected(200) - expected(48));
        QVERIFY(std::abs(grid->columnWidth(1) - expected(26)) <= 1);
        QCOMPARE(grid->columnWidth(2), expected(200));
        QCOMPARE(grid->columnWidth(3), expected(48));
    }

    void aWidthThatTheUserGaveSurvivesTheNextReminder()
    {
        ShownAlerts alerts;
        alerts.grid()->horizontalHeader()->resizeSection(1, 111);
        alerts.aDueTask(QStringLiteral("Third")).add();
        alerts.tick();
        QCOMPARE(alerts.rows(), 3);
        QCOMPARE(alerts.grid()->columnWidth(1), 111);
    }

    void itComesUpWithTheFocusInItsGridAndThePickersSetToNow()
    {
        AlertsFixture alerts;
        alerts.aDueTask(QStringLiteral("x")).add();
        alerts.control<QPushButton>(QStringLiteral("btnDismiss"))->setFocus();
        alerts.clock().step(3h + 7min);
        alerts.tick();
        QCOMPARE(alerts.window.focusWidget(), alerts.grid());
        QCOMPARE(
            alerts.control<QTimeEdit>(QStringLiteral("dtpReminderTime"))->text(), QStringLiteral("13:07"));
        QCOMPARE(alerts.control<QDateEdit>(QStringLiteral("dtpReminderDate"))->text(),
            QStringLiteral("1/15/2026"));
    }

    void aNewReminderLeavesTheFocusWhereTheUserIsAtWork()
    {
        ShownAlerts alerts;
        alerts.date()->setFocus();
        alerts.date()->setDate(QDate(2026, 5, 5));
        alerts.aDueTask(QStringLiteral("Third")).add();
        alerts.tick();
        QCOMPARE(alerts.window.focusWidget(), alerts.date());
        QCOMPARE(alerts.date()->date(), QDate(2026, 5, 5));
        QCOMPARE(alerts.grid()->selectedRow(), 0);
    }

    void aMinimizedWindowIsRestoredByANewReminder()
    {
        ShownAlerts alerts;
        alerts.window.showMinimized();
        QVERIFY(alerts.window.isMinimized());
        alerts.tick();
        QVERIFY(alerts.window.isMinimized());
        alerts.aDueTask(QStringLiteral("Third")).add();
        alerts.tick();
        QVERIFY(!alerts.window.isMinimized());
        QVERIFY(alerts.window.isVisible());
        QCOMPARE(alerts.window.focusWidget(), alerts.grid());
    }

    void aMaximizedWindowStaysMaximized()
    {
        ShownAlerts alerts;
        alerts.window.showMaximized();
        alerts.window.hide();
        alerts.aDueTask(QStringLiteral("Third")).add();
        alerts.tick();
        QVERIFY(alerts.window.isVisible());
        QVERIFY(alerts.window.isMaximized());
    }

    void theCloseBoxHidesAndStopsTheSound()
    {
        ShownAlerts alerts;
        QVERIFY(!closeBySystem(alerts.window));
        QVERIFY(!alerts.window.isVisible());
        QCOMPARE(alerts.takeSounds(), QStringList(QStringLiteral("stop")));
        QCOMPARE(alerts.rows(), 2);
        alerts.tick();
        QVERIFY(!alerts.window.isVisible());
    }

    void theProgramCanCloseIt()
    {
        ShownAlerts alerts;
        QVERIFY(alerts.window.close());
        QCOMPARE(alerts.takeSounds(), QStringList());
    }

    void theBandInvertsOnceATickWhileTheWindowIsActiveAndTheTitleStays()
    {
        ShownAlerts alerts;
        QVERIFY(alerts.isActive);
        QVERIFY(alerts.flasher()->isActive());
        const QImage before = picture(alerts.band());
        alerts.flash();
        const QImage inverted = picture(alerts.band());
        QVERIFY(before != inverted);
        QCOMPARE(before.pixelColor(1, 1), alerts.band()->palette().color(QPalette::Highlight));
        QCOMPARE(inverted.pixelColor(1, 1), alerts.band()->palette().color(QPalette::HighlightedText));
        QCOMPARE(alerts.caption(), QStringLiteral("2 Reminders"));
        alerts.flash();
        QCOMPARE(picture(alerts.band()), before);
    }

    void theFlasherTicksOnceASecond()
    {
        const AlertsFixture alerts;
        const auto* flasher = alerts.control<QTimer>(QStringLiteral("tmrFlasher"));
        QCOMPARE(flasher->interval(), 1000);
        QVERIFY(!flasher->isActive());
    }

    void aSkinsRulesForLabelsDoNotStopTheFlashing()
    {
        ShownAlerts alerts;
        alerts.window.setStyleSheet(QStringLiteral("QLabel { color: #123456; background: #ffffff; }"));
        const QImage before = picture(alerts.band());
        alerts.flash();
        QVERIFY(picture(alerts.band()) != before);
    }

    void theFlasherStopsWhenAnotherWindowBecomesActive()
    {
        ShownAlerts alerts;
        alerts.flash();
        QWidget other;
        other.show();
        other.activateWindow();
        QVERIFY(QTest::qWaitForWindowActive(&other));
        QVERIFY(!alerts.flasher()->isActive());
        QVERIFY(!alerts.band()->isInverted());
    }

    void activationSetsThePickersToNow()
    {
        ShownAlerts alerts;
        QWidget other;
        other.show();
        other.activateWindow();
        QVERIFY(QTest::qWaitForWindowActive(&other));
        alerts.date()->setDate(QDate(2027, 1, 1));
        alerts.clock().step(25h);
        alerts.window.activateWindow();
        QVERIFY(QTest::qWaitForWindowActive(&alerts.window));
        QVERIFY(alerts.pickedMoment() == alerts.now());
        QVERIFY(alerts.flasher()->isActive());
    }

    void itsOwnMessageBoxIsNeitherDeactivationNorActivation()
    {
        ShownAlerts alerts;
        alerts.date()->setDate(QDate(2027, 1, 1));
        const Moment picked = alerts.pickedMoment();
        QMessageBox box(&alerts.window);
        box.setWindowModality(Qt::ApplicationModal);
        box.show();
        box.activateWindow();
        QVERIFY(QTest::qWaitForWindowActive(&box));
        QVERIFY(alerts.flasher()->isActive());
        box.hide();
        alerts.window.activateWindow();
        QVERIFY(QTest::qWaitForWindowActive(&alerts.window));
        QVERIFY(alerts.pickedMoment() == picked);
        QVERIFY(alerts.flasher()->isActive());
    }

    void theFlasherStopsItselfWhenTheActivationWentElsewhereFromABox()
    {
        ShownAlerts alerts;
        QMessageBox box(&alerts.window);
        box.setWindowModality(Qt::ApplicationModal);
        box.show();
        box.activateWindow();
        QVERIFY(QTest::qWaitForWindowActive(&box));
        QWidget other;
        box.hide();
        other.show();
        other.activateWindow();
        QVERIFY(QTest::qWaitForWindowActive(&other));
        alerts.flash();
        QVERIFY(!alerts.flasher()->isActive());
        QVERIFY(!alerts.band()->isInverted());
    }

    void theCalendarIsNeitherDeactivationNorActivation()
    {
        ShownAlerts alerts;
        alerts.time()->setTime(QTime(23, 59));
        const Moment picked = alerts.pickedMoment();
        QTest::ignoreMessage(QtWarningMsg, "This plugin does not support grabbing the keyboard");
        QTest::mousePress(alerts.date(), Qt::LeftButton, {}, QPoint(alerts.date()->width() - 8, 10));
        QVERIFY(QApplication::activePopupWidget() != nullptr);
        QCoreApplication::processEvents();
        QVERIFY(alerts.flasher()->isActive());
        QTest::keyClick(QApplication::activePopupWidget(), Qt::Key_Escape);
        QVERIFY(QApplication::activePopupWidget() == nullptr);
        QCoreApplication::processEvents();
        QVERIFY(alerts.pickedMoment() == picked);
        QVERIFY(alerts.flasher()->isActive());
    }

    void escapeAndEnterDoNothing()
    {
        ShownAlerts alerts;
        for (const int key : {Qt::Key_Escape, Qt::Key_Return, Qt::Key_Enter, Qt::Key_Delete}) {
            for (const char* name : {"grdTasks", "btnDismiss", "dtpReminderTime"}) {
                auto* control = alerts.control<QWidget>(QString::fromLatin1(name));
                control->setFocus();
                QTest::keyClick(control, static_cast<Qt::Key>(key));
            }
        }
        QVERIFY(alerts.window.isVisible());
        QCOMPARE(alerts.rows(), 2);
        QCOMPARE(alerts.host.opened, QList<qint16>());
        QCOMPARE(alerts.takeSounds(), QStringList());
    }

    void theKeysOfAButtonAndOfTheGridWork()
    {
        ShownAlerts alerts;
        QTest::keyClick(alerts.grid(), Qt::Key_Down);
        QCOMPARE(alerts.grid()->selectedRow(), 1);
        alerts.passKeyRest();
        QTest::keyClick(&alerts.window, Qt::Key_M, Qt::ControlModifier);
        // A key presses the button for a moment before it clicks.
        QTRY_COMPARE(alerts.names(), QStringList(QStringLiteral("First")));
    }

    void tabGoesThroughTheControlsAsTheyStand()
    {
        ShownAlerts alerts;
        alerts.window.setHelpEnabled(true);
        QStringList order;
        // A date picker stops at each of its parts.
        do {
            order.append(QApplication::focusWidget()->objectName());
            QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
        } while (QApplication::focusWidget() != alerts.grid() && order.size() < 20);
        order.removeDuplicates();
        QCOMPARE(order.join(QLatin1Char(' ')),
            QStringLiteral(
                "grdTasks btnOpenItem btnDismiss btnDismissAll btnHelp dtpReminderDate dtpReminderTime "
                "btnUsualMoment btnRemindMeLater"));
        QCOMPARE(QApplication::focusWidget(), alerts.grid());
    }

    void focusGivenFromOutsideActivatesAVisibleWindowAndShowsNoHiddenOne()
    {
        ShownAlerts alerts;
        alerts.date()->setFocus();
        QWidget other;
        other.show();
        other.activateWindow();
        QVERIFY(QTest::qWaitForWindowActive(&other));
        alerts.window.focusGrid();
        QVERIFY(QTest::qWaitForWindowActive(&alerts.window));
        QVERIFY(alerts.grid()->hasFocus());
        alerts.window.hide();
        alerts.window.focusGrid();
        QVERIFY(!alerts.window.isVisible());
    }

    void theControlsCarryTheirNamesCaptionsAndKeys()
    {
        const AlertsFixture alerts;
        QCOMPARE(alerts.window.objectName(), QStringLiteral("frmAlerts"));
        QVERIFY(alerts.control<QGroupBox>(QStringLiteral("framNewReminder")) != nullptr);
        const QMap<QString, QString> captions{{QStringLiteral("btnDismiss"), QStringLiteral("Dismiss")},
            {QStringLiteral("btnDismissAll"), QStringLiteral("Dismiss All")},
            {QStringLiteral("btnRemindMeLater"), QStringLiteral("Remind me later")},
            {QStringLiteral("btnOpenItem"), QStringLiteral("Open Item")},
            {QStringLiteral("btnUsualMoment"), QStringLiteral("Set to")},
            {QStringLiteral("btnHelp"), QStringLiteral("Help")}};
        QStringList keys;
        for (const auto& [name, caption] : captions.toStdMap()) {
            const auto* button = alerts.control<QPushButton>(name);
            QVERIFY2(button != nullptr, qPrintable(name));
            QCOMPARE(button->text(), caption);
            QVERIFY(!button->autoDefault());
            QVERIFY(!button->isDefault());
            QVERIFY(!button->shortcut().isEmpty());
            QCOMPARE(button->toolTip(), button->shortcut().toString(QKeySequence::NativeText));
            keys.append(button->toolTip());
        }
        QCOMPARE(keys.removeDuplicates(), 0);
        QCOMPARE(alerts.control<QPushButton>(QStringLiteral("btnHelp"))->isEnabled(), false);
        for (const QLabel* label : alerts.window.findChildren<QLabel*>()) {
            QVERIFY2(label->buddy() != nullptr, qPrintable(label->text()));
        }
        QVERIFY(!alerts.grid()->accessibleName().isEmpty());
        QCOMPARE(alerts.control<QTimeEdit>(QStringLiteral("dtpReminderTime"))->accessibleName(),
            QStringLiteral("New reminder time"));
    }

    void aNameThatLooksLikeMarkupIsShownAsItIs()
    {
        AlertsFixture alerts;
        alerts.aDueTask(QStringLiteral("<b>x</b> &amp; y")).add();
        alerts.tick();
        QCOMPARE(alerts.cell(0, 1), QStringLiteral("<b>x</b> &amp; y"));
    }
};

AMBERTASK_TEST_MAIN(tst_alerts_window)
#include "tst_alerts_window.moc"
