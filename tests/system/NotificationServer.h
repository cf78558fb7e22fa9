#pragma once

#include <QList>
#include <QString>
#include <QStringList>
#include <memory>

/// A message bus of its own, which becomes the session's, and on it a notification server that remembers what
/// it was told. One at a time in a process, made before the process has asked for its session bus.
class NotificationServer
{
public:
    struct Shown {
        unsigned id = 0;
        unsigned replaced = 0; ///< the id that the caller named; 0 for none
        QString title;
        QString text;
        QStringList actions; ///< key and caption in turn
        unsigned urgency = 0;
        int milliseconds = -1; ///< until it expires; 0 for never
    };

    NotificationServer();
    ~NotificationServer();
    NotificationServer(const NotificationServer&) = delete;
    NotificationServer& operator=(const NotificationServer&) = delete;

    /// Serves with these capabilities, or others than before, and forgets what it was told.
    void serve(const QStringList& capabilities);
    /// Is not there any more.
    void leave();

    QList<Shown> shown() const;
    QList<unsigned> closed() const; ///< by the caller

    void choose(unsigned id, const QString& key) const;
    void giveToken(unsigned id, const QString& token) const;
    void close(unsigned id) const;

private:
    struct Private;
    std::unique_ptr<Private> m;
};
