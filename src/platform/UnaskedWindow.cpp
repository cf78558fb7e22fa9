#include "platform/UnaskedWindow.h"

#include "platform/WindowManager.h"

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
    // Window managers activate what is restored, whatever it asks for.
    if (m_window.isMinimized()) {
        m_window.hide();
        m_window.setWindowState(m_window.windowState() & ~Qt::WindowMinimized);
    }
    m_window.setAttribute(Qt::WA_ShowWithoutActivating, yields);
    m_window.winId();
    m_window.windowHandle()->installEventFilter(this);
    // A native window that exists takes no notice of the attribute.
    m_window.windowHandle()->setProperty("_q_showWithoutActivating", yields);
    if (!m_window.isVisible()) {
        acceptKeyboard(*m_window.windowHandle(), !yields);
    }
    m_window.show();
    m_window.raise();
    m_isNoticed = false;
    m_tmrKeyRest.start();
    // Counted from when keys are read again: what follows may keep the program busy for a while.
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
    // As long as a box is open: some window managers (openbox, icewm) would give the keyboard to this
    // window, which lies in front, and not to the one that the box belongs to.
    if (!m_cameUpUnderABox) {
        acceptKeyboard(*m_window.windowHandle(), true);
    }
    // Only now: of a window that is not yet in its care a window manager takes no wish.
    QApplication::alert(&m_window);
    // Window managers (metacity) put a new window behind the active one, however it asked to be raised
    // before, and what a box belonged to comes in front when that is closed.
    if (!m_isNoticed) {
        putInFront(*m_window.windowHandle());
    }
}

bool UnaskedWindow::eventFilter(QObject* watched, QEvent* event)
{
    if (watched == m_window.windowHandle()) {
        // What the user clicks into has the keyboard.
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
        // Qt 6.4.2 would take the window for one that still asks for attention when it comes up the next
        // time.
        QMetaObject::invokeMethod(m_window.windowHandle(), "_q_clearAlert");
    }
    return false;
}

bool UnaskedWindow::isRestingFrom(const QEvent& event) const
{
    if (!m_tmrKeyRest.isActive() || event.type() != QEvent::KeyPress) {
        return m_tmrKeyRest.isActive() && event.type() == QEvent::Shortcut;
    }
    // To pass a button is not to press it.
    const int key = static_cast<const QKeyEvent&>(event).key();
    return key != Qt::Key_Tab && key != Qt::Key_Backtab;
}

void UnaskedWindow::giveKeyboardToOwnerOfBox()
{
    // The box is still there. Once it is gone, xfwm4 gives the keyboard to the window that lies in front,
    // whether that accepts it or not.
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
