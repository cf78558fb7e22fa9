#include "widgets/BadgedIcon.h"

#include <QPainter>

namespace
{

constexpr int LargestSize = 64;
constexpr QColor Rim(0xff, 0xff, 0xff);
constexpr QColor Dot(0xa3, 0x15, 0x15);
/// The dot's share of the icon, and the rim's.
constexpr qreal DotShare = 0.45;
constexpr qreal RimShare = 1 / 14.0;

void paintBadge(QPixmap& picture)
{
    const qreal rim = qMax(1.0, picture.width() * RimShare);
    const qreal side = picture.width() * DotShare + 2 * rim;
    const QRectF around(picture.width() - side, picture.height() - side, side, side);
    QPainter painter(&picture);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(Qt::NoPen);
    painter.setBrush(Rim);
    painter.drawEllipse(around);
    painter.setBrush(Dot);
    painter.drawEllipse(around.adjusted(rim, rim, -rim, -rim));
}

} // namespace

QIcon badgedIcon(const QIcon& icon)
{
    QIcon badged;
    for (const QSize& size : icon.availableSizes()) {
        if (size.width() <= LargestSize) {
            QPixmap picture = icon.pixmap(size, 1);
            paintBadge(picture);
            badged.addPixmap(picture);
        }
    }
    return badged;
}
