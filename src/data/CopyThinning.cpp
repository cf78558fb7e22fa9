#include "data/CopyThinning.h"

#include <algorithm>
#include <functional>
#include <map>
#include <numeric>
#include <set>

namespace
{

using namespace std::chrono;

constexpr qint64 MostBytes = 200'000'000;
constexpr qint64 PartOfTheDisk = 10;
constexpr int MostOfADay = 10;
constexpr std::size_t MostDays = 7;
constexpr std::size_t MostWeeks = 4;
constexpr std::size_t MostMonths = 12;

local_days dayWith(Moment moment)
{
    return floor<days>(moment);
}

local_days mondayBefore(local_days day)
{
    return day - (weekday(day) - Monday);
}

/// The last days, weeks or months that have copies; told from the newest copy on.
template <typename Period> class LastPeriods
{
public:
    explicit LastPeriods(std::size_t most) : m_most(most) { }

    /// Whether the copy is the newest one of such a period.
    bool begins(Period period) { return m_seen.size() < m_most && m_seen.insert(period).second; }
    bool contains(Period period) const { return m_seen.count(period) != 0; }

private:
    std::size_t m_most;
    std::set<Period> m_seen;
};

std::vector<std::size_t> newestFirst(const std::vector<CopyInTime>& copies)
{
    std::vector<std::size_t> places(copies.size());
    std::iota(places.begin(), places.end(), 0);
    std::stable_sort(places.begin(), places.end(),
        [&](std::size_t left, std::size_t right) { return copies[left].moment > copies[right].moment; });
    return places;
}

using Places = std::vector<std::size_t>;

/// What stays by its age alone.
struct Staying {
    Places ofAPeriod; ///< the newest of a day, week or month
    Places furtherOfADay;
};

/// Of the copies at the places from `first` to `last`, the newest first.
Staying stayingOf(
    const std::vector<CopyInTime>& copies, Places::const_iterator first, Places::const_iterator last)
{
    Staying staying;
    LastPeriods<local_days> days(MostDays);
    LastPeriods<local_days> weeks(MostWeeks);
    LastPeriods<year_month> months(MostMonths);
    std::map<local_days, int> ofDay;
    for (; first != last; ++first) {
        const local_days day = dayWith(copies[*first].moment);
        const year_month_day date(day);
        // All three are asked: one copy can be the newest of its day, week and month.
        const bool ofNewDay = days.begins(day);
        const bool ofNewWeek = weeks.begins(mondayBefore(day));
        const bool ofNewMonth = months.begins(date.year() / date.month());
        const int further = ofDay[day]++;
        if (ofNewDay || ofNewWeek || ofNewMonth) {
            staying.ofAPeriod.push_back(*first);
        } else if (days.contains(day) && further < MostOfADay) {
            staying.furtherOfADay.push_back(*first);
        }
    }
    return staying;
}

/// The places of what stays by its age alone, in the order in which room is given to them.
Places allStaying(const std::vector<CopyInTime>& copies, Moment now)
{
    const Places places = newestFirst(copies);
    const auto present = std::partition_point(
        places.begin(), places.end(), [&](std::size_t place) { return copies[place].moment > now; });
    // Either clock may be the wrong one: the present or the one of the later copies. Neither pushes out what
    // the other has made.
    const Staying known = stayingOf(copies, present, places.end());
    const Staying later = stayingOf(copies, places.begin(), present);
    Places all;
    for (const Places* part :
        {&known.ofAPeriod, &later.ofAPeriod, &known.furtherOfADay, &later.furtherOfADay}) {
        all.insert(all.end(), part->begin(), part->end());
    }
    return all;
}

} // namespace

qint64 roomForCopies(qint64 free)
{
    return std::min(MostBytes, free / (PartOfTheDisk + 1));
}

std::vector<std::size_t> copiesToDrop(const std::vector<CopyInTime>& copies, Moment now, qint64 room)
{
    std::set<std::size_t, std::greater<>> dropped;
    for (std::size_t place = 0; place < copies.size(); ++place) {
        dropped.insert(place);
    }
    const Places wanted = allStaying(copies, now);
    qint64 taken = 0;
    for (const std::size_t place : wanted) {
        if (place == wanted.front() || taken + copies[place].size <= room) {
            taken += copies[place].size;
            dropped.erase(place);
        }
    }
    return {dropped.begin(), dropped.end()};
}
