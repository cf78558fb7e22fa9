#include "widgets/TrayIcon.h"

#include "widgets/BadgedIcon.h"
#include "widgets/WindowManager.h"

#include <QMenu>
#include <QSystemTrayIcon>

TrayIcon::TrayIcon(QObject* parent) : QObject(parent)
{
}

void TrayIcon::add(const QIcon& icon, const QString& name, QMenu* menu)
{
    remove();
    m_plain = icon;
    m_name = name;
    m_icon = new QSystemTrayIcon(icon, this);
    m_icon->setToolTip(name);
    m_icon->setContextMenu(menu);
    connect(m_icon, &QSystemTrayIcon::activated, this, [this](QSystemTrayIcon::ActivationReason reason) {
        const bool isSingleClickEnough = !tellsDoubleClicks(m_icon->geometry());
        if (reason == QSystemTrayIcon::DoubleClick
            || (isSingleClickEnough && reason == QSystemTrayIcon::Trigger)) {
            emit activated();
        }
    });
    m_icon->show();
}

void TrayIcon::remove()
{
    delete m_icon;
    m_icon = nullptr;
    m_news.clear();
    m_hasBadge = false;
}

void TrayIcon::setNews(const QString& news)
{
    if (m_icon != nullptr && news != m_news) {
        m_news = news;
        m_icon->setToolTip(news.isEmpty() ? m_name : m_name + u'\n' + news);
    }
}

void TrayIcon::setBadge(bool worn)
{
    if (m_icon != nullptr && worn != m_hasBadge) {
        m_hasBadge = worn;
        m_icon->setIcon(worn ? badgedIcon(m_plain) : m_plain);
    }
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
