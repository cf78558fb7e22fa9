#include "app/HeaderFrame.h"

#include <QContextMenuEvent>
#include <QKeyEvent>

void HeaderFrame::contextMenuEvent(QContextMenuEvent* event)
{
    emit menuRequested(event->globalPos(), event->reason() == QContextMenuEvent::Keyboard);
}

void HeaderFrame::keyPressEvent(QKeyEvent* event)
{
    // Qt sends a context menu event for the menu key, but for Shift+F10 not on every platform.
    if (event->key() == Qt::Key_F10 && event->modifiers() == Qt::ShiftModifier) {
        const QWidget* link = focusWidget() == nullptr ? this : focusWidget();
        emit menuRequested(link->mapToGlobal(link->rect().center()), true);
    } else {
        QWidget::keyPressEvent(event);
    }
}
