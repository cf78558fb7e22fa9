#include "RunningProgram.h"

#include "app/frmMain.h"
#include "categories/frmCategoryDetails.h"
#include "reminders/AlertListModel.h"
#include "reminders/frmAlerts.h"
#include "support/ContextMenu.h"
#include "tasks/frmTaskDetails.h"
#include "widgets/ComboBox.h"
#include "widgets/Combos.h"
#include "widgets/GridView.h"
#include "widgets/Pickers.h"

#include <QAbstractButton>
#include <QApplication>
#include <QCheckBox>
#include <QComboBox>
#include <QDateEdit>
#include <QLineEdit>
#include <QListWidget>
#include <QPlainTextEdit>
#include <QRadioButton>
#include <QTest>
#include <QTimeEdit>
#include <QTimer>
#include <array>

namespace
{

constexpr int IdColumn = 0;

void require(bool condition, const char* what)
{
    if (!condition) {
        QTest::qFail(what, __FILE__, __LINE__);
        throw std::runtime_error(what);
    }
}

QString text(Moment moment)
{
    return QString::fromStdString(storedText(moment));
}

int rowOf(const GridView& grid, qint32 id)
{
    const QAbstractItemModel& model = *grid.model();
    for (int row = 0; row < model.rowCount(); ++row) {
        if (model.index(row, IdColumn).data().toInt() == id) {
            return row;
        }
    }
    return -1;
}

void check(QWidget& window, const char* box, bool checked)
{
    auto* control = RunningProgram::control<QCheckBox>(window, box);
    if (control->isChecked() != checked) {
        control->click();
    }
    require(control->isChecked() == checked, box);
}

} // namespace

RunningProgram::~RunningProgram()
{
    if (isRunning()) {
        end();
    }
}

void RunningProgram::start()
{
    m_program = std::make_unique<Program>(m_machine.machine());
    m_program->start([] { return false; });
    m_program->loadDialogs();
    // A test ticks; the machine's own time is not to.
    control<QTimer>(m_program->alerts(), "tmrTasksChecker")->setInterval(std::chrono::hours(24));
}

void RunningProgram::end()
{
    m_program->end();
    m_program->unload();
    m_program.reset();
}

void RunningProgram::kill()
{
    m_program.reset();
}

void RunningProgram::tick()
{
    auto* timer = control<QTimer>(m_program->alerts(), "tmrTasksChecker");
    require(timer->isActive(), "the checker's timer runs");
    QMetaObject::invokeMethod(timer, "timeout");
}

bool RunningProgram::isAlertVisible()
{
    return m_program->alerts().isVisible();
}

QString RunningProgram::alertCaption()
{
    return m_program->alerts().windowTitle();
}

QList<qint32> RunningProgram::listed()
{
    QList<qint32> ids;
    const QAbstractItemModel& model = *control<GridView>(m_program->alerts(), "grdTasks")->model();
    for (int row = 0; row < model.rowCount(); ++row) {
        ids.append(model.index(row, IdColumn).data().toInt());
    }
    return ids;
}

QHash<qint32, QString> RunningProgram::listedTexts()
{
    QHash<qint32, QString> texts;
    const QAbstractItemModel& model = *control<GridView>(m_program->alerts(), "grdTasks")->model();
    for (int row = 0; row < model.rowCount(); ++row) {
        texts.insert(model.index(row, IdColumn).data().toInt(),
            model.index(row, AlertListModel::Name).data().toString());
    }
    return texts;
}

bool RunningProgram::selectListed(qint32 id)
{
    auto* grid = control<GridView>(m_program->alerts(), "grdTasks");
    const int row = rowOf(*grid, id);
    grid->selectOnly(row);
    return row >= 0;
}

void RunningProgram::press(QWidget& window, const char* button)
{
    auto* control = RunningProgram::control<QAbstractButton>(window, button);
    require(control != nullptr && control->isEnabled(), button);
    control->click();
}

