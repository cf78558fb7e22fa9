#pragma once

#include <QFont>
#include <QSize>

// Pixel sizes in the code are for a font of the usual size. Icons, marks and windows grow with larger
// fonts.

/// How many times larger than usual `font` is: 1, 1.5, 2, 2.5 ..., never less than 1. In steps, so that
/// icons keep to the sizes in which they are drawn.
double letterScale(const QFont& font);
/// `pixels`, a length that suits a font of the usual size, scaled for `font`.
int withLetters(int pixels, const QFont& font);
QSize withLetters(QSize pixels, const QFont& font);
