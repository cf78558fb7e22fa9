#pragma once

#include <QColor>
#include <algorithm>
#include <cmath>

/// How light a colour is to the eye, 0 to 1.
inline double luminance(QRgb color)
{
    const auto linear = [](int part) {
        const double share = part / 255.0;
        return share <= 0.04045 ? share / 12.92 : std::pow((share + 0.055) / 1.055, 2.4);
    };
    return 0.2126 * linear(qRed(color)) + 0.7152 * linear(qGreen(color)) + 0.0722 * linear(qBlue(color));
}

/// The contrast of two colours as guidelines for accessibility reckon it, 1 to 21.
inline double contrastOf(QRgb left, QRgb right)
{
    const double a = luminance(left);
    const double b = luminance(right);
    return (std::max(a, b) + 0.05) / (std::min(a, b) + 0.05);
}

inline double contrastOf(const QColor& left, const QColor& right)
{
    return contrastOf(left.rgb(), right.rgb());
}
