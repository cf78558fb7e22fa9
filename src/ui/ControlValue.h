#pragma once

#include <QString>

class QPlainTextEdit;
class QWidget;

/// The value of a control as a text: the text of an edit, the current text of a combo, "0" or "1" of a check
/// box, the shown date or time of a picker, "False" of a button. Empty for no control and for any other kind.
QString valueOf(const QWidget* control);

/// The text as it was entered, lines ended by a line feed. (The edit's own plain text turns no-break spaces
/// into ordinary ones.)
QString textOf(const QPlainTextEdit& edit);
