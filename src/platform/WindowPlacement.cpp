#include "platform/WindowPlacement.h"

#include "platform/ActiveWindow.h"

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

void showUnasked(QWidget* window)
{
    const bool yields = isAnotherProgramActive();
    // Window managers activate what is restored, whatever it asks for.
    if (window->isMinimized()) {
        window->hide();
        window->setWindowState(window->windowState() & ~Qt::WindowMinimized);
    }
    window->setAttribute(Qt::WA_ShowWithoutActivating, yields);
    // A native window that exists takes no notice of the attribute.
    nativeWindow(window)->setProperty("_q_showWithoutActivating", yields);
    window->show();
    bringToFront(window);
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
