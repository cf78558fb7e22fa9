#pragma once

#include <QObject>
#include <QString>

class QIcon;
class QMenu;
class QSystemTrayIcon;

/// The program's icon in the notification area. If the desktop has none at the moment, the icon appears
/// with it.
class TrayIcon : public QObject
{
    Q_OBJECT

public:
    explicit TrayIcon(QObject* parent = nullptr);

    /// `menu` opens on a right click and is not owned.
    void add(const QIcon& icon, const QString& toolTip, QMenu* menu);
    void remove();
    /// A balloon with the information icon, closed after `milliseconds`. Plain text.
    void showBalloon(const QString& title, const QString& text, int milliseconds);

    /// Whether this desktop has a notification area now.
    static bool isAreaAvailable();

signals:
    /// A double click, or the only activation gesture of a notification area that reports no double clicks.
    void activated();

private:
    QSystemTrayIcon* m_icon = nullptr;
};
