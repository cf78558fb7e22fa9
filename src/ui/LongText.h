#pragma once

#include <QString>

class QLineEdit;
class QPlainTextEdit;

// Texts without end in an edit, which would shape them whole: it shows their beginning and a mark for the
// rest. The rest is kept and stands in the text where the mark stands, until that is deleted.

/// Lets a one-line edit take texts of any length, written or pasted.
void takeLongTexts(QLineEdit& edit);
/// The edit shows `text`, or its beginning.
void setWholeText(QLineEdit& edit, const QString& text);
void setWholeText(QPlainTextEdit& edit, const QString& text);
/// The text with the rest that the edit does not show.
QString wholeText(const QLineEdit& edit);
/// The same, lines ended by a line feed. (The edit's own plain text turns no-break spaces into ordinary
/// ones.)
QString wholeText(const QPlainTextEdit& edit);
