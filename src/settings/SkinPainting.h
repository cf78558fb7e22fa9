#pragma once

#include <Qt>

class QColor;
class QPainter;
class QPalette;
class QRect;
class QStyleOption;

// The shapes that a skin's style draws, in the colours of the option's palette. The painter is left as it
// was.

/// The rounded background and outline of a field, with the ring when it has the focus.
void paintField(QPainter& painter, const QRect& rect, const QStyleOption& option);
/// The outline alone, for a frame around something that paints its own background.
void paintFieldFrame(QPainter& painter, const QRect& rect, const QStyleOption& option);
/// A chevron of that colour in the middle of `rect`.
void paintArrow(QPainter& painter, const QRect& rect, Qt::ArrowType direction, const QColor& ink);
/// A box, checked, half checked or empty as the option's state says.
void paintCheckBox(QPainter& painter, const QRect& rect, const QStyleOption& option);
void paintRadioButton(QPainter& painter, const QRect& rect, const QStyleOption& option);
void paintFocusRing(QPainter& painter, const QRect& rect);
/// A ring inside the edge of a button, in the accent colour or, where that is too close to the button's, in
/// its text colour.
void paintButtonFocus(QPainter& painter, const QRect& rect, const QPalette& palette);
