#include "data/ReminderStatements.h"

#include "data/SqlText.h"

namespace
{

const QLatin1String Due("reminder_date_time <= now() and dismissed =0 and reminder_on=true");

}

QString ReminderStatements::due()
{
    return Due;
}

QString ReminderStatements::selectDue()
{
    return QLatin1String("select * from tasks,categories  where tasks.cat_id=categories.cat_id and ") + Due;
}

QString ReminderStatements::markDueAsPlayed()
{
    return QLatin1String("update  tasks set played=1 where ") + Due;
}

QString ReminderStatements::dismissDue()
{
    return QLatin1String("update  tasks set dismissed=1,reminder_on=0 where ") + Due;
}

QString ReminderStatements::dismiss(const QString& which)
{
    return QLatin1String("update tasks set dismissed=1,reminder_on=0 where ") + which;
}

QString ReminderStatements::postpone(const QString& which, Moment moment)
{
    return QLatin1String("update tasks set played=0 ,reminder_date_time =#") + sqlDateTime(moment)
        + QLatin1String("# where ") + which;
}
