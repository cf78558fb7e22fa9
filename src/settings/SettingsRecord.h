#pragma once

#include <QString>

/// The user's preferences, one field a column of the table `settings`. The program has one record; it is
/// filled at the start and changed only when the settings are saved.
struct SettingsRecord {
    bool always_on_top = false;
    bool start_with_windows = false;
    bool minimize_on_start = false;
    /// Base name of the skin file, without folder and without ".skf".
    QString skin;
    bool show_task_status = false;
    bool show_task_due_date = false;
    bool show_task_periority = false;
    bool show_task_reminder = false;
    bool show_today_tasks = false;
    bool show_grid = false;
    bool show_ballon_icon = false;

    /// As a data file is shipped.
    static SettingsRecord shipped()
    {
        return {false, true, false, QStringLiteral("Aqua"), true, true, true, true, false, true, true};
    }
    bool operator==(const SettingsRecord&) const = default;
};
