#pragma once

#include <QStringList>

/// The string literals of a C++ file that read like a sentence and do not stand in a call of translation.
/// Statements and style rules are none.
QStringList untranslatedSentences(QString code);
