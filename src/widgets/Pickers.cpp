#include "widgets/Pickers.h"

#include "system/Language.h"
#include "widgets/Calendar.h"
#include "widgets/MomentTexts.h"
#include "widgets/PickerTyping.h"

#include <QDateEdit>
#include <QEvent>
#include <QGuiApplication>
#include <QSignalBlocker>
#include <QTimeEdit>

namespace
{

/// Dates and times are read and typed from left to right in every language. Workaround: right-to-left,
/// QDateTimeEdit of Qt 6.4.2 reverses the sections, so that typing 1047 sets ten minutes
/// (tst_qt_workarounds, aTimeIsTurnedAroundFromRightToLeft). Aligned as other texts.
void setFormat(QDateTimeEdit& picker, const QString& format)
{
    picker.setLayoutDirection(Qt::LeftToRight);
    picker.setDisplayFormat(format);
    picker.setAlignment(
        QGuiApplication::layoutDirection() == Qt::RightToLeft ? Qt::AlignRight : Qt::AlignLeft);
}

/// QDateEdit's own calendar has no frame and marks no day but the selected one.
class CalendarMaker final : public QObject
{
public:
    CalendarMaker(QDateEdit& picker, const Clock& clock) : QObject(&picker), m_picker(picker), m_clock(clock)
    {
        picker.installEventFilter(this);
    }

    bool eventFilter(QObject* watched, QEvent* event) override
    {
        // Only the mouse opens the calendar. Made then, as it is a dozen widgets.
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
