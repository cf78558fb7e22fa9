#pragma once

/// Workaround for what assistive technology cannot do with controls of Qt 6.4.2: toggling a check box sends
/// no `clicked`, no entry of a combo box can be chosen, the action of a menu button returns when the menu
/// is closed, an entry of a menu leaves it open, and a plain window is a mere container
/// (tst_qt_workarounds). Links are pressed and the quiet line is read out here, too. Called before the
/// first window and by the controls in this folder that depend on it; further calls do nothing.
void installAccessibleControls();
