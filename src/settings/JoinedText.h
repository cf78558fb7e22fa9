#pragma once

#include <QStringView>

class QPainter;
class QRect;
class QString;

/// Whether letters of `text` join with their neighbours, as Arabic ones do.
bool hasJoinedLetters(QStringView text);

/// Workaround: Qt 6.4.2 shapes the letter of a mnemonic by itself to underline it, which tears a joined
/// word apart (tst_qt_workarounds, theUnderlineOfAMnemonicTearsJoinedLetters). Underlines the letter behind
/// the "&" of `text`, which has been painted into `written` without the underline, in the painter's font
/// and colour.
void underlineMnemonic(QPainter& painter, const QRect& written, const QString& text);
