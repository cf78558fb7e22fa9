#include "tasks/frmTaskDetails.h"

#include "system/Clock.h"
#include "system/ErrorReport.h"
#include "system/ProgramFiles.h"
#include "tasks/TaskDetailsHost.h"
#include "widgets/CheckerTimer.h"
#include "widgets/CloseBox.h"
#include "widgets/ComboBox.h"
#include "widgets/Combos.h"
#include "widgets/ControlValue.h"
#include "widgets/FileDialogs.h"
#include "widgets/LongText.h"
#include "widgets/MessageBoxes.h"
#include "widgets/Pickers.h"
#include "widgets/UnsavedInput.h"
#include "widgets/clsGuiLoader.h"

#include <QCheckBox>
#include <QCloseEvent>
#include <QDateEdit>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QTimeEdit>
#include <algorithm>

namespace
{

/// An optional path; the box is checked when there is one.
void setPath(QCheckBox& box, QLineEdit& edit, const QString& path)
{
    box.setChecked(!path.isEmpty());
    setWholeText(edit, path);
}

/// Selects the entry of `number`; keeps the selection when there is none.
void selectNumberIfListed(QComboBox& combo, qint32 number)
{
    const int selected = combo.currentIndex();
    selectNumber(combo, number);
    if (combo.currentIndex() < 0) {
        combo.setCurrentIndex(selected);
    }
}

std::optional<EditedTask> editedTask(const std::optional<ClsTask>& loaded)
{
    if (!loaded) {
        return std::nullopt;
    }
    return EditedTask{loaded->Id(), loaded->ReminderOn(), loaded->reminderDateTime(), loaded->DueDateTime(),
        loaded->repeat()};
}

} // namespace

frmTaskDetails::frmTaskDetails(const FormServices& services, const TaskDetailsHost& host)
    : QWidget(nullptr, Qt::Dialog), m_services(services), m_host(host), m_controls(*this, services.clock),
      m_moments(m_controls, services.clock), m_repeat(*this, m_controls, services)
{
    setObjectName(QStringLiteral("frmTaskDetails"));
    setWindowTitle(tr("Task Details"));
    loadCombos();
    enableReminderControls();
    const Moment now = m_services.clock.now();
    setPickers(*m_controls.dtpDueDate, *m_controls.dtpDueTime, now);
    setPickers(*m_controls.dtpReminderDate, *m_controls.dtpReminderTime, now);
    m_repeat.reset();
    connectControls();
}

void frmTaskDetails::loadCombos()
{
    const clsGuiLoader loader(m_services.engine);
    const int filtered = m_host.selectedCategoryIndex();
    loader.LoadCategoriesCombo(*m_controls.cmbCategories, filtered);
    m_controls.cmbCategories->removeItem(0);
    m_controls.cmbCategories->setCurrentIndex(std::max(filtered - 1, -1));
    loader.LoadStatusCombo(*m_controls.cmbStatus);
    m_controls.cmbStatus->removeItem(0);
    m_controls.cmbStatus->setCurrentIndex(0);
    loader.LoadPeriorityCombo(*m_controls.cmbPeriorities);
    m_controls.cmbPeriorities->setCurrentIndex(0);
}

void frmTaskDetails::connectControls()
{
    ErrorReport& errors = m_services.errors;
    connectGuarded(m_controls.chkEnableReminder, &QCheckBox::clicked, this,
        &frmTaskDetails::chkEnableReminder_Click, errors);
    connect(&m_moments, &MomentsByHand::reminderChosen, this, &frmTaskDetails::switchReminderOn);
    connectGuarded(m_controls.chkReminderSound, &QCheckBox::clicked, this,
        &frmTaskDetails::enableReminderControls, errors);
    connectGuarded(m_controls.chkReminderFile, &QCheckBox::clicked, this,
        &frmTaskDetails::enableReminderControls, errors);
    connectGuarded(m_controls.btnSoundBrowse, &QPushButton::clicked, this,
        &frmTaskDetails::btnSoundBrowse_Click, errors);
    connectGuarded(
        m_controls.btnFileBrowse, &QPushButton::clicked, this, &frmTaskDetails::btnFileBrowse_Click, errors);
    connectGuarded(m_controls.btnOk, &QPushButton::clicked, this, &frmTaskDetails::btnOk_Click, errors);
    connectGuarded(
        m_controls.btnCancel, &QPushButton::clicked, this, &frmTaskDetails::btnCancel_Click, errors);

    // The form filters the keys before the focused control gets them.
    for (QWidget* control : m_controls.inTabOrder()) {
        control->installEventFilter(this);
    }
}

bool frmTaskDetails::letGo()
{
    if (!m_filled) {
        return true;
    }
    const TaskInput entered = m_controls.input();
    return entered == *m_filled || letGoOfInput(m_services, *this, entered.unsavedText(*m_filled), [this] {
        // A notification may have been answered above the question, and the input been let go of there.
        return !m_filled || save();
    });
}

