#include "AlertsFixture.h"
#include "support/OtherProgram.h"
#include "support/RecordedNotifications.h"
#include "support/TestMain.h"

#include <QSignalSpy>
#include <QTest>

using namespace std::chrono_literals;

namespace
{

/// An alert window on a desktop where it cannot come up by itself.
struct ToldAlerts : RecordedDesktop, AlertsFixture {
    ToldAlerts() : AlertsFixture(factory()) { }
    QTimer* choiceRest() const { return control<QTimer>(QStringLiteral("tmrChoiceRest")); }
    /// Lets the half second pass in which new content takes no choice.
    void passChoiceRest() const
    {
        QCoreApplication::processEvents();
        choiceRest()->setInterval(0);
        QCoreApplication::processEvents();
        QVERIFY(!choiceRest()->isActive());
        choiceRest()->setInterval(500);
    }
};

/// One reminder, told.
struct OneTold : ToldAlerts {
    OneTold()
    {
        id = aDueTask(QStringLiteral("a")).add();
        tick();
    }
    qint32 id = 0;
};

/// Two reminders, told.
struct TwoTold : ToldAlerts {
    TwoTold()
    {
        first = aDueTask(QStringLiteral("a")).add();
        second = aDueTask(QStringLiteral("b")).add();
        tick();
    }
    qint32 first = 0;
    qint32 second = 0;
};

} // namespace

class AlertNotificationTest : public TestCase
{
    Q_OBJECT

private slots:
    void withNothingDueTheDesktopIsNotAsked()
    {
        ToldAlerts alerts;
        alerts.tick();
        QVERIFY(alerts.desktop == nullptr);
    }

    void theNotificationStandsForTheWindowAndTheReminderHasSounded()
    {
        ToldAlerts alerts;
        const qint32 id = alerts.aDueTask(QStringLiteral("a")).sounding(QStringLiteral("a.wav")).add();
        alerts.tick();
        QVERIFY(alerts.isTold());
        QVERIFY(!alerts.window.isVisible());
        QCOMPARE(alerts.told.constLast().title, QStringLiteral("1 Reminder"));
        QCOMPARE(alerts.lines(), QStringList(QStringLiteral("a")));
        QCOMPARE(alerts.takeSounds(), QStringList(QStringLiteral("play a.wav")));
        QVERIFY(alerts.isPlayed(id));
        QCOMPARE(alerts.window.dueCount(), 1);
        alerts.tick();
        QCOMPARE(alerts.told.size(), 1);
    }

    void itOffersWhatTheWindowOffers()
    {
        OneTold alerts;
        QStringList offers;
        for (const Notification::Action& action : alerts.told.constLast().actions) {
            offers.append(action.key + u'=' + action.caption);
        }
        QCOMPARE(offers,
            QStringList({QStringLiteral("default=Open"), QStringLiteral("open=Open"),
                QStringLiteral("later=Later (15 minutes)"), QStringLiteral("dismiss=Dismiss")}));
    }

    void openShowsTheWindowAndTheTask_data()
    {
        QTest::addColumn<QByteArray>("key");
        QTest::newRow("the button") << QByteArray("open");
        QTest::newRow("a click on the text") << QByteArray("default");
    }

    void openShowsTheWindowAndTheTask()
    {
        QFETCH(QByteArray, key);
        OneTold alerts;
        alerts.choose(key.constData());
        QVERIFY(alerts.window.isVisible());
        QCOMPARE(alerts.host.opened, QList<qint16>{static_cast<qint16>(alerts.id)});
        QVERIFY(!alerts.isTold());
    }

    void ofSeveralOpenShowsTheListWithAllSelected()
    {
        TwoTold alerts;
        alerts.choose("open");
        QVERIFY(alerts.window.isVisible());
        QCOMPARE(alerts.host.opened, QList<qint16>());
        QCOMPARE(alerts.grid()->selectedRows(), QList<int>({0, 1}));
    }

    void laterRemindsIn15Minutes()
    {
        TwoTold alerts;
        alerts.choose("later");
        for (const qint32 id : {alerts.first, alerts.second}) {
            QCOMPARE(alerts.stored(id, QStringLiteral("reminder_date_time")),
                QStringLiteral("2026-01-15 10:15:00"));
        }
        QVERIFY(!alerts.isTold());
        QVERIFY(!alerts.window.isVisible());
        alerts.clock().step(16min);
        alerts.tick();
        QVERIFY(alerts.isTold());
        QCOMPARE(alerts.lines(), QStringList({QStringLiteral("a"), QStringLiteral("b")}));
    }

