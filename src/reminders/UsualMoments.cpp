#include "reminders/UsualMoments.h"

#include "system/Clock.h"
#include "widgets/MomentMenu.h"

#include <QCoreApplication>
#include <algorithm>

using namespace std::chrono_literals;

namespace
{

struct UsualMoments {
    Q_DECLARE_TR_FUNCTIONS(UsualMoments)
};

/// When clocks are set back an hour occurs twice; the second one is meant.
Moment later(Moment now, std::chrono::minutes by)
{
    return std::max(toMinute(now) + by, toMinute(whenPassed(now, by)));
}

} // namespace

std::optional<Moment> momentOf(UsualMoment which, Moment now)
{
    switch (which) {
    case UsualMoment::In5Minutes:
        return later(now, 5min);
    case UsualMoment::In15Minutes:
        return later(now, 15min);
    case UsualMoment::In1Hour:
        return later(now, 1h);
    case UsualMoment::ThisEvening:
        return thisEvening(now);
    case UsualMoment::TomorrowMorning:
        return tomorrowMorning(now);
    case UsualMoment::NextWeek:
        return nextMondayMorning(now);
    }
    return std::nullopt;
}

QString captionOf(UsualMoment which)
{
    switch (which) {
    case UsualMoment::In5Minutes:
        return UsualMoments::tr("In &5 minutes");
    case UsualMoment::In15Minutes:
        return UsualMoments::tr("In &15 minutes");
    case UsualMoment::In1Hour:
        return UsualMoments::tr("In 1 &hour");
    case UsualMoment::ThisEvening:
        return UsualMoments::tr("This &evening");
    case UsualMoment::TomorrowMorning:
        return UsualMoments::tr("&Tomorrow morning");
    case UsualMoment::NextWeek:
        return UsualMoments::tr("&Next week");
    }
    return {};
}

void addUsualMoments(MomentMenu& menu, const Clock& clock)
{
    for (const UsualMoment which : AllUsualMoments) {
        menu.addMoment(captionOf(which), [which, &clock] { return momentOf(which, clock.now()); });
    }
}
