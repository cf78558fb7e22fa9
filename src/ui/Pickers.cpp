#include "ui/Pickers.h"

#include "ui/MomentTexts.h"

#include <QDateEdit>
#include <QGuiApplication>
#include <QSignalBlocker>
#include <QTimeEdit>

namespace
{

/// A date or time is read and typed from left to right, like its digits: in a right-to-left picker the
/// toolkit turns the parts around, and who types 1047 gets ten minutes. Its place is that of the other texts.
void setFormat(QDateTimeEdit& picker, const QString& format)
{
    picker.setLayoutDirection(Qt::LeftToRight);
    picker.setDisplayFormat(format);
    picker.setAlignment(
        QGuiApplication::layoutDirection() == Qt::RightToLeft ? Qt::AlignRight : Qt::AlignLeft);
}

} // namespace

void setUpDatePicker(QDateEdit& picker)
{
    picker.setCalendarPopup(true);
    setFormat(picker, shortDateFormat());
}

void setUpTimePicker(QTimeEdit& picker)
{
    setFormat(picker, shortTimeFormat());
}

void setPickers(QDateEdit& date, QTimeEdit& time, Moment moment)
{
    const QSignalBlocker dateBlocker(date);
    const QSignalBlocker timeBlocker(time);
    date.setDate(toQDate(moment));
    time.setTime(toQTime(moment));
}
