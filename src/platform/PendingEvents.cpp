#include "platform/PendingEvents.h"

#include <QAbstractEventDispatcher>
#include <QCoreApplication>

void handlePendingEvents()
{
    QCoreApplication::processEvents(QEventLoop::ExcludeUserInputEvents);
    // Qt 6.4.2 keeps what it has left out, but on X11 it looks there only when it is woken: a key would wait
    // for the next event of the server.
    QAbstractEventDispatcher::instance()->wakeUp();
}
