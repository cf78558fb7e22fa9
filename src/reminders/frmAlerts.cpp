#include "reminders/frmAlerts.h"

#include "data/ReminderStatements.h"
#include "reminders/AlertsHost.h"
#include "reminders/FlashBand.h"
#include "reminders/UsualMomentButton.h"
#include "system/Clock.h"
#include "system/ErrorReport.h"
#include "system/ProgramFiles.h"
#include "system/Shell.h"
#include "widgets/CloseBox.h"
#include "widgets/GridView.h"
#include "widgets/LetterScale.h"
#include "widgets/MessageBoxes.h"
#include "widgets/Pickers.h"
#include "widgets/WindowPlacement.h"

#include <QApplication>
#include <QCloseEvent>
#include <QDateEdit>
#include <QPushButton>
#include <QTimeEdit>
#include <utility>

namespace
{

using namespace std::chrono_literals;

constexpr auto CheckerInterval = 10000ms;
constexpr auto FlasherInterval = 1000ms;
constexpr QSize FirstSize(620, 380);
constexpr qint32 NoTask = -1;

QString titleFor(int count)
{
    return count == 1 ? frmAlerts::tr("1 Reminder") : frmAlerts::tr("%n Reminders", nullptr, count);
}

/// A message box or pop-up of the program takes the activation without being another window for the user.
bool isOwnBoxOpen()
{
    return QApplication::activeModalWidget() != nullptr || QApplication::activePopupWidget() != nullptr;
}

} // namespace

frmAlerts::frmAlerts(
    const FormServices& services, AlertsHost& host, WaveBackendFactory waveBackend, QWidget* parent)
    // A plain window: metacity and xfwm4 keep a dialog without an owner above all windows of its program,
    // so that the main window could not come in front of it.
    : QWidget(parent, Qt::Window), m_services(services), m_host(host), m_database(services.engine),
      m_mmc(std::move(waveBackend), this), m_reminders(services.clock), m_tmrTasksChecker(this),
      m_tmrFlasher(this), m_controls(*this, services.clock), m_unasked(this)
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
    connect(m_controls.btnUsualMoment, &UsualMomentButton::momentChosen, this, &frmAlerts::setPickersTo);
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
    hide();
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

void frmAlerts::tmrTasksChecker_Timer()
{
    try {
        check();
    } catch (const std::exception&) {
        // A report every ten seconds would help nobody; the next tick tries again.
    }
    emit checked();
}

void frmAlerts::check()
{
    using Outcome = ReminderChecker::Outcome;
    m_reminders.setImageList(&m_services.imgLstCategories);
    if (m_reminders.columnCount() == 0) {
        m_reminders.createColumns();
    }
    ReminderChecker checker(m_services.engine);
    const Outcome outcome = checker.outcome(m_reminders.shownCount(checker.due(), isVisible()));
    if (outcome != Outcome::Nothing) {
        redraw(checker.due());
    }
    if (outcome == Outcome::BringUp) {
        comeUp();
        m_owesMark = true;
    } else if (outcome == Outcome::Hide) {
        hide();
        m_owesMark = false;
    }
    // A failed mark is made up for only while the reminders that have sounded are exactly those that are
    // due.
    const bool marks = m_owesMark && outcome != Outcome::Redraw && m_reminders.lists(checker.due());
    if (marks) {
        checker.markPlayed();
    }
    checker.close();
    if (marks) {
        m_owesMark = false;
        m_fired.clear();
    }
}

void frmAlerts::redraw(const std::vector<DueReminder>& due)
{
    setWindowTitle(titleFor(static_cast<int>(due.size())));
    const int selected = m_controls.grdTasks->selectedRow();
    const qint32 selectedTask = selected < 0 ? NoTask : m_reminders.id(selected);
    m_reminders.setReminders(due);
    m_controls.grdTasks->selectOnly(m_reminders.rowOf(selectedTask));
    for (const DueReminder& reminder : due) {
        fireOnce(reminder);
    }
}

// Remembered here, because a redraw with fewer rows marks nothing and marking can fail: the data file alone
// does not tell which reminders have sounded.
void frmAlerts::fireOnce(const DueReminder& reminder)
{
    const auto fired = m_fired.constFind(reminder.id);
    if (!reminder.played && (fired == m_fired.constEnd() || *fired != reminder.reminder)) {
        fire(reminder);
        m_fired.insert(reminder.id, reminder.reminder);
    }
}

void frmAlerts::fire(const DueReminder& reminder)
{
    if (reminder.playsSound()) {
        m_mmc.Notify = false;
        m_mmc.Wait = false;
        m_mmc.Shareable = false;
        m_mmc.DeviceType = QStringLiteral("WaveAudio");
        m_mmc.FileName = m_services.files.sound(reminder.sound);
        m_mmc.Command(QStringLiteral("Open"));
        m_mmc.Command(QStringLiteral("Play"));
    }
    if (reminder.startsFile()) {
        m_services.shell.startMinimized(reminder.file);
    }
}

void frmAlerts::comeUp()
{
    m_controls.grdTasks->selectOnly(0);
    if (m_services.alwaysOnTop()) {
        makeTopmost(this);
    }
    putInPlace(this);
    m_unasked.comeUp();
}

void frmAlerts::btnDismiss_Click()
{
    const int row = m_controls.grdTasks->selectedRow();
    if (row >= 0) {
        Connection connection = openConnection();
        store(connection, ReminderStatements::dismiss(m_reminders.idText(row)));
        removeReminder(row);
        connection.close();
        emit remindersDismissed();
    }
    closeSound();
}

void frmAlerts::btnDismissAll_Click()
{
    Connection connection = openConnection();
    store(connection, ReminderStatements::dismissDue());
    hide();
    connection.close();
    emit remindersDismissed();
    closeSound();
}

void frmAlerts::btnRemindMeLater_Click()
{
    const int row = m_controls.grdTasks->selectedRow();
    if (row < 0) {
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
    Connection connection = openConnection();
    store(connection, ReminderStatements::postpone(m_reminders.idText(row), moment));
    m_fired.remove(m_reminders.idText(row).toInt());
    removeReminder(row);
    connection.close();
    closeSound();
}

void frmAlerts::btnOpenItem_Click()
{
    const int row = m_controls.grdTasks->selectedRow();
    if (row >= 0) {
        m_host.openTask(
            narrowId(m_reminders.idText(row).toLongLong(), QT_TRANSLATE_NOOP("OverflowError", "task id")));
    }
}

Connection frmAlerts::openConnection() const
{
    Connection connection = m_database.Connect();
    connection.open();
    return connection;
}

void frmAlerts::store(Connection& connection, const QString& statement)
{
    connection.execute(statement);
    connection.commit();
}

void frmAlerts::removeReminder(int row)
{
    m_reminders.removeReminder(row);
    if (m_reminders.rowCount() == 0) {
        hide();
    }
}

void frmAlerts::closeSound()
{
    m_mmc.Command(QStringLiteral("Close"));
}

bool frmAlerts::event(QEvent* event)
{
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
        hide();
        closeSound();
    } else {
        QWidget::closeEvent(event);
    }
}
