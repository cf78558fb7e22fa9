#include "widgets/Calendar.h"

#include "system/Clock.h"
#include "widgets/Outline.h"

#include <QAbstractItemView>
#include <QPainter>

namespace
{

constexpr int FrameWidth = 1;
constexpr int RingWidth = 2;

} // namespace

Calendar::Calendar(const Clock& clock, QWidget* parent)
    : QCalendarWidget(parent), m_clock(clock), m_days(findChild<QAbstractItemView*>())
{
    setContentsMargins(FrameWidth, FrameWidth, FrameWidth, FrameWidth);
}

void Calendar::paintCell(QPainter* painter, const QRect& rect, QDate date) const
{
    QCalendarWidget::paintCell(painter, rect, date);
    if (date == toQDate(m_clock.now())) {
        const QColor ink = date == selectedDate() ? m_days->palette().color(QPalette::HighlightedText)
                                                  : palette().color(QPalette::Highlight);
        paintOutline(*painter, rect.adjusted(1, 1, -1, -1), RingWidth, ink);
    }
}

void Calendar::paintEvent(QPaintEvent* event)
{
    QCalendarWidget::paintEvent(event);
    QPainter painter(this);
    paintOutline(painter, rect(), FrameWidth, palette().color(QPalette::Mid));
}
