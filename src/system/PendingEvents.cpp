#include "system/PendingEvents.h"

#include <QAbstractEventDispatcher>
#include <QCoreApplication>

void handlePendingEvents()
{
    QCoreApplication::processEvents(QEventLoop::ExcludeUserInputEvents);
    // Workaround: Qt 6.4.2 queues the excluded input, but on X11 looks at that queue only when it is woken,
    // so that a key would wait for the next event from the X server (tst_pending_events,
    // theEventLoopGoesOnWithoutWaiting).
    QAbstractEventDispatcher::instance()->wakeUp();
}
