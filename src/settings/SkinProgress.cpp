#include "settings/SkinProgress.h"

#include <QElapsedTimer>

QRect busyPart(const QRect& bar, std::chrono::milliseconds time)
{
    constexpr qint64 OneWay = 1200; // ms
    const int width = bar.width() / 3;
    const qint64 phase = time.count() % (2 * OneWay);
    const qint64 way = (bar.width() - width) * (phase < OneWay ? phase : 2 * OneWay - phase) / OneWay;
    return {bar.left() + static_cast<int>(way), bar.top(), width, bar.height()};
}

QStyleOptionProgressBar busyPartOf(const QStyleOptionProgressBar& bar)
{
    static const QElapsedTimer running = [] {
        QElapsedTimer timer;
        timer.start();
        return timer;
    }();
    QStyleOptionProgressBar part = bar;
    part.styleObject = nullptr;
    part.maximum = part.minimum + 1;
    part.progress = part.maximum;
    part.rect = busyPart(bar.rect, std::chrono::milliseconds(running.elapsed()));
    return part;
}
