#include "tests/app/DrawnWindow.h"

#include "support/Contrast.h"

#include <QHash>
#include <QWidget>
#include <algorithm>
#include <functional>
#include <vector>

namespace
{

constexpr int Zoom = 3;
constexpr int Speck = 2 * Zoom * Zoom;

/// The number of pixels of each colour.
QHash<QRgb, int> colorsIn(const QImage& picture, const QRect& area)
{
    QHash<QRgb, int> counts;
    for (int y = area.top(); y <= area.bottom(); ++y) {
        const auto* line = reinterpret_cast<const QRgb*>(picture.constScanLine(y));
        // Neighbouring pixels are mostly equal: one look-up for each run.
        for (int x = area.left(); x <= area.right();) {
            int end = x + 1;
            while (end <= area.right() && line[end] == line[x]) {
                ++end;
            }
            counts[line[x]] += end - x;
            x = end;
        }
    }
    return counts;
}

QRgb mostFrequent(const QHash<QRgb, int>& counts)
{
    QRgb found = 0;
    for (auto it = counts.cbegin(); it != counts.cend(); ++it) {
        found = it.value() > counts.value(found) ? it.key() : found;
    }
    return found;
}

QRect visiblePart(const QWidget& control, const QRect& place)
{
    return control.visibleRegion().boundingRect() & place;
}

} // namespace

DrawnWindow::DrawnWindow(QWidget& window)
    : m_window(window), m_picture(window.size() * Zoom, QImage::Format_RGB32)
{
    m_picture.setDevicePixelRatio(Zoom);
    m_picture.fill(window.palette().color(QPalette::Window));
    window.render(&m_picture);
}

bool DrawnWindow::isInSight(const QWidget& control, const QRect& place) const
{
    const QRect seen = visiblePart(control, place);
    return !seen.isEmpty() && seen.width() * seen.height() * 2 > place.width() * place.height();
}

QHash<QRgb, int> DrawnWindow::colors(const QWidget& control, const QRect& place) const
{
    const QRect seen = visiblePart(control, place);
    const QRect area(control.mapTo(&m_window, seen.topLeft()) * Zoom, seen.size() * Zoom);
    return colorsIn(m_picture, area & m_picture.rect());
}

QRgb DrawnWindow::ground(const QWidget& control, const QRect& place) const
{
    return mostFrequent(colors(control, place));
}

double DrawnWindow::strongestContrast(const QWidget& control, const QRect& place) const
{
    const QHash<QRgb, int> counts = colors(control, place);
    const QRgb ground = mostFrequent(counts);
    std::vector<std::pair<double, int>> contrasts;
    for (auto it = counts.cbegin(); it != counts.cend(); ++it) {
        contrasts.emplace_back(contrastOf(it.key(), ground), it.value());
    }
    // Antialiased strokes have many colours, which count together.
    std::sort(contrasts.begin(), contrasts.end(), std::greater<>());
    int covered = 0;
    const auto strongest =
        std::find_if(contrasts.cbegin(), contrasts.cend(), [&covered](const std::pair<double, int>& color) {
            covered += color.second;
            return covered > Speck;
        });
    return strongest == contrasts.cend() ? 1 : strongest->first;
}
