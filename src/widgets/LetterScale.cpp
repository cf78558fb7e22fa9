#include "widgets/LetterScale.h"

#include <QFontInfo>
#include <algorithm>
#include <cmath>

namespace
{

constexpr double UsualPixels = 12; // 9 points at 96 dots an inch
constexpr double StepsPerSize = 2;

} // namespace

double letterScale(const QFont& font)
{
    const double larger = QFontInfo(font).pixelSize() / UsualPixels;
    return std::max(1.0, std::floor(larger * StepsPerSize) / StepsPerSize);
}

int withLetters(int pixels, const QFont& font)
{
    return static_cast<int>(std::lround(pixels * letterScale(font)));
}

QSize withLetters(QSize pixels, const QFont& font)
{
    return {withLetters(pixels.width(), font), withLetters(pixels.height(), font)};
}
