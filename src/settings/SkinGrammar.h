#pragma once

#include <QStringView>

// What a style sheet may be made of. Qt's own reader takes the whole sheet or, with a word on the
// error stream, nothing of it; what is accepted here it can read. The texts are without comments, and strings
// hold nothing but blanks between their quotation marks. No backtracking: the time grows with the length
// alone.

/// `text` without the blanks at its ends: those of a style sheet, not all that other texts know.
QStringView withoutBlanks(QStringView text);
/// Whether `text` is one selector, such as "QPushButton#btnOk:hover" or "QComboBox > QAbstractItemView".
bool isSelector(QStringView text);
/// Whether `text` is one property with its value, such as "border: 1px solid #102030": numbers with units,
/// words, colours, texts, functions with balanced brackets, joined by blanks, commas and slashes.
bool isDeclaration(QStringView text);
