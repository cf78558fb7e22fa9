#include "app/Application.h"

#include "system/RuntimeError.h"

#include <QEvent>

bool Application::notify(QObject* receiver, QEvent* event)
{
    try {
        return QApplication::notify(receiver, event);
    } catch (const RuntimeError& error) {
        emit handlerFailed(error.text());
    } catch (const std::exception& error) {
        emit handlerFailed(QString::fromLocal8Bit(error.what()));
    }
    return true;
}

bool Application::event(QEvent* event)
{
    // QApplication would close the windows first, and the main window answers a close by hiding.
    if (event->type() == QEvent::Quit) {
        emit endRequested();
        return true;
    }
    return QApplication::event(event);
}
