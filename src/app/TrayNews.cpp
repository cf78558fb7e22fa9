#include "app/TrayNews.h"

#include "reminders/frmAlerts.h"
#include "store/ForeignChanges.h"
#include "system/Clock.h"
#include "system/RuntimeError.h"
#include "widgets/TrayIcon.h"

#include <QApplication>
#include <QEvent>

TrayNews::TrayNews(const DatabaseEngine& engine, TrayIcon& icon, frmAlerts& alerts)
    : m_engine(engine), m_icon(icon), m_alerts(alerts)
{
    alerts.installEventFilter(this);
}

QString TrayNews::text(int dueReminders, int overdueTasks)
{
    const QString due = dueReminders == 0 ? QString() : tr("%n due", "reminders", dueReminders);
    const QString overdue = overdueTasks == 0 ? QString() : tr("%n overdue", "tasks", overdueTasks);
    if (due.isEmpty() || overdue.isEmpty()) {
        return due + overdue;
    }
    return tr("%1, %2", "2 due, 3 overdue").arg(due, overdue);
}

void TrayNews::update()
{
    countOverdue();
    m_icon.setNews(text(m_alerts.dueCount(), m_overdue.count));
    wearBadge();
}

void TrayNews::countOverdue()
{
    // The time of the file would be too coarse: a change may come right after the count. Asked before it, as
    // others may store in between.
    const quint32 file = m_engine.foreign->state();
    const Moment now = m_engine.clock->now();
    const bool timeHasPassed = now < m_countedAt || (m_overdue.nextDue && now > *m_overdue.nextDue);
    if (file == m_countedFile && !timeHasPassed) {
        return;
    }
    try {
        m_overdue = OverdueTasks::read(m_engine);
        m_countedAt = now;
        m_countedFile = file;
    } catch (const RuntimeError&) {
        return;
    }
}

void TrayNews::wearBadge()
{
    m_icon.setBadge(m_alerts.dueCount() > 0 && !m_alertInFront);
}

bool TrayNews::eventFilter(QObject* /*watched*/, QEvent* event)
{
    switch (event->type()) {
    case QEvent::Show:
    case QEvent::WindowActivate:
    case QEvent::ZOrderChange:
        m_alertInFront = m_alerts.isVisible() && !m_alerts.isMinimized();
        wearBadge();
        break;
    case QEvent::WindowDeactivate:
        // A message box of the alert is no other window for the user.
        if (QApplication::activeModalWidget() == nullptr && QApplication::activePopupWidget() == nullptr) {
            m_alertInFront = false;
            wearBadge();
        }
        break;
    case QEvent::Hide:
        m_alertInFront = false;
        wearBadge();
        break;
    default:
        break;
    }
    return false;
}
