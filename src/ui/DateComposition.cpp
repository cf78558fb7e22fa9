#include "ui/DateComposition.h"

#include "data/SqlText.h"

QString monthFirstText(QDate date, QTime time)
{
    return sqlDateTime(composeMoment(date, time));
}

Moment composeMoment(QDate date, QTime time)
{
    return toMinute(toMoment(date, time));
}
