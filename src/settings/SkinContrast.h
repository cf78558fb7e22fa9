#pragma once

#include <QColor>
#include <QList>

/// Contrast ratio: 1 for equal colours, 21 for black and white.
double contrast(const QColor& one, const QColor& other);
/// `wish`, made as much darker or lighter as it takes to be read as a text on all of `grounds` (4.5:1). Where
/// no shade of it can be read, black or white, whichever does better.
QColor readable(const QColor& wish, const QList<QColor>& grounds);