void frmTaskDetails::EmptyForm()
{
    const Moment now = m_services.clock.now();
    setWholeText(*m_controls.txtTask, {});
    m_controls.cmbCategories->setCurrentIndex(-1);
    setWholeText(*m_controls.txtDescription, {});
    setPickers(*m_controls.dtpDueDate, *m_controls.dtpDueTime, now);
    m_controls.cmbStatus->setCurrentIndex(0);
    m_controls.cmbPeriorities->setCurrentIndex(0);
    m_controls.chkEnableReminder->setChecked(false);
    setPickers(*m_controls.dtpReminderDate, *m_controls.dtpReminderTime, now);
    setPath(*m_controls.chkReminderFile, *m_controls.txtReminderFile, {});
    setPath(*m_controls.chkReminderSound, *m_controls.txtReminderSound, {});
    enableReminderControls();
    m_loaded.reset();
    m_moments.forget();
    m_repeat.reset();
    noteFilled();
}

void frmTaskDetails::SetTag(qint16 Id)
{
    const std::optional<ClsTask> task = ClsTask(m_services.engine).GetTaskById(Id);
    if (!task) {
        throw RuntimeError(tr("The task no longer exists."));
    }
    EmptyForm();
    m_loaded = task;
    fillFrom(*task);
}

void frmTaskDetails::fillFrom(const ClsTask& task)
{
    setWholeText(*m_controls.txtTask, task.TaskName());
    m_controls.txtTask->setCursorPosition(0);
    selectCategory(task.CategoryId());
    setWholeText(*m_controls.txtDescription, task.Description());
    setPickers(*m_controls.dtpDueDate, *m_controls.dtpDueTime, toMinute(task.DueDateTime()));
    selectNumberIfListed(*m_controls.cmbStatus, task.status());
    selectNumberIfListed(*m_controls.cmbPeriorities, task.Periority());
    setPath(*m_controls.chkReminderSound, *m_controls.txtReminderSound, task.ReminderSound());
    setPath(*m_controls.chkReminderFile, *m_controls.txtReminderFile, task.ReminderFile());

    if (task.repeat()) {
        m_repeat.load(*task.repeat());
    }
    m_controls.chkEnableReminder->setChecked(task.ReminderOn());
    chkEnableReminder_Click();
    // After setting the check box, whose handler copies the due moment into the reminder.
    setPickers(*m_controls.dtpReminderDate, *m_controls.dtpReminderTime, toMinute(task.reminderDateTime()));
    noteFilled();
}

QString frmTaskDetails::taskName() const
{
    return m_controls.txtTask->text().trimmed();
}

void frmTaskDetails::selectCategory(qint16 id)
{
    selectNumber(*m_controls.cmbCategories, id);
    noteFilled();
}

void frmTaskDetails::reloadCategories()
{
    const std::optional<qint16> before = m_controls.selectedCategory();
    clsGuiLoader(m_services.engine).reloadCategoriesComboWithoutAll(*m_controls.cmbCategories);
    // The category was deleted elsewhere: that is no change by the user.
    if (m_filled && m_filled->categoryId == before) {
        m_filled->categoryId = m_controls.selectedCategory();
    }
}

void frmTaskDetails::enableReminderControls()
{
    const bool reminder = m_controls.chkEnableReminder->isChecked();
    const bool sound = reminder && m_controls.chkReminderSound->isChecked();
    const bool file = reminder && m_controls.chkReminderFile->isChecked();
    for (QWidget* control : std::initializer_list<QWidget*>{m_controls.lblReminderDate,
             m_controls.dtpReminderDate, m_controls.lblReminderTime, m_controls.dtpReminderTime,
             m_controls.chkReminderSound, m_controls.chkReminderFile}) {
        control->setEnabled(reminder);
    }
    m_controls.lblReminderSound->setEnabled(sound);
    m_controls.txtReminderSound->setEnabled(sound);
    m_controls.btnSoundBrowse->setEnabled(sound);
    m_controls.lblReminderFile->setEnabled(file);
    m_controls.txtReminderFile->setEnabled(file);
    m_controls.btnFileBrowse->setEnabled(file);
}

void frmTaskDetails::chkEnableReminder_Click()
{
    enableReminderControls();
    if (m_controls.chkEnableReminder->isChecked()) {
        m_controls.dtpReminderDate->setDate(m_controls.dtpDueDate->date());
        m_controls.dtpReminderTime->setTime(m_controls.dtpDueTime->time());
    }
}

void frmTaskDetails::switchReminderOn()
{
    // Not as a click does, which proposes the due moment.
    m_controls.chkEnableReminder->setChecked(true);
    enableReminderControls();
}

