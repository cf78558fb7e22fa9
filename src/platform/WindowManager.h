#pragma once

class QWindow;

// What Qt neither tells nor asks of the window manager. Interface thread only.

/// Whether a window of any program, this one included, has the keyboard now. Where the desktop does not tell
/// of other programs: true.
bool isKeyboardTaken();
/// Whether the window manager has taken `window`, which has been shown, into its care: what it wanted to know
/// of a new window it has read. Where there is none, or none that tells: true.
bool isManaged(const QWindow& window);
/// Whether the window manager may give `window`, which has a native window, the keyboard at all. Some (icewm,
/// fluxbox) activate every new window that takes it, whatever else is asked of them.
void acceptKeyboard(QWindow& window, bool accepts);
/// Activates `window`, which is on the screen, because the user has closed the window in front of it. Some
/// (xfwm4) refuse that to a program when they have given the keyboard to another of its windows meanwhile.
void giveKeyboard(QWindow& window);
/// Puts `window`, which is shown, in front of all others, those of other programs too, without the keyboard.
/// Window managers that take that for an intrusion let the plain wish of a program pass unheard.
void putInFront(QWindow& window);
