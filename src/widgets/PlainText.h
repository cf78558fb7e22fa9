#pragma once

#include <QString>
#include <string_view>

// For showing texts that a user or a file wrote: never taken for markup, and with places to break lines.

/// `text` with invisible places to break it wherever it has none for long, as in a path or a name without
/// blanks.
QString breakable(const QString& text);
/// `text` with an ellipsis instead of its middle when it is longer than `characters`.
QString withoutMiddle(const QString& text, qsizetype characters);
/// `text` isolated so that it keeps its own direction where the program reads in the other one: a date or
/// an English name between right-to-left captions.
QString inOwnDirection(const QString& text);
/// `text`, or of one longer than `characters` about so many, cut at the border of a character, and an
/// ellipsis. A text of any length is never measured or shaped as a whole.
QString shownPart(const QString& text, qsizetype characters = 1000);
/// The length of that part, at most `characters`.
qsizetype lengthOfPart(const QString& text, qsizetype characters);
/// The beginning of a UTF-8 text, longer than any part that is shown: the rest of a very long text need not
/// be converted.
QString beginningOf(std::string_view utf8);
/// A tool tip that shows `text` letter for letter, wrapped, and cut when it is longer than anybody reads.
/// Empty for an empty text.
QString plainToolTip(const QString& text);
/// A caption as it is read: without the mark of its mnemonic.
QString withoutMnemonic(const QString& caption);
