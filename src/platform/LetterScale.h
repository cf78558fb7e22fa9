#pragma once

#include <QFont>
#include <QSize>

// Sizes in pixels are made for letters of the usual size. Pictures, marks and windows follow letters that are
// larger.

/// How much larger than the usual size the letters of `font` are: 1, 1.5, 2, 2.5 ..., never less. In steps,
/// so that pictures keep to the sizes in which they are drawn.
double letterScale(const QFont& font);
/// `pixels`, a length beside letters of the usual size, beside the letters of `font`.
int withLetters(int pixels, const QFont& font);
QSize withLetters(QSize pixels, const QFont& font);
