#pragma once

#include "system/Notifications.h"

#include <QPointer>
#include <QStringList>

/// Remembers what was shown.
class RecordedNotifications final : public Notifications
{
public:
    explicit RecordedNotifications(QList<Notification>& log) : m_log(log) { }
    void show(const Notification& notification) override
    {
        m_log.append(notification);
        isShown = true;
    }
    void withdraw() override { isShown = false; }

    bool isShown = false;

private:
    QList<Notification>& m_log;
};

/// A desktop that has to be told, and outlives who tells it.
struct RecordedDesktop {
    NotificationsFactory factory()
    {
        return [this] {
            auto made = std::make_unique<RecordedNotifications>(told);
            desktop = made.get();
            return made;
        };
    }
    bool isTold() const { return desktop != nullptr && desktop->isShown; }
    QStringList lines() const { return told.constLast().text.split(u'\n'); }
    void choose(const char* key) const { emit desktop->chosen(QString::fromLatin1(key)); }

    QList<Notification> told;
    QPointer<RecordedNotifications> desktop; ///< none before there was something to tell
};
