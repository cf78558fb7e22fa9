#pragma once

/// Whether the keyboard belongs to a window of another program now. Where the desktop does not tell: whether
/// it belongs to none of this program's windows. Asks the window system; interface thread only.
bool isAnotherProgramActive();
