#pragma once

#include <QString>

/// The user's preferences, one field for each column of the table `settings`. The program has one record,
/// filled at the start and changed only when settings are saved.
struct SettingsRecord {
    bool always_on_top = false;
    bool start_with_windows = false;
    bool minimize_on_start = false;
    /// Base name of the skin file, without folder and ".skf".
    QString skin;
    bool show_task_status = false;
    bool show_task_due_date = false;
    bool show_task_periority = false;
    bool show_task_reminder = false;
    bool show_today_tasks = false;
    bool show_grid = false;
    bool show_ballon_icon = false;

    /// The settings in a data file as shipped.
    static SettingsRecord shipped()
    {
        return {false, true, false, QStringLiteral("Aqua"), true, true, true, true, false, true, true};
    }
    bool operator==(const SettingsRecord&) const = default;
};
