#pragma once

#include <QtGlobal>

/// What the alert window asks of the other windows.
class AlertsHost
{
public:
    AlertsHost() = default;
    virtual ~AlertsHost() = default;
    AlertsHost(const AlertsHost&) = delete;
    AlertsHost& operator=(const AlertsHost&) = delete;

    /// Opens a task in the task dialog, modeless and owned by the alert window. The dialog is not made
    /// topmost here, whatever the setting says.
    virtual void openTask(qint16 id) = 0;
};
