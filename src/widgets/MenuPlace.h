#pragma once

class QMenu;
class QPoint;

/// Opens `menu` so that it begins at `place` on the screen: with its right corner where the program reads
/// from right to left. QMenu::popup() does so at the pointer alone (Qt 6.4.2; tst_qt_workarounds,
/// aMenuThatReadsFromRightToLeftOpensToTheRightOfItsPlace).
void popUpAt(QMenu& menu, const QPoint& place);
