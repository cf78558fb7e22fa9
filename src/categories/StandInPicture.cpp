#include "categories/StandInPicture.h"

#include <QPainter>
#include <QPixmap>

QIcon standInPicture()
{
    constexpr int edge = 96;
    constexpr int margin = 9;
    constexpr int penWidth = 6;
    const QColor mark(0x80, 0x80, 0x80); // visible on white and on black

    QPixmap pixmap(edge, edge);
    pixmap.fill(Qt::transparent);
    QPainter painter(&pixmap);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(QPen(mark, penWidth, Qt::DashLine, Qt::RoundCap));
    const QRect frame(margin, margin, edge - 2 * margin, edge - 2 * margin);
    painter.drawRoundedRect(frame, margin, margin);
    QFont font;
    font.setPixelSize(edge / 2);
    font.setBold(true);
    painter.setFont(font);
    painter.drawText(frame, Qt::AlignCenter, QStringLiteral("?"));
    return QIcon(pixmap);
}
