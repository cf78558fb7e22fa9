#include "reminders/frmAlerts.h"

#include "data/TaskChanges.h"
#include "data/UndoHistory.h"
#include "reminders/AlertsHost.h"
#include "reminders/FlashBand.h"
#include "system/Clock.h"
#include "system/ErrorReport.h"
#include "widgets/ChangeTexts.h"
#include "widgets/CloseBox.h"
#include "widgets/GridView.h"
#include "widgets/LetterScale.h"
#include "widgets/MessageBoxes.h"
#include "widgets/MomentMenu.h"
#include "widgets/Pickers.h"

#include <QApplication>
#include <QCloseEvent>
#include <QDateEdit>
#include <QKeyEvent>
#include <QPushButton>
#include <QTimeEdit>
#include <utility>

namespace
{

constexpr std::chrono::seconds CheckerInterval(10);
constexpr std::chrono::seconds FlasherInterval(1);
constexpr QSize FirstSize(620, 380);

/// A message box or pop-up of the program takes the activation without being another window for the user.
bool isOwnBoxOpen()
{
    return QApplication::activeModalWidget() != nullptr || QApplication::activePopupWidget() != nullptr;
}

} // namespace

frmAlerts::frmAlerts(const FormServices& services, AlertsHost& host, WaveBackendFactory waveBackend,
    NotificationsFactory notifications, QWidget* parent)
    // A plain window: metacity and xfwm4 keep a dialog without an owner above all windows of its program,
    // so that the main window could not come in front of it.
    : QWidget(parent, Qt::Window), m_services(services), m_host(host), m_mmc(std::move(waveBackend), this),
      m_reminders(services.clock), m_tmrTasksChecker(this), m_tmrFlasher(this),
      m_controls(*this, services.clock), m_actions(m_controls, services.clock), m_unasked(this),
      m_notification(std::move(notifications), this)
{
    setObjectName(QStringLiteral("frmAlerts"));
    setWindowTitle(titleFor(0));
    resize(withLetters(FirstSize, font()));
    m_mmc.setObjectName(QStringLiteral("mmc"));
    m_tmrTasksChecker.setObjectName(QStringLiteral("tmrTasksChecker"));
    m_tmrTasksChecker.setInterval(CheckerInterval);
    m_tmrTasksChecker.setTimerType(Qt::PreciseTimer);
    m_tmrFlasher.setObjectName(QStringLiteral("tmrFlasher"));
    m_tmrFlasher.setInterval(FlasherInterval);
    m_tmrFlasher.setTimerType(Qt::PreciseTimer);
    m_controls.grdTasks->setGridModel(&m_reminders);
    setPickersToNow();
    connectControls();
}

QString frmAlerts::titleFor(int count)
{
    return count == 1 ? tr("1 Reminder") : tr("%n Reminders", nullptr, count);
}

void frmAlerts::connectControls()
{
    ErrorReport& errors = m_services.errors;
    connectGuarded(m_controls.btnDismiss, &QPushButton::clicked, this, &frmAlerts::btnDismiss_Click, errors);
    connectGuarded(
        m_controls.btnDismissAll, &QPushButton::clicked, this, &frmAlerts::btnDismissAll_Click, errors);
    connectGuarded(
        m_controls.btnRemindMeLater, &QPushButton::clicked, this, &frmAlerts::btnRemindMeLater_Click, errors);
    connectGuarded(
        m_controls.btnOpenItem, &QPushButton::clicked, this, &frmAlerts::btnOpenItem_Click, errors);
    connectGuarded(
        m_controls.grdTasks, &GridView::rowDoubleClicked, this, &frmAlerts::btnOpenItem_Click, errors);
    connectGuarded(
        &m_actions, &AlertActions::completeRequested, this, &frmAlerts::mnuAlertComplete_Click, errors);
    connectGuarded(&m_actions, &AlertActions::openRequested, this, &frmAlerts::btnOpenItem_Click, errors);
    connectGuarded(&m_actions, &AlertActions::remindLaterRequested, this, &frmAlerts::remindLater, errors);
    connectGuarded(&m_actions, &AlertActions::dismissRequested, this, &frmAlerts::btnDismiss_Click, errors);
    connectGuarded(&m_notification, &AlertNotification::openRequested, this, &frmAlerts::openTold, errors);
    connectGuarded(
        &m_notification, &AlertNotification::laterRequested, this, &frmAlerts::postponeTold, errors);
    connectGuarded(
        &m_notification, &AlertNotification::dismissRequested, this, &frmAlerts::dismissTold, errors);
    connect(&m_notification, &AlertNotification::windowNeeded, &m_unasked, &UnaskedWindow::comeUp);
    connect(&m_controls.btnUsualMoment->moments(), &MomentMenu::momentChosen, this, &frmAlerts::setPickersTo);
    connect(m_controls.btnHelp, &QPushButton::clicked, this, &frmAlerts::helpRequested);
    connect(&m_tmrTasksChecker, &QTimer::timeout, this, &frmAlerts::tmrTasksChecker_Timer);
    connect(&m_tmrFlasher, &QTimer::timeout, this, &frmAlerts::tmrFlasher_Timer);
    connect(&m_mmc, &MMControl::Done, this, &frmAlerts::closeSound);
}

void frmAlerts::load()
{
    tmrTasksChecker_Timer();
    setCheckerEnabled(true);
}

void frmAlerts::setCheckerEnabled(bool enabled)
{
    if (!enabled) {
        m_tmrTasksChecker.stop();
    } else if (!m_tmrTasksChecker.isActive()) {
        m_tmrTasksChecker.start();
    }
}

