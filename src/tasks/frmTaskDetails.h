#pragma once

#include "tasks/MomentsByHand.h"
#include "tasks/RepeatByHand.h"
#include "tasks/TaskDetailsControls.h"
#include "tasks/TaskInput.h"
#include "widgets/FormServices.h"

#include <QWidget>

class TaskDetailsHost;

/// The dialog for creating or editing a task. Modeless, loaded once and reused: call `EmptyForm` or
/// `SetTag`, then show it above its owner. It hides when it is done.
class frmTaskDetails : public QWidget
{
    Q_OBJECT

public:
    /// Fills the lists. `services` and `host` outlive the form. Throws DatabaseError.
    frmTaskDetails(const FormServices& services, const TaskDetailsHost& host);

    /// To be called before the form is filled again: asks about unsaved input and saves it, as OK does,
    /// when the user wants that. False when the input stays. Throws DatabaseError.
    bool letGo();
    /// Prepares a new task: every control at its default, no category selected, the tag empty.
    void EmptyForm();
    /// Loads the stored task of that id for editing. Throws RuntimeError when there is none, and
    /// DatabaseError; then the form is as it was.
    void SetTag(qint16 Id);
    /// Keeps the input; the next OK stores it as a new task.
    void forgetTask() { m_loaded.reset(); }
    /// The decimal id of the edited task; empty for a new one.
    QString tag() const { return m_loaded ? QString::number(m_loaded->Id()) : QString(); }
    /// The name entered, in the form in which it is stored.
    QString taskName() const;

    /// Selects the category of that id; none when it is not listed.
    void selectCategory(qint16 id);
    /// Reloads the category list; the selected category stays selected while it exists. Throws
    /// DatabaseError, and then the list is as it was.
    void reloadCategories();

signals:
    /// The task has been written: other reminders may be due. The dialog is still shown.
    void taskStored();
    /// The task of that id has been written and the dialog is hidden.
    void taskSaved(qint32 id);
    /// The user has cancelled and the dialog is hidden. Not sent for the close box.
    void cancelled();

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void showEvent(QShowEvent* event) override;
    void closeEvent(QCloseEvent* event) override;

private:
    void loadCombos();
    void connectControls();
    void fillFrom(const ClsTask& task);
    /// From here on, only changes to the present content are the user's.
    void noteFilled() { m_filled = m_controls.input(); }

    void chkEnableReminder_Click();
    void switchReminderOn();
    void btnSoundBrowse_Click();
    void btnFileBrowse_Click();
    void btnOk_Click();
    void btnCancel_Click();
    /// True when the form handles the key, which then goes no further.
    bool Form_KeyPress(const QKeyEvent& event);
    void Form_Escape();

    /// False when the user has been told what is missing.
    bool save();
    /// Hides the dialog and forgets unsaved input.
    void leave();
    void enableReminderControls();
    /// Returns the id of the stored task.
    qint32 store(TaskInput entered) const;
    QWidget* controlOf(TaskField field) const;

    const FormServices& m_services;
    const TaskDetailsHost& m_host;
    TaskDetailsControls m_controls;
    MomentsByHand m_moments;
    RepeatByHand m_repeat;
    std::optional<ClsTask> m_loaded; ///< the task that is edited, as it was stored then; none for a new one
    /// Empty while the form holds nothing that could be lost.
    std::optional<TaskInput> m_filled;
};
