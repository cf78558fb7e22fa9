#pragma once

class QColor;
class QPainter;
class QRect;

/// Draws a frame of `width` inside of `rect`. Workaround: QPainter::drawRect() of Qt 6.4.2 loses a side at
/// fractional scales (tst_windows_on_screens, everySideOfAFrameIsDrawn).
void paintOutline(QPainter& painter, const QRect& rect, int width, const QColor& color);
