#include "app/Application.h"

#include "system/RuntimeError.h"

#include <QKeyEvent>

namespace
{

/// A press with the mark of a repetition. As a copy it stays an event of the keyboard: what Qt 6.4.2 does not
/// take for one it hands past assistive technology, and so ahead of the keys before it.
class RepeatedPress final : public QKeyEvent
{
public:
    explicit RepeatedPress(const QKeyEvent& press) : QKeyEvent(press) { m_autoRepeat = true; }
};

} // namespace

bool Application::notify(QObject* receiver, QEvent* event)
{
    try {
        if (event->type() == QEvent::ShortcutOverride || event->type() == QEvent::KeyPress) {
            if (auto& press = static_cast<QKeyEvent&>(*event); m_heldKeys.isUntold(press)) {
                return notifyRepeated(receiver, press);
            }
        }
        return QApplication::notify(receiver, event);
    } catch (const RuntimeError& error) {
        emit handlerFailed(error.text());
    } catch (const std::exception& error) {
        emit handlerFailed(QString::fromLocal8Bit(error.what()));
    }
    return true;
}

bool Application::notifyRepeated(QObject* receiver, QKeyEvent& press)
{
    // Shortcuts would be looked up for a press that is none; those that repeat miss one of several turns.
    if (press.type() == QEvent::ShortcutOverride) {
        press.accept();
        return true;
    }
    RepeatedPress repeated(press);
    const bool isHandled = QApplication::notify(receiver, &repeated);
    press.setAccepted(repeated.isAccepted());
    return isHandled;
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
