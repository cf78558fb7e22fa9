#pragma once

#include <QIcon>
#include <QObject>
#include <QString>

class QMenu;
class QSystemTrayIcon;

/// The program's icon in the notification area. If the desktop has none at the moment, the icon appears
/// with it.
class TrayIcon : public QObject
{
    Q_OBJECT

public:
    explicit TrayIcon(QObject* parent = nullptr);

    /// `name` is the first line of the tool tip. `menu` opens on a right click and is not owned.
    void add(const QIcon& icon, const QString& name, QMenu* menu);
    void remove();
    /// What the tool tip says below the name; empty for nothing. Plain text. Has an effect while the icon is
    /// there.
    void setNews(const QString& news);
    const QString& news() const { return m_news; }
    /// Whether the icon wears a badge. Has an effect while the icon is there.
    void setBadge(bool worn);
    bool hasBadge() const { return m_hasBadge; }
    /// A balloon with the information icon, closed after `milliseconds`. Plain text.
    void showBalloon(const QString& title, const QString& text, int milliseconds);

    /// Whether this desktop has a notification area now.
    static bool isAreaAvailable();

signals:
    /// A double click, or the only activation gesture of a notification area that reports no double clicks.
    void activated();

private:
    QSystemTrayIcon* m_icon = nullptr;
    QIcon m_plain;
    QString m_name;
    QString m_news;
    bool m_hasBadge = false;
};
