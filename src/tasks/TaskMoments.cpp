#include "tasks/TaskMoments.h"

#include "widgets/MomentTexts.h"

#include <QCoreApplication>
#include <QLocale>

namespace
{

constexpr std::chrono::minutes OneDay(24 * 60);

struct TaskMoments {
    Q_DECLARE_TR_FUNCTIONS(TaskMoments)
};

QString timeText(Moment moment)
{
    return QLocale().toString(toQTime(moment), shortTimeFormat());
}

} // namespace

std::optional<Moment> momentOf(DueMoment which, Moment now)
{
    switch (which) {
    case DueMoment::Today:
        return thisEvening(now);
    case DueMoment::Tomorrow:
        return tomorrowMorning(now);
    case DueMoment::NextMonday:
        return nextMondayMorning(now);
    }
    return std::nullopt;
}

QString captionOf(DueMoment which)
{
    switch (which) {
    case DueMoment::Today:
        return TaskMoments::tr("To&day, %1").arg(timeText(Moment{} + Evening));
    case DueMoment::Tomorrow:
        return TaskMoments::tr("&Tomorrow, %1").arg(timeText(Moment{} + Morning));
    case DueMoment::NextMonday:
        return TaskMoments::tr("Next &Monday, %1").arg(timeText(Moment{} + Morning));
    }
    return {};
}

Moment reminderBefore(Moment due, std::chrono::minutes lead)
{
    return lead < OneDay ? whenPassed(due, -lead) : due - lead;
}

QString captionOf(std::chrono::minutes lead)
{
    if (lead == OneDay) {
        return TaskMoments::tr("1 &day before");
    }
    switch (lead.count()) {
    case 0:
        return TaskMoments::tr("&At the due moment");
    case 5:
        return TaskMoments::tr("&5 minutes before");
    case 15:
        return TaskMoments::tr("&15 minutes before");
    case 30:
        return TaskMoments::tr("&30 minutes before");
    default:
        return TaskMoments::tr("1 &hour before");
    }
}
