#include "RepeatedTask.h"

#include <algorithm>

RepeatedTask::RepeatedTask(std::vector<Moment> moments, std::chrono::minutes before, Moment from)
    : series(std::move(moments)), lead(before), start(*std::upper_bound(series.begin(), series.end(), from)),
      due(start), reminder(due - lead), m_reminded(due)
{
}

template <typename Condition> Moment RepeatedTask::first(Condition condition) const
{
    return *std::find_if(series.begin(), series.end(), condition);
}

int RepeatedTask::came(Moment now) const
{
    return 1 + static_cast<int>(std::count_if(series.begin(), series.end(), [&](Moment occurrence) {
        return occurrence - lead > reminder && occurrence - lead <= now;
    }));
}

int RepeatedTask::cameInAll(Moment latest) const
{
    return static_cast<int>(std::count_if(series.begin(), series.end(),
        [&](Moment occurrence) { return occurrence >= start && occurrence - lead <= latest; }));
}

void RepeatedTask::tick(Moment now)
{
    if (!waits(now) || hasRung) {
        return;
    }
    hasRung = true;
    ++rings;
    if (!isPutOff) {
        rungTwice += rung.insert(m_reminded).second ? 0 : 1;
    }
}

void RepeatedTask::moveTo(Moment occurrence)
{
    m_reminded = occurrence;
    reminder = occurrence - lead;
    hasRung = false;
    isPutOff = false;
}

void RepeatedTask::dismiss(Moment now)
{
    // The next one whose reminder lies ahead.
    moveTo(first(
        [&](Moment moment) { return moment > due && moment - lead > now && moment - lead > reminder; }));
    if (due <= now) {
        const Moment before = due;
        due = std::min(m_reminded, first([&](Moment moment) { return moment > now; }));
        done += static_cast<int>(std::count_if(
            series.begin(), series.end(), [&](Moment moment) { return moment >= before && moment < due; }));
    }
}

void RepeatedTask::complete(Moment now)
{
    passedOver += static_cast<int>(std::count_if(series.begin(), series.end(),
        [&](Moment moment) { return moment > due && moment <= now && moment - lead > now; }));
    // The time that the reminder is for is done, too.
    due = first([&](Moment moment) { return moment > due && moment > now && moment - lead > reminder; });
    ++done;
    moveTo(due);
}

void RepeatedTask::remindAt(Moment moment)
{
    reminder = moment;
    hasRung = false;
    isPutOff = true;
}
