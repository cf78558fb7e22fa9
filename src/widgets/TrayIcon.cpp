#include "widgets/TrayIcon.h"

#include <QIcon>
#include <QMenu>
#include <QSystemTrayIcon>

TrayIcon::TrayIcon(QObject* parent) : QObject(parent)
{
}

void TrayIcon::add(const QIcon& icon, const QString& toolTip, QMenu* menu)
{
    remove();
    m_icon = new QSystemTrayIcon(icon, this);
    m_icon->setToolTip(toolTip);
    m_icon->setContextMenu(menu);
    connect(m_icon, &QSystemTrayIcon::activated, this, [this](QSystemTrayIcon::ActivationReason reason) {
        // A StatusNotifierItem host draws the icon itself and reports neither its geometry nor double
        // clicks (that protocol has none).
        const bool drawnByHost = m_icon->geometry().isEmpty();
        if (reason == QSystemTrayIcon::DoubleClick || (drawnByHost && reason == QSystemTrayIcon::Trigger)) {
            emit activated();
        }
    });
    m_icon->show();
}

void TrayIcon::remove()
{
    delete m_icon;
    m_icon = nullptr;
}

void TrayIcon::showBalloon(const QString& title, const QString& text, int milliseconds)
{
    if (m_icon != nullptr) {
        m_icon->showMessage(title, text, QSystemTrayIcon::Information, milliseconds);
    }
}

bool TrayIcon::isAreaAvailable()
{
    return QSystemTrayIcon::isSystemTrayAvailable();
}
