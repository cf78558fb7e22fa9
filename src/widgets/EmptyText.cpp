#include "widgets/EmptyText.h"

#include "widgets/PlainText.h"

#include <QAbstractItemView>
#include <QPainter>

namespace
{

constexpr int Margin = 12;
constexpr int Flags = Qt::AlignHCenter | Qt::AlignVCenter | Qt::TextWordWrap | Qt::TextDontClip;

QRect roomIn(const QAbstractItemView& view)
{
    return view.viewport()->rect().adjusted(Margin, Margin, -Margin, -Margin);
}

} // namespace

QRect emptyTextPlace(const QAbstractItemView& view, const QString& text)
{
    return text.isEmpty() ? QRect() : view.fontMetrics().boundingRect(roomIn(view), Flags, breakable(text));
}

void paintEmptyText(QAbstractItemView& view, const QString& text)
{
    if (text.isEmpty()) {
        return;
    }
    QPainter painter(view.viewport());
    painter.setPen(view.palette().color(QPalette::PlaceholderText));
    painter.setLayoutDirection(view.layoutDirection());
    painter.drawText(roomIn(view), Flags, breakable(text));
}
