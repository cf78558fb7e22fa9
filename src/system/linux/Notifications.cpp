#include "system/linux/DesktopNotifications.h"

#include "system/ProgramFolder.h"

#include <QDBusPendingCallWatcher>
#include <QGuiApplication>
#include <QVariantMap>
#include <utility>

namespace
{

constexpr char Service[] = "org.freedesktop.Notifications";
constexpr char IconName[] = "ambertask"; ///< of the installed picture
constexpr char Path[] = "/org/freedesktop/Notifications";
/// A desktop that starts its server only now takes a moment, in milliseconds.
constexpr int LongestWait = 5000;
constexpr char ActivationToken[] = "XDG_ACTIVATION_TOKEN";

/// GNOME takes any other urgency off the screen after seconds.
constexpr uchar Critical = 2;

QDBusMessage call(const char* method, const QVariantList& arguments = {})
{
    QDBusMessage message = QDBusMessage::createMethodCall(
        QLatin1String(Service), QLatin1String(Path), QLatin1String(Service), QLatin1String(method));
    message.setArguments(arguments);
    return message;
}

} // namespace

DesktopNotifications::DesktopNotifications()
    : m_service(QLatin1String(Service), m_bus, QDBusServiceWatcher::WatchForUnregistration)
{
    connect(
        &m_service, &QDBusServiceWatcher::serviceUnregistered, this, &DesktopNotifications::onServiceGone);
    listen("ActionInvoked", SLOT(onActionInvoked(uint, QString)));
    listen("ActivationToken", SLOT(onActivationToken(uint, QString)));
    listen("NotificationClosed", SLOT(onClosed(uint, uint)));
}

DesktopNotifications::~DesktopNotifications()
{
    if (m_id != 0) {
        // Answered before the process ends: what is only on its way would be lost.
        m_bus.call(call("CloseNotification", {m_id}), QDBus::Block, LongestWait / 10);
    }
}

void DesktopNotifications::show(const Notification& notification)
{
    m_wanted = notification;
    m_isWithdrawn = false;
    if (std::exchange(m_isBusy, true)) {
        return;
    }
    // Without a bus no call would ever be answered.
    if (m_bus.isConnected()) {
        askForCapabilities();
    } else {
        QMetaObject::invokeMethod(this, &DesktopNotifications::giveUp, Qt::QueuedConnection);
    }
}

void DesktopNotifications::withdraw()
{
    m_wanted.reset();
    m_isWithdrawn = true;
    if (m_id != 0) {
        m_bus.asyncCall(call("CloseNotification", {std::exchange(m_id, 0)}));
    }
}

void DesktopNotifications::onActionInvoked(uint id, const QString& key)
{
    // While the next one is under way, the user sees the former one, and has not chosen for the next.
    if (id == m_id && m_id != 0 && !m_isBusy) {
        emit chosen(key);
    }
    // For the one window that the user has asked for, not for those and for programs that come later.
    qunsetenv(ActivationToken);
}

void DesktopNotifications::onActivationToken(uint id, const QString& token)
{
    if (id == m_id && m_id != 0) {
        // Where Qt looks for it.
        qputenv(ActivationToken, token.toUtf8());
    }
}

void DesktopNotifications::onClosed(uint id, uint /*reason*/)
{
    if (id == m_id && m_id != 0) {
        m_id = 0;
        // The one that is under way comes all the same.
        if (!m_isBusy) {
            emit closed();
        }
    }
}

void DesktopNotifications::onServiceGone()
{
    // What it showed went with it, unanswered. What is under way gets an answer of its own.
    if (std::exchange(m_id, 0) != 0 && !m_isBusy) {
        emit closed();
        emit unanswerable();
    }
}

void DesktopNotifications::listen(const char* signal, const char* slot)
{
    m_bus.connect(QLatin1String(Service), QLatin1String(Path), QLatin1String(Service), QLatin1String(signal),
        this, slot);
}

void DesktopNotifications::ask(
    const QDBusMessage& message, const std::function<void(const QDBusPendingCall&)>& handle)
{
    auto* watcher = new QDBusPendingCallWatcher(m_bus.asyncCall(message, LongestWait), this);
    connect(watcher, &QDBusPendingCallWatcher::finished, this, [watcher, handle] {
        watcher->deleteLater();
        handle(*watcher);
    });
}

// Each time: another server may have taken the place of the last one.
void DesktopNotifications::askForCapabilities()
{
    ask(call("GetCapabilities"), [this](const QDBusPendingReply<QStringList>& capabilities) {
        if (capabilities.isError()) {
            giveUp();
        } else if (m_wanted) {
            hand(*std::exchange(m_wanted, std::nullopt), capabilities.value());
        } else {
            m_isBusy = false;
        }
    });
}

void DesktopNotifications::hand(const Notification& notification, const QStringList& capabilities)
{
    const bool takesAnswers = capabilities.contains(QLatin1String("actions"));
    QStringList actions;
    for (const Notification::Action& action : notification.actions) {
        actions << action.key << action.caption;
    }
    const bool readsMarkup = capabilities.contains(QLatin1String("body-markup"));
    const QVariantMap hints{{QStringLiteral("urgency"), QVariant::fromValue(Critical)},
        {QStringLiteral("desktop-entry"), QGuiApplication::desktopFileName()},
        // Reminders have sounds of their own.
        {QStringLiteral("suppress-sound"), true}};
    constexpr int NeverExpires = 0;
    const QDBusMessage message = call("Notify",
        {QLatin1String(ProductName), m_id, QLatin1String(IconName), notification.title,
            readsMarkup ? notification.text.toHtmlEscaped() : notification.text,
            takesAnswers ? actions : QStringList(), hints, NeverExpires});
    ask(message, [this, takesAnswers](const QDBusPendingReply<uint>& id) { noteShown(id, takesAnswers); });
}

void DesktopNotifications::noteShown(const QDBusPendingReply<uint>& id, bool takesAnswers)
{
    if (id.isError()) {
        giveUp();
        return;
    }
    m_isBusy = false;
    m_id = id.value();
    if (m_wanted) {
        show(*m_wanted);
    } else if (m_isWithdrawn) {
        withdraw();
    } else if (!takesAnswers) {
        emit unanswerable();
    }
}

void DesktopNotifications::giveUp()
{
    m_isBusy = false;
    m_wanted.reset();
    if (!m_isWithdrawn) {
        emit unanswerable();
    }
}

std::unique_ptr<Notifications> makeNotifications()
{
    return std::make_unique<DesktopNotifications>();
}
