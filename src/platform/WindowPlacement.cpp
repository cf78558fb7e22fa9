#include "platform/WindowPlacement.h"

#include <QWidget>
#include <QWindow>

namespace
{

// QWidget::setWindowFlag hides and re-creates a visible window; the flag of the native window can be changed
// in place.
void setStaysOnTop(QWidget* window, bool on)
{
    Qt::WindowFlags flags = window->windowFlags();
    if (flags.testFlag(Qt::WindowStaysOnTopHint) == on) {
        return;
    }
    flags.setFlag(Qt::WindowStaysOnTopHint, on);
    window->overrideWindowFlags(flags);
    if (QWindow* native = window->windowHandle()) {
        native->setFlag(Qt::WindowStaysOnTopHint, on);
    }
}

QWindow* nativeWindow(QWidget* widget)
{
    widget->window()->winId();
    return widget->window()->windowHandle();
}

} // namespace

void makeTopmost(QWidget* window)
{
    setStaysOnTop(window, true);
}

void leaveTopmost(QWidget* window)
{
    if (!isTopmost(window)) {
        return;
    }
    setStaysOnTop(window, false);
    if (window->isVisible()) {
        window->lower();
        window->raise();
    }
}

bool isTopmost(const QWidget* window)
{
    return window->windowFlags().testFlag(Qt::WindowStaysOnTopHint);
}

void bringToFront(QWidget* window)
{
    if (window->isVisible()) {
        window->raise();
    }
}

void setOwner(QWidget* window, QWidget* owner)
{
    nativeWindow(window)->setTransientParent(nativeWindow(owner));
}

void showOwned(QWidget* window, QWidget* owner)
{
    if (owner != nullptr) {
        setOwner(window, owner);
    }
    if (window->isMinimized()) {
        window->showNormal();
    } else {
        window->show();
    }
    window->raise();
    window->activateWindow();
}
