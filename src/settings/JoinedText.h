#pragma once

#include <QStringView>

class QPainter;
class QRect;
class QString;

/// Whether letters of `text` join with their neighbours, as Arabic ones do.
bool hasJoinedLetters(QStringView text);

/// Underlines the letter behind the "&" of `text`, which the painter has written into `written` without
/// marking it, in the painter's font and colour. Qt's own way of underlining shapes the letter
/// alone, which tears the word apart.
void underlineMnemonic(QPainter& painter, const QRect& written, const QString& text);
