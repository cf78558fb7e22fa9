#pragma once

class QCloseEvent;

/// Whether the user closes a window by its close box, its window menu or the corresponding keys. False when
/// the program closes it and at a log-out. Interface thread only.
bool isCloseByUser(const QCloseEvent& event);