void RunningProgram::selectInMainList(qint32 id)
{
    auto* grid = control<GridView>(m_program->mainWindow(), "grdTasks");
    const int row = rowOf(*grid, id);
    require(row >= 0, "the main window lists the task");
    grid->selectOnly(row);
}

void RunningProgram::addTask(const TaskEntry& entry)
{
    press(m_program->mainWindow(), "btnTaskAdd");
    fillAndConfirm(entry);
}

void RunningProgram::editTask(qint32 id, const TaskEntry& entry)
{
    selectInMainList(id);
    press(m_program->mainWindow(), "btnTaskEdit");
    fillAndConfirm(entry);
}

void RunningProgram::editListedTask(qint32 id, const TaskEntry& entry)
{
    require(selectListed(id), "the alert lists the task");
    press(m_program->alerts(), "btnOpenItem");
    fillAndConfirm(entry);
}

void RunningProgram::fillAndConfirm(const TaskEntry& entry)
{
    frmTaskDetails& dialog = m_program->taskDetails();
    control<QLineEdit>(dialog, "txtTask")->setText(entry.name);
    control<QPlainTextEdit>(dialog, "txtDescription")->setPlainText(entry.description);
    selectNumber(*control<QComboBox>(dialog, "cmbCategories"), entry.category);
    selectNumber(*control<QComboBox>(dialog, "cmbStatus"), entry.status);
    selectNumber(*control<QComboBox>(dialog, "cmbPeriorities"), entry.periority);
    setPickers(
        *control<QDateEdit>(dialog, "dtpDueDate"), *control<QTimeEdit>(dialog, "dtpDueTime"), entry.due);
    if (entry.repeat >= 0) {
        control<ComboBox>(dialog, "cmbRepeat")->choose(entry.repeat);
    }
    // The sound and the file can be entered while the reminder is on only.
    check(dialog, "chkEnableReminder", true);
    check(dialog, "chkReminderSound", !entry.sound.isEmpty());
    control<QLineEdit>(dialog, "txtReminderSound")->setText(entry.sound);
    check(dialog, "chkReminderFile", !entry.file.isEmpty());
    control<QLineEdit>(dialog, "txtReminderFile")->setText(entry.file);
    setPickers(*control<QDateEdit>(dialog, "dtpReminderDate"), *control<QTimeEdit>(dialog, "dtpReminderTime"),
        entry.reminder);
    check(dialog, "chkEnableReminder", entry.reminderOn);
    press(dialog, "btnOk");
    require(!dialog.isVisible(), qPrintable(QStringLiteral("the dialog takes ") + text(entry.reminder)));
}

void RunningProgram::deleteTask(qint32 id)
{
    selectInMainList(id);
    m_machine.dialogs.expectAsk(QStringLiteral("Are you sure you want to delete this task?"), true);
    press(m_program->mainWindow(), "btnTaskDelete");
}

void RunningProgram::deleteRepeating(qint32 id, MessageBoxes::Times times)
{
    selectInMainList(id);
    m_machine.dialogs.expectWhichTimes(
        QStringLiteral("This task repeats. Do you want to delete it this time, or all times?"), times);
    press(m_program->mainWindow(), "btnTaskDelete");
}

void RunningProgram::completeTask(qint32 id)
{
    selectInMainList(id);
    control<QAction>(m_program->mainWindow(), "mnuListComplete")->trigger();
}

void RunningProgram::completeListed(qint32 id)
{
    require(selectListed(id), "the alert lists the task");
    const ContextMenu menu(*control<GridView>(m_program->alerts(), "grdTasks"), "mnuAlert");
    QAction* complete = menu.entry("mnuAlertComplete");
    complete->trigger();
    // An open menu would keep the lists as they are.
    QApplication::activePopupWidget()->close();
}

void RunningProgram::dismiss(qint32 id)
{
    require(selectListed(id), "the alert lists the task");
    press(m_program->alerts(), "btnDismiss");
}

void RunningProgram::dismissAll()
{
    press(m_program->alerts(), "btnDismissAll");
}

