#pragma once

#include "exchange/ContentLine.h"
#include "exchange/FileZones.h"

#include <optional>
#include <string>
#include <vector>

/// The reminder of a task of a file: of its alarms the next one that is to come, or else the last one that
/// is past. The others are kept.
struct ReminderOfFile {
    // Given:
    std::string name; ///< of the task
    std::optional<Moment> due;
    std::optional<Moment> start; ///< to which a trigger belongs that says nothing else

    // Read:
    std::optional<Moment> moment;
    bool isOn = false;
    bool isOwn = false; ///< written by this program and changed by nobody: its state counts
    bool played = false;
    bool dismissed = false;
    int further = 0; ///< alarms that remind in other programs
    bool isInUnknownZone = false;
    std::string kept; ///< lines for an export; of the alarm that reminds without its trigger

    /// `alarms` are components with all their lines, ended by line feeds; `off` is the line that says that
    /// the reminder is off.
    void read(const std::vector<std::string>& alarms, const std::optional<ContentLine>& off, FileZones& zones,
        Moment now);

private:
    struct Alarm;
    Alarm readAlarm(const std::string& text, FileZones& zones);
    std::optional<Moment> momentOf(const ContentLine& trigger, FileZones& zones);
    bool takeOwn(const ContentLine& line, FileZones& zones);
    void keepRest(const Alarm& alarm);
};

/// The lines of an alarm of this program that say nothing but its trigger and its state.
std::string alarmAction(std::string_view taskName);
