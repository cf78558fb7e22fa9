#include "reminders/AlertNotification.h"

#include "widgets/PlainText.h"

#include <QStringList>
#include <utility>

namespace
{

constexpr char Open[] = "open";
constexpr char Later[] = "later";
constexpr char Dismiss[] = "dismiss";
constexpr std::size_t NamedReminders = 5;
constexpr qsizetype ShownCharacters = 200; ///< of a name

QList<qint32> idsOf(const std::vector<DueReminder>& reminders)
{
    QList<qint32> ids;
    for (const DueReminder& reminder : reminders) {
        ids.append(reminder.id);
    }
    return ids;
}

} // namespace

AlertNotification::AlertNotification(NotificationsFactory factory, QObject* parent)
    : QObject(parent), m_factory(std::move(factory))
{
}

AlertNotification::~AlertNotification() = default;

void AlertNotification::tell(const QString& title, const std::vector<DueReminder>& reminders)
{
    if (m_desktop == nullptr) {
        m_desktop = m_factory();
        connect(m_desktop.get(), &Notifications::chosen, this, &AlertNotification::onChosen);
        connect(m_desktop.get(), &Notifications::unanswerable, this, &AlertNotification::windowNeeded);
        connect(m_desktop.get(), &Notifications::closed, this, [this] { m_ids.clear(); });
    }
    m_ids = idsOf(reminders);
    m_desktop->show({title, textFor(reminders),
        {{QLatin1String(Notifications::DefaultAction), tr("Open")}, {QLatin1String(Open), tr("Open")},
            {QLatin1String(Later), tr("Later (15 minutes)")}, {QLatin1String(Dismiss), tr("Dismiss")}}});
}

void AlertNotification::follow(const QString& title, const std::vector<DueReminder>& reminders)
{
    if (reminders.empty()) {
        withdraw();
    } else if (!m_ids.isEmpty() && m_ids != idsOf(reminders)) {
        tell(title, reminders);
    }
}

void AlertNotification::withdraw()
{
    if (!m_ids.isEmpty()) {
        m_ids.clear();
        m_desktop->withdraw();
    }
}

QString AlertNotification::textFor(const std::vector<DueReminder>& reminders)
{
    QStringList lines;
    for (const DueReminder& reminder : reminders) {
        if (static_cast<std::size_t>(lines.size()) == NamedReminders) {
            lines.append(QStringLiteral("\u2026"));
            break;
        }
        lines.append(shownPart(reminder.name, ShownCharacters));
    }
    return lines.join(u'\n');
}

void AlertNotification::onChosen(const QString& key)
{
    // A server may keep the notification after a choice.
    const QList<qint32> ids = m_ids;
    withdraw();
    if (ids.isEmpty()) {
        return;
    }
    if (key == QLatin1String(Later)) {
        emit laterRequested(ids);
    } else if (key == QLatin1String(Dismiss)) {
        emit dismissRequested(ids);
    } else {
        emit openRequested(ids);
    }
}
