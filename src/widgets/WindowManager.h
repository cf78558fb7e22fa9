#pragma once

class QRect;
class QWindow;

// What Qt offers no call for. Interface thread only.

/// Whether a window of any program, this one included, has the keyboard. True where the desktop does not
/// tell.
bool isKeyboardTaken();
/// Whether the window manager manages `window`, which has been shown: it has read the properties of the new
/// window. True where there is no window manager or it does not tell.
bool isManaged(const QWindow& window);
/// Whether the window manager may give the keyboard to `window`, which has a native window. icewm and
/// fluxbox activate every new window that accepts it.
void acceptKeyboard(QWindow& window, bool accepts);
/// Activates `window`, which is on the screen, because the user has closed the window in front of it. A
/// plain request would fail with xfwm4 when it has given the keyboard to another window of the program
/// meanwhile.
void giveKeyboard(QWindow& window);
/// Puts `window`, which is shown, in front of the windows of all programs, without the keyboard. A plain
/// request is ignored by window managers that take it for an intrusion.
void putInFront(QWindow& window);
/// Sets or clears the topmost state of `window`, which has a native window, without hiding, moving or
/// activating it.
void setStaysOnTop(QWindow& window, bool on);
/// Asks dialogs that the system shows for this thread to cancel: they do not see that event loops are left.
void cancelSystemDialogs();
/// Whether the desktop tells of double clicks on the icon of the notification area, whose place on the
/// screen is given; empty where that is not known.
bool tellsDoubleClicks(const QRect& trayIcon);
