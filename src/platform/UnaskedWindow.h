#pragma once

#include <QObject>
#include <QTimer>

class QWidget;

/// Brings a window up that nobody has asked for. It comes in front and asks for attention; the keyboard it
/// gets only when no window of any program has it: what is being typed must not land in it. Its buttons act
/// on no key for half a second afterwards, which the mouse does not feel. When it came up while a message box
/// or a file dialog was open, it comes in front once more after the last of them is closed. Interface thread
/// only.
class UnaskedWindow final : public QObject
{
    Q_OBJECT

public:
    /// `window`, a top-level window with its buttons in place, owns this.
    explicit UnaskedWindow(QWidget* window);

    /// Shows the window, restores it when it is minimized.
    void comeUp();
    /// Activates the window, at the wish of the user, when it is visible.
    void activate();

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    bool isRestingFrom(const QEvent& event) const;
    void tmrKeyRest_Timer();
    void giveKeyboardToOwnerOfBox();

    QWidget& m_window;
    QTimer m_tmrKeyRest;
    bool m_cameUpUnderABox = false;
    bool m_isNoticed = false; ///< has been active since it came up: where it lies then is the user's choice
};
