#include "widgets/Combos.h"

#include <QComboBox>

qint32 selectedNumber(const QComboBox& combo, qint32 none)
{
    return combo.currentIndex() < 0 ? none : combo.currentData().toInt();
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
