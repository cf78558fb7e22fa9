#pragma once

#include <QString>

class QWidget;

/// The value of a control as a text: the text of an edit, the current text of a combo, "0" or "1" of a check
/// box, the shown date or time of a picker, "False" of a button. Empty for no control and for any other kind.
QString valueOf(const QWidget* control);
