#pragma once

#include <QtGlobal>

class QComboBox;

// Combos whose entries carry a number as their data.

/// The number of the selected entry; `none` when nothing is selected.
qint32 selectedNumber(const QComboBox& combo, qint32 none);
/// Selects the last entry that carries `number`; selects none when there is no such entry.
void selectNumber(QComboBox& combo, qint32 number);
