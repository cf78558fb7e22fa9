#pragma once

#include "reminders/AlertActions.h"
#include "reminders/AlertControls.h"
#include "reminders/AlertListModel.h"
#include "reminders/AlertNotification.h"
#include "system/MMControl.h"
#include "widgets/FormServices.h"
#include "widgets/UnaskedWindow.h"

#include <QHash>
#include <QTimer>
#include <QWidget>

class AlertsHost;

/// The alert window: checks for due reminders every ten seconds, lists them, plays their sounds, starts
/// their files and offers what can be done with them. It comes up by itself and has no owner; the close box
/// only hides it. Where it could come up only with the keyboard of another window, a notification of the
/// desktop stands for it until the user wants it. Interface thread only.
class frmAlerts final : public QWidget
{
    Q_OBJECT

public:
    /// Not shown and not checking yet. `host` is not owned and outlives the window. `notifications` is given
    /// where windows cannot come up by themselves.
    frmAlerts(const FormServices& services, AlertsHost& host, WaveBackendFactory waveBackend,
        NotificationsFactory notifications = {}, QWidget* parent = nullptr);

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
    /// To be called after a check when others have changed the data file: what is listed shows what it is
    /// now, and what is due in the place of something listed comes up, which a check does not notice. Throws
    /// DatabaseError.
    void showAnew();
    /// How many reminders are due, as far as the window knows from its last check.
    int dueCount() const { return m_allDismissed ? 0 : m_reminders.rowCount(); }
    /// Whether the user is shown what is due, in the window or in the notification that stands for it.
    bool isUp() const { return isVisible() || m_notification.isTold(); }
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
    static QString titleFor(int count);
    void connectControls();

    void check(bool isOvertaken = false);
    /// Shows how often the listed reminders of repeating tasks have come.
    void countTimes();
    void redraw(const std::vector<DueReminder>& due);
    void fireOnce(const DueReminder& reminder);
    void fire(const DueReminder& reminder);
    void comeUp();
    /// Hides the window and withdraws the notification.
    void putAway();

    void btnDismiss_Click();
    void btnDismissAll_Click();
    void btnRemindMeLater_Click();
    void btnOpenItem_Click();
    void mnuAlertComplete_Click();
    void remindLater(Moment moment);
    void openTold(const std::vector<DueReminder>& told);
    void postponeTold(const std::vector<DueReminder>& told);
    void dismissTold(const std::vector<DueReminder>& told);
    /// Runs `answer` with those selected that are still due as they were told. When it throws, what is listed
    /// is told again.
    void answerTold(const std::vector<DueReminder>& told, const std::function<void()>& answer);
    void tmrFlasher_Timer();
    void closeSound();

    void Form_Activate();
    void Form_Deactivate();
    void stopFlashing();
    void setPickersToNow();
    void setPickersTo(Moment moment);

    QList<qint32> selectedTasks() const;
    /// Runs `change` on the selected tasks and takes them out of the list; hides the window when that is
    /// empty then. False when none is selected. Throws DatabaseError, and then the list is as it was.
    bool changeSelected(QString (*done)(int count),
        const std::function<void(const DatabaseEngine&, const QList<qint32>&)>& change);

    FormServices m_services;
    AlertsHost& m_host;
    MMControl m_mmc;
    AlertListModel m_reminders;
    QTimer m_tmrTasksChecker;
    QTimer m_tmrFlasher;
    AlertControls m_controls;
    AlertActions m_actions;
    UnaskedWindow m_unasked;
    AlertNotification m_notification;
    bool m_isActive = false;
    /// The listed reminders have sounded but could not be marked as played.
    bool m_owesMark = false;
    /// All listed reminders were dismissed after the last check.
    bool m_allDismissed = false;
    /// Reminders that have sounded but are not marked as played: task id and reminder moment. They are
    /// listed again, but do not sound again.
    QHash<qint32, QString> m_fired;
};
