#include "support/TestMain.h"
#include "system/PendingEvents.h"

#include <QCoreApplication>
#include <QTest>
#include <QTimer>

class PendingEventsTest : public TestCase
{
    Q_OBJECT

private slots:
    void whatIsPendingIsHandled();
    void theEventLoopGoesOnWithoutWaiting();
};

void PendingEventsTest::whatIsPendingIsHandled()
{
    bool handled = false;
    QMetaObject::invokeMethod(
        this, [&handled] { handled = true; }, Qt::QueuedConnection);
    handlePendingEvents();
    QVERIFY(handled);
}

void PendingEventsTest::theEventLoopGoesOnWithoutWaiting()
{
    using namespace std::chrono_literals;
    QCoreApplication::processEvents();
    QTimer nextEvent;
    nextEvent.setSingleShot(true);
    nextEvent.start(2s);
    handlePendingEvents();
    QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
    QVERIFY(nextEvent.isActive());
}

AMBERTASK_TEST_MAIN(PendingEventsTest)
#include "tst_pending_events.moc"
