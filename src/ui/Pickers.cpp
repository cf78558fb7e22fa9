#include "ui/Pickers.h"

#include "ui/Calendar.h"
#include "ui/MomentTexts.h"
#include "ui/PickerTyping.h"

#include <QDateEdit>
#include <QEvent>
#include <QGuiApplication>
#include <QSignalBlocker>
#include <QTimeEdit>

namespace
{

/// A date or time is read and typed from left to right, like its digits: in a right-to-left picker
/// Qt turns the parts around, and who types 1047 gets ten minutes. Its place is that of the other texts.
void setFormat(QDateTimeEdit& picker, const QString& format)
{
    picker.setLayoutDirection(Qt::LeftToRight);
    picker.setDisplayFormat(format);
    picker.setAlignment(
        QGuiApplication::layoutDirection() == Qt::RightToLeft ? Qt::AlignRight : Qt::AlignLeft);
}

/// Qt's picker has a calendar without a frame, and knows no other day than the one it shows.
class CalendarMaker final : public QObject
{
public:
    CalendarMaker(QDateEdit& picker, const Clock& clock) : QObject(&picker), m_picker(picker), m_clock(clock)
    {
        picker.installEventFilter(this);
    }

    bool eventFilter(QObject* watched, QEvent* event) override
    {
        // Only the mouse opens it. Not before: it is a dozen widgets.
        if (event->type() == QEvent::MouseButtonPress) {
            m_picker.removeEventFilter(this);
            m_picker.setCalendarWidget(new Calendar(m_clock));
        }
        return QObject::eventFilter(watched, event);
    }

private:
    QDateEdit& m_picker;
    const Clock& m_clock;
};

} // namespace

void setUpDatePicker(QDateEdit& picker, const Clock& clock)
{
    picker.setCalendarPopup(true);
    setFormat(picker, shortDateFormat());
    new PickerTyping(picker);
    new CalendarMaker(picker, clock);
}

void setUpTimePicker(QTimeEdit& picker)
{
    setFormat(picker, shortTimeFormat());
    new PickerTyping(picker);
}

void setPickers(QDateEdit& date, QTimeEdit& time, Moment moment)
{
    const QSignalBlocker dateBlocker(date);
    const QSignalBlocker timeBlocker(time);
    date.setDate(toQDate(moment));
    time.setTime(toQTime(moment));
}