void frmTaskDetails::btnFileBrowse_Click()
{
    // A failure leaves the path as it was and is not reported.
    try {
        const CheckerPause pause(m_services.checkerTimer);
        FileDialogRequest request;
        request.filter = tr("Executable Files (*.exe;*.bat;)|*.exe;*.bat");
        request.fileMustExist = true;
        request.executables = true;
        m_controls.txtReminderFile->setText(m_services.fileDialogs.open(this, request));
    } catch (const std::exception&) {
    }
}

void frmTaskDetails::btnSoundBrowse_Click()
{
    // The checker is not paused here. A failure leaves the path as it was and is not reported.
    try {
        FileDialogRequest request;
        request.filter = tr("Wave Files (*.wav)|*.wav");
        request.initialFolder = m_services.files.shipped(QStringLiteral("sounds"));
        request.fileMustExist = true;
        const QString file = m_services.fileDialogs.open(this, request);
        m_services.checkerTimer.setCheckerEnabled(true);
        m_controls.txtReminderSound->setText(file);
    } catch (const std::exception&) {
    }
}

void frmTaskDetails::btnOk_Click()
{
    save();
}

bool frmTaskDetails::save()
{
    const TaskInput entered = m_controls.input();
    if (const auto refusal = entered.refusal(editedTask(m_loaded), m_services.clock.now())) {
        m_services.messages.tell(this, MessageBoxes::Icon::Exclamation, refusal->message);
        controlOf(refusal->field)->setFocus();
        return false;
    }
    qint32 id = 0;
    try {
        id = store(entered);
    } catch (const NoRoomError& error) {
        m_services.messages.tell(this, MessageBoxes::Icon::Exclamation, error.text());
        return false;
    }
    emit taskStored();
    leave();
    emit taskSaved(id);
    return true;
}

void frmTaskDetails::btnCancel_Click()
{
    leave();
    emit cancelled();
}

void frmTaskDetails::leave()
{
    m_filled.reset();
    hide();
}

qint32 frmTaskDetails::store(TaskInput entered) const
{
    const DatabaseEngine& engine = m_services.engine;
    std::optional<EditedTask> task = editedTask(m_loaded);
    if (!task) {
        return entered.toTask(engine, task).Add();
    }
    const std::optional<ClsTask> stored = ClsTask(engine).GetTaskById(static_cast<qint16>(task->id));
    if (!stored) {
        // An update would change no row, and the input would be lost unnoticed.
        throw RuntimeError(tr("The task no longer exists."));
    }
    entered.followReminder(*task, *stored);
    entered.followRepeat(*task, *stored);
    // After the repetition, for which the user's own status counts.
    entered.followOthers(*m_filled, *m_loaded, *stored);
    entered.toTask(engine, task).Update();
    return task->id;
}

QWidget* frmTaskDetails::controlOf(TaskField field) const
{
    switch (field) {
    case TaskField::TaskName:
        return m_controls.txtTask;
    case TaskField::Category:
        return m_controls.cmbCategories;
    case TaskField::SoundBrowse:
        return m_controls.btnSoundBrowse;
    case TaskField::FileBrowse:
        return m_controls.btnFileBrowse;
    case TaskField::ReminderDate:
        break;
    }
    return m_controls.dtpReminderDate;
}

bool frmTaskDetails::Form_KeyPress(const QKeyEvent& event)
{
    // With these modifiers it is another shortcut.
    if (event.modifiers().testAnyFlags(Qt::ControlModifier | Qt::AltModifier | Qt::MetaModifier)) {
        return false;
    }
    if (event.key() == Qt::Key_Escape) {
        if (!event.isAutoRepeat()) {
            Form_Escape();
        }
        return true;
    }
    const bool isEnter = event.key() == Qt::Key_Return || event.key() == Qt::Key_Enter;
    if (isEnter && valueOf(focusWidget()) != valueOf(m_controls.txtDescription)) {
        if (!event.isAutoRepeat()) {
            m_controls.btnOk->click();
        }
        return true;
    }
    return false;
}

void frmTaskDetails::Form_Escape()
{
    // Escape is easily pressed by mistake, or meant for a list that has just closed: ask. The button is
    // pressed on purpose.
    m_services.errors.guard([this] {
        if (letGo() && isVisible()) {
            m_controls.btnCancel->click();
        }
    });
}

bool frmTaskDetails::eventFilter(QObject* watched, QEvent* event)
{
    if (event->type() == QEvent::KeyPress && Form_KeyPress(*static_cast<QKeyEvent*>(event))) {
        return true;
    }
    return QWidget::eventFilter(watched, event);
}

void frmTaskDetails::keyPressEvent(QKeyEvent* event)
{
    if (!Form_KeyPress(*event)) {
        QWidget::keyPressEvent(event);
    }
}

void frmTaskDetails::showEvent(QShowEvent* event)
{
    QWidget::showEvent(event);
    if (!event->spontaneous()) {
        m_controls.txtTask->setFocus();
    }
}

void frmTaskDetails::closeEvent(QCloseEvent* event)
{
    if (isCloseByUser(*event)) {
        event->ignore();
        leave();
    }
}
