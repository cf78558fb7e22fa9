#pragma once

#include <QStringList>

/// The string literals of a C++ file that a user reads and that do not stand in a call of translation:
/// whatever has two words in a row, and the caption that a control is given in one. Statements and style
/// rules are none.
QStringList untranslatedSentences(QString code);
