#pragma once

#include "data/ReminderChecker.h"
#include "system/Notifications.h"

#include <QObject>
#include <QTimer>
#include <memory>
#include <vector>

/// Tells of due reminders where the alert window cannot come to the front by itself: a notification of the
/// desktop, which offers what the window offers. The desktop is asked when there is something to tell for the
/// first time. For half a second after reminders have joined those that were shown, "Later" and "Dismiss" are
/// not taken: they may have been meant for the former ones alone. Interface thread only.
class AlertNotification final : public QObject
{
    Q_OBJECT

public:
    /// Without a factory nothing is ever told.
    explicit AlertNotification(NotificationsFactory factory, QObject* parent = nullptr);
    ~AlertNotification() override;

    /// Whether this desktop needs to be told.
    bool isUsed() const { return m_factory != nullptr; }
    /// Whether the notification is there.
    bool isTold() const { return !m_told.empty(); }
    /// Shows these reminders, at least one, in the place of those that are shown.
    void tell(const QString& title, const std::vector<DueReminder>& reminders);
    /// If the notification is there, shows in it that only these are left; withdraws it when none is.
    void follow(const QString& title, const std::vector<DueReminder>& reminders);
    /// Takes the notification away: the reminders are answered, or the user sees the window.
    void withdraw();

    /// What the notification says of the reminders: a name a line, the first few of many.
    static QString textFor(const std::vector<DueReminder>& reminders);

signals:
    /// What the user has chosen, for these reminders as they were told; the notification is gone then.
    void openRequested(const std::vector<DueReminder>& told);
    void laterRequested(const std::vector<DueReminder>& told);
    void dismissRequested(const std::vector<DueReminder>& told);
    /// The user cannot answer here: the window has to come up.
    void windowNeeded();

private:
    void onChosen(const QString& key);
    void restFromChoices();

    NotificationsFactory m_factory;
    std::unique_ptr<Notifications> m_desktop;
    QTimer m_tmrChoiceRest;
    QString m_title; ///< of what was told last
    std::vector<DueReminder> m_told; ///< empty while the notification is not there
};