void RunningProgram::remindLater(qint32 id, Moment moment)
{
    require(selectListed(id), "the alert lists the task");
    frmAlerts& alerts = m_program->alerts();
    setPickers(*control<QDateEdit>(alerts, "dtpReminderDate"), *control<QTimeEdit>(alerts, "dtpReminderTime"),
        moment);
    press(alerts, "btnRemindMeLater");
}

void RunningProgram::selectCategory(qint16 id)
{
    auto* list = control<QListWidget>(m_program->mainWindow(), "lstViewCategories");
    for (int row = 0; row < list->count(); ++row) {
        if (list->item(row)->data(Qt::UserRole).toInt() == id) {
            list->clearSelection();
            list->item(row)->setSelected(true);
            return;
        }
    }
    require(false, "the main window lists the category");
}

void RunningProgram::addCategory(const QString& name, const QString& description, int icon)
{
    press(m_program->mainWindow(), "btnAddCat");
    control<QLineEdit>(m_program->categoryDetails(), "txtCatName")->setText(name);
    fillAndConfirm(description, icon);
}

void RunningProgram::editCategory(qint16 id, const QString& description, int icon)
{
    selectCategory(id);
    press(m_program->mainWindow(), "btnEditCat");
    fillAndConfirm(description, icon);
}

void RunningProgram::fillAndConfirm(const QString& description, int icon)
{
    frmCategoryDetails& dialog = m_program->categoryDetails();
    control<QPlainTextEdit>(dialog, "txtCatDesc")->setPlainText(description);
    dialog.SelectIcon(icon);
    press(dialog, "btnOk");
    require(!dialog.isVisible(), "the dialog takes the category");
}

void RunningProgram::deleteCategory(qint16 id)
{
    const QString name =
        database().sql(QStringLiteral("select cat_name from categories where cat_id=%1").arg(id)).toString();
    selectCategory(id);
    m_machine.dialogs.expectAsk(
        QStringLiteral("Are you sure you want to delete '%1' category, all tasks under this "
                       "category will be deleted?")
            .arg(name),
        true);
    press(m_program->mainWindow(), "btnDeleteCat");
}

void RunningProgram::bulkDelete(
    qint16 category, qint32 status, qint32 taskType, QDate from, QDate to, int expected)
{
    frmMain& main = m_program->mainWindow();
    selectNumber(*control<QComboBox>(main, "cmbCategoriesMaintenance"), category);
    selectNumber(*control<QComboBox>(main, "cmbStatusMaintenance"), status);
    constexpr std::array Options{
        "opnActiveTasksMaintenance", "opnExpiredTasksMaintenance", "opnAllTasksMaintenance"};
    control<QRadioButton>(main, Options[static_cast<std::size_t>(taskType)])->setChecked(true);
    control<QDateEdit>(main, "dtpDateFromMaintenance")->setDate(from);
    control<QDateEdit>(main, "dtpDateToMaintenance")->setDate(to);
    if (expected == 0) {
        m_machine.dialogs.expectTell(MessageBoxes::Icon::Exclamation,
            QStringLiteral("There is no tasks according to the selected criteria!"));
    } else {
        m_machine.dialogs.expectAsk(
            QStringLiteral("Are you sure you want to delete %1 tasks?").arg(expected), true);
    }
    press(main, "btnDeleteTasksMaintenance");
}

void RunningProgram::saveSettings(const QMap<QByteArray, bool>& boxes)
{
    for (auto box = boxes.begin(); box != boxes.end(); ++box) {
        check(m_program->mainWindow(), box.key().constData(), box.value());
    }
    press(m_program->mainWindow(), "btnSave");
}

void RunningProgram::showAllDates()
{
    control<QRadioButton>(m_program->mainWindow(), "opnAllDate")->setChecked(true);
}

void RunningProgram::backUp(const QString& file)
{
    m_machine.dialogs.expectSave(file);
    press(m_program->mainWindow(), "btnBackup");
}

void RunningProgram::restore(const QString& file)
{
    m_machine.dialogs.expectOpen(file);
    press(m_program->mainWindow(), "btnRestore");
}
