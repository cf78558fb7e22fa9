#pragma once

#include <QApplication>
#include <QCloseEvent>
#include <QTest>
#include <QWidget>

/// Closes the window as the close box of its frame does. Returns whether the window accepted it.
inline bool closeBySystem(QWidget& window)
{
    QCloseEvent event;
    QSpontaneKeyEvent::setSpontaneous(&event);
    qApp->notify(&window, &event);
    return event.isAccepted();
}
