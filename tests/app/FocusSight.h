#pragma once

#include <QStringList>

class QWidget;

/// What was looked at in a window, and where the focus is not seen.
struct FocusSight {
    int controls = 0;
    /// One line each: the control, and how much of its picture changes.
    QStringList faults;
};

/// Gives the focus to every control of `window` that the Tab key reaches, and compares its picture with the
/// one without. A control owes as many pixels of another brightness (contrast 2 or more) as a line around it
/// has: a text cursor alone is not enough. `window` has to be the active one.
FocusSight lookForFocus(QWidget& window);
