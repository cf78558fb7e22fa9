#include "exchange/FileZones.h"

#include "exchange/CalendarParts.h"
#include "exchange/ExchangeTexts.h"
#include "system/Clock.h"

#include <algorithm>
#include <array>
#include <libical/ical.h>

namespace
{

constexpr std::size_t MostZones = 500;
constexpr std::size_t MostRules = 100;
constexpr std::size_t LongestRule = 200;
constexpr std::size_t MostZoneBytes = std::size_t{64} * 1024;
constexpr std::size_t LongestId = 200;

/// libical works every rule out year by year: one for every second would take hours. Those of real time zones
/// name one day of the year.
bool isModest(const ContentLine& rule)
{
    if (rule.value.size() > LongestRule) {
        return false;
    }
    bool isYearly = false;
    for (std::size_t begin = 0; begin <= rule.value.size();) {
        const std::size_t end = std::min(rule.value.find(';', begin), rule.value.size());
        const std::string_view part = rule.value.substr(begin, end - begin);
        const std::string_view key = part.substr(0, std::min(part.find('='), part.size()));
        const auto values = std::count(part.begin(), part.end(), ',') + 1;
        constexpr int DaysOfAWeek = 7;
        if (equalsIgnoringCase(part, "FREQ=YEARLY")) {
            isYearly = true;
        } else if (!((values == 1
                         && (equalsIgnoringCase(key, "BYMONTH") || equalsIgnoringCase(key, "BYDAY")
                             || equalsIgnoringCase(key, "UNTIL") || equalsIgnoringCase(key, "WKST")))
                       || (values <= DaysOfAWeek && equalsIgnoringCase(key, "BYMONTHDAY")))) {
            return false;
        }
        begin = end + 1;
    }
    return isYearly;
}

bool isModest(const CalendarPart& zone)
{
    std::size_t rules = 0;
    std::size_t bytes = 0;
    for (const std::string& text : zone.lines) {
        bytes += text.size();
        const auto line = ContentLine::of(text);
        if (line && (line->is("RRULE") || line->is("EXRULE")) && (!isModest(*line) || ++rules > MostRules)) {
            return false;
        }
    }
    return zone.problem.isEmpty() && bytes <= MostZoneBytes;
}

struct RenamedZone {
    const char* name;
    const char* former;
};

/// The zones that Qt 6.4 knows by their former names only where it has them from Windows.
constexpr std::array<RenamedZone, 19> RenamedZones{{
    {"Africa/Asmara", "Africa/Asmera"},
    {"America/Argentina/Buenos_Aires", "America/Buenos_Aires"},
    {"America/Argentina/Catamarca", "America/Catamarca"},
    {"America/Argentina/Cordoba", "America/Cordoba"},
    {"America/Argentina/Jujuy", "America/Jujuy"},
    {"America/Argentina/Mendoza", "America/Mendoza"},
    {"America/Atikokan", "America/Coral_Harbour"},
    {"America/Indiana/Indianapolis", "America/Indianapolis"},
    {"America/Kentucky/Louisville", "America/Louisville"},
    {"America/Nuuk", "America/Godthab"},
    {"Asia/Ho_Chi_Minh", "Asia/Saigon"},
    {"Asia/Kathmandu", "Asia/Katmandu"},
    {"Asia/Kolkata", "Asia/Calcutta"},
    {"Asia/Yangon", "Asia/Rangoon"},
    {"Atlantic/Faroe", "Atlantic/Faeroe"},
    {"Europe/Kyiv", "Europe/Kiev"},
    {"Pacific/Chuuk", "Pacific/Truk"},
    {"Pacific/Kanton", "Pacific/Enderbury"},
    {"Pacific/Pohnpei", "Pacific/Ponape"},
}};

QTimeZone zoneNamed(const QString& name)
{
    QTimeZone zone(name.toUtf8());
    if (!zone.isValid()) {
        const auto renamed = std::find_if(RenamedZones.begin(), RenamedZones.end(),
            [&name](const RenamedZone& entry) { return name == QLatin1String(entry.name); });
        if (renamed != RenamedZones.end()) {
            zone = QTimeZone(renamed->former);
        }
    }
    return zone;
}

/// The system's time zone of that name. Programs put their own names before it, or use those of Windows.
QTimeZone systemZone(std::string_view id)
{
    const QString name = textOf(id);
    // Qt takes the name for the path of a file, wherever it leads.
    if (name.contains(QLatin1String(".."))) {
        return {};
    }
    for (const QString& candidate : {name, name.section(u'/', -2), name.section(u'/', -3)}) {
        if (const QTimeZone zone = zoneNamed(candidate); !candidate.isEmpty() && zone.isValid()) {
            return zone;
        }
    }
    // Qt takes a name without letters for that of the machine's own zone.
    const QByteArray known = QTimeZone::windowsIdToDefaultIanaId(name.toUtf8());
    return known.isEmpty() ? QTimeZone() : QTimeZone(known);
}

std::optional<Moment> momentOfValue(const icaltimetype& value)
{
    const std::chrono::year_month_day day(std::chrono::year(value.year),
        std::chrono::month(static_cast<unsigned>(value.month)),
        std::chrono::day(static_cast<unsigned>(value.day)));
    constexpr int LeapSecond = 60;
    if (!day.ok() || value.hour < 0 || value.hour > 23 || value.minute < 0 || value.minute > 59
        || value.second < 0 || value.second > LeapSecond) {
        return std::nullopt;
    }
    return makeMoment(day, std::chrono::hours(value.hour) + std::chrono::minutes(value.minute));
}

Moment toLocal(qint64 secondsSinceEpoch)
{
    return localMoment(std::chrono::sys_seconds(std::chrono::seconds(secondsSinceEpoch)));
}

} // namespace

