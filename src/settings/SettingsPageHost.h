#pragma once

#include <QString>

/// What the settings page needs from the main window.
class SettingsPageHost
{
public:
    SettingsPageHost() = default;
    virtual ~SettingsPageHost() = default;
    SettingsPageHost(const SettingsPageHost&) = delete;
    SettingsPageHost& operator=(const SettingsPageHost&) = delete;

    /// Sets the caption that a start needs: "Show" or "Hide". Called whenever the page is filled; has an
    /// effect only while the main window loads.
    virtual void setTrayCaption(const QString& caption) = 0;
    /// Makes the main window topmost, or ends that state and brings it to the front of the ordinary
    /// windows.
    virtual void placeMainWindow(bool topmost) = 0;
    virtual void setGridLines(bool shown) = 0;
    /// Rebuilds the task list with the columns that the page shows as checked. May throw DatabaseError.
    virtual void LoadTasks() = 0;
};
