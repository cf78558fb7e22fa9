#include "widgets/Outline.h"

#include <QPainter>

void paintOutline(QPainter& painter, const QRect& rect, int width, const QColor& color)
{
    const QRect inner = rect.adjusted(width, width, -width, -width);
    painter.fillRect(QRect(rect.left(), rect.top(), rect.width(), width), color);
    painter.fillRect(QRect(rect.left(), inner.bottom() + 1, rect.width(), width), color);
    painter.fillRect(QRect(rect.left(), inner.top(), width, inner.height()), color);
    painter.fillRect(QRect(inner.right() + 1, inner.top(), width, inner.height()), color);
}
