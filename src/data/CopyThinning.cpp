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

/// The places of what stays by its age alone, in the order in which room is given to them.
std::vector<std::size_t> staying(const std::vector<CopyInTime>& copies, Moment now)
{
    std::vector<std::size_t> newest;
    std::vector<std::size_t> ofAPeriod;
    std::vector<std::size_t> furtherOfADay;
    LastPeriods<local_days> days(MostDays);
    LastPeriods<local_days> weeks(MostWeeks);
    LastPeriods<year_month> months(MostMonths);
    std::map<local_days, int> ofDay;
    for (const std::size_t place : newestFirst(copies)) {
        const local_days day = dayWith(std::min(copies[place].moment, now));
        const year_month_day date(day);
        // All three are asked: one copy can be the newest of its day, week and month.
        const bool ofNewDay = days.begins(day);
        const bool ofNewWeek = weeks.begins(mondayBefore(day));
        const bool ofNewMonth = months.begins(date.year() / date.month());
        const int further = ofDay[day]++;
        if (newest.empty() && copies[place].moment <= now) {
            newest.push_back(place);
        } else if (ofNewDay || ofNewWeek || ofNewMonth) {
            ofAPeriod.push_back(place);
        } else if (days.contains(day) && further < MostOfADay) {
            furtherOfADay.push_back(place);
        }
    }
    newest.insert(newest.end(), ofAPeriod.begin(), ofAPeriod.end());
    newest.insert(newest.end(), furtherOfADay.begin(), furtherOfADay.end());
    return newest;
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
    const std::vector<std::size_t> wanted = staying(copies, now);
    qint64 taken = 0;
    for (const std::size_t place : wanted) {
        if (place == wanted.front() || taken + copies[place].size <= room) {
            taken += copies[place].size;
            dropped.erase(place);
        }
    }
    return {dropped.begin(), dropped.end()};
}
