#include "ui/Pickers.h"

#include "ui/MomentTexts.h"

#include <QDateEdit>
#include <QSignalBlocker>
#include <QTimeEdit>

namespace
{

/// In a right-to-left program a picker turns its format's parts around, minutes before hours: it is given the
/// format while it reads from left to right. The text is laid out by its own script either way.
void setFormat(QDateTimeEdit& picker, const QString& format)
{
    picker.setLayoutDirection(Qt::LeftToRight);
    picker.setDisplayFormat(format);
    picker.unsetLayoutDirection();
    // A date has the direction of its digits; its place is that of the other texts.
    picker.setAlignment(picker.isRightToLeft() ? Qt::AlignRight : Qt::AlignLeft);
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
