#include "exchange/TodoAlarms.h"

#include "exchange/TodoValues.h"

#include <algorithm>

struct ReminderOfFile::Alarm {
    std::optional<Moment> moment; ///< none when it does not remind
    bool hasTrigger = false;
    std::string foreign; ///< the whole component without the state, which is of one reminder alone
    std::string rest; ///< its lines without trigger and state
    std::string own; ///< the line with the state
};

std::string alarmAction(std::string_view taskName)
{
    const std::string shown = escaped(taskName);
    std::string lines = "ACTION:DISPLAY\nDESCRIPTION:";
    lines += isBlank(shown) ? "-" : shown;
    lines += '\n';
    return lines;
}

std::optional<Moment> ReminderOfFile::momentOf(const ContentLine& trigger, FileZones& zones)
{
    const auto duration = durationOf(trigger.value);
    if (!duration) {
        const auto read = zones.momentOf(trigger);
        isInUnknownZone = isInUnknownZone || (read && read->isInUnknownZone);
        return read ? std::optional(read->moment) : std::nullopt;
    }
    const bool countsFromEnd = equalsIgnoringCase(trigger.parameter("RELATED").value_or(""), "END");
    const std::optional<Moment> from = countsFromEnd ? due : start;
    if (!from || !isStorable(*from + *duration)) {
        return std::nullopt;
    }
    return toMinute(*from + *duration);
}

ReminderOfFile::Alarm ReminderOfFile::readAlarm(const std::string& text, FileZones& zones)
{
    Alarm alarm;
    bool reminds = false;
    std::string_view rest = text;
    alarm.foreign.append(takeLine(rest)).append("\n");
    for (int level = 0; !rest.empty();) {
        const std::string_view whole = takeLine(rest);
        const auto line = ContentLine::of(whole);
        level += line && line->is("BEGIN") ? 1 : 0;
        level -= line && line->is("END") ? 1 : 0;
        if (line && level == 0 && line->is(OwnProperty::Reminder)) {
            alarm.own = whole;
            continue;
        }
        alarm.foreign.append(whole).append("\n");
        if (level < 0) {
            break;
        }
        if (line && level == 0 && line->is("TRIGGER")) {
            alarm.moment = momentOf(*line, zones);
            alarm.hasTrigger = true;
            continue;
        }
        if (line && level == 0 && line->is("ACTION")) {
            reminds = equalsIgnoringCase(line->value, "DISPLAY") || equalsIgnoringCase(line->value, "AUDIO");
        }
        // Parsers complain of a description without a text, and of an alarm without a description.
        const bool isEmpty = line && level == 0 && line->is("DESCRIPTION") && isBlank(line->value);
        alarm.rest.append(isEmpty ? "DESCRIPTION:-" : whole).append("\n");
    }
    if (!reminds) {
        alarm.moment.reset();
    }
    return alarm;
}

bool ReminderOfFile::takeOwn(const ContentLine& line, FileZones& zones)
{
    const auto read = zones.momentOf(line);
    if (!read) {
        return false;
    }
    moment = read->moment;
    played = line.parameter("X-PLAYED").has_value();
    dismissed = line.parameter("X-DISMISSED").has_value();
    isOwn = true;
    return true;
}

void ReminderOfFile::keepRest(const Alarm& alarm)
{
    if (alarm.own.empty() || alarm.rest != alarmAction(name)) {
        kept.append("BEGIN:VALARM\n").append(alarm.rest).append("END:VALARM\n");
    }
}

void ReminderOfFile::read(const std::vector<std::string>& alarms, const std::optional<ContentLine>& off,
    FileZones& zones, Moment now)
{
    std::vector<Alarm> found;
    found.reserve(alarms.size());
    for (const std::string& text : alarms) {
        found.push_back(readAlarm(text, zones));
    }
    const Alarm* chosen = nullptr;
    for (const Alarm& alarm : found) {
        if (!alarm.moment) {
            continue;
        }
        const auto own = ContentLine::of(alarm.own);
        const auto ownMoment = own ? zones.momentOf(*own) : std::nullopt;
        if (ownMoment && ownMoment->moment == *alarm.moment) {
            chosen = &alarm;
            takeOwn(*own, zones);
            break;
        }
        const bool isBetter = chosen == nullptr
            || (*chosen->moment < now ? *alarm.moment > *chosen->moment
                                      : *alarm.moment >= now && *alarm.moment < *chosen->moment);
        chosen = isBetter ? &alarm : chosen;
    }
    // Off, unless somebody has added an alarm since.
    if (off && !isOwn
        && numberOf(off->parameter("X-FURTHER").value_or("0")) == static_cast<qint32>(found.size())
        && takeOwn(*off, zones)) {
        chosen = nullptr;
    }
    isOn = chosen != nullptr;
    if (chosen != nullptr) {
        moment = chosen->moment;
    }
    for (const Alarm& alarm : found) {
        if (&alarm == chosen) {
            keepRest(alarm);
        } else if (alarm.hasTrigger) {
            // One without a trigger is none, and would be taken for the rest of the reminder's.
            kept += alarm.foreign;
            further += alarm.moment ? 1 : 0;
        }
    }
}
