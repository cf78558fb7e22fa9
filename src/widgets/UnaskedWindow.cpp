#include "widgets/UnaskedWindow.h"

#include "widgets/WindowManager.h"

#include <QAbstractButton>
#include <QApplication>
#include <QKeyEvent>
#include <QWidget>
#include <QWindow>
#include <utility>

using namespace std::chrono_literals;

UnaskedWindow::UnaskedWindow(QWidget* window) : QObject(window), m_window(*window), m_tmrKeyRest(this)
{
    m_tmrKeyRest.setObjectName(QStringLiteral("tmrKeyRest"));
    m_tmrKeyRest.setInterval(500ms);
    m_tmrKeyRest.setTimerType(Qt::PreciseTimer);
    m_tmrKeyRest.setSingleShot(true);
    connect(&m_tmrKeyRest, &QTimer::timeout, this, &UnaskedWindow::tmrKeyRest_Timer);
    window->installEventFilter(this);
    for (QAbstractButton* button : window->findChildren<QAbstractButton*>()) {
        button->installEventFilter(this);
    }
}

void UnaskedWindow::comeUp()
{
    const bool yields = isKeyboardTaken();
    m_cameUpUnderABox = QApplication::activeModalWidget() != nullptr;
    // Window managers activate a window that is restored, whatever it asks for.
    if (m_window.isMinimized()) {
        m_window.hide();
        m_window.setWindowState(m_window.windowState() & ~Qt::WindowMinimized);
    }
    m_window.setAttribute(Qt::WA_ShowWithoutActivating, yields);
    m_window.winId();
    m_window.windowHandle()->installEventFilter(this);
    // Workaround: a native window that exists ignores later changes of WA_ShowWithoutActivating (Qt 6.4.2;
    // tests/desktop/test_focus.py).
    m_window.windowHandle()->setProperty("_q_showWithoutActivating", yields);
    if (!m_window.isVisible()) {
        acceptKeyboard(*m_window.windowHandle(), !yields);
    }
    m_window.show();
    m_window.raise();
    m_isNoticed = false;
    m_tmrKeyRest.start();
    // Counted from the return to the event loop, where keys are handled again: what follows may take a
    // while.
    QMetaObject::invokeMethod(&m_tmrKeyRest, qOverload<>(&QTimer::start), Qt::QueuedConnection);
}

void UnaskedWindow::activate()
{
    if (m_window.isVisible()) {
        acceptKeyboard(*m_window.windowHandle(), true);
        m_window.activateWindow();
    }
}

void UnaskedWindow::tmrKeyRest_Timer()
{
    if (!m_window.isVisible()) {
        return;
    }
    if (!isManaged(*m_window.windowHandle())) {
        m_tmrKeyRest.start();
        return;
    }
    // Not while a box is open: some window managers (openbox, icewm) would give the keyboard to this window
    // in front instead of to the window that the box belongs to.
    if (!m_cameUpUnderABox) {
        acceptKeyboard(*m_window.windowHandle(), true);
    }
    // Not before: a window manager ignores wishes of a window that it does not manage yet.
    QApplication::alert(&m_window);
    // metacity puts a new window behind the active one even if it asked to be raised, and the owner of a
    // box comes to the front when the box is closed.
    if (!m_isNoticed) {
        putInFront(*m_window.windowHandle());
    }
}

bool UnaskedWindow::eventFilter(QObject* watched, QEvent* event)
{
    if (watched == m_window.windowHandle()) {
        // A window that the user clicks into gets the keyboard.
        if (event->type() == QEvent::MouseButtonPress && m_tmrKeyRest.isActive()) {
            activate();
        }
        return false;
    }
    if (watched != &m_window) {
        return isRestingFrom(*event);
    }
    if (event->type() == QEvent::WindowUnblocked && std::exchange(m_cameUpUnderABox, false)) {
        m_tmrKeyRest.start();
        giveKeyboardToOwnerOfBox();
    } else if (event->type() == QEvent::WindowActivate) {
        m_isNoticed = true;
    } else if (event->type() == QEvent::Hide && !event->spontaneous()) {
        // Workaround: Qt 6.4.2 keeps the alert of a hidden window and would not ask for attention the next
        // time it comes up (tests/desktop/test_alert_manners.py).
        QMetaObject::invokeMethod(m_window.windowHandle(), "_q_clearAlert");
    }
    return false;
}

bool UnaskedWindow::isRestingFrom(const QEvent& event) const
{
    if (!m_tmrKeyRest.isActive() || event.type() != QEvent::KeyPress) {
        return m_tmrKeyRest.isActive() && event.type() == QEvent::Shortcut;
    }
    // Moving the focus past a button does not press it.
    const int key = static_cast<const QKeyEvent&>(event).key();
    return key != Qt::Key_Tab && key != Qt::Key_Backtab;
}

void UnaskedWindow::giveKeyboardToOwnerOfBox()
{
    // The box is still there. When it is gone, xfwm4 gives the keyboard to the window in front, whether
    // that accepts it or not.
    const QWindow* box = QGuiApplication::focusWindow();
    QWindow* owner = box == nullptr ? nullptr : box->transientParent();
    if (owner == nullptr) {
        return;
    }
    const auto give = [owner] {
        if (owner->isVisible()) {
            giveKeyboard(*owner);
        }
    };
    QMetaObject::invokeMethod(owner, give, Qt::QueuedConnection);
}
