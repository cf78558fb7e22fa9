#pragma once

class QColor;
class QPainter;
class QRect;

/// Draws a frame of `width` along the inside of `rect`. Every side is there on every screen: a drawn
/// rectangle loses one at a scale that is no whole number.
void paintOutline(QPainter& painter, const QRect& rect, int width, const QColor& color);
