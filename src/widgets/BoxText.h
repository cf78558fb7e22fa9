#pragma once

#include <QString>

class QMessageBox;

/// Makes the box show `text` letter for letter, never as markup. Of a text that would make the box higher
/// than its screen, the beginning and the end are shown: its buttons stay within reach. Before the box is
/// shown; interface thread only.
void setBoxText(QMessageBox& box, const QString& text);