void frmAlerts::forgetReminders()
{
    putAway();
    m_reminders.setReminders({});
    setWindowTitle(titleFor(0));
    m_owesMark = false;
    m_fired.clear();
}

void frmAlerts::focusGrid()
{
    m_controls.grdTasks->setFocus();
    m_unasked.activate();
}

void frmAlerts::setHelpEnabled(bool enabled)
{
    m_controls.btnHelp->setEnabled(enabled);
}

void frmAlerts::btnDismiss_Click()
{
    if (changeSelected(ChangeTexts::dismissed, TaskChanges::dismiss)) {
        emit remindersDismissed();
    }
    closeSound();
}

void frmAlerts::mnuAlertComplete_Click()
{
    if (changeSelected(ChangeTexts::completed, TaskChanges::completeReminded)) {
        emit remindersDismissed();
        closeSound();
    }
}

void frmAlerts::btnDismissAll_Click()
{
    m_services.undo.run([](const DatabaseEngine& engine) {
        const int dismissed = TaskChanges::dismissDue(engine);
        return ChangeTexts::dismissed(dismissed);
    });
    m_allDismissed = true;
    putAway();
    emit remindersDismissed();
    closeSound();
}

void frmAlerts::btnRemindMeLater_Click()
{
    if (m_controls.grdTasks->selectedRow() < 0) {
        return;
    }
    // A half-typed date counts as it would when the picker loses the focus; a mnemonic does not move the
    // focus.
    m_controls.dtpReminderDate->interpretText();
    m_controls.dtpReminderTime->interpretText();
    const Moment moment =
        composeMoment(m_controls.dtpReminderDate->date(), m_controls.dtpReminderTime->time());
    if (moment < m_services.clock.now()) {
        m_services.messages.tell(this, MessageBoxes::Icon::Exclamation,
            tr("Reminder date and time should not be earlier than current system date and time"));
        m_controls.dtpReminderDate->setFocus();
        return;
    }
    remindLater(moment);
}

void frmAlerts::remindLater(Moment moment)
{
    const auto postpone = [&](const DatabaseEngine& engine, const QList<qint32>& ids) {
        TaskChanges::postpone(engine, ids, moment);
        // They sound again.
        for (const qint32 id : ids) {
            m_fired.remove(id);
        }
    };
    if (changeSelected(ChangeTexts::postponed, postpone)) {
        closeSound();
    }
}

void frmAlerts::btnOpenItem_Click()
{
    const int row = m_controls.grdTasks->selectedRow();
    if (row >= 0) {
        m_host.openTask(narrowId(m_reminders.idAt(row), QT_TRANSLATE_NOOP("OverflowError", "task id")));
    }
}

QList<qint32> frmAlerts::selectedTasks() const
{
    return m_reminders.ids(m_controls.grdTasks->selectedRows());
}

bool frmAlerts::changeSelected(QString (*done)(int count),
    const std::function<void(const DatabaseEngine&, const QList<qint32>&)>& change)
{
    const QList<qint32> ids = selectedTasks();
    if (ids.isEmpty()) {
        return false;
    }
    m_services.undo.run([&](const DatabaseEngine& engine) {
        change(engine, ids);
        return done(static_cast<int>(ids.size()));
    });
    m_reminders.removeReminders(m_controls.grdTasks->selectedRows());
    m_notification.follow(titleFor(m_reminders.rowCount()), m_reminders.reminders());
    if (m_reminders.rowCount() == 0) {
        putAway();
    }
    return true;
}

void frmAlerts::closeSound()
{
    m_mmc.Command(QStringLiteral("Close"));
}

bool frmAlerts::event(QEvent* event)
{
    // A held key must not answer one reminder after another. The shortcut of a button would repeat.
    if (event->type() == QEvent::ShortcutOverride && static_cast<QKeyEvent*>(event)->isAutoRepeat()) {
        event->accept();
        return true;
    }
    const bool handled = QWidget::event(event);
    if (event->type() == QEvent::WindowActivate) {
        Form_Activate();
    } else if (event->type() == QEvent::WindowDeactivate) {
        Form_Deactivate();
    }
    return handled;
}

void frmAlerts::Form_Activate()
{
    if (!m_isActive) {
        m_isActive = true;
        m_notification.withdraw();
        setPickersToNow();
        m_tmrFlasher.start();
    }
}

void frmAlerts::Form_Deactivate()
{
    if (!isOwnBoxOpen()) {
        stopFlashing();
    }
}

void frmAlerts::stopFlashing()
{
    m_isActive = false;
    m_tmrFlasher.stop();
    m_controls.band->setInverted(false);
}

void frmAlerts::tmrFlasher_Timer()
{
    // A box of the program was closed and another window was activated.
    if (!isActiveWindow() && !isOwnBoxOpen()) {
        stopFlashing();
        return;
    }
    if (isVisible()) {
        m_controls.band->setInverted(!m_controls.band->isInverted());
        QApplication::alert(this);
    }
}

void frmAlerts::setPickersToNow()
{
    setPickersTo(m_services.clock.now());
}

void frmAlerts::setPickersTo(Moment moment)
{
    setPickers(*m_controls.dtpReminderDate, *m_controls.dtpReminderTime, moment);
}

void frmAlerts::showEvent(QShowEvent* event)
{
    QWidget::showEvent(event);
    if (!event->spontaneous()) {
        setPickersToNow();
        m_controls.grdTasks->setFocus();
    }
}

void frmAlerts::closeEvent(QCloseEvent* event)
{
    // Only the close box hides the window; a log-out and the end of the program unload it.
    if (isCloseByUser(*event)) {
        event->ignore();
        putAway();
        closeSound();
    } else {
        QWidget::closeEvent(event);
    }
}
