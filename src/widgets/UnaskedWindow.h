#pragma once

#include <QObject>
#include <QTimer>

class QWidget;

/// Brings up a window that nobody has asked for. It comes to the front and asks for attention, but gets the
/// keyboard only when no window of any program has it: what is being typed must not land in it. For half a
/// second its buttons ignore the keyboard, not the mouse. If it came up while a message box or file dialog
/// was open, it comes to the front once more when the last of them is closed. Interface thread only.
class UnaskedWindow final : public QObject
{
    Q_OBJECT

public:
    /// `window`, a top-level window that has its buttons already, owns this object.
    explicit UnaskedWindow(QWidget* window);

    /// Shows the window; restores it when it is minimized.
    void comeUp();
    /// Activates the window, if it is visible, because the user wants it.
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
    bool m_isNoticed = false; ///< has been active since it came up: the user decides where it lies
};
