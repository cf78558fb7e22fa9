#pragma once

#include "exchange/ContentLine.h"
#include "system/Moment.h"

#include <QTimeZone>
#include <map>
#include <memory>
#include <optional>
#include <string>

struct CalendarPart;

/// A date, or a date and time, of an iCalendar file, in the time zone of this machine, without seconds.
struct FileMoment {
    Moment moment{}; ///< of a date without a time the beginning of that day
    bool isDate = false;
    bool isInUnknownZone = false; ///< then it is taken as local time
};

/// Reads the moments of an iCalendar file: with the time zones of the system, and those of the file where the
/// system knows none of that name.
class FileZones
{
public:
    FileZones();
    ~FileZones();
    FileZones(const FileZones&) = delete;
    FileZones& operator=(const FileZones&) = delete;

    /// Adds a time zone of the file (VTIMEZONE), for the moments read from then on.
    void add(const CalendarPart& zone);
    /// The moment of a line of the type DATE or DATE-TIME; none when it is no moment, or not one of the years
    /// 1 to 9999.
    std::optional<FileMoment> momentOf(const ContentLine& line);

private:
    struct ZoneOfFile;
    struct Zone {
        QTimeZone ofSystem;
        const ZoneOfFile* ofFile = nullptr;
    };
    const Zone& zoneOf(std::string_view id);

    std::map<std::string, std::unique_ptr<ZoneOfFile>> m_zones;
    std::map<std::string, Zone> m_known;
};

/// The seconds of a value of the type DURATION, days taken as 24 hours; none when it is no duration.
std::optional<std::chrono::seconds> durationOf(std::string_view value);
/// The value of the type DURATION that says so.
std::string durationText(std::chrono::seconds duration);
/// The value of the type DATE-TIME without a zone that says so.
std::string momentText(Moment moment);
/// Whether the data file can hold the moment.
bool isStorable(Moment moment);
