#pragma once

#include "data/ReminderChecker.h"
#include "system/Notifications.h"

#include <QList>
#include <QObject>
#include <memory>
#include <vector>

/// Tells of due reminders where the alert window cannot come to the front by itself: a notification of the
/// desktop, which offers what the window offers. The desktop is asked when there is something to tell for the
/// first time. Interface thread only.
class AlertNotification final : public QObject
{
    Q_OBJECT

public:
    /// Without a factory nothing is ever told.
    explicit AlertNotification(NotificationsFactory factory, QObject* parent = nullptr);
    ~AlertNotification() override;

    /// Whether this desktop needs to be told.
    bool isUsed() const { return m_factory != nullptr; }
    /// Shows these reminders, at least one, in the place of those that are shown.
    void tell(const QString& title, const std::vector<DueReminder>& reminders);
    /// If the notification is there, shows in it that only these are left; withdraws it when none is.
    void follow(const QString& title, const std::vector<DueReminder>& reminders);
    /// Takes the notification away: the reminders are answered, or the user sees the window.
    void withdraw();

    /// What the notification says of the reminders: a name a line, the first few of many.
    static QString textFor(const std::vector<DueReminder>& reminders);

signals:
    /// What the user has chosen, for the tasks of these ids; the notification is gone then.
    void openRequested(const QList<qint32>& ids);
    void laterRequested(const QList<qint32>& ids);
    void dismissRequested(const QList<qint32>& ids);
    /// The user cannot answer here: the window has to come up.
    void windowNeeded();

private:
    void onChosen(const QString& key);

    NotificationsFactory m_factory;
    std::unique_ptr<Notifications> m_desktop;
    QList<qint32> m_ids; ///< of the tasks that are shown; empty while the notification is not there
};
