#pragma once

#include "system/Notifications.h"

#include <QDBusConnection>
#include <QDBusMessage>
#include <QDBusPendingReply>
#include <QDBusServiceWatcher>
#include <optional>

class QDBusPendingCall;

/// The notifications of a desktop that serves org.freedesktop.Notifications on the message bus of the
/// session.
class DesktopNotifications final : public Notifications
{
    Q_OBJECT

public:
    /// Connects to the session's message bus.
    DesktopNotifications();
    /// Withdraws what is shown.
    ~DesktopNotifications() override;

    void show(const Notification& notification) override;
    void withdraw() override;

private slots:
    void onActionInvoked(uint id, const QString& key);
    void onActivationToken(uint id, const QString& token);
    void onClosed(uint id, uint reason);
    void onServiceGone();

private:
    void listen(const char* signal, const char* slot);
    void ask(const QDBusMessage& message, const std::function<void(const QDBusPendingCall&)>& handle);
    void askForCapabilities();
    void hand(const Notification& notification, const QStringList& capabilities);
    void noteShown(const QDBusPendingReply<uint>& id, bool takesAnswers);
    void giveUp();

    QDBusConnection m_bus = QDBusConnection::sessionBus();
    QDBusServiceWatcher m_service;
    std::optional<Notification> m_wanted; ///< not handed over yet
    uint m_id = 0; ///< of what is shown; 0 for nothing
    bool m_isBusy = false; ///< a call is under way
    bool m_isWithdrawn = false; ///< what is being handed over is not wanted any more
};
