#include "widgets/MenuPlace.h"

#include <QMenu>

void popUpAt(QMenu& menu, const QPoint& place)
{
    // The sheet has its say in the size.
    menu.ensurePolished();
    const int width = menu.isRightToLeft() ? menu.sizeHint().width() : 0;
    menu.popup(place - QPoint(width, 0));
}
