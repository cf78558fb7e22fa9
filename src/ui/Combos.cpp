#include "ui/Combos.h"

#include <QComboBox>

qint32 selectedNumber(const QComboBox& combo, qint32 none)
{
    return combo.currentIndex() < 0 ? none : combo.currentData().toInt();
}

void keepEntriesWhole(QComboBox& combo)
{
    combo.setSizeAdjustPolicy(QComboBox::AdjustToContents);
    // Not its least size: that is reckoned once, maybe while the list was empty.
    combo.setSizePolicy(QSizePolicy::Minimum, QSizePolicy::Fixed);
}

void selectNumber(QComboBox& combo, qint32 number)
{
    int match = -1;
    for (int i = 0; i < combo.count(); ++i) {
        if (combo.itemData(i).toInt() == number) {
            match = i;
        }
    }
    combo.setCurrentIndex(match);
}
