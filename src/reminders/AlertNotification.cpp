#include "reminders/AlertNotification.h"

#include "reminders/AlertListModel.h"
#include "widgets/PlainText.h"

#include <QStringList>
#include <utility>

using namespace std::chrono_literals;

namespace
{

constexpr char Open[] = "open";
constexpr char Later[] = "later";
constexpr char Dismiss[] = "dismiss";
constexpr std::size_t NamedReminders = 5;
constexpr qsizetype ShownCharacters = 200; ///< of a name

} // namespace

AlertNotification::AlertNotification(NotificationsFactory factory, QObject* parent)
    : QObject(parent), m_factory(std::move(factory)), m_tmrChoiceRest(this)
{
    m_tmrChoiceRest.setObjectName(QStringLiteral("tmrChoiceRest"));
    m_tmrChoiceRest.setInterval(500ms);
    m_tmrChoiceRest.setSingleShot(true);
}

AlertNotification::~AlertNotification() = default;

void AlertNotification::tell(const QString& title, const std::vector<DueReminder>& reminders)
{
    if (m_desktop == nullptr) {
        m_desktop = m_factory();
        connect(m_desktop.get(), &Notifications::chosen, this, &AlertNotification::onChosen);
        connect(m_desktop.get(), &Notifications::unanswerable, this, &AlertNotification::windowNeeded);
        connect(m_desktop.get(), &Notifications::closed, this, [this] { m_told.clear(); });
    }
    if (isTold() && !AlertListModel::areAmong(m_told, reminders)) {
        restFromChoices();
    }
    m_title = title;
    m_told = reminders;
    m_desktop->show({title, textFor(reminders),
        {{QLatin1String(Notifications::DefaultAction), tr("Open")}, {QLatin1String(Open), tr("Open")},
            {QLatin1String(Later), tr("Later (15 minutes)")}, {QLatin1String(Dismiss), tr("Dismiss")}}});
}

void AlertNotification::follow(const QString& title, const std::vector<DueReminder>& reminders)
{
    if (reminders.empty()) {
        withdraw();
    } else if (isTold()
        && !(AlertListModel::areAmong(reminders, m_told) && AlertListModel::areAmong(m_told, reminders))) {
        tell(title, reminders);
    }
}

void AlertNotification::withdraw()
{
    if (isTold()) {
        m_told.clear();
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
    const bool changes = key == QLatin1String(Later) || key == QLatin1String(Dismiss);
    if (changes && isTold() && m_tmrChoiceRest.isActive()) {
        // A server may take the notification away with a choice.
        tell(m_title, m_told);
        return;
    }
    // A server may keep the notification after a choice.
    const std::vector<DueReminder> told = m_told;
    withdraw();
    if (told.empty()) {
        return;
    }
    if (key == QLatin1String(Later)) {
        emit laterRequested(told);
    } else if (key == QLatin1String(Dismiss)) {
        emit dismissRequested(told);
    } else {
        emit openRequested(told);
    }
}

void AlertNotification::restFromChoices()
{
    m_tmrChoiceRest.start();
    // Counted from the return to the event loop: only then is the notification handed over.
    QMetaObject::invokeMethod(&m_tmrChoiceRest, qOverload<>(&QTimer::start), Qt::QueuedConnection);
}
