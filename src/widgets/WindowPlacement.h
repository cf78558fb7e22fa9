#pragma once

#include <QList>
#include <QMargins>
#include <QRect>

class QWidget;

// The place of a top-level window on the screens. Rectangles and sizes include the frame.

/// Where a window of `size` first appears: centred on `around`, moved and cut to lie within `available`.
QRect firstPlace(QSize size, const QRect& around, const QRect& available);
/// Where a window last seen at `frame` appears again on screens with the available `areas` (at least one):
/// at the same place if enough of its title bar (`titleHeight` high) can be seen to drag it, otherwise
/// whole within the nearest area.
QRect nextPlace(const QRect& frame, int titleHeight, const QList<QRect>& areas);
/// Lets `window`, which has not been shown yet, appear at `geometry` (without its frame) instead of its first
/// place: whole within the nearest screen.
void putBack(QWidget* window, const QRect& geometry);
/// The largest size of `window`, without its frame, that fits on its screen.
QSize roomFor(const QWidget& window);
/// Puts a window that is about to be shown in its place: the first time over `owner` if that is visible,
/// else in the middle of the screen; later where it was, unless it could not be reached there. From then on
/// the window is kept on its screen when its content makes it grow, and its owner, unless hidden or
/// minimized, gets the keyboard when it is closed while it has it.
void putInPlace(QWidget* window, const QWidget* owner = nullptr);

// The place of a top-level window among others. None of these but the last shows, hides, moves or resizes
// it.

/// Keeps `window` above all others; for a hidden window that takes effect when it is shown.
void makeTopmost(QWidget* window);
/// Ends the topmost state: puts the window below the others, then in front of the ordinary windows.
void leaveTopmost(QWidget* window);
bool isTopmost(const QWidget* window);
/// Brings `window` to the front without activating it; does nothing when it is hidden.
void bringToFront(QWidget* window);
/// Gives a window of the program the keyboard after the user has closed the one in front of it; does
/// nothing when it is hidden or minimized.
void activate(QWidget* window);
/// Makes `owner` the transient parent of `window`, which stays above it, without making it the QObject
/// parent.
void setOwner(QWidget* window, QWidget* owner);
/// To be called once for a window that isBeforeTheUser() is asked about and that may be minimized with its
/// dialog.
void followMinimizing(QWidget* window);
/// Whether the user can have `window` before him: it is neither hidden nor minimized, also where the desktop
/// tells no program of the latter.
bool isBeforeTheUser(const QWidget* window);
/// Puts `window` in its place and shows it modeless above its owner, in front and active; restores it when
/// it is minimized.
void showOwned(QWidget* window, QWidget* owner);
