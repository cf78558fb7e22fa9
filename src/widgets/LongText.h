#pragma once

#include <QString>

class QLineEdit;
class QPlainTextEdit;

// For texts of any length in edits, which would shape them whole: an edit shows the beginning and a mark
// that stands for the rest. The rest is kept as part of the text until the mark is deleted.

/// Lets a one-line edit take texts of any length, typed or pasted.
void takeLongTexts(QLineEdit& edit);
/// Shows `text`, or its beginning and the mark.
void setWholeText(QLineEdit& edit, const QString& text);
void setWholeText(QPlainTextEdit& edit, const QString& text);
/// The text including the part that the edit does not show.
QString wholeText(const QLineEdit& edit);
/// The same, lines separated by line feeds. (QPlainTextEdit::toPlainText() turns no-break spaces into
/// ordinary ones.)
QString wholeText(const QPlainTextEdit& edit);
