#pragma once

#include <QString>
#include <string_view>

// What a user or a file wrote, made fit to be shown: it is never taken for markup, and it can be broken into
// lines.

/// `text` with places to break it wherever it runs on for long without one, as a path or a name without
/// blanks does. Nothing is seen of them.
QString breakable(const QString& text);
/// `text` with an ellipsis in the place of its middle when it is longer than `characters`.
QString withoutMiddle(const QString& text, qsizetype characters);
/// `text` read in the direction of its own script, where the program runs in the other one: a date or an
/// English name is not to be turned around between right-to-left captions.
QString inOwnDirection(const QString& text);
/// What is looked at of `text` where it is shown: of a longer one about so many characters, never part of
/// one, and an ellipsis. A text without end is to be neither measured nor shaped.
QString shownPart(const QString& text, qsizetype characters = 1000);
/// The length of that part, at most `characters`.
qsizetype lengthOfPart(const QString& text, qsizetype characters);
/// The beginning of a text in UTF-8, longer than any part of it that is shown: what nobody sees of a text
/// without end is not to be converted.
QString beginningOf(std::string_view utf8);
/// A tool tip that shows `text` letter for letter, in lines; what is longer than anybody reads is cut.
/// Empty for an empty text.
QString plainToolTip(const QString& text);
