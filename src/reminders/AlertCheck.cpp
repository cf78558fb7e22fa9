#include "reminders/frmAlerts.h"

#include "data/TaskRepeats.h"
#include "reminders/UsualMoments.h"
#include "system/ProgramFiles.h"
#include "system/Shell.h"
#include "widgets/GridView.h"
#include "widgets/WindowPlacement.h"

#include <algorithm>

// The check for due reminders, and what it does to the alert window.

void frmAlerts::tmrTasksChecker_Timer()
{
    try {
        check();
        countTimes();
    } catch (const std::exception&) {
        // A report every ten seconds would help nobody; the next tick tries again.
    }
    m_reminders.followTime();
    emit checked();
}

void frmAlerts::showAnew()
{
    ReminderChecker checker(m_services.engine);
    const bool isOvertaken = !m_reminders.holds(checker.due());
    checker.close();
    if (isOvertaken) {
        check(isOvertaken);
    } else if (m_reminders.lists(checker.due())) {
        redraw(checker.due());
        // What another process has set back has just sounded; the next check marks it.
        const auto isPlayed = [](const DueReminder& due) {
            return due.played;
        };
        m_owesMark = m_owesMark || !std::all_of(checker.due().begin(), checker.due().end(), isPlayed);
    }
    countTimes();
}

void frmAlerts::check(bool isOvertaken)
{
    using Outcome = ReminderChecker::Outcome;
    m_reminders.setImageList(&m_services.imgLstCategories);
    if (m_reminders.columnCount() == 0) {
        m_reminders.createColumns();
    }
    ReminderChecker checker(m_services.engine);
    // Dismissed rows stay in the hidden list; what is due then has come after that, or back by undo.
    const bool hasNone = isOvertaken || (m_allDismissed && !checker.due().empty());
    const Outcome outcome = checker.outcome(hasNone ? 0 : m_reminders.shownCount(checker.due(), isVisible()));
    if (outcome != Outcome::Nothing) {
        redraw(checker.due());
    }
    m_allDismissed = false;
    if (outcome == Outcome::BringUp) {
        comeUp();
        m_owesMark = true;
    } else if (outcome == Outcome::Hide) {
        putAway();
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

void frmAlerts::countTimes()
{
    if (m_reminders.rowCount() == 0 || !TaskRepeats::isAny(m_services.engine)) {
        return;
    }
    const std::map<qint32, Repeat> repeats = TaskRepeats::all(m_services.engine);
    const Moment now = m_services.clock.now();
    QHash<qint32, int> times;
    for (const DueReminder& due : m_reminders.reminders()) {
        const auto repeat = repeats.find(due.id);
        const auto reminder = momentFromStoredText(due.reminder.toStdString());
        if (repeat != repeats.end() && reminder) {
            times.insert(due.id, TaskRepeats::missed(repeat->second, *reminder, now));
        }
    }
    m_reminders.setTimes(times);
}

void frmAlerts::redraw(const std::vector<DueReminder>& due)
{
    setWindowTitle(titleFor(static_cast<int>(due.size())));
    const QList<qint32> selected = selectedTasks();
    m_reminders.setReminders(due);
    m_controls.grdTasks->selectRows(m_reminders.rowsOf(selected));
    m_notification.follow(windowTitle(), due);
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
    // An open menu is about the rows that were selected when it opened.
    if (!m_actions.isMenuOpen()) {
        m_controls.grdTasks->selectOnly(0);
    }
    if (m_services.alwaysOnTop()) {
        makeTopmost(this);
    }
    putInPlace(this);
    if (!m_notification.isUsed()) {
        m_unasked.comeUp();
    } else if (!isActiveWindow()) {
        m_notification.tell(windowTitle(), m_reminders.reminders());
    }
}

void frmAlerts::putAway()
{
    hide();
    m_notification.withdraw();
}

// What the user has chosen in the notification does what the controls of the window do.

void frmAlerts::openTold(const std::vector<DueReminder>& told)
{
    m_controls.grdTasks->selectRows(
        m_reminders.rowsOf(AlertListModel::idsAmong(m_reminders.reminders(), told)));
    showOwned(this, nullptr);
    if (told.size() == 1) {
        btnOpenItem_Click();
    }
}

void frmAlerts::postponeTold(const std::vector<DueReminder>& told)
{
    answerTold(told, [this] { remindLater(*momentOf(UsualMoment::In15Minutes, m_services.clock.now())); });
}

void frmAlerts::dismissTold(const std::vector<DueReminder>& told)
{
    answerTold(told, [this] { btnDismiss_Click(); });
}

void frmAlerts::answerTold(const std::vector<DueReminder>& told, const std::function<void()>& answer)
{
    try {
        // Another process may have changed some since the last check.
        ReminderChecker checker(m_services.engine);
        const QList<qint32> stillDue = AlertListModel::idsAmong(checker.due(), told);
        checker.close();
        m_controls.grdTasks->selectRows(m_reminders.rowsOf(stillDue));
        answer();
    } catch (...) {
        // Otherwise nothing would show the reminders any more.
        m_notification.tell(titleFor(m_reminders.rowCount()), m_reminders.reminders());
        throw;
    }
}
