#include "support/TestMain.h"
#include "system/Notifications.h"
#include "tests/system/NotificationServer.h"

#include <QCoreApplication>
#include <QRegularExpression>
#include <QSignalSpy>
#include <QTest>

namespace
{

QStringList usualCapabilities()
{
    return {QStringLiteral("body"), QStringLiteral("actions")};
}

Notification named(const QString& title)
{
    return {title, QStringLiteral("A & B <b>bold</b>"),
        {{QStringLiteral("default"), QStringLiteral("Open")},
            {QStringLiteral("later"), QStringLiteral("Later")}}};
}

} // namespace

class NotificationsTest : public TestCase
{
    Q_OBJECT

private slots:
    void initTestCase() { m_server = std::make_unique<NotificationServer>(); }
    void cleanupTestCase() { m_server.reset(); }

    void init() override
    {
        QTest::failOnWarning(QRegularExpression(QStringLiteral(".?")));
        m_server->serve(usualCapabilities());
        m_notifications = makeNotifications();
        m_chosen = std::make_unique<QSignalSpy>(m_notifications.get(), &Notifications::chosen);
        m_unanswerable = std::make_unique<QSignalSpy>(m_notifications.get(), &Notifications::unanswerable);
        m_closed = std::make_unique<QSignalSpy>(m_notifications.get(), &Notifications::closed);
    }

    void cleanup()
    {
        if (m_notifications != nullptr) {
            m_notifications->withdraw();
        }
        m_notifications.reset();
        m_server->leave();
        QCoreApplication::processEvents();
    }

    void theServerShowsTitleTextAndActionsUntilTheyAreAnswered()
    {
        const auto shown = show(named(QStringLiteral("1 Reminder")));
        QCOMPARE(shown.title, QStringLiteral("1 Reminder"));
        QCOMPARE(shown.text, QStringLiteral("A & B <b>bold</b>"));
        QCOMPARE(shown.actions,
            QStringList({QStringLiteral("default"), QStringLiteral("Open"), QStringLiteral("later"),
                QStringLiteral("Later")}));
        // Others go from the screen by themselves.
        QCOMPARE(shown.urgency, 2U);
        QCOMPARE(shown.milliseconds, 0);
        QVERIFY(m_unanswerable->isEmpty());
    }

    void whatAServerShowedThatHasGoneIsUnanswerable()
    {
        show(named(QStringLiteral("1 Reminder")));
        QVERIFY(m_unanswerable->isEmpty());
        m_server->leave();
        QTRY_COMPARE(m_unanswerable->size(), 1);
    }

    void aServerThatReadsMarkupGetsTheTextEscaped()
    {
        m_server->serve(usualCapabilities() << QStringLiteral("body-markup"));
        QCOMPARE(show(named(QStringLiteral("t"))).text, QStringLiteral("A &amp; B &lt;b&gt;bold&lt;/b&gt;"));
    }

    void theNextOneTakesThePlaceOfTheFirst()
    {
        const unsigned first = show(named(QStringLiteral("1 Reminder"))).id;
        const auto second = show(named(QStringLiteral("2 Reminders")));
        QCOMPARE(second.replaced, first);
    }

    void onlyTheLastOfSeveralAtOnceIsLeft()
    {
        m_notifications->show(named(QStringLiteral("1 Reminder")));
        m_notifications->show(named(QStringLiteral("2 Reminders")));
        QTRY_COMPARE(m_server->shown().size(), 1);
        QCOMPARE(m_server->shown().constLast().title, QStringLiteral("2 Reminders"));
        // The server has it, the answer is still on its way.
        m_notifications->show(named(QStringLiteral("3 Reminders")));
        QTRY_COMPARE(m_server->shown().size(), 2);
        QCOMPARE(m_server->shown().constLast().replaced, m_server->shown().constFirst().id);
    }

    void whatIsWithdrawnIsClosed()
    {
        const unsigned id = show(named(QStringLiteral("t"))).id;
        m_notifications->withdraw();
        QTRY_COMPARE(m_server->closed(), QList<unsigned>{id});
        QVERIFY(m_closed->isEmpty());
    }

    void whatIsWithdrawnWhileItIsHandedOverIsClosedAsSoonAsItIsThere()
    {
        m_notifications->show(named(QStringLiteral("t")));
        QTRY_COMPARE(m_server->shown().size(), 1);
        m_notifications->withdraw();
        QTRY_COMPARE(m_server->closed(), QList<unsigned>{m_server->shown().constFirst().id});
    }

    void whatIsWithdrawnAtOnceIsNeverShown()
    {
        m_notifications->show(named(QStringLiteral("1 Reminder")));
        m_notifications->withdraw();
        // Behind it in the same queue.
        m_notifications->show(named(QStringLiteral("2 Reminders")));
        QTRY_COMPARE(m_server->shown().size(), 1);
        QCOMPARE(m_server->shown().constFirst().title, QStringLiteral("2 Reminders"));
    }

