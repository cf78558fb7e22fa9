#pragma once

class QColor;
class QPainter;
class QRect;

/// Draws a frame of `width` inside of `rect`. QPainter::drawRect() loses a side at fractional scales.
void paintOutline(QPainter& painter, const QRect& rect, int width, const QColor& color);
