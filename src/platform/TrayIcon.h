#pragma once

#include <QObject>
#include <QString>

class QIcon;
class QMenu;
class QSystemTrayIcon;

/// The program's icon in the notification area. Where the desktop has none at the moment, the icon docks as
/// soon as one appears.
class TrayIcon : public QObject
{
    Q_OBJECT

public:
    explicit TrayIcon(QObject* parent = nullptr);

    /// `menu` opens on a right click and is not owned.
    void add(const QIcon& icon, const QString& toolTip, QMenu* menu);
    void remove();
    /// A balloon with the information picture, closed after `milliseconds`. Plain text.
    void showBalloon(const QString& title, const QString& text, int milliseconds);

    /// Whether this desktop has a notification area now.
    static bool isAreaAvailable();

signals:
    /// The double click; where the notification area knows only one activation gesture, that one.
    void activated();

private:
    QSystemTrayIcon* m_icon = nullptr;
};
