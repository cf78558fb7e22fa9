#include "settings/SkinContrast.h"

#include <algorithm>
#include <cmath>

namespace
{

constexpr double OwedByTexts = 4.5;
constexpr int Steps = 32;

double luminance(const QColor& color)
{
    const auto linear = [](double part) {
        return part <= 0.04045 ? part / 12.92 : std::pow((part + 0.055) / 1.055, 2.4);
    };
    return 0.2126 * linear(color.redF()) + 0.7152 * linear(color.greenF()) + 0.0722 * linear(color.blueF());
}

double leastContrast(const QColor& ink, const QList<QColor>& grounds)
{
    double least = 21;
    for (const QColor& ground : grounds) {
        least = std::min(least, contrast(ink, ground));
    }
    return least;
}

QColor mixed(const QColor& from, const QColor& to, int step)
{
    const auto part = [step](int one, int other) {
        return one + (other - one) * step / Steps;
    };
    return {part(from.red(), to.red()), part(from.green(), to.green()), part(from.blue(), to.blue())};
}

} // namespace

double contrast(const QColor& one, const QColor& other)
{
    const double first = luminance(one);
    const double second = luminance(other);
    return (std::max(first, second) + 0.05) / (std::min(first, second) + 0.05);
}

QColor readable(const QColor& wish, const QList<QColor>& grounds)
{
    const bool goesLighter = leastContrast(Qt::white, grounds) > leastContrast(Qt::black, grounds);
    const QColor end = goesLighter ? Qt::white : Qt::black;
    for (int step = 0; step < Steps; ++step) {
        const QColor shade = mixed(wish, end, step);
        if (leastContrast(shade, grounds) >= OwedByTexts) {
            return shade;
        }
    }
    return end;
}
