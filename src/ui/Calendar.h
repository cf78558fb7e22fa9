#pragma once

#include <QCalendarWidget>

class Clock;
class QAbstractItemView;

/// The calendar that opens below a date picker: framed, as it covers a page of the same colour, with a ring
/// around the day of `clock`, which outlives it.
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