    void itGoesWithTheProgram()
    {
        const unsigned id = show(named(QStringLiteral("t"))).id;
        m_notifications.reset();
        QTRY_COMPARE(m_server->closed(), QList<unsigned>{id});
    }

    void aChoiceIsToldAndThoseOfOthersAreNot()
    {
        const unsigned id = show(named(QStringLiteral("t"))).id;
        m_server->choose(id + 1, QStringLiteral("later"));
        m_server->choose(id, QStringLiteral("default"));
        QTRY_COMPARE(m_chosen->size(), 1);
        QCOMPARE(m_chosen->constFirst().constFirst().toString(), QStringLiteral("default"));
    }

    void theTokenOfAChoiceLastsAsLongAsItIsHandled()
    {
        const unsigned id = show(named(QStringLiteral("t"))).id;
        QByteArray token;
        connect(m_notifications.get(), &Notifications::chosen, this,
            [&token] { token = qgetenv("XDG_ACTIVATION_TOKEN"); });
        m_server->giveToken(id, QStringLiteral("a token"));
        m_server->choose(id, QStringLiteral("default"));
        QTRY_COMPARE(m_chosen->size(), 1);
        QCOMPARE(token, QByteArray("a token"));
        QVERIFY(!qEnvironmentVariableIsSet("XDG_ACTIVATION_TOKEN"));
    }

    void whatTheUserClosesIsToldAndNotClosedAgain()
    {
        const unsigned id = show(named(QStringLiteral("t"))).id;
        m_server->close(id);
        QTRY_COMPARE(m_closed->size(), 1);
        m_notifications->withdraw();
        QCOMPARE(show(named(QStringLiteral("t"))).replaced, 0U);
        QVERIFY(m_server->closed().isEmpty());
    }

    void whatTheUserClosesWhileTheNextOneIsUnderWayIsNotTheNextOne()
    {
        const unsigned first = show(named(QStringLiteral("1 Reminder"))).id;
        m_notifications->show(named(QStringLiteral("2 Reminders")));
        m_server->close(first);
        QTRY_COMPARE(m_server->shown().size(), 2);
        const auto second = m_server->shown().constLast();
        QCOMPARE(second.replaced, 0U);
        // The answer follows the call.
        QTest::qWait(50);
        QVERIFY(m_closed->isEmpty());
        m_server->choose(second.id, QStringLiteral("later"));
        QTRY_COMPARE(m_chosen->size(), 1);
        m_notifications->withdraw();
        QTRY_COMPARE(m_server->closed(), QList<unsigned>{second.id});
    }

    void aChoiceInTheFormerOneIsNotForTheNext()
    {
        const unsigned first = show(named(QStringLiteral("1 Reminder"))).id;
        m_notifications->show(named(QStringLiteral("2 Reminders")));
        m_server->choose(first, QStringLiteral("later"));
        QTRY_COMPARE(m_server->shown().size(), 2);
        QTest::qWait(50);
        QVERIFY(m_chosen->isEmpty());
        m_server->choose(m_server->shown().constLast().id, QStringLiteral("later"));
        QTRY_COMPARE(m_chosen->size(), 1);
    }

    void aServerThatGoesWhileTheNextOneIsUnderWayHasNotClosedThat()
    {
        show(named(QStringLiteral("1 Reminder")));
        m_notifications->show(named(QStringLiteral("2 Reminders")));
        m_server->leave();
        QTRY_VERIFY(!m_unanswerable->isEmpty());
        QTest::qWait(50);
        QCOMPARE(m_unanswerable->size(), 1);
        QVERIFY(m_closed->isEmpty());
    }

    void withoutAServerItCannotBeAnswered()
    {
        m_server->leave();
        m_notifications->show(named(QStringLiteral("t")));
        QTRY_COMPARE(m_unanswerable->size(), 1);
        // One that comes later is used.
        m_server->serve(usualCapabilities());
        QCOMPARE(show(named(QStringLiteral("2 Reminders"))).title, QStringLiteral("2 Reminders"));
    }

    void whereThereAreNoActionsItIsShownAndCannotBeAnswered()
    {
        m_server->serve({QStringLiteral("body")});
        QCOMPARE(show(named(QStringLiteral("t"))).actions, QStringList());
        QTRY_COMPARE(m_unanswerable->size(), 1);
    }

private:
    /// What the server shows then, and the program knows of it.
    NotificationServer::Shown show(const Notification& notification)
    {
        const qsizetype before = m_server->shown().size();
        m_notifications->show(notification);
        [&] {
            QTRY_COMPARE(m_server->shown().size(), before + 1);
        }();
        // The answer follows the call.
        QTest::qWait(50);
        return m_server->shown().constLast();
    }

    std::unique_ptr<NotificationServer> m_server;
    std::unique_ptr<Notifications> m_notifications;
    std::unique_ptr<QSignalSpy> m_chosen;
    std::unique_ptr<QSignalSpy> m_unanswerable;
    std::unique_ptr<QSignalSpy> m_closed;
};

AMBERTASK_TEST_MAIN(NotificationsTest)
#include "tst_notifications.moc"
