#include "ui/Pickers.h"

#include "ui/MomentTexts.h"

#include <QDateEdit>
#include <QSignalBlocker>
#include <QTimeEdit>

void setUpDatePicker(QDateEdit& picker)
{
    picker.setCalendarPopup(true);
    picker.setDisplayFormat(shortDateFormat());
}

void setUpTimePicker(QTimeEdit& picker)
{
    picker.setDisplayFormat(shortTimeFormat());
}

void setPickers(QDateEdit& date, QTimeEdit& time, Moment moment)
{
    const QSignalBlocker dateBlocker(date);
    const QSignalBlocker timeBlocker(time);
    date.setDate(toQDate(moment));
    time.setTime(toQTime(moment));
}
