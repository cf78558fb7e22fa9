#pragma once

#include <QtGlobal>

class QComboBox;

// For combos whose entries have a number as their data.

/// The number of the selected entry, or `none`.
qint32 selectedNumber(const QComboBox& combo, qint32 none);
/// Selects the last entry that has `number`; none when there is no such entry.
void selectNumber(QComboBox& combo, qint32 number);