    void dismissDismissesAllThatItNames()
    {
        TwoTold alerts;
        QSignalSpy dismissed(&alerts.window, &frmAlerts::remindersDismissed);
        alerts.choose("dismiss");
        QCOMPARE(alerts.stored(alerts.first, QStringLiteral("dismissed")), QStringLiteral("1"));
        QCOMPARE(alerts.stored(alerts.second, QStringLiteral("dismissed")), QStringLiteral("1"));
        QCOMPARE(dismissed.size(), 1);
        QVERIFY(!alerts.isTold());
        QCOMPARE(alerts.window.dueCount(), 0);
    }

    void aChoiceAfterTheAnswerChangesNothing()
    {
        OneTold alerts;
        alerts.choose("later");
        alerts.choose("dismiss");
        QCOMPARE(alerts.stored(alerts.id, QStringLiteral("dismissed")), QStringLiteral("0"));
    }

    void aReminderThatHasChangedMeanwhileIsNotAnswered_data()
    {
        QTest::addColumn<QByteArray>("key");
        QTest::newRow("later") << QByteArray("later");
        QTest::newRow("dismiss") << QByteArray("dismiss");
    }

    void aReminderThatHasChangedMeanwhileIsNotAnswered()
    {
        QFETCH(QByteArray, key);
        TwoTold alerts;
        const QString tomorrow = QStringLiteral("2026-01-16 10:00:00");
        alerts.database().sql(QStringLiteral("update tasks set reminder_date_time='%1' where task_id=%2")
                                  .arg(tomorrow)
                                  .arg(alerts.first));
        alerts.choose(key.constData());
        QCOMPARE(alerts.stored(alerts.first, QStringLiteral("reminder_date_time")), tomorrow);
        QCOMPARE(alerts.stored(alerts.first, QStringLiteral("dismissed")), QStringLiteral("0"));
        alerts.tick();
        QCOMPARE(alerts.window.dueCount(), 0);
        QVERIFY(!alerts.isTold());
    }

    void anotherReminderOfTheTaskIsToldInsteadOfAnswered()
    {
        OneTold alerts;
        alerts.database().sql(QStringLiteral("update tasks set reminder_date_time='2026-01-15 09:00:00'"));
        alerts.choose("dismiss");
        QCOMPARE(alerts.stored(alerts.id, QStringLiteral("dismissed")), QStringLiteral("0"));
        alerts.tick();
        QVERIFY(alerts.isTold());
        alerts.choose("dismiss");
        QCOMPARE(alerts.stored(alerts.id, QStringLiteral("dismissed")), QStringLiteral("1"));
    }

    void anAnswerThatFailsIsReportedAndTheNotificationComesBack_data()
    {
        QTest::addColumn<QByteArray>("key");
        QTest::addColumn<QByteArray>("lock");
        for (const char* key : {"later", "dismiss"}) {
            for (const char* lock :
                {OtherProgram::Committing, OtherProgram::Writing, OtherProgram::Reading}) {
                QTest::addRow("%s, %s", key, lock) << QByteArray(key) << QByteArray(lock);
            }
        }
    }

    void anAnswerThatFailsIsReportedAndTheNotificationComesBack()
    {
        QFETCH(QByteArray, key);
        QFETCH(QByteArray, lock);
        TwoTold alerts;
        {
            const OtherProgram other(alerts.database(), lock.constData());
            QVERIFY(other.holds());
            alerts.world.dialogs.expectError(QStringLiteral("another program is using it"));
            alerts.choose(key.constData());
        }
        QVERIFY(alerts.world.dialogs.allUsed());
        QVERIFY(alerts.isTold());
        QCOMPARE(alerts.told.constLast().title, QStringLiteral("2 Reminders"));
        QCOMPARE(alerts.lines(), QStringList({QStringLiteral("a"), QStringLiteral("b")}));
        alerts.choose(key.constData());
        alerts.tick();
        QCOMPARE(alerts.window.dueCount(), 0);
        QVERIFY(!alerts.isTold());
    }

