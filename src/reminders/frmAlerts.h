#pragma once

#include "data/ClsDatabase.h"
#include "reminders/AlertControls.h"
#include "reminders/AlertListModel.h"
#include "system/MMControl.h"
#include "widgets/FormServices.h"
#include "widgets/UnaskedWindow.h"

#include <QHash>
#include <QTimer>
#include <QWidget>

class AlertsHost;

/// The alert window: checks for due reminders every ten seconds, lists them, plays their sounds, starts
/// their files and offers what can be done with them. It comes up by itself and has no owner; the close box
/// only hides it. Interface thread only.
class frmAlerts final : public QWidget
{
    Q_OBJECT

public:
    /// Not shown and not checking yet. `host` is not owned and outlives the window.
    frmAlerts(const FormServices& services, AlertsHost& host, WaveBackendFactory waveBackend,
        QWidget* parent = nullptr);

    /// Runs one check at once and starts the checker's timer.
    void load();
    /// One check for due reminders. Never throws: a failed check leaves the list as it was, and the next
    /// one tries again.
    void tmrTasksChecker_Timer();
    /// Stops or starts the checker's timer; starting a running timer changes nothing.
    void setCheckerEnabled(bool enabled);
    /// To be called when the data file has been replaced: empties the list and hides the window. The next
    /// check lists what is due.
    void forgetReminders();
    /// Gives the focus to the list; activates the window if it is visible, but never shows it.
    void focusGrid();
    /// Enables the help button, which is disabled at first.
    void setHelpEnabled(bool enabled);

signals:
    /// One or all reminders were dismissed and the data file is closed again.
    void remindersDismissed();
    void helpRequested();
    /// A check has run, with or without success.
    void checked();

protected:
    bool event(QEvent* event) override;
    void showEvent(QShowEvent* event) override;
    void closeEvent(QCloseEvent* event) override;

private:
    void connectControls();

    void check();
    void redraw(const std::vector<DueReminder>& due);
    void fireOnce(const DueReminder& reminder);
    void fire(const DueReminder& reminder);
    void comeUp();

    void btnDismiss_Click();
    void btnDismissAll_Click();
    void btnRemindMeLater_Click();
    void btnOpenItem_Click();
    void tmrFlasher_Timer();
    void closeSound();

    void Form_Activate();
    void Form_Deactivate();
    void stopFlashing();
    void setPickersToNow();
    void setPickersTo(Moment moment);

    Connection openConnection() const;
    /// Runs a statement that changes the data file, and commits it.
    static void store(Connection& connection, const QString& statement);
    void removeReminder(int row);

    FormServices m_services;
    AlertsHost& m_host;
    ClsDatabase m_database;
    MMControl m_mmc;
    AlertListModel m_reminders;
    QTimer m_tmrTasksChecker;
    QTimer m_tmrFlasher;
    AlertControls m_controls;
    UnaskedWindow m_unasked;
    bool m_isActive = false;
    /// The listed reminders have sounded but could not be marked as played.
    bool m_owesMark = false;
    /// Reminders that have sounded but are not marked as played: task id and reminder moment. They are
    /// listed again, but do not sound again.
    QHash<qint32, QString> m_fired;
};
