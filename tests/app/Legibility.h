#pragma once

#include <QStringList>

class QWidget;

/// What was looked at in a window, and what was found wanting there.
struct Legibility {
    int texts = 0;
    int marks = 0;
    /// One line each: the control, what it shows, the contrast measured and the contrast owed.
    QStringList faults;
};

/// Looks at `window` as it is drawn now: every text on it (captions, fields, rows, headers, menu entries) and
/// every mark (check marks, dots, arrows, handles of scroll bars). Contrasts are measured on drawn pixels. A
/// text owes its ground `owed`, a large or disabled one 3, a mark 3. What is scrolled out of sight is left
/// out.
Legibility lookAt(QWidget& window, double owed);