struct FileZones::ZoneOfFile {
    explicit ZoneOfFile(icalcomponent* component) { icaltimezone_set_component(zone, component); }
    ~ZoneOfFile() { icaltimezone_free(zone, 1); }
    ZoneOfFile(const ZoneOfFile&) = delete;
    ZoneOfFile& operator=(const ZoneOfFile&) = delete;

    icaltimezone* zone = icaltimezone_new();
};

FileZones::FileZones()
{
    icalerror_set_errors_are_fatal(0);
}

FileZones::~FileZones() = default;

void FileZones::add(const CalendarPart& zone)
{
    if (m_zones.size() == MostZones || !isModest(zone)) {
        return;
    }
    std::string id;
    std::string text = "BEGIN:VTIMEZONE\r\n";
    for (const std::string& line : zone.lines) {
        if (const auto content = ContentLine::of(line); content && content->is("TZID")) {
            id = content->value;
        }
        text += line + "\r\n";
    }
    text += "END:VTIMEZONE\r\n";
    icalcomponent* component = icalparser_parse_string(text.c_str());
    if (component == nullptr || icalcomponent_isa(component) != ICAL_VTIMEZONE_COMPONENT || id.empty()) {
        icalcomponent_free(component);
        return;
    }
    auto made = std::make_unique<ZoneOfFile>(component);
    m_known.erase(id);
    m_zones.emplace(id, std::move(made));
}

const FileZones::Zone& FileZones::zoneOf(std::string_view id)
{
    const std::string name(id.substr(0, LongestId + 1));
    const auto known = m_known.find(name);
    if (known != m_known.end()) {
        return known->second;
    }
    static const Zone unknown;
    if (id.size() > LongestId) {
        return unknown;
    }
    if (m_known.size() == MostZones) {
        m_known.clear();
    }
    const auto own = m_zones.find(name);
    return m_known.emplace(name, Zone{systemZone(id), own == m_zones.end() ? nullptr : own->second.get()})
        .first->second;
}

std::optional<FileMoment> FileZones::momentOf(const ContentLine& line)
{
    const icaltimetype value = icaltime_from_string(std::string(line.value).c_str());
    const auto moment = momentOfValue(value);
    if (icaltime_is_null_time(value) || !moment) {
        return std::nullopt;
    }
    FileMoment read{*moment, value.is_date != 0, false};
    const auto zoneId = line.parameter("TZID");
    if (!read.isDate && icaltime_is_utc(value)) {
        read.moment = toLocal(icaltime_as_timet(value));
    } else if (!read.isDate && zoneId && !zoneId->empty()) {
        const Zone& zone = zoneOf(*zoneId);
        if (zone.ofSystem.isValid()) {
            read.moment =
                toLocal(QDateTime(toQDate(*moment), toQTime(*moment), zone.ofSystem).toSecsSinceEpoch());
        } else if (zone.ofFile != nullptr) {
            read.moment = toLocal(icaltime_as_timet_with_zone(value, zone.ofFile->zone));
        } else {
            read.isInUnknownZone = true;
        }
    }
    read.moment = toMinute(read.moment);
    return isStorable(read.moment) ? std::optional(read) : std::nullopt;
}

std::optional<std::chrono::seconds> durationOf(std::string_view value)
{
    // Numbers of more digits would not fit those of libical.
    constexpr std::size_t LongestDuration = 40;
    constexpr std::size_t MostDigits = 8;
    std::size_t digits = 0;
    bool hasDigits = false;
    for (const char letter : value) {
        digits = letter >= '0' && letter <= '9' ? digits + 1 : 0;
        hasDigits = hasDigits || digits > 0;
        if (digits > MostDigits) {
            return std::nullopt;
        }
    }
    const icaldurationtype read = icaldurationtype_from_string(std::string(value).c_str());
    if (!hasDigits || value.size() > LongestDuration || value.find('P') == std::string_view::npos
        || icaldurationtype_is_bad_duration(read)) {
        return std::nullopt;
    }
    using std::chrono::seconds;
    const seconds length = std::chrono::weeks(read.weeks) + std::chrono::days(read.days)
        + std::chrono::hours(read.hours) + std::chrono::minutes(read.minutes) + seconds(read.seconds);
    return read.is_neg != 0 ? -length : length;
}

std::string durationText(std::chrono::seconds duration)
{
    std::string text = duration.count() < 0 ? "-P" : "P";
    const std::chrono::seconds length = std::chrono::abs(duration);
    const auto days = std::chrono::floor<std::chrono::days>(length);
    const std::chrono::hh_mm_ss time(length - days);
    const auto append = [&text](auto count, char unit) {
        if (count > 0) {
            text += std::to_string(count) + unit;
        }
    };
    append(days.count(), 'D');
    if (time.to_duration().count() > 0 || days.count() == 0) {
        text += 'T';
        append(time.hours().count(), 'H');
        append(time.minutes().count(), 'M');
        append(time.seconds().count(), 'S');
    }
    return text.back() == 'T' ? text + "0S" : text;
}

std::string momentText(Moment moment)
{
    std::string text;
    for (const char letter : storedText(moment)) {
        if (letter == ' ') {
            text += 'T';
        } else if (letter != '-' && letter != ':') {
            text += letter;
        }
    }
    return text;
}

bool isStorable(Moment moment)
{
    using namespace std::chrono;
    return moment >= Moment(local_days(year(1) / January / 1))
        && moment < Moment(local_days(year(10'000) / January / 1));
}
