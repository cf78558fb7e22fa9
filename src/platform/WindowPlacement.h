#pragma once

class QWidget;

// Where a top-level window stands among the others. None of these shows, hides, moves or resizes a window.

/// Asks the window system to keep `window` above all others; a hidden window comes up so when it is shown.
void makeTopmost(QWidget* window);
/// Takes the topmost state back: below the others first, then to the front of the ordinary windows.
void leaveTopmost(QWidget* window);
bool isTopmost(const QWidget* window);
/// Brings `window` to the front without activating it; nothing when it is hidden.
void bringToFront(QWidget* window);
/// Makes `owner` the window that `window` stays above, without making it a child.
void setOwner(QWidget* window, QWidget* owner);
/// Shows `window`, restores it when it is minimized, and brings it to the front. It becomes the active window
/// unless one of another program is that now: from another program it takes neither activation nor keys.
void showUnasked(QWidget* window);
/// Shows `window` modeless above its owner, in front and active; restores it when it is minimized.
void showOwned(QWidget* window, QWidget* owner);
