#pragma once

class QCloseEvent;

/// Whether the user closes a window by its close box, by the menu of its frame or by the keys that do the
/// same. False when the program closes it, and in a log-out. Interface thread only.
bool isCloseByUser(const QCloseEvent& event);