    void whatIsAnsweredElsewhereLeavesTheNotification()
    {
        TwoTold alerts;
        alerts.database().sql(
            QStringLiteral("update tasks set dismissed=1 where task_id=%1").arg(alerts.first));
        alerts.tick();
        QVERIFY(alerts.isTold());
        QCOMPARE(alerts.told.constLast().title, QStringLiteral("1 Reminder"));
        QCOMPARE(alerts.lines(), QStringList(QStringLiteral("b")));
        alerts.database().sql(QStringLiteral("update tasks set dismissed=1"));
        alerts.tick();
        QVERIFY(!alerts.isTold());
    }

    void theNotificationGoesWhenTheUserLooksAtTheWindow()
    {
        OneTold alerts;
        alerts.window.show();
        QVERIFY(QTest::qWaitForWindowActive(&alerts.window));
        QVERIFY(!alerts.isTold());
        // What the user sees need not be told.
        alerts.aDueTask(QStringLiteral("b")).add();
        alerts.tick();
        QVERIFY(!alerts.isTold());
        QCOMPARE(alerts.names(), QStringList({QStringLiteral("a"), QStringLiteral("b")}));
    }

    void whatTheUserClosesComesBackOnlyWithAnotherReminder()
    {
        TwoTold alerts;
        emit alerts.desktop->closed();
        alerts.told.clear();
        alerts.database().sql(
            QStringLiteral("update tasks set dismissed=1 where task_id=%1").arg(alerts.first));
        alerts.tick();
        QCOMPARE(alerts.told.size(), 0);
        alerts.aDueTask(QStringLiteral("c")).add();
        alerts.tick();
        QCOMPARE(alerts.lines(), QStringList({QStringLiteral("b"), QStringLiteral("c")}));
    }

    void aChoiceThatWasMeantForTheFormerRemindersIsTakenForNoOther_data()
    {
        QTest::addColumn<QByteArray>("key");
        QTest::newRow("later") << QByteArray("later");
        QTest::newRow("dismiss") << QByteArray("dismiss");
    }

    void aChoiceThatWasMeantForTheFormerRemindersIsTakenForNoOther()
    {
        QFETCH(QByteArray, key);
        OneTold alerts;
        alerts.aDueTask(QStringLiteral("b")).add();
        alerts.tick();
        alerts.database().statements().take();
        const qsizetype before = alerts.told.size();
        alerts.choose(key.constData());
        QCOMPARE(alerts.database().statements().take(), QStringList());
        // The desktop may have taken it away with the choice.
        QCOMPARE(alerts.told.size(), before + 1);
        QCOMPARE(alerts.lines(), QStringList({QStringLiteral("a"), QStringLiteral("b")}));
        QVERIFY(alerts.isTold());

        alerts.passChoiceRest();
        alerts.choose(key.constData());
        alerts.tick();
        QCOMPARE(alerts.window.dueCount(), 0);
        QVERIFY(!alerts.isTold());
    }

    void onlyANewReminderMakesChoicesRestAndOpenNever()
    {
        TwoTold alerts;
        QVERIFY(!alerts.choiceRest()->isActive());
        alerts.database().sql(
            QStringLiteral("update tasks set dismissed=1 where task_id=%1").arg(alerts.first));
        alerts.tick();
        QCOMPARE(alerts.told.size(), 2);
        QVERIFY(!alerts.choiceRest()->isActive());
        alerts.aDueTask(QStringLiteral("c")).add();
        alerts.tick();
        QVERIFY(alerts.choiceRest()->isActive());
        alerts.choose("open");
        QVERIFY(alerts.window.isVisible());
    }

    void whereItCannotBeAnsweredTheWindowComesUp()
    {
        OneTold alerts;
        emit alerts.desktop->unanswerable();
        QVERIFY(alerts.window.isVisible());
    }

    void aRestoreTakesTheNotificationAway()
    {
        OneTold alerts;
        alerts.window.forgetReminders();
        QVERIFY(!alerts.isTold());
    }

    void ofManyTheFirstAreNamed()
    {
        std::vector<DueReminder> many(7);
        many[0].name = QString(5000, u'x');
        const QStringList lines = AlertNotification::textFor(many).split(u'\n');
        QCOMPARE(lines.size(), 6);
        QVERIFY(lines.constFirst().size() < 300);
        QCOMPARE(lines.constLast(), QStringLiteral("…"));
    }
};

AMBERTASK_TEST_MAIN(AlertNotificationTest)
#include "tst_alert_notification.moc"
