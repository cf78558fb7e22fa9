#pragma once

#include "data/OverdueTasks.h"

#include <QObject>
#include <optional>

class TrayIcon;
class frmAlerts;

/// What the icon in the notification area tells beside the program's name: how many reminders are due and
/// how many tasks are overdue, in its tool tip, and by a badge that reminders are due while the alert window
/// is not in front.
class TrayNews : public QObject
{
    Q_OBJECT

public:
    /// All outlive this object. `engine` watches the changes of others.
    TrayNews(const DatabaseEngine& engine, TrayIcon& icon, frmAlerts& alerts);

    /// To be called at each check for reminders and when tasks may have changed. Counts overdue tasks only
    /// when the data file or, by time, their number can have changed, as far as connections have seen it.
    /// Never throws: what cannot be counted now is counted by the next call.
    void update();

    /// The lines below the program's name; empty when there is nothing to tell.
    static QString text(int dueReminders, int overdueTasks);

    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void countOverdue();
    void wearBadge();

    const DatabaseEngine& m_engine;
    TrayIcon& m_icon;
    frmAlerts& m_alerts;
    OverdueTasks m_overdue;
    /// The moment and the state of the data file of the last count.
    Moment m_countedAt{};
    std::optional<quint32> m_countedFile;
    /// The user sees the alert window: from its coming up until another window is activated.
    bool m_alertInFront = false;
};
