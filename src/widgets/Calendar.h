#pragma once

#include <QCalendarWidget>

class Clock;
class QAbstractItemView;

/// The calendar of a date picker: framed, because the page below has the same colour, and with a ring
/// around today by `clock`, which outlives it.
class Calendar : public QCalendarWidget
{
    Q_OBJECT

public:
    explicit Calendar(const Clock& clock, QWidget* parent = nullptr);

protected:
    void paintCell(QPainter* painter, const QRect& rect, QDate date) const override;
    void paintEvent(QPaintEvent* event) override;

private:
    const Clock& m_clock;
    const QAbstractItemView* m_days;
};
