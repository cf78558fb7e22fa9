#pragma once

#include <QList>
#include <QObject>
#include <QString>
#include <functional>
#include <memory>

/// What a notification of the desktop says and offers.
struct Notification {
    struct Action {
        QString key; ///< answered by `Notifications::chosen`; DefaultAction for a click on the text
        QString caption;
    };

    QString title;
    QString text; ///< plain, lines separated by line feeds
    QList<Action> actions;
};

/// One notification of the desktop, which stays on the screen until it is answered or withdrawn. Interface
/// thread only.
class Notifications : public QObject
{
    Q_OBJECT

public:
    static constexpr char DefaultAction[] = "default";

    /// Shows the notification, in the place of the one that is shown. Never waits for the desktop, and never
    /// throws.
    virtual void show(const Notification& notification) = 0;
    /// Takes the notification away; does nothing when none is shown.
    virtual void withdraw() = 0;

signals:
    /// The user has chosen the action of that key, in what was shown last. While the signal is handled, a
    /// window that is activated may come to the front.
    void chosen(const QString& key);
    /// The user cannot answer the notification that was to be shown: nobody shows it, or without actions.
    void unanswerable();
    /// The user or the desktop has taken away what was shown last.
    void closed();
};

using NotificationsFactory = std::function<std::unique_ptr<Notifications>()>;

/// The notifications of this desktop; null where the platform's are not used.
std::unique_ptr<Notifications> makeNotifications();
