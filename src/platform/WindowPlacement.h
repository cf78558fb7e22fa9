#pragma once

#include <QList>
#include <QMargins>
#include <QRect>

class QWidget;

// Where a top-level window stands on the screens. Rectangles and sizes hold the frame with the title bar.

/// Where a window that wants `size` comes up for the first time: centred on `around`, moved and cut to lie
/// within `available`.
QRect firstPlace(QSize size, const QRect& around, const QRect& available);
/// Where a window that was last at `frame` comes up again on screens with these available areas, of which
/// there is at least one: there, as long as enough of its title bar can be seen to take hold of it,
/// `titleHeight` is its height; otherwise whole within the nearest area.
QRect nextPlace(const QRect& frame, int titleHeight, const QList<QRect>& areas);
/// The largest size of `window`, without its frame, with which it fits on its screen.
QSize roomFor(const QWidget& window);
/// Brings a window that is about to be shown to its place: the first time over `owner` when that is visible,
/// else in the middle of the screen; later where it was, unless nobody could reach it there. When what it
/// holds makes it grow afterwards, it is moved so that it stays on its screen. When it is hidden while it has
/// the keyboard, its owner gets that, unless it is hidden or minimized.
void putInPlace(QWidget* window, const QWidget* owner = nullptr);

// Where a top-level window stands among the others. None of these but the last shows, hides, moves or resizes
// a window.

/// Asks the window system to keep `window` above all others; a hidden window comes up so when it is shown.
void makeTopmost(QWidget* window);
/// Takes the topmost state back: below the others first, then to the front of the ordinary windows.
void leaveTopmost(QWidget* window);
bool isTopmost(const QWidget* window);
/// Brings `window` to the front without activating it; nothing when it is hidden.
void bringToFront(QWidget* window);
/// Gives a window of the program the keyboard after the user has closed the one in front of it; nothing when
/// it is hidden or minimized.
void activate(QWidget* window);
/// Makes `owner` the window that `window` stays above, without making it a child.
void setOwner(QWidget* window, QWidget* owner);
/// Puts `window` in place and shows it modeless above its owner, in front and active; restores it when it is
/// minimized.
void showOwned(QWidget* window, QWidget* owner);
