#pragma once

#include <QStringList>

class QWidget;

/// What does not fit in `window` as it is shown now, one line each: a control that is smaller than its text
/// needs or is cut off by what it stands on, two controls that overlap, a header whose text is neither whole
/// nor in its tool tip, a window that reaches beyond its screen. What can be scrolled into view fits.
QStringList misfits(QWidget& window);
